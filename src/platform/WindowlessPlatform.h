// WindowlessPlatform: the machine without a window. Dialogs are cancelled, and there is no clipboard; what
// becomes of messages is the program's own affair.
#pragma once
#include "platform/CorePlatform.h"
#include "platform/NoDesktop.h"
#include "platform/NoFonts.h"

namespace velara {

class WindowlessPlatform : public CorePlatform {
  public:
    Answer askYesNoCancel(const QString&, const QString&, Icon) override { return Answer::Cancel; }
    int choose(const QString&, const QString&, const QStringList&) override { return -1; }
    std::optional<QString> openFileName(const FileDialog&) override { return {}; }
    std::optional<QString> saveFileName(const FileDialog&) override { return {}; }
    std::optional<QString> pickFolder(const QString&, const QString&) override { return {}; }
    QString compactPath(const QString& path, int) override { return path; }
    Clipboard& clipboard() override { return clipboard_; }
    Fonts& fonts() override { return fonts_; }
    Previews& previews() override { return previews_; }
    Screen& screen() override { return screen_; }
    Wallpaper& wallpaper() override { return wallpaper_; }
    Scanner& scanner() override { return scanner_; }
    Printers& printers() override { return printers_; }

  private:
    NoClipboard clipboard_;
    NoFonts fonts_;
    NoPreviews previews_;
    NoScreen screen_;
    NoWallpaper wallpaper_;
    NoScanner scanner_;
    NoPrinters printers_;
};

} // namespace velara
