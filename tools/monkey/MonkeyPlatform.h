// MonkeyPlatform: the outside world of the monkey. Messages and dialogs are answered by the dice, some only after they
// have stood for a while; files lie in the scratch folder; clipboard, screen, scanner and printers are the tests' own.
#pragma once
#include "support/RecordingPlatform.h"
#include "tools/monkey/Dice.h"
#include <functional>

namespace velara::monkey {

class MonkeyPlatform final : public RecordingPlatform {
  public:
    /// files is the folder of the pictures that open dialogs give; what is saved goes there too.
    MonkeyPlatform(const QString& files, std::function<Dice()> dice);

    /// Pictures of all sorts, and some that are none, for the dialogs to give.
    void makeFiles();
    /// Any of them; some are missing.
    QString anyFile(Dice& dice) const;
    /// Forgets what the doubles wrote down, and gives answers that are waited for.
    void tidy(Dice& dice);
    /// What the desktop has from now on: a clipboard, a screen, printers and a scanner that answer or don't.
    void change(Dice& dice);

    std::uint32_t milliseconds() override { return now += 3; }
    void message(const QString& title, const QString& text, Icon icon) override;
    Answer askYesNoCancel(const QString& title, const QString& text, Icon icon) override;
    std::optional<QString> openFileName(const FileDialog& dialog) override;
    std::optional<QString> saveFileName(const FileDialog& dialog) override;
    std::optional<QString> pickFolder(const QString& title, const QString& start) override;

  private:
    /// A modal window stands for some actions, or none does.
    void stand(const QString& title);

    QString files_;
    std::function<Dice()> dice_;
};

} // namespace velara::monkey
