#include "fileio/writers/iconFile.h"
#include "fileio/disk/OutputFile.h"
#include <QDataStream>
#include <QIODevice>
#include <QPainter>
#include <vector>

namespace velara {

namespace {

constexpr int kDirectory = 6, kEntry = 16, kHeader = 40;
constexpr int kSides[] = {256, 128, 64, 48, 32, 24, 16}; // largest first, as readers that take only one take that

/// Premultiplied, so that scaling ignores transparent pixels.
QImage withMask(const Bits& picture, std::optional<Colour> mask)
{
    QImage image(picture.width(), picture.height(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return image;
    for (int y = 0; y < image.height(); ++y) {
        const Pixel* from = picture.row(y);
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const auto& [blue, green, red, fourth] = from[x].c;
            const bool masked = mask && colourOf(red, green, blue) == (*mask & 0xFFFFFF);
            to[x] = masked ? 0 : qRgb(red, green, blue);
        }
    }
    return image;
}

/// In its proportions in the middle of a square; the rest is transparent.
QImage onSquare(const QImage& picture, int side)
{
    QImage square(side, side, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    const QImage scaled = picture.scaled(square.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter(&square).drawImage((side - scaled.width()) / 2, (side - scaled.height()) / 2, scaled);
    return square.convertToFormat(QImage::Format_ARGB32);
}

constexpr int rowBytes(int width, int bits) { return (width * bits + 31) / 32 * 4; } // whole double words

/// Not by Qt's writer: that leaves the mask's padding uninitialised. bits: 24, or 32 with the opacity of each pixel.
QByteArray entryBytes(const QImage& icon, int bits)
{
    const int width = icon.width(), height = icon.height(), step = bits / 8;
    const int colourRow = rowBytes(width, bits), maskRow = rowBytes(width, 1);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint32(kHeader) << qint32(width) << qint32(2 * height) // colours and mask count
        << quint16(1) << quint16(bits) << quint32(0) << quint32(height * (colourRow + maskRow)) << quint32(0)
        << quint32(0) << quint32(0) << quint32(0);
    const auto rows = [&](int length, auto put) { // bottom row first
        for (int y = height - 1; y >= 0; --y) {
            QByteArray row(length, '\0');
            const auto* from = reinterpret_cast<const QRgb*>(icon.constScanLine(y));
            for (int x = 0; x < width; ++x) put(row, x, from[x]);
            out.writeRawData(row.constData(), length);
        }
    };
    rows(colourRow, [step](QByteArray& row, int x, QRgb pixel) {
        const int parts[] = {qBlue(pixel), qGreen(pixel), qRed(pixel), qAlpha(pixel)};
        for (int part = 0; part < step; ++part) row[step * x + part] = char(parts[part]);
    });
    rows(maskRow, [](QByteArray& row, int x, QRgb pixel) {
        if (qAlpha(pixel) == 0) row[x / 8] = char(row[x / 8] | 0x80 >> x % 8);
    });
    return bytes;
}

QByteArray fileOf(const std::vector<QImage>& icons, int bits)
{
    QByteArray head, entries;
    QDataStream out(&head, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << quint16(1) << quint16(icons.size()); // an icon file
    const int begin = kDirectory + kEntry * static_cast<int>(icons.size());
    for (const QImage& icon : icons) {
        const QByteArray entry = entryBytes(icon, bits);
        out << quint8(icon.width()) << quint8(icon.height()) << quint8(0) << quint8(0) // 256 is stored as 0; no palette
            << quint16(1) << quint16(bits) << quint32(entry.size()) << quint32(begin + entries.size());
        entries += entry;
    }
    return head + entries;
}

} // namespace

QImage iconOf(const Bits& picture, QSize size, std::optional<Colour> mask)
{
    if (picture.isNull() || !iconSizeAllowed(size.width(), size.height())) return {};
    QImage image = withMask(picture, mask);
    if (image.size() != size) image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.convertTo(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) row[x] = qAlpha(row[x]) < 128 ? 0 : row[x] | 0xFF000000;
    }
    return image;
}

QImage largestIconOf(const Bits& picture, std::optional<Colour> mask)
{
    const QImage image = picture.isNull() ? QImage() : withMask(picture, mask);
    return image.isNull() ? image : onSquare(image, kSides[0]);
}

QByteArray iconBytes(const QImage& icon) { return icon.isNull() ? QByteArray() : fileOf({icon}, 24); }

QByteArray iconSetBytes(const Bits& picture, std::optional<Colour> mask)
{
    const QImage image = picture.isNull() ? QImage() : withMask(picture, mask);
    if (image.isNull()) return {};
    std::vector<QImage> icons;
    for (const int side : kSides) icons.push_back(onSquare(image, side));
    return fileOf(icons, 32);
}

bool writeIcon(const QByteArray& bytes, const QString& fileName)
{
    if (bytes.isEmpty()) return false;
    OutputFile file(fileName);
    return file.write(bytes.constData(), std::size_t(bytes.size())) && file.commit();
}

} // namespace velara
