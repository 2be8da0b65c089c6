#include "fileio/writers/iconFile.h"
#include "fileio/OutputFile.h"
#include <QDataStream>
#include <QIODevice>

namespace velara {

namespace {

constexpr int kDirectory = 6 + 16, kHeader = 40, kBits = 24;

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

/// Not by Qt's writer: that leaves the mask's padding uninitialised.
QByteArray iconBytes(const QImage& icon)
{
    const int width = icon.width(), height = icon.height();
    const int colourRow = (width * 3 + 3) / 4 * 4, maskRow = (width + 31) / 32 * 4; // both padded to whole double words
    const auto pixels = quint32(height * (colourRow + maskRow));
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << quint16(1) << quint16(1);                   // an icon file with one picture
    out << quint8(width) << quint8(height) << quint8(0) << quint8(0) // 256 is stored as 0; no palette
        << quint16(1) << quint16(kBits) << kHeader + pixels << quint32(kDirectory);
    out << quint32(kHeader) << qint32(width) << qint32(2 * height) // colours and mask count
        << quint16(1) << quint16(kBits) << quint32(0) << pixels << quint32(0) << quint32(0) << quint32(0) << quint32(0);
    const auto rows = [&](int length, auto put) { // bottom row first
        for (int y = height - 1; y >= 0; --y) {
            QByteArray row(length, '\0');
            const auto* from = reinterpret_cast<const QRgb*>(icon.constScanLine(y));
            for (int x = 0; x < width; ++x) put(row, x, from[x]);
            out.writeRawData(row.constData(), length);
        }
    };
    rows(colourRow, [](QByteArray& row, int x, QRgb pixel) {
        row[3 * x] = char(qBlue(pixel));
        row[3 * x + 1] = char(qGreen(pixel));
        row[3 * x + 2] = char(qRed(pixel));
    });
    rows(maskRow, [](QByteArray& row, int x, QRgb pixel) {
        if (qAlpha(pixel) == 0) row[x / 8] = char(row[x / 8] | 0x80 >> x % 8);
    });
    return bytes;
}

bool writeIcon(const QImage& icon, const QString& fileName)
{
    if (icon.isNull()) return false;
    const QByteArray bytes = iconBytes(icon);
    OutputFile file(fileName);
    return file.write(bytes.constData(), std::size_t(bytes.size())) && file.commit();
}

} // namespace velara
