#include "platform/FilePreviews.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "fileio/load/PictureLoader.h"
#include "fileio/thumbnails/SharedThumbnail.h"
#include <QFileInfo>

namespace velara {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

SmallPicture read(const QString& path, const QString& extension, QSize box, DecoderLimits limits, const GoOn& goOn)
{
    static const QString decoder = findDecoder();
    limits.cpuSeconds = std::min(limitsFor(sizeOfFile(path)).cpuSeconds, limits.mostSeconds);
    return loadSmall(path, extension, decoder, box, limits, goOn);
}

Preview preview(const SmallPicture& small) { return {small.image, small.size, small.reason}; }

/// time is wall-clock time, in total. A picture that uses most of it as processor time is recorded as unreadable; one
/// that waited for a slow disk or a busy machine is not, and will be tried again.
Preview readThumbnail(const QString& path, std::chrono::seconds time, const GoOn& goOn)
{
    constexpr QSize kBox(Previews::kThumbnailSide, Previews::kThumbnailSide);
    const auto end = Clock::now() + time;
    const auto readInTime = [&](const QString& file, const QString& extension) {
        DecoderLimits limits;
        limits.mostSeconds = static_cast<unsigned>(std::max(time - 1s, 1s).count());
        limits.wallClock = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
        return read(file, extension, kBox, limits, goOn);
    };
    const SharedThumbnail shared(path);
    for (const QString& entry : shared.entries()) {
        const SmallPicture found = readInTime(entry, "png");
        if (found.reason.isEmpty() && shared.isMadeOf(found.origin))
            return {found.image, {found.origin.width, found.origin.height}, {}};
    }
    const QFileInfo file(path);
    if (QFileInfo::exists(shared.failure()) && shared.isMadeOf(readInTime(shared.failure(), "png").origin))
        return {{}, {}, file.fileName() + " can't be read"};
    const SmallPicture made = readInTime(path, extensionOf(path));
    if (made.reason.isEmpty())
        shared.write(made.image, made.size);
    else if (made.image.isNull() && goOn({}) && Clock::now() < end && access(nativeName(path).constData(), R_OK) == 0)
        shared.writeFailure();
    return preview(made);
}

} // namespace

Previews::Request FilePreviews::picture(const QString& path, QSize box, Done done)
{
    const auto work = [=](const GoOn& goOn) { return preview(read(path, extensionOf(path), box, {}, goOn)); };
    return pictures_.add<Preview>(work, std::move(done));
}

Previews::Request FilePreviews::thumbnail(const QString& path, Done done)
{
    const auto work = [=, time = thumbnailTime_](const GoOn& goOn) { return readThumbnail(path, time, goOn); };
    return thumbnails_.add<Preview>(work, std::move(done));
}

} // namespace velara
