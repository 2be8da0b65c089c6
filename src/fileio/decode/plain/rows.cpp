#include "fileio/decode/plain/rows.h"
#include "fileio/decode/readers.h"
#include <cstring>

namespace velara::decode {

void expandIndices(const std::uint8_t* from, Pixel* row, int width, int bits, const Palette& palette)
{
    const int perByte = 8 / bits, mask = (1 << bits) - 1;
    for (int x = 0; x < width; ++x) {
        const int shift = 8 - bits * (x % perByte + 1);
        row[x] = palette[static_cast<std::size_t>(from[x / perByte] >> shift & mask)];
    }
}

void expandBgr(const std::uint8_t* from, Pixel* row, int width)
{
    int x = 0;
    for (; x < width - 1; ++x, from += 3) { // four bytes at a time, while the fourth is inside the row
        std::uint32_t four;
        std::memcpy(&four, from, 4);
        four &= 0xffffff;
        std::memcpy(row + x, &four, 4);
    }
    row[x] = pixelOf(from[2], from[1], from[0]);
}

namespace {

void expand16(const std::uint8_t* from, Pixel* row, int width, int greenBits)
{
    for (int x = 0; x < width; ++x, from += 2) {
        const int value = from[0] | from[1] << 8, most = (1 << greenBits) - 1;
        row[x] = pixelOf((value >> (greenBits + 5) & 31) * 255 / 31, (value >> 5 & most) * 255 / most,
                         (value & 31) * 255 / 31);
    }
}

/// Colours of `bytes` each, with the parts at these offsets.
template <int bytes, int red, int green, int blue> void expandColours(const std::uint8_t* from, Pixel* row, int width)
{
    for (int x = 0; x < width; ++x, from += bytes) row[x] = pixelOf(from[red], from[green], from[blue]);
}

void expand(const Raster& raster, const std::uint8_t* from, Pixel* row)
{
    switch (const int width = raster.width; raster.layout) {
    case Layout::Index1:
        expandIndices(from, row, width, 1, raster.palette);
        break;
    case Layout::Index4:
        expandIndices(from, row, width, 4, raster.palette);
        break;
    case Layout::Index8:
        for (int x = 0; x < width; ++x) row[x] = raster.palette[from[x]];
        break;
    case Layout::Rgb555:
        expand16(from, row, width, 5);
        break;
    case Layout::Rgb565:
        expand16(from, row, width, 6);
        break;
    case Layout::Bgr:
        expandBgr(from, row, width);
        break;
    case Layout::Rgb:
        expandColours<3, 0, 1, 2>(from, row, width);
        break;
    case Layout::Bgra:
        expandColours<4, 2, 1, 0>(from, row, width);
        break;
    case Layout::Abgr:
        expandColours<4, 3, 2, 1>(from, row, width);
        break;
    case Layout::Argb:
        expandColours<4, 1, 2, 3>(from, row, width);
        break;
    }
    if (raster.mirrored) std::reverse(row, row + raster.width);
}

/// The line at an offset that the file doesn't hold to its end.
std::vector<std::uint8_t> completed(const FileBytes& file, const Lines& lines, std::size_t offset, std::size_t count)
{
    const std::size_t size = file.size();
    std::vector<std::uint8_t> line(count, lines.missing.value_or(0));
    for (std::size_t i = 0; i < count; ++i) {
        std::size_t at = offset + i;
        if (at >= size && (lines.missing || size < lines.first + i + 1)) continue;
        if (at >= size) at -= (at - size + lines.stride) / lines.stride * lines.stride;
        line[i] = static_cast<std::uint8_t>(file.byte(at));
    }
    return line;
}

} // namespace

Palette greys(int levels)
{
    Palette palette{};
    for (int i = 0; i < levels; ++i) {
        const int level = 255 * i / (levels - 1);
        palette[static_cast<std::size_t>(i)] = pixelOf(level, level, level);
    }
    return palette;
}

int bitsOf(Layout layout)
{
    constexpr int kBits[] = {1, 4, 8, 16, 16, 24, 24, 32, 32, 32};
    return kBits[static_cast<int>(layout)];
}

Decoded fromFile(const FileBytes& file, const Raster& raster, const Lines& lines, bool cutOff)
{
    const std::size_t count = bytesOf(raster.layout, raster.width);
    const auto place = [=](int y) {
        const int line = lines.bottomUp ? raster.height - 1 - y : y;
        return lines.first + lines.stride * static_cast<std::size_t>(line);
    };
    const std::size_t end = lines.first + lines.stride * static_cast<std::size_t>(raster.height - 1) + count;
    return {raster.width, raster.height,
            [=](int y, Pixel* row) {
                const std::size_t at = place(y);
                if (at + count <= file.size()) return expand(raster, file.bytes().data() + at, row);
                expand(raster, completed(file, lines, at, count).data(), row);
            },
            cutOff || end > file.size() ? kCutOff : ""};
}

Decoded fromMemory(std::vector<std::uint8_t>&& bytes, const Raster& raster, const Lines& lines, bool cutOff)
{
    return fromFile(FileBytes(std::move(bytes)), raster, lines, cutOff);
}

std::optional<QString> faultOfSize(std::int64_t width, std::int64_t height, int bits)
{
    if (width < 1 || height < 1) return QString();
    if (!Bits::sizeAllowed(width, height)) return kTooBig;
    sizeFound(width, height, bits);
    return {};
}

} // namespace velara::decode
