#include "batch/writeWhileReading.h"
#include "batch/RowSteps.h"
#include "batch/onePicture.h"
#include "document/road/FileFacts.h"
#include "fileio/cameraData.h"
#include "fileio/disk/OutputFile.h"
#include "fileio/formats.h"
#include "fileio/load/PictureLoader.h"
#include "pixels/threads/Workers.h"
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <optional>

namespace velara {

namespace {

/// A picture that another thread reads and takes the steps on.
class ArrivingPicture {
  public:
    explicit ArrivingPicture(const CommandLine& line) : line_(line)
    {
        reader_.start([this, &line] {
            LoadedPicture loaded;
            try {
                loaded = loadThroughDecoder(line.input, extensionOf(line.input), findDecoder(),
                                            limitsFor(sizeOfFile(line.input)), {}, line.page,
                                            [this](LoadedPicture& picture, int rows) { came(picture, rows); });
            } catch (const std::bad_alloc&) {
                loaded.reason = QStringLiteral("there is not enough memory");
            }
            ended(loaded);
        });
    }

    /// Waits until it is known what it is, or that it can't be read. Its rows are there as far as they were awaited.
    LoadedPicture begun()
    {
        std::unique_lock lock(guard_);
        changed_.wait(lock, [&] { return picture_.ok() || hasEnded_; });
        return picture_;
    }
    /// False when it doesn't come; at the picture's height: when not all has come that has to.
    bool awaitRow(int row)
    {
        std::unique_lock lock(guard_);
        changed_.wait(lock, [&] { return rows_ > row || hasEnded_; });
        return rows_ > row || (hasEnded_ && isTaken_);
    }
    LoadedPicture whole()
    {
        std::unique_lock lock(guard_);
        changed_.wait(lock, [&] { return hasEnded_; });
        return picture_;
    }

    /// Of a step, once all is read.
    const std::optional<Failure>& failure() const { return failure_; }

  private:
    void came(LoadedPicture& picture, int rows)
    {
        if (rows == 0) steps_.emplace(line_.steps, picture.bits);
        int done = 0;
        try {
            if (!failure_) done = steps_->take(rows);
        } catch (const Failure& failure) {
            failure_ = failure;
        }
        const std::lock_guard lock(guard_);
        if (rows == 0) picture_ = picture;
        rows_ = done;
        changed_.notify_all();
    }
    void ended(const LoadedPicture& picture)
    {
        const std::lock_guard lock(guard_);
        picture_ = picture;
        hasEnded_ = true;
        isTaken_ = picture.ok() && !failure_ && (picture.reason.isEmpty() || line_.partial);
        changed_.notify_all();
    }

    const CommandLine& line_;
    std::optional<RowSteps> steps_;
    std::optional<Failure> failure_;
    std::mutex guard_;
    std::condition_variable changed_;
    LoadedPicture picture_;
    int rows_ = 0;
    bool hasEnded_ = false, isTaken_ = false;
    Workers reader_; // last: it ends first
};

} // namespace

bool canBeWrittenWhileRead(const CommandLine& line)
{
    const QString pipe = QStringLiteral("-");
    return RowSteps::serve(line) && !line.web && !line.icon && line.input != pipe && line.output != pipe;
}

void writeWhileReading(BatchPlatform& platform, const CommandLine& line)
{
    ArrivingPicture arriving(line);
    SaveReport report;
    if (const LoadedPicture picture = arriving.begun(); picture.ok()) {
        const SaveTarget target = saveTargetOf(line.output);
        const CameraData camera =
            keptFor(picture.camera, line.camera.value_or(CameraKept::All), picture.bits.width(), picture.bits.height());
        SaveWishes wishes;
        wishes.quality = line.quality;
        wishes.keepsRemains = false;
        wishes.awaitRow = [&](int row) { return arriving.awaitRow(row); };
        report = writePicture(picture.bits, target.name, target.extension, OutputFile::Links::Follow, camera, wishes);
    }
    const LoadedPicture read = arriving.whole();
    checkRead(read.ok(), read.reason, line.partial);
    if (arriving.failure()) throw Failure(*arriving.failure());
    const QString kind = otherKind(FileFacts{.path = line.input}.name(), read.format);
    if (line.verbose && !kind.isEmpty()) std::fprintf(stderr, "%s\n", kind.toUtf8().constData());
    report.tell(platform);
    checkWritten(report, line.output);
}

} // namespace velara
