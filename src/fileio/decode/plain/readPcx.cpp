#include "fileio/decode/plain/Cursor.h"
#include "fileio/decode/plain/plain.h"
#include "fileio/decode/plain/rows.h"

namespace velara::decode {

namespace {

constexpr std::size_t kHeader = 128, kPaletteEnd = 769;
enum Field : std::size_t {
    Encoding = 2,
    BitsAPixel = 3,
    Left = 4,
    Top = 6,
    Right = 8,
    Bottom = 10,
    Colours16 = 16,
    Planes = 65,
    BytesALine = 66,
    PaletteKind = 68
};

Palette paletteOf(const FileBytes& file, std::uint32_t bits)
{
    if (bits == 1) return greys(2);
    Palette palette = bits == 8 ? greys() : Palette{};
    const bool isAtEnd = bits == 8 && file.size() >= kPaletteEnd && file.byte(file.size() - kPaletteEnd) == 12;
    if (bits == 8 && !isAtEnd) return palette;
    const std::size_t from = isAtEnd ? file.size() - kPaletteEnd + 1 : Colours16;
    for (std::size_t i = 0; i < (isAtEnd ? 256U : 16U); ++i)
        palette[i] = pixelOf(static_cast<int>(file.byte(from + 3 * i)), static_cast<int>(file.byte(from + 3 * i + 1)),
                             static_cast<int>(file.byte(from + 3 * i + 2)));
    return palette;
}

/// Unpacks run-length codes. In true colour a run may go on in the next line; otherwise it ends with its line, and one
/// of length 0 counts as 256.
std::vector<std::uint8_t> unpack(Cursor& from, std::size_t line, std::size_t height, bool crossesLines)
{
    std::vector<std::uint8_t> to;
    const std::size_t end = line * height;
    while (to.size() < end) {
        std::uint8_t value = from.byte();
        std::size_t run = 1;
        if (value >= 0xc0) {
            run = value & 63U;
            value = from.byte();
            if (run == 0 && !crossesLines) run = 256;
        }
        if (from.ranDry()) break;
        const std::size_t room = crossesLines ? end - to.size() : line - to.size() % line;
        to.insert(to.end(), std::min(run, room), value);
    }
    return to;
}

/// A line of planes, one after the other, as one of pixels: bits of an index, or red, green and blue.
void joinPlanes(const std::uint8_t* from, std::uint8_t* to, std::size_t width, std::size_t plane, bool isTrueColour)
{
    if (isTrueColour) {
        for (std::size_t x = 0; x < std::min(width, plane); ++x)
            for (std::size_t part = 0; part < 3; ++part) to[3 * x + part] = from[part * plane + x];
        return;
    }
    for (std::size_t x = 0; x < std::min(width / 2 * 2, 8 * plane); ++x) // the last pixel of an odd width has index 0
        for (std::size_t bit = 0; bit < 4; ++bit)
            if (from[bit * plane + x / 8] & 128 >> x % 8) to[x] |= static_cast<std::uint8_t>(1 << bit);
}

} // namespace

Decoded readPcx(FileBytes& file)
{
    const std::int64_t width = std::int64_t{file.little16(Right)} - file.little16(Left) + 1;
    const std::int64_t height = std::int64_t{file.little16(Bottom)} - file.little16(Top) + 1;
    const std::uint32_t planes = file.byte(Planes), bits = file.byte(BitsAPixel) * planes;
    const bool isIndexed = planes == 1 && (bits == 1 || bits == 8), isTrueColour = planes == 3 && bits == 24;
    if (file.byte(0) != 10 || file.size() < kHeader || !(isIndexed || isTrueColour || (planes == 4 && bits == 4)))
        return {};
    if (const auto fault = faultOfSize(width, height, static_cast<int>(bits))) return refused(*fault);

    const Layout layout = isTrueColour ? Layout::Rgb : bits == 1 ? Layout::Index1 : Layout::Index8;
    const Raster raster{static_cast<int>(width), static_cast<int>(height), layout, paletteOf(file, bits)};
    const std::size_t plane = file.little16(BytesALine), line = plane * planes, rows = static_cast<std::size_t>(height);
    const std::size_t needed = bytesOf(layout, raster.width);
    Cursor from(file.bytes(), kHeader);
    std::vector<std::uint8_t> lines;
    if (file.byte(Encoding) == 1) {
        lines = unpack(from, line, rows, isTrueColour);
    } else {
        lines.resize(std::min(line * rows, from.left()));
        from.read(lines.data(), lines.size());
    }
    const std::size_t there = line > 0 ? std::min(rows, (lines.size() + line - 1) / line) : 0;
    lines.resize(there * line);
    std::vector<std::uint8_t> joined(needed * there);
    for (std::size_t y = 0; y < there; ++y) {
        const std::uint8_t* source = lines.data() + y * line;
        if (isIndexed)
            std::copy_n(source, std::min(needed, line), joined.data() + y * needed);
        else
            joinPlanes(source, joined.data() + y * needed, static_cast<std::size_t>(width), plane, isTrueColour);
    }
    return fromMemory(std::move(joined), raster, {0, needed}, from.ranDry());
}

} // namespace velara::decode
