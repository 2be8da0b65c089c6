#include "fileio/decode/plain/Cursor.h"
#include "fileio/decode/plain/plain.h"
#include "fileio/decode/plain/rows.h"

namespace velara::decode {

namespace {

constexpr std::size_t kFileHeader = 14, kShort = 40;
constexpr std::uint32_t kCore = 12; // the header of OS/2 1
enum Compression : std::uint32_t { Plain, Runs8, Runs4, BitFields, AlphaBitFields = 6 };

struct Header {
    std::int64_t width = 0, height = 0; // negative height: the top row comes first
    std::uint32_t bits = 0, compression = Plain, coloursUsed = 0;
    std::size_t length = 0; // what follows is the palette or, after a short header, the masks
    bool isCore = false;
};

Header headerOf(const FileBytes& file)
{
    Header h;
    h.length = file.little32(kFileHeader);
    h.isCore = h.length == kCore;
    const bool isLong = h.length == 52 || h.length == 56 || h.length == 108 || h.length == 124;
    if (!file.startsWith("BM") && !file.startsWith("BA")) return {};
    if (h.isCore) {
        h.width = file.little16(18);
        h.height = file.little16(20);
        h.bits = file.little16(24);
        return h;
    }
    if (h.length != kShort && !(isLong && file.startsWith("BM") && file.size() >= kFileHeader + h.length)) return {};
    h.width = static_cast<std::int32_t>(file.little32(18));
    h.height = static_cast<std::int32_t>(file.little32(22));
    h.bits = file.little16(28);
    h.compression = file.little32(30);
    h.coloursUsed = file.little32(46);
    if (isLong && h.compression == AlphaBitFields) h.compression = BitFields;
    return h;
}

Palette readPalette(Cursor& from, const Header& header)
{
    const std::uint32_t all = 1U << header.bits;
    const std::uint32_t used = header.coloursUsed > 0 && header.coloursUsed <= all ? header.coloursUsed : all;
    Palette palette = header.bits == 8 ? greys() : Palette{};
    for (std::size_t i = 0; i < used; ++i) {
        std::uint8_t colour[4] = {palette[i].c[0], palette[i].c[1], palette[i].c[2], 0};
        from.read(colour, header.isCore ? 3 : 4);
        palette[i] = pixelOf(colour[2], colour[1], colour[0]);
    }
    return palette;
}

/// Unpacks the runs of 8-bit indices, bottom row first. False: damaged.
bool unpackRuns8(Cursor& from, std::vector<std::uint8_t>& to, int width, int height)
{
    for (int y = 0, x = 0; y < height;) {
        std::uint8_t first = 0, second = 0;
        if (!from.read(first) || !from.read(second)) return false;
        std::uint8_t* at = to.data() + std::size_t(y) * std::size_t(width) + x;
        const int length = std::min<int>(first ? first : second, width - x);
        if (first > 0) {
            if (length < 0) return false;
            std::fill_n(at, length, second);
            x += length;
        } else if (second == 0) { // the end of a line
            x = 0;
            ++y;
        } else if (second == 1) { // of the picture
            return true;
        } else if (second == 2) { // a jump
            std::uint8_t right = 0, up = 0;
            if (!from.read(right) || !from.read(up)) return false;
            x += right;
            y += up;
        } else {
            if (length < 0 || !from.read(at, std::size_t(length))) return false;
            std::uint8_t padding = 0;
            if (second % 2 && !from.read(padding)) return false;
            x += second;
        }
    }
    return false; // no end of the picture
}

/// Unpacks the runs of 4-bit indices to bytes, bottom row first; a run may go on in the next row. False: damaged.
bool unpackRuns4(Cursor& from, std::vector<std::uint8_t>& to, int width, int height)
{
    std::size_t at = 0, x = 0, y = 0;
    const auto put = [&](std::uint8_t pair, std::size_t i) { to[at++] = i % 2 ? pair & 15 : pair >> 4; };
    while (y < std::size_t(height) && at < to.size()) {
        std::uint8_t first = 0, second = 0;
        if (!from.read(first) || !from.read(second)) return false;
        const std::size_t length = std::min<std::size_t>(first ? first : second, to.size() - at);
        if (first > 0) {
            for (std::size_t i = 0; i < length; ++i) put(second, i);
            x += length;
        } else if (second == 0) {
            x = 0;
            at = ++y * std::size_t(width);
        } else if (second == 1) {
            return true;
        } else if (second == 2) {
            std::uint8_t right = 0, up = 0;
            if (!from.read(right) || !from.read(up)) return false;
            x += right;
            y += up;
            at = y * std::size_t(width) + x;
        } else {
            std::uint8_t pair = 0, padding = 0;
            for (std::size_t i = 0; i < length; ++i) {
                if (i % 2 == 0 && !from.read(pair)) return false;
                put(pair, i);
            }
            x += length;
            if ((length % 4 == 1 || length % 4 == 2) && !from.read(padding)) return false;
        }
    }
    return true;
}

Decoded readRuns(Cursor& from, Raster raster, std::uint32_t compression)
{
    std::vector<std::uint8_t> indices(std::size_t(raster.width) * std::size_t(raster.height));
    const bool fits =
        compression == (raster.layout == Layout::Index8 ? Runs8 : Runs4) && raster.layout != Layout::Index1;
    if (!fits) return {};
    const auto unpack = raster.layout == Layout::Index8 ? unpackRuns8 : unpackRuns4;
    raster.layout = Layout::Index8;
    if (!unpack(from, indices, raster.width, raster.height)) return {};
    return fromMemory(std::move(indices), raster, {0, std::size_t(raster.width), true}, from.ranDry());
}

std::optional<Layout> layoutOf(const Header& header, const FileBytes& file)
{
    constexpr std::size_t kGreenMask =
        kFileHeader + kShort + 4; // a long header has the masks where a short one is followed by them
    switch (header.bits) {
    case 1:
        return Layout::Index1;
    case 4:
        return Layout::Index4;
    case 8:
        return Layout::Index8;
    case 16:
        return header.compression == BitFields && file.little32(kGreenMask) == 0x7e0 ? Layout::Rgb565 : Layout::Rgb555;
    case 24:
        return Layout::Bgr;
    case 32:
        return Layout::Bgra;
    default:
        return {};
    }
}

} // namespace

Decoded readBmp(FileBytes& file)
{
    const Header header = headerOf(file);
    const auto layout = layoutOf(header, file);
    if (!layout) return {};
    const std::int64_t height = std::abs(header.height);
    if (const auto fault = faultOfSize(header.width, height, static_cast<int>(header.bits))) return refused(*fault);
    Raster raster{static_cast<int>(header.width), static_cast<int>(height), *layout};

    Cursor from(file.bytes(), kFileHeader + header.length);
    const bool isPalette = header.bits <= 8;
    if (isPalette)
        raster.palette = readPalette(from, header);
    else if (header.compression == BitFields && header.length == kShort)
        from.skip(12);
    from.seek(file.little32(10));
    if (isPalette && header.compression != Plain) return readRuns(from, raster, header.compression);
    const std::size_t stride = (bytesOf(*layout, raster.width) + 3) / 4 * 4;
    if (isPalette && !header.isCore && stride * std::size_t(height) > from.left()) return {};
    return fromFile(file, raster, {from.at(), stride, header.height > 0}, from.ranDry());
}

} // namespace velara::decode
