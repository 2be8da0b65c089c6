// Dialogs: messages, questions and the common dialogs for files.
#pragma once
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

namespace velara {

/// The title of messages and of windows without a title of their own.
inline const QString kProgramName = QStringLiteral("Velara Studio");

enum class Icon { None, Information, Exclamation, Critical };
enum class Answer { Yes, No, Cancel };

/// A check box of a save dialog. on is read as it opens and set where the user accepts; one that needs another is
/// unavailable while that is off.
struct FileChoice {
    QString name, caption;
    bool* on = nullptr;
    const bool* needs = nullptr;
};

/// What a file dialog shows. filter is "caption|patterns|caption|patterns|...", patterns separated by semicolons.
struct FileDialog {
    QString title;
    QString filter;
    QString folder = {};
    QString defaultPattern = {};
    /// For a save dialog: the extension added to a name without one when the chosen filter has several.
    QString extension = {};
    /// For a save dialog: the name that is proposed; what comes before its extension is selected.
    QString name = {};
    /// The file that saving under this name writes: the dialog asks before replacing that one.
    std::function<QString(const QString&)> writtenAs = {};
    /// For a save dialog.
    std::vector<FileChoice> choices = {};
};

class Dialogs {
  public:
    virtual ~Dialogs() = default;

    virtual void message(const QString& title, const QString& text, Icon icon) = 0;
    /// A message under the program's name.
    void tell(const QString& text, Icon icon = Icon::Information) { message(kProgramName, text, icon); }
    virtual Answer askYesNoCancel(const QString& title, const QString& text, Icon icon) = 0;
    /// A question with a button for each choice, the first the default, and Cancel. \returns the choice's index, -1:
    /// cancelled
    virtual int choose(const QString& title, const QString& text, const QStringList& choices) = 0;
    /// No value: the user cancelled.
    virtual std::optional<QString> openFileName(const FileDialog& dialog) = 0;
    virtual std::optional<QString> saveFileName(const FileDialog& dialog) = 0;
    virtual std::optional<QString> pickFolder(const QString& title, const QString& start) = 0;
    /// path shortened with an ellipsis so that it takes at most the given pixels in the menu font.
    virtual QString compactPath(const QString& path, int pixels) = 0;
};

} // namespace velara
