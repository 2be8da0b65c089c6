// The language of the windows: that of the user's locale, or the one chosen in the options. The texts in the code are
// English; the others are made from translations/*.ts and stand in the program.
#pragma once
#include <QString>
#include <span>

class QCoreApplication;

namespace velara {

class Machine;

struct Language {
    const char* code; // of its file, and in the settings
    const char* name; // its own
};
/// English, and those with a file.
std::span<const Language> languages();

/// The code of the first of these languages (as of QLocale::uiLanguages) that is there; "en" if none is.
QString languageFor(const QStringList& wanted);

/// The code that the user has chosen; empty: that of the locale.
QString chosenLanguage(Machine& machine);
void chooseLanguage(Machine& machine, const QString& code);

/// Texts made from now on are in the language, those of Qt, too. To be called before the first window is made.
void useLanguage(QCoreApplication& application, const QString& code);

} // namespace velara
