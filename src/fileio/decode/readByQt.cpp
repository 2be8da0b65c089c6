#include "fileio/decode/readers.h"
#include "fileio/load/DecodeProtocol.h"
#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <cstdlib>

namespace velara::decode {

namespace {

QImage withColours(QImage row, const QImage& picture)
{
    if (picture.colorCount() > 0) row.setColorTable(picture.colorTable());
    return row;
}

} // namespace

Needs loadQtReaders()
{
    QBuffer nothing;
    QImageReader reader(&nothing, "ico");
    reader.setAutoDetectImageFormat(false);
    reader.canRead();
    return Needs::Nothing;
}

Needs loadIconReaders()
{
    // An icon may contain a PNG, which Qt finds by trying all readers in turn.
    QByteArray unknown(8, '\0');
    QBuffer buffer(&unknown);
    buffer.open(QIODevice::ReadOnly);
    QImageReader(&buffer).canRead();
    return loadQtReaders();
}

Decoded onWhite(const QImage& image)
{
    const int width = image.width();
    return {width,
            image.height(),
            [image, width](int y, Pixel* row) { // row by row: whole pictures are converted by threads
                const QImage one(image.constScanLine(y), width, 1, image.bytesPerLine(), image.format());
                const QImage colours = withColours(one, image).convertToFormat(QImage::Format_ARGB32_Premultiplied);
                const auto* from = reinterpret_cast<const QRgb*>(colours.constScanLine(0));
                for (int x = 0; x < width; ++x) {
                    const int white = 255 - qAlpha(from[x]);
                    const auto over = [white](int part) { return static_cast<std::uint8_t>(part + white); };
                    row[x] = {{over(qBlue(from[x])), over(qGreen(from[x])), over(qRed(from[x])), 0}};
                }
            },
            {}};
}

namespace {

/// Qt ignores the mask of a 24-bit picture in an icon: masked pixels become transparent here.
QImage masked(const QImage& image, const FileBytes& file)
{
    constexpr std::size_t kDirectory = 6, kEntry = 16, kOffset = 12, kHeader = 40, kBits = 14;
    const std::size_t at = file.little32(kDirectory + kEntry * static_cast<std::size_t>(wantedPage) + kOffset);
    if (file.little32(at) != kHeader || file.little16(at + kBits) != 24 || image.depth() != 32) return image;
    const auto lineOf = [](std::size_t bits) { return (bits + 31) / 32 * 4; };
    const auto width = static_cast<std::size_t>(image.width()), height = static_cast<std::size_t>(image.height());
    QImage out(image.size(), QImage::Format_ARGB32);
    for (std::size_t y = 0; y < height; ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(image.constScanLine(static_cast<int>(y)));
        auto* to = reinterpret_cast<QRgb*>(out.scanLine(static_cast<int>(y)));
        const std::size_t mask = at + kHeader + lineOf(24 * width) * height + lineOf(width) * (height - 1 - y);
        for (std::size_t x = 0; x < width; ++x)
            to[x] = file.byte(mask + x / 8) << x % 8 & 0x80 ? 0 : from[x]; // the file has the bottom row first
    }
    return out;
}

} // namespace

Decoded readByQt(FileBytes& file, const char* format)
{
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(file.bytes().data()),
                                               static_cast<qsizetype>(file.size()));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    QImageReader::setAllocationLimit(0);                // we have limits of our own
    const int pages = std::max(reader.imageCount(), 1); // of an icon its sizes
    if (wantedPage >= pages) return noSuchPage(pages);
    if (wantedPage > 0 && !reader.jumpToImage(wantedPage)) return {};
    const QSize size = reader.size();
    if (size.isValid() && !Bits::sizeAllowed(size.width(), size.height()))
        return size.isEmpty() ? Decoded{} : refused(kTooBig);
    if (size.isValid()) sizeFound(size.width(), size.height(), 0);
    const QImage image = reader.read();
    if (image.isNull()) return {};
    if (!Bits::sizeAllowed(image.width(), image.height())) return refused(kTooBig);
    Decoded picture = onWhite(reader.format() == "ico" || reader.format() == "cur" ? masked(image, file) : image);
    picture.carried.pages = pages;
    return picture;
}

// Qt's reader returns the available part of a truncated file and reports nothing.
namespace {

bool isDibCutOff(const FileBytes& file)
{
    const std::size_t info = file.startsWith("BM") ? 14 : 0;
    const std::size_t header = file.little32(info);
    if (header < 40) return false;
    const auto side = [&](std::size_t at) {
        return std::abs(std::int64_t{static_cast<std::int32_t>(file.little32(at))});
    };
    const std::int64_t width = side(info + 4), height = side(info + 8);
    const std::uint32_t bits = file.little16(info + 14), compression = file.little32(info + 16);
    const std::uint32_t used = file.little32(info + 32);
    const bool isPlain = compression == 0 || compression == 3; // 3: with colour masks
    if (!isPlain || !Bits::sizeAllowed(width, height)) return false;
    std::size_t from = info + header + (compression == 3 && header == 40 ? 12 : 0);
    if (bits <= 8) from += 4 * std::size_t{used ? used : 1U << bits};
    if (info) from = file.little32(10);
    const auto pixels = static_cast<std::size_t>((width * bits + 31) / 32 * 4 * height);
    return from + pixels > file.size();
}

Decoded noted(Decoded picture, bool isCutOff)
{
    if (picture.reason.isEmpty() && isCutOff) picture.reason = kCutOff;
    return picture;
}

} // namespace

Decoded readIcon(FileBytes& file) { return readByQt(file, "ico"); }
Decoded readCursor(FileBytes& file) { return readByQt(file, "cur"); }

Decoded readDib(FileBytes& file)
{
    return noted(readByQt(file, file.startsWith("BM") ? "bmp" : "dib"), isDibCutOff(file));
}

} // namespace velara::decode
