#include "fileio/writers/PCX.h"
#include "fileio/OutputFile.h"
#include <QFile>
#include <QFileInfo>
#include <array>
#include <cstring>

namespace velara {

namespace {

constexpr std::size_t kHeader = 128;

std::size_t evenWidth(const Bits& bits) { return static_cast<std::size_t>(bits.width() + bits.width() % 2); }

std::array<std::uint8_t, kHeader> headerOf(const Bits& bits, bool compressed)
{
    struct Field {
        std::size_t at;
        int value;
    };
    // clang-format off
    const Field bytes[] = {{0, 10},                 // manufacturer
                           {1, 5},                  // version
                           {2, compressed ? 1 : 0}, // encoding
                           {3, 8},                  // bits a pixel and plane
                           {65, 3}};                // planes
    const Field words[] = {{4, 1}, {6, 1},          // the window counts from 1
                           {8, bits.width()}, {10, bits.height()},
                           {12, 96}, {14, 96},      // dots an inch
                           {66, static_cast<int>(evenWidth(bits))}};
    // clang-format on
    std::array<std::uint8_t, kHeader> header{};
    for (const Field f : bytes) header[f.at] = static_cast<std::uint8_t>(f.value);
    for (const Field f : words) {
        header[f.at] = static_cast<std::uint8_t>(f.value);
        header[f.at + 1] = static_cast<std::uint8_t>(f.value >> 8);
    }
    return header;
}

/// What an odd row holds in the place of one more pixel: the padding of a row of 24-bit pixels to a multiple of four
/// bytes, and where that is one byte, the start of the next row. Nobody sees it.
Pixel pixelBeyond(const Bits& bits, int y)
{
    const bool oneByteOfPadding = bits.width() * 3 % 4 == 3;
    if (!oneByteOfPadding || y == bits.maxY()) return {};
    const Pixel& next = bits.at(0, y + 1);
    return {{0, next.c[0], next.c[1], 0}};
}

/// Row after row red, green and blue, each of an even number of bytes.
std::vector<std::uint8_t> planesOf(const Bits& bits)
{
    const std::size_t even = evenWidth(bits);
    std::vector<std::uint8_t> planes(even * 3 * static_cast<std::size_t>(bits.height()));
    std::uint8_t* to = planes.data();
    for (int y = 0; y < bits.height(); ++y, to += 3 * even) {
        const auto put = [&](std::size_t x, const Pixel& pixel) {
            for (std::size_t plane = 0; plane < 3; ++plane) to[plane * even + x] = pixel.c[2 - plane];
        };
        const Pixel* row = bits.row(y);
        for (int x = 0; x < bits.width(); ++x) put(static_cast<std::size_t>(x), row[x]);
        if (bits.width() % 2) put(even - 1, pixelBeyond(bits, y));
    }
    return planes;
}

/// What an older, longer file has behind so many bytes: it stays there.
QByteArray tailOf(const QString& path, qint64 length)
{
    QFile old(path);
    const bool isLonger = QFileInfo(path).isFile() && old.open(QIODevice::ReadOnly) && old.size() > length;
    return isLonger && old.seek(length) ? old.readAll() : QByteArray();
}

} // namespace

std::vector<std::uint8_t> PCX::encode(const std::vector<std::uint8_t>& data)
{
    constexpr std::size_t kLongestRun = 63;
    constexpr std::uint8_t kRun = 0xc0;
    std::vector<std::uint8_t> encoded;
    encoded.reserve(data.size());
    for (std::size_t i = 0; i < data.size();) {
        const std::uint8_t value = data[i];
        std::size_t run = 1;
        while (run < kLongestRun && i + run < data.size() && data[i + run] == value) ++run;
        if (run > 1 || value >= kRun) encoded.push_back(static_cast<std::uint8_t>(kRun + run));
        encoded.push_back(value);
        i += run;
    }
    return encoded;
}

bool PCX::SavePCXinFile(const QString& FileName, const Bits& bits, bool Compress)
{
    std::vector<std::uint8_t> data = planesOf(bits);
    if (Compress) data = encode(data);
    const auto header = headerOf(bits, Compress);
    OutputFile file(FileName);
    const bool written = file.write(header.data(), header.size()) && file.write(data.data(), data.size());
    const QByteArray tail = tailOf(FileName, static_cast<qint64>(header.size() + data.size()));
    return written && file.write(tail.constData(), static_cast<std::size_t>(tail.size())) && file.commit();
}

} // namespace velara
