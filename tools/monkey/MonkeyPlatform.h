// MonkeyPlatform: the monkey's outside world. Messages and dialogs get random answers, some only after being open for a
// while; files are in the scratch folder; clipboard, screen, scanner and printers are the tests' doubles.
#pragma once
#include "support/RecordingPlatform.h"
#include "tools/monkey/Dice.h"
#include <functional>

namespace velara::monkey {

class MonkeyPlatform final : public RecordingPlatform {
  public:
    /// files is the folder of the pictures returned by open dialogs; saved files go there, too.
    MonkeyPlatform(const QString& files, std::function<Dice()> dice);

    /// Makes pictures of all kinds, and some invalid ones, for the dialogs to return.
    void makeFiles();
    /// A random one of them; some don't exist.
    QString anyFile(Dice& dice) const;
    /// Clears the doubles' logs and delivers pending answers.
    void tidy(Dice& dice);
    /// Changes the desktop: a clipboard, a screen, printers and a scanner that answer or don't.
    void change(Dice& dice);

    std::uint32_t milliseconds() override { return now += 3; }
    void message(const QString& title, const QString& text, Icon icon) override;
    Answer askYesNoCancel(const QString& title, const QString& text, Icon icon) override;
    int choose(const QString& title, const QString& text, const QStringList& choices) override;
    std::optional<QString> openFileName(const FileDialog& dialog) override;
    std::optional<QString> saveFileName(const FileDialog& dialog) override;
    std::optional<QString> pickFolder(const QString& title, const QString& start) override;

  private:
    /// Keeps a modal window open for some actions, or not at all.
    void stand(const QString& title);

    QString files_;
    std::function<Dice()> dice_;
};

} // namespace velara::monkey
