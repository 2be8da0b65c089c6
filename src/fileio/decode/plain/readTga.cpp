#include "fileio/decode/plain/Cursor.h"
#include "fileio/decode/plain/plain.h"
#include "fileio/decode/plain/rows.h"

namespace velara::decode {

namespace {

enum Field : std::size_t {
    IdLength = 0,
    MapType = 1,
    Type = 2,
    MapFirst = 3,
    MapLength = 5,
    MapBits = 7,
    Width = 12,
    Height = 14,
    Depth = 16,
    Descriptor = 17,
    HeaderEnd = 18
};
enum Types : std::uint32_t { Mapped = 1, Colours = 2, Grey = 3, Runs = 8 }; // the last is added to the others

/// The entries from the first on; the rest stays a ramp of greys.
Palette readMap(Cursor& from, const FileBytes& file)
{
    const std::size_t first = file.little16(MapFirst), length = file.little16(MapLength), bits = file.byte(MapBits);
    std::vector<std::uint8_t> map(length * bits / 8);
    from.read(map.data(), map.size());
    Palette palette = greys();
    const std::size_t bytes = bits / 8;
    if (bits != 16 && bits != 24 && bits != 32) return palette;
    for (std::size_t i = first; i < std::min<std::size_t>(256, length); ++i) {
        const std::uint8_t* entry = map.data() + (i - first) * bytes;
        const int value = entry[0] | entry[1] << 8;
        palette[i] = bits == 16
                         ? pixelOf((value >> 10 & 31) * 255 / 31, (value >> 5 & 31) * 255 / 31, (value & 31) * 255 / 31)
                         : pixelOf(entry[2], entry[1], entry[0]);
    }
    return palette;
}

/// A packet that goes beyond the last pixel ends the picture.
std::vector<std::uint8_t> unpack(Cursor& from, std::size_t pixels, std::size_t bytes)
{
    std::vector<std::uint8_t> to(pixels * bytes);
    for (std::size_t at = 0; at < to.size();) {
        const std::uint8_t packet = from.byte();
        const std::size_t count = (packet & 127U) + 1, length = count * bytes;
        if (from.ranDry() || length > to.size() - at) break;
        std::uint8_t pixel[4] = {};
        if (packet < 128)
            from.read(&to[at], length);
        else if (from.read(pixel, bytes))
            for (std::size_t i = 0; i < count; ++i) std::memcpy(&to[at + i * bytes], pixel, bytes);
        at += length;
    }
    return to;
}

std::optional<Layout> layoutOf(std::uint32_t depth, std::uint32_t type)
{
    if (depth == 8 && (type == Mapped || type == Grey)) return Layout::Index8;
    if (type != Colours) return {};
    if (depth == 15 || depth == 16) return Layout::Rgb555;
    if (depth == 24) return Layout::Bgr;
    if (depth == 32) return Layout::Bgra;
    return {};
}

} // namespace

Decoded readTga(FileBytes& file)
{
    const std::uint32_t type = file.byte(Type);
    const bool isPacked = (type & Runs) != 0;
    const auto layout = type <= (Runs | Grey) ? layoutOf(file.byte(Depth), type & ~Runs) : std::nullopt;
    if (!layout) return {};
    if (const auto fault = faultOfSize(file.little16(Width), file.little16(Height), bitsOf(*layout)))
        return refused(*fault);
    Raster raster{static_cast<int>(file.little16(Width)), static_cast<int>(file.little16(Height)), *layout, greys()};
    raster.mirrored = file.byte(Descriptor) & 0x10;
    const bool bottomUp = !(file.byte(Descriptor) & 0x20);

    Cursor from(file.bytes(), HeaderEnd);
    const std::size_t comment = file.byte(IdLength);
    from.seek(HeaderEnd + comment);
    const bool hasMap = file.byte(MapType) != 0; // in pictures of 24 and 32 bits, it is taken for pixels
    if (hasMap && *layout == Layout::Index8) raster.palette = readMap(from, file);
    if (*layout == Layout::Rgb555) {
        const std::size_t map = hasMap ? (file.byte(MapBits) + 7U) / 8 * file.little16(MapLength) : 0;
        from.seek(0);
        from.seek(HeaderEnd + comment + map);
    }
    const std::size_t stride = bytesOf(*layout, raster.width);
    if (isPacked) {
        std::vector<std::uint8_t> lines =
            unpack(from, std::size_t(raster.width) * std::size_t(raster.height), stride / std::size_t(raster.width));
        return fromMemory(std::move(lines), raster, {0, stride, bottomUp}, from.ranDry());
    }
    Lines lines{from.at(), stride, bottomUp};
    if (*layout == Layout::Rgb555 || *layout == Layout::Bgra) lines.missing.reset();
    return fromFile(file, raster, lines, from.ranDry());
}

} // namespace velara::decode
