#include "fileio/decode/readers.h"
#include "platform/DecodeProtocol.h"
#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <cstring>

namespace velara::decode {

Decoded onWhite(const QImage& image)
{
    const QImage colours = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int width = colours.width();
    return {width,
            colours.height(),
            [colours, width](int y, Pixel* row) {
                const auto* from = reinterpret_cast<const QRgb*>(colours.constScanLine(y));
                for (int x = 0; x < width; ++x) {
                    const int white = 255 - qAlpha(from[x]);
                    const auto over = [white](int part) { return static_cast<std::uint8_t>(part + white); };
                    row[x] = {{over(qBlue(from[x])), over(qGreen(from[x])), over(qRed(from[x])), 0}};
                }
            },
            {}};
}

Decoded readByQt(FileBytes& file, const char* format)
{
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(file.bytes().data()),
                                               static_cast<qsizetype>(file.size()));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    QImageReader::setAllocationLimit(0); // the limits here are ours
    const QSize size = reader.size();
    if (size.isValid() && !isReadableSize(size.width(), size.height()))
        return size.isEmpty() ? Decoded{} : refused(kTooBig);
    const QImage image = reader.read();
    if (image.isNull()) return {};
    if (!isReadableSize(image.width(), image.height())) return refused(kTooBig);
    return onWhite(image);
}

Decoded readDib(FileBytes& file) { return readByQt(file, file.startsWith("BM") ? "bmp" : "dib"); }

} // namespace velara::decode
