// The formats that take a few lines each: wireless bitmaps, Dr. Halo's and Koala's pictures.
#include "fileio/decode/plain/Cursor.h"
#include "fileio/decode/plain/plain.h"
#include "fileio/decode/plain/rows.h"

namespace velara::decode {

namespace {

/// In groups of seven bits; the high bit says that another one follows.
std::uint32_t readGroups(Cursor& from)
{
    std::uint32_t value = 0;
    std::uint8_t group = 0;
    while (from.read(group)) {
        value += group & 127U;
        if (group < 128) break;
        value <<= 7;
    }
    return value;
}

} // namespace

Decoded readWbmp(FileBytes& file)
{
    Cursor from(file.bytes());
    if (static_cast<std::uint16_t>(readGroups(from)) != 0) return {};
    const std::uint8_t fixed = from.byte();
    if (fixed & 0x80) { // extensions: a bit field, or a name and a value
        if ((fixed & 0x60) == 0)
            readGroups(from);
        else if ((fixed & 0x60) == 0x60)
            from.skip((fixed >> 4 & 7U) + (fixed & 15U));
    }
    const int width = static_cast<std::uint16_t>(readGroups(from)),
              height = static_cast<std::uint16_t>(readGroups(from));
    if (const auto fault = faultOfSize(width, height, 0)) return refused(*fault);
    return fromFile(file, {width, height, Layout::Index1, greys(2)}, {from.at(), bytesOf(Layout::Index1, width)},
                    from.ranDry());
}

Decoded readCut(FileBytes& file)
{
    constexpr std::size_t kFirstRow = 6, kRowHead = 2; // a row begins with its length, which is not needed
    const std::size_t width = file.little16(0), height = file.little16(2);
    if (file.size() < kFirstRow + kRowHead) return {};
    if (const auto fault = faultOfSize(std::int64_t(width), std::int64_t(height), 8)) return refused(*fault);

    Cursor from(file.bytes(), kFirstRow + kRowHead);
    std::vector<std::uint8_t> rows(width * height);
    // Ends with as many pixels as there are, wherever they lie.
    for (std::size_t y = 0, x = 0, pixels = 0; pixels < rows.size();) {
        std::uint8_t code = 0, value = 0;
        if (!from.read(code)) return {};
        if (code == 0) { // the end of a row
            x = 0;
            ++y;
            from.skip(kRowHead);
            continue;
        }
        const std::size_t count = code & 127U;
        if (x + count > width || (y >= height && count > 0)) return {};
        std::uint8_t* to = rows.data() + y * width + x;
        if (code < 128) {
            if (!from.read(to, count)) return {};
        } else {
            if (!from.read(value)) return {};
            std::fill_n(to, count, value);
        }
        x += count;
        pixels += count;
    }
    const Raster raster{static_cast<int>(width), static_cast<int>(height), Layout::Index8, greys()};
    return fromMemory(std::move(rows), raster, {0, width}, from.ranDry()); // its palette is in a file of its own
}

Decoded readKoala(FileBytes& file)
{
    constexpr int kWidth = 320, kHeight = 200;
    constexpr std::size_t kBitmap = 0, kColours = 8000, kMoreColours = 9000, kBackground = 10000, kEnd = 10001;
    constexpr std::uint32_t kMachine[16] = {0x000000, 0xffffff, 0xaa1111, 0x0ccccc, 0xdd33dd, 0x00bb00,
                                            0x0000cc, 0xffff8c, 0xcc7722, 0x884400, 0xff9988, 0x5c5c5c,
                                            0xaaaaaa, 0x8cffb2, 0x2794ff, 0xc4c4c4};
    Raster raster{kWidth, kHeight, Layout::Index8};
    for (std::size_t i = 0; i < 16; ++i)
        raster.palette[i] = pixelOf(kMachine[i] >> 16 & 255, kMachine[i] >> 8 & 255, kMachine[i] & 255);
    faultOfSize(kWidth, kHeight, 0);
    const std::size_t first = file.byte(0) == 0 && file.byte(1) == 0x60 ? 2 : 0; // the address to load it to
    const auto byte = [&](std::size_t at) { return file.byte(first + at); };

    std::vector<std::uint8_t> rows(std::size_t{kWidth} * kHeight);
    const std::uint32_t background = byte(kBackground);
    for (std::size_t y = 0; y < kHeight; ++y)
        for (std::size_t x = 0; x < kWidth / 2; ++x) { // each is two pixels wide
            const std::size_t cell = x / 4 + 40 * (y / 8);
            const std::uint32_t pair = byte(kBitmap + cell * 8 + y % 8) >> (3 - x % 4) * 2 & 3;
            const std::uint32_t colours[] = {background, byte(kColours + cell) >> 4, byte(kColours + cell) & 15,
                                             byte(kMoreColours + cell) & 15};
            std::uint8_t* to = &rows[y * kWidth + 2 * x];
            to[0] = static_cast<std::uint8_t>((colours[pair] | colours[pair] >> 4) & 15);
            to[1] = static_cast<std::uint8_t>(colours[pair] & 15);
        }
    return fromMemory(std::move(rows), raster, {0, kWidth}, file.size() < first + kEnd);
}

} // namespace velara::decode
