#include "platform/FilePreviews.h"
#include "fileio/formats.h"
#include "fileio/thumbnails/SharedThumbnail.h"
#include <QFileInfo>

namespace velara {

namespace {

SmallPicture read(const QString& path, const QString& extension, QSize box, const GoOn& goOn)
{
    static const QString decoder = findDecoder();
    return loadSmall(path, extension, decoder, box, limitsFor(QFileInfo(path).size()), goOn);
}

Preview preview(const SmallPicture& small) { return {small.image, small.size, small.reason}; }

Preview readThumbnail(const QString& path, const GoOn& goOn)
{
    constexpr QSize kBox(Previews::kThumbnailSide, Previews::kThumbnailSide);
    const SharedThumbnail shared(path);
    for (const QString& entry : shared.entries()) {
        const SmallPicture found = read(entry, "png", kBox, goOn);
        if (found.reason.isEmpty() && shared.isMadeOf(found.origin))
            return {found.image, {found.origin.width, found.origin.height}, {}};
    }
    const QFileInfo file(path);
    if (QFileInfo::exists(shared.failure()) && shared.isMadeOf(read(shared.failure(), "png", kBox, goOn).origin))
        return {{}, {}, file.fileName() + " can't be read"};
    const SmallPicture made = read(path, extensionOf(path), kBox, goOn);
    if (made.reason.isEmpty())
        shared.write(made.image, made.size);
    else if (made.image.isNull() && goOn({}) && file.isReadable())
        shared.writeFailure();
    return preview(made);
}

} // namespace

Previews::Request FilePreviews::picture(const QString& path, QSize box, Done done)
{
    const auto work = [=](const GoOn& goOn) { return preview(read(path, extensionOf(path), box, goOn)); };
    return pictures_.add<Preview>(work, std::move(done));
}

Previews::Request FilePreviews::thumbnail(const QString& path, Done done)
{
    return thumbnails_.add<Preview>([=](const GoOn& goOn) { return readThumbnail(path, goOn); }, std::move(done));
}

} // namespace velara
