#include "app/settings/language.h"
#include "seams/Machine.h"
#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStringList>
#include <QTranslator>
#include <algorithm>

// Outside of namespaces, as the macro demands.
static void initTranslations() { Q_INIT_RESOURCE(translations); }

namespace velara {

namespace {

constexpr const char *kSection = "VeStu", *kKey = "Language";

constexpr Language kLanguages[] = {
    {"en", "English"}, {"de", "Deutsch"}, {"es", "Español"}, {"fr", "Français"}, {"zh_CN", "简体中文"}};

/// Whether somebody who wants the one can read the other: of Chinese, the script counts.
bool isReadable(const QLocale& wanted, const QLocale& other)
{
    return wanted.language() == other.language() &&
           (wanted.language() != QLocale::Chinese || wanted.script() == other.script());
}

} // namespace

std::span<const Language> languages() { return kLanguages; }

QString languageFor(const QStringList& wanted)
{
    for (const QString& name : wanted)
        for (const Language& language : kLanguages)
            if (isReadable(QLocale(name), QLocale(language.code))) return language.code;
    return kLanguages[0].code;
}

QString chosenLanguage(Machine& machine)
{
    const QString code = machine.setting(kSection, kKey, {});
    return std::ranges::any_of(kLanguages, [&](const Language& one) { return code == one.code; }) ? code : QString();
}

void chooseLanguage(Machine& machine, const QString& code) { machine.setSetting(kSection, kKey, code); }

void useLanguage(QCoreApplication& application, const QString& code)
{
    initTranslations();
    const auto install = [&](const QString& name, const QString& folder) {
        auto* translator = new QTranslator(&application);
        if (!translator->load(name + code, folder)) return delete translator;
        QCoreApplication::installTranslator(translator);
    };
    install("qtbase_", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install("velara_", ":/translations");
}

} // namespace velara
