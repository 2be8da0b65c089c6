// RecordingPlatform: the outside world of tests. Records the program's requests and answers from a queue, so that every
// message, dialog and path of a command can be tested without a window.
#pragma once
#include "platform/BackgroundQueue.h"
#include "seams/Platform.h"
#include "support/RecordingDesktop.h"
#include "support/RecordingFonts.h"
#include <QTemporaryDir>
#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace velara {

class RecordingPlatform : public Platform {
  public:
    /// Answers for the next dialogs, in order. An empty one, and an empty queue, cancel. A question takes "yes" and
    /// "no", a choice its text.
    std::deque<std::optional<QString>> answers;
    /// One line a call: "message: TITLE: TEXT", "ask: TITLE: TEXT" (choices, too), "open: TITLE", "save: TITLE",
    /// "folder: TITLE", "clipboard: set", "clipboard: clear".
    std::vector<std::string> log;
    std::function<void()> onAsk; // a dialog stands
    QString loadNote;            // of every picture that is read
    CameraData camera = {};      // of every picture that is read
    QString properties = {}, format = {};
    int pages = 1;                                // of every file
    std::function<void(const GoOn& goOn)> onLoad; // by the thread that reads
    std::uint32_t now = 0;
    FileDialog lastDialog;
    Icon lastIcon = Icon::None;
    std::map<QString, QString> settings; // "section/key"
    QTemporaryDir folder;                // the program folder
    RecordingFonts recordingFonts;
    RecordingClipboard recordingClipboard{log};

    bool logged(const std::string& line) const { return std::ranges::find(log, line) != log.end(); }

    std::uint32_t milliseconds() override { return now; }
    double random() override { return 0.5; }
    QString programFolder() override { return folder.path(); }
    bool previousInstance() override { return false; }
    QString setting(const QString& section, const QString& key, const QString& otherwise) override;
    void setSetting(const QString& section, const QString& key, const QString& value) override;
    Request inBackground(std::function<void(const GoOn&)> work, std::function<void()> done) override
    {
        return background_.add(std::move(work), std::move(done));
    }
    void message(const QString& title, const QString& text, Icon icon) override;
    Answer askYesNoCancel(const QString& title, const QString& text, Icon icon) override;
    int choose(const QString& title, const QString& text, const QStringList& choices) override;
    std::optional<QString> openFileName(const FileDialog& dialog) override;
    std::optional<QString> saveFileName(const FileDialog& dialog) override;
    std::optional<QString> pickFolder(const QString& title, const QString& start) override;
    QString compactPath(const QString& path, int) override { return path; }
    /// Reads in this process, with Qt's readers. For any thread.
    LoadedPicture loadPicture(const QString& path, const QString& extension, const GoOn& goOn = {},
                              int page = 1) override;
    RecordingClipboard& clipboard() override { return recordingClipboard; }
    RecordingFonts& fonts() override { return recordingFonts; }
    RecordingPreviews& previews() override { return previews_; }
    RecordingScreen& screen() override { return screen_; }
    RecordingWallpaper& wallpaper() override { return wallpaper_; }
    RecordingScanner& scanner() override { return scanner_; }
    RecordingPrinters& printers() override { return printers_; }

  private:
    RecordingPreviews previews_;
    RecordingScreen screen_;
    RecordingWallpaper wallpaper_;
    RecordingScanner scanner_;
    RecordingPrinters printers_;
    /// Records the line. \returns the next answer
    std::optional<QString> ask(const QString& line);
    BackgroundQueue background_; // last: its work may ask for pictures
};

} // namespace velara
