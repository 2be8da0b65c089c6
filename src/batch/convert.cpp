#include "batch/convert.h"
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

namespace velara {

namespace {

/// A picture that is read by another thread.
class ArrivingPicture {
  public:
    explicit ArrivingPicture(const CommandLine& line) : partial_(line.partial)
    {
        reader_.start([this, &line] {
            LoadedPicture loaded;
            try {
                loaded = loadThroughDecoder(line.input, extensionOf(line.input), findDecoder(),
                                            limitsFor(sizeOfFile(line.input)), {}, line.page,
                                            [this](const LoadedPicture& picture, int rows) { came(picture, rows); });
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

  private:
    void came(const LoadedPicture& picture, int rows)
    {
        const std::lock_guard lock(guard_);
        if (rows == 0) picture_ = picture;
        rows_ = rows;
        changed_.notify_all();
    }
    void ended(const LoadedPicture& picture)
    {
        const std::lock_guard lock(guard_);
        picture_ = picture;
        hasEnded_ = true;
        isTaken_ = picture.ok() && (picture.reason.isEmpty() || partial_);
        changed_.notify_all();
    }

    const bool partial_;
    std::mutex guard_;
    std::condition_variable changed_;
    LoadedPicture picture_;
    int rows_ = 0;
    bool hasEnded_ = false, isTaken_ = false;
    Workers reader_; // last: it ends first
};

} // namespace

bool isConversion(const CommandLine& line)
{
    const QString pipe = QStringLiteral("-");
    return line.steps.empty() && !line.web && !line.icon && line.input != pipe && line.output != pipe;
}

void convert(BatchPlatform& platform, const CommandLine& line)
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
    const QString kind = otherKind(FileFacts{.path = line.input}.name(), read.format);
    if (line.verbose && !kind.isEmpty()) std::fprintf(stderr, "%s\n", kind.toUtf8().constData());
    report.tell(platform);
    checkWritten(report, line.output);
}

} // namespace velara
