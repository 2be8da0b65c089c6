#include "fileio/decode/plain/Cursor.h"
#include "fileio/decode/plain/plain.h"
#include "fileio/decode/plain/rows.h"

namespace velara::decode {

namespace {

constexpr std::size_t kHeader = 32, kFullMap = 768;
constexpr std::uint32_t kMagic = 0x59a66a95;
enum Field : std::size_t { Width = 4, Height = 8, Depth = 12, Type = 20, MapType = 24, MapLength = 28 };
enum Types : std::uint32_t { Standard = 1, ByteEncoded = 2, FormatRgb = 3, FormatTiff = 4, FormatIff = 5 };
enum MapTypes : std::uint32_t { NoMap, EqualRgb, RawMap };

/// 128 0 is a byte of 128, 128 n v are n+1 bytes of v. Beyond the end the last byte goes on; there is where that
/// begins.
std::vector<std::uint8_t> unpack(Cursor& from, std::size_t count, std::size_t& there)
{
    std::vector<std::uint8_t> to(count);
    std::uint8_t value = 0, left = 0;
    for (there = 0; std::uint8_t & byte : to) {
        if (left > 0) {
            --left;
        } else if (from.read(value), value == 128 && (from.read(left), left > 0)) {
            from.read(value);
        }
        byte = value;
        if (!from.ranDry()) ++there;
    }
    return to;
}

std::optional<Layout> layoutOf(std::uint32_t depth, bool isRgb)
{
    switch (depth) {
    case 1:
        return Layout::Index1;
    case 8:
        return Layout::Index8;
    case 24:
        return isRgb ? Layout::Rgb : Layout::Bgr;
    case 32:
        return isRgb ? Layout::Argb : Layout::Abgr;
    default:
        return {};
    }
}

/// All reds, all greens, all blues.
Palette readMap(Cursor& from, std::uint32_t depth, std::size_t length)
{
    Palette palette = depth == 8 ? greys() : Palette{};
    std::vector<std::uint8_t> parts(std::min(length / 3, std::size_t{1} << depth) * 3);
    from.read(parts.data(), parts.size());
    const std::size_t count = parts.size() / 3;
    for (std::size_t i = 0; i < count; ++i) palette[i] = pixelOf(parts[i], parts[count + i], parts[2 * count + i]);
    return palette;
}

} // namespace

Decoded readRas(FileBytes& file)
{
    const std::uint32_t type = file.big32(Type), depth = file.big32(Depth), map = file.big32(MapType);
    const auto layout = layoutOf(depth, type == FormatRgb);
    if (file.big32(0) != kMagic || !layout || type > FormatIff) return {};
    if (const auto fault = faultOfSize(file.big32(Width), file.big32(Height), static_cast<int>(depth)))
        return refused(*fault);

    Raster raster{static_cast<int>(file.big32(Width)), static_cast<int>(file.big32(Height)), *layout};
    Cursor from(file.bytes(), kHeader);
    const std::size_t mapLength = file.big32(MapLength);
    if ((map == NoMap && depth < 24) || depth == 8) raster.palette = greys(1 << depth);
    if (map == EqualRgb && depth < 24) raster.palette = readMap(from, depth, mapLength);
    from.seek(kHeader);
    if (map == EqualRgb || map == RawMap) from.skip(mapLength);
    // Rows are padded to an even length; those of 32 bits as if a pixel were a byte.
    const std::size_t count = bytesOf(*layout, raster.width);
    const std::size_t stride = count + (depth == 32 ? std::size_t(raster.width) : count) % 2;
    std::size_t there = from.left();
    Decoded picture;
    if (type == ByteEncoded) {
        std::vector<std::uint8_t> lines = unpack(from, stride * static_cast<std::size_t>(raster.height), there);
        picture = fromMemory(std::move(lines), raster, {0, stride}, from.ranDry());
    } else {
        Lines lines{from.at(), stride};
        if (depth >= 24) lines.missing.reset();
        picture =
            fromFile(file, raster, lines, from.ranDry() || stride * static_cast<std::size_t>(raster.height) > there);
    }
    const bool isFullMap = depth == 8 && map == EqualRgb && mapLength == kFullMap;
    if (isFullMap && there < stride * static_cast<std::size_t>(raster.height)) // a line that isn't whole is black
        picture.row = [row = std::move(picture.row), width = raster.width, whole = there / stride](int y, Pixel* to) {
            if (static_cast<std::size_t>(y) < whole) return row(y, to);
            std::fill_n(to, width, Pixel{});
        };
    return picture;
}

} // namespace velara::decode
