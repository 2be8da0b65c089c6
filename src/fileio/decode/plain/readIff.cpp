#include "fileio/decode/plain/Cursor.h"
#include "fileio/decode/plain/plain.h"
#include "fileio/decode/plain/rows.h"

namespace velara::decode {

namespace {

constexpr std::size_t kFormHeader = 12, kChunkHeader = 8, kBitmapHeader = 20;
constexpr std::uint32_t name(const char (&text)[5])
{
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i) value = value << 8 | static_cast<std::uint8_t>(text[i]);
    return value;
}

struct Bitmap {
    std::int64_t width = 0, height = 0;
    std::size_t planes = 0; // that of a mask is one of them
    bool isPacked = false;
    bool isTrueColour() const { return planes > 8; }
};

Bitmap bitmapOf(const FileBytes& file, std::size_t at)
{
    const std::size_t mask = file.byte(at + 9) & 1;
    return {file.big16(at), file.big16(at + 2), file.byte(at + 8) + mask, file.byte(at + 10) == 1};
}

/// n below 128: n+1 bytes follow; above: the next one 257-n times. A row is unpacked by itself; what goes beyond it is
/// dropped.
void unpackRow(Cursor& from, std::span<std::uint8_t> to)
{
    for (std::size_t at = 0; at < to.size() && from.left() > 0;) {
        const std::uint8_t code = from.byte();
        if (code == 128) continue;
        const std::size_t run = code < 128 ? code + 1U : 257U - code, room = std::min(run, to.size() - at);
        if (code < 128)
            from.read(&to[at], room);
        else
            std::fill_n(&to[at], room, from.byte());
        at += run;
    }
}

/// Bits of planes, each padded to 16, as indices or as three bytes a pixel.
void joinPlanes(const std::uint8_t* from, std::uint8_t* to, const Bitmap& bitmap, std::size_t plane)
{
    const std::size_t bytes = bitmap.isTrueColour() ? 3 : 1;
    for (std::size_t n = 0; n < bitmap.planes; ++n, from += plane)
        for (std::size_t x = 0; x < std::size_t(bitmap.width); ++x)
            to[x * bytes + n / 8] |= static_cast<std::uint8_t>((from[x / 8] >> (7 - x % 8) & 1) << n % 8);
}

Decoded readBody(Cursor from, const Bitmap& bitmap, Raster raster, bool isInterleaved)
{
    const auto rows = static_cast<std::size_t>(bitmap.height);
    const std::size_t needed = bytesOf(raster.layout, raster.width);
    const std::size_t plane = (static_cast<std::size_t>(bitmap.width) + 15) / 16 * 2;
    std::vector<std::uint8_t> line(isInterleaved ? plane * bitmap.planes : (needed + 1) / 2 * 2), lines(needed * rows);
    for (std::size_t y = 0; y < rows; ++y) {
        if (bitmap.isPacked) {
            if (from.left() == 0) from.skip(1);
            unpackRow(from, line);
        } else {
            from.read(line.data(), line.size());
        }
        std::uint8_t* to = lines.data() + y * needed;
        if (isInterleaved)
            joinPlanes(line.data(), to, bitmap, plane);
        else
            std::copy_n(line.data(), needed, to);
        if (!isInterleaved) std::fill(line.begin(), line.end(), std::uint8_t{0});
    }
    return fromMemory(std::move(lines), raster, {0, needed}, from.ranDry());
}

} // namespace

Decoded readIff(FileBytes& file)
{
    const std::uint32_t kind = file.big32(8);
    if (file.big32(0) != name("FORM") || (kind != name("ILBM") && kind != name("PBM "))) return {};
    Bitmap bitmap;
    Palette palette = greys();
    for (std::size_t at = kFormHeader; at + kChunkHeader <= file.size();) {
        const std::uint32_t chunk = file.big32(at), length = file.big32(at + 4);
        const std::size_t contents = at + kChunkHeader;
        std::size_t used = contents;
        if (chunk == name("BMHD")) {
            bitmap = bitmapOf(file, contents);
            palette = greys();
            used += kBitmapHeader;
            if (bitmap.planes > 8 && bitmap.planes != 24) return {};
        } else if (chunk == name("CMAP")) {
            if (bitmap.planes == 0 && bitmap.width == 0) return {};
            const std::size_t colours = bitmap.isTrueColour() ? 0 : std::min<std::size_t>(length / 3, 256);
            used += 3 * colours;
            for (std::size_t i = 0; i < colours; ++i)
                palette[i] = pixelOf(static_cast<int>(file.byte(contents + 3 * i)),
                                     static_cast<int>(file.byte(contents + 3 * i + 1)),
                                     static_cast<int>(file.byte(contents + 3 * i + 2)));
        } else if (chunk == name("BODY")) {
            const int bits = static_cast<int>(bitmap.planes);
            if (const auto fault = faultOfSize(bitmap.width, bitmap.height, bits)) return refused(*fault);
            const Raster raster{static_cast<int>(bitmap.width), static_cast<int>(bitmap.height),
                                bitmap.isTrueColour() ? Layout::Rgb : Layout::Index8, palette};
            return readBody(Cursor(file.bytes(), contents), bitmap, raster, kind == name("ILBM"));
        }
        const std::size_t end = contents + length + length % 2;
        at = end <= file.size() && end >= used ? end : used; // a false length: goes on behind what was read
    }
    return {};
}

} // namespace velara::decode
