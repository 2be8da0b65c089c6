// QtPlatform: the real Platform of the editor, by Qt Widgets.
#pragma once
#include "fileio/load/PictureLoader.h"
#include "platform/CorePlatform.h"
#include "platform/FilePreviews.h"
#include "platform/QtFonts.h"
#include "platform/desktop/DesktopWallpaper.h"
#include "platform/desktop/SaneScanner.h"
#include "platform/desktop/clipboard/QtClipboard.h"
#include "platform/desktop/printing/CupsPrinters.h"
#include "platform/desktop/screen/QtScreen.h"

namespace velara {

class QtPlatform : public CorePlatform {
  public:
    void message(const QString& title, const QString& text, Icon icon) override;
    Answer askYesNoCancel(const QString& title, const QString& text, Icon icon) override;
    int choose(const QString& title, const QString& text, const QStringList& choices) override;
    std::optional<QString> openFileName(const FileDialog& dialog) override;
    std::optional<QString> saveFileName(const FileDialog& dialog) override;
    std::optional<QString> pickFolder(const QString& title, const QString& start) override;
    QString compactPath(const QString& path, int pixels) override;

    Clipboard& clipboard() override { return clipboard_; }
    Fonts& fonts() override { return fonts_; }
    Previews& previews() override { return previews_; }
    Screen& screen() override { return screen_; }
    Wallpaper& wallpaper() override { return wallpaper_; }
    Scanner& scanner() override { return scanner_; }
    Printers& printers() override { return printers_; }

  private:
    static GoOn whilePasting(const QString& name);

    QtClipboard clipboard_{[this](const auto&... what) { return decodeBytes(what...); },
                           [this](const QString& name) { return whilePasting(name); }};
    QtFonts fonts_;
    FilePreviews previews_;
    QtScreen screen_{*this};
    DesktopWallpaper wallpaper_{*this};
    CupsPrinters printers_{*this};
    SaneScanner scanner_{findHelper("velara-scan")};
};

} // namespace velara
