// Null implementations of the desktop's services: nothing to see, nothing to change, no devices.
#pragma once
#include "seams/Clipboard.h"
#include "seams/Previews.h"
#include "seams/Printers.h"
#include "seams/Scanner.h"
#include "seams/Screen.h"
#include "seams/Wallpaper.h"

namespace velara {

class NoPreviews final : public Previews {
  public:
    Request picture(const QString&, QSize, Done) override { return {}; }
    Request thumbnail(const QString&, Done) override { return {}; }
};

class NoClipboard final : public Clipboard {
  public:
    int changesByOthers() const override { return 0; }
    LoadedPicture bitmap() override { return {}; }
    bool setBitmap(const Bits&) override { return false; }
    bool setPart(const Bits&) override { return false; }
    void clear() override {}
};

class NoScreen final : public Screen {
  public:
    void grab(Done done) override { done({}); }
    void cancel() override {}
    bool showDesktop(bool) override { return false; }
};

class NoWallpaper final : public Wallpaper {
  public:
    QString folder() override { return {}; }
    void set(const QString&, WallpaperMode, Done done) override { done(WallpaperResult::CantWrite); }
};

class NoScanner final : public Scanner {
  public:
    void list(std::function<void(const QList<ScanSource>&, const QString&)> done) override { done({}, "no scanner"); }
    void describe(const QString&, std::function<void(const ScanRange&, const QString&)> done) override
    {
        done({}, "no scanner");
    }
    void acquire(const ScanJob&, const QString&, ScanCalls calls) override { calls.done("no scanner"); }
    void next() override {}
    void cancel() override {}
};

class NoPrinters final : public Printers {
  public:
    Request list(std::function<void(const List&)>) override { return {}; }
    void setCurrent(const QString&) override {}
    Request facts(const QString&, std::function<void(const PrinterFacts&)>) override { return {}; }
    PrinterFacts fileFacts() override { return {}; }
    Request print(const QString&, const PrintPage&, Done) override { return {}; }
    Request printToFile(const QString&, const PrintPage&, Done) override { return {}; }
    Request options(const QString&, std::function<void(const Options&)>) override { return {}; }
    void choose(const PrinterChoice&) override {}
};

} // namespace velara
