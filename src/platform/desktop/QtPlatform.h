// QtPlatform: the real Platform of the editor, by Qt Widgets.
#pragma once
#include "platform/CorePlatform.h"
#include "platform/desktop/QtFonts.h"

namespace velara {

class QtPlatform : public CorePlatform {
  public:
    void yield() override;

    void message(const QString& title, const QString& text, Icon icon) override;
    Answer askYesNoCancel(const QString& title, const QString& text, Icon icon) override;
    std::optional<QString> openFileName(const FileDialog& dialog) override;
    std::optional<QString> saveFileName(const FileDialog& dialog) override;
    std::optional<QString> pickFolder(const QString& title, const QString& start) override;
    QString compactPath(const QString& path, int pixels) override;

    bool clipboardHasBitmap() override;
    Bits clipboardBitmap() override;
    bool setClipboardBitmap(const Bits& bits) override;
    void clearClipboard() override;

    Fonts& fonts() override { return fonts_; }

  protected:
    GoOn whileReading(const QString& name) override;

  private:
    QtFonts fonts_;
};

} // namespace velara
