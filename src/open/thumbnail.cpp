#include "open/thumbnail.h"
#include "fileio/disk/OutputFile.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "fileio/load/PictureLoader.h"
#include <QBuffer>

namespace velara {

QString writeThumbnail(const QString& file, int side, const QString& png)
{
    DecoderLimits limits = limitsFor(sizeOfFile(file));
    limits.wallClock = std::chrono::seconds(10); // the file manager waits
    const SmallPicture small = loadSmall(file, extensionOf(file), findDecoder(), {side, side}, limits);
    if (small.image.isNull()) return small.reason;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    OutputFile output(png);
    if (small.image.save(&buffer, "PNG") && output.write(bytes.constData(), std::size_t(bytes.size())) &&
        output.commit())
        return {};
    return png + QStringLiteral(" can't be written");
}

} // namespace velara
