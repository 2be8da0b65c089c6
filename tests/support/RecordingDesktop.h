// The desktop of tests: records requests and answers with what the test has prepared, at once or when the test says so.
#pragma once
#include "seams/Clipboard.h"
#include "seams/Previews.h"
#include "seams/Printers.h"
#include "seams/Scanner.h"
#include "seams/Screen.h"
#include "seams/Wallpaper.h"
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace velara {

/// Answers when the test says so.
class RecordingPreviews final : public Previews {
  public:
    std::vector<QString> asked; // "PATH" and "thumbnail PATH"

    Request picture(const QString& path, QSize, Done done) override { return ask(path, std::move(done)); }
    Request thumbnail(const QString& path, Done done) override { return ask("thumbnail " + path, std::move(done)); }
    /// False: the request was released.
    bool answer(const QString& what, const Preview& preview)
    {
        const auto waiting = waiting_[what].lock();
        if (!waiting) return false;
        const Done done = *waiting;
        done(preview);
        return true;
    }

  private:
    Request ask(const QString& what, Done done)
    {
        asked.push_back(what);
        auto request = std::make_shared<Done>(std::move(done));
        waiting_[what] = request;
        return request;
    }
    std::map<QString, std::weak_ptr<Done>> waiting_;
};

class RecordingClipboard final : public Clipboard {
  public:
    Bits bits;
    QString fault;  // why it can't be read
    int others = 0; // see changesByOthers

    explicit RecordingClipboard(std::vector<std::string>& log) : log_(log) {}
    LoadedPicture bitmap() override { return {bits, fault}; }
    int changesByOthers() const override { return others; }
    bool setBitmap(const Bits& picture) override { return put("clipboard: set", picture); }
    bool setPart(const Bits& part) override { return put("clipboard: part", part); }
    void clear() override { put("clipboard: clear", {}); }

  private:
    bool put(const char* line, const Bits& picture)
    {
        log_.emplace_back(line);
        bits = picture;
        return true;
    }

    std::vector<std::string>& log_;
};

class RecordingScreen final : public Screen {
  public:
    ScreenPicture picture;
    bool silent = false, canShowDesktop = true; // silent: the answer waits for answer()
    std::vector<std::string> log;               // "grab", "cancel", "desktop on", "desktop off"
    std::function<void()> onGrab;

    void grab(Done done) override
    {
        log.emplace_back("grab");
        if (onGrab) onGrab();
        done_ = std::move(done);
        if (!silent) answer();
    }
    void answer()
    {
        if (const Done done = std::exchange(done_, nullptr)) done(picture);
    }
    bool waiting() const { return bool(done_); }
    void cancel() override
    {
        if (std::exchange(done_, nullptr)) log.emplace_back("cancel");
    }
    bool showDesktop(bool on) override
    {
        log.emplace_back(on ? "desktop on" : "desktop off");
        return canShowDesktop;
    }

  private:
    Done done_;
};

class RecordingWallpaper final : public Wallpaper {
  public:
    QString place; // the folder
    WallpaperResult result = WallpaperResult::Done;
    std::vector<std::pair<QString, WallpaperMode>> log;

    QString folder() override { return place; }
    void set(const QString& path, WallpaperMode mode, Done done) override
    {
        log.emplace_back(path, mode);
        done(result);
    }
};

class RecordingScanner final : public Scanner {
  public:
    QList<ScanSource> sources;
    ScanRange range;
    QString reason;      // of the next answer
    bool silent = false; // no answer ever comes
    int cancelled = 0;
    std::vector<ScanJob> jobs;
    std::function<void(const QString& path)> write; // writes a page's file
    int pages = 1;                                  // that come before the reason of a failure

    void list(std::function<void(const QList<ScanSource>&, const QString&)> done) override
    {
        if (!silent) done(sources, reason);
    }
    void describe(const QString&, std::function<void(const ScanRange&, const QString&)> done) override
    {
        described_ = [this, done] { done(range, std::exchange(reason, {})); };
        if (!silent) answer();
    }
    /// To what was described while it was silent.
    bool answer()
    {
        const auto waiting = std::exchange(described_, nullptr);
        if (waiting) waiting();
        return waiting != nullptr;
    }
    void acquire(const ScanJob& job, const QString& path, ScanCalls calls) override
    {
        jobs.push_back(job);
        if (silent) return;
        calls_ = std::move(calls);
        path_ = path;
        left_ = pages;
        calls_.progress(50);
        next();
    }
    void next() override
    {
        if (!calls_.done) return;
        if (left_-- <= 0) return std::exchange(calls_, {}).done(reason);
        if (write) write(path_);
        calls_.page();
    }
    void cancel() override
    {
        ++cancelled;
        calls_ = {};
        described_ = nullptr;
    }

  private:
    std::function<void()> described_;
    ScanCalls calls_;
    QString path_;
    int left_ = 0;
};

/// Answers at once, unless it is silent: then when the test says so.
class RecordingPrinters final : public Printers {
  public:
    List printers;
    Paper tray;
    int mostCopies = kMostCopies;
    QString reason, notice; // the result of the next page
    bool silent = false;
    std::vector<std::pair<QString, PrintPage>> pages; // the printer or the file
    std::vector<QString> log;                         // "current NAME", "choose NAME PAPER"

    Request list(std::function<void(const List&)> done) override
    {
        return ask([=, this] { done(printers); });
    }
    void setCurrent(const QString& name) override { log.push_back("current " + name); }
    Request facts(const QString&, std::function<void(const PrinterFacts&)> done) override
    {
        return ask([=, this] { done({tray, false, mostCopies}); });
    }
    PrinterFacts fileFacts() override { return {}; }
    Request options(const QString& printer, std::function<void(const Options&)> done) override
    {
        return ask([=, this] { done({{tray, {"iso_a4_210x297mm"}}, printer == "Lab"}); });
    }
    void choose(const PrinterChoice& choice) override
    {
        log.push_back("choose " + choice.printer + ' ' + choice.paper->name + (choice.gray ? " gray" : ""));
    }
    Request print(const QString& printer, const PrintPage& page, Done done) override
    {
        pages.emplace_back(printer, page);
        return ask([=, this] { done({reason, notice}); });
    }
    Request printToFile(const QString& path, const PrintPage& page, Done done) override
    {
        return print(path, page, std::move(done));
    }
    /// The last request, answered by calling it; null: it was released.
    std::shared_ptr<std::function<void()>> held() const { return waiting_.lock(); }
    bool answer()
    {
        const auto waiting = held();
        if (waiting) (*waiting)();
        return waiting != nullptr;
    }

  private:
    Request ask(std::function<void()> answer)
    {
        auto request = std::make_shared<std::function<void()>>(std::move(answer));
        waiting_ = request;
        if (!silent) (*request)();
        return request;
    }
    std::weak_ptr<std::function<void()>> waiting_;
};

} // namespace velara
