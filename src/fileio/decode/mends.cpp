#include "fileio/decode/mends.h"
#include "fileio/load/DecodeProtocol.h"
#include <algorithm>
#include <cstring>

namespace velara::decode {

namespace {

void putLittle32(std::span<std::uint8_t> bytes, std::size_t at, std::uint32_t value)
{
    for (int i = 0; i < 4; ++i) bytes[at + i] = static_cast<std::uint8_t>(value >> 8 * i);
}

void putBig32(std::span<std::uint8_t> bytes, std::size_t at, std::uint32_t value)
{
    for (int i = 0; i < 4; ++i) bytes[at + i] = static_cast<std::uint8_t>(value >> (24 - 8 * i));
}

} // namespace

void mendBmp(FileBytes& file)
{
    constexpr std::size_t kFileHeader = 14, kShort = 40, kMasks = 12;
    enum Field : std::size_t { PixelsAt = 10, HeaderSize = 14, BitCount = 28, Compression = 30, ColoursUsed = 46 };
    constexpr std::uint32_t kBitFields = 3, kAlphaBitFields = 6;

    const std::size_t header = file.little32(HeaderSize);
    const bool isLong = header == 52 || header == 56 || header == 108 || header == 124;
    if (!file.startsWith("BM") || !isLong || file.size() < kFileHeader + header) return;

    if (file.little32(Compression) == kAlphaBitFields) putLittle32(file.bytes(), Compression, kBitFields);
    putLittle32(file.bytes(), HeaderSize, kShort); // the three colour masks lie where a short header has them
    const std::uint32_t bits = file.little16(BitCount);
    if (bits > 8) return;
    const std::uint32_t used = file.little32(ColoursUsed);
    const std::size_t colours = used > 0 && used <= 256 ? used : std::size_t{1} << bits;
    const std::size_t from = kFileHeader + header;
    const bool hasMasks = file.little32(Compression) == kBitFields;
    std::memmove(&file.bytes()[kFileHeader + kShort + (hasMasks ? kMasks : 0)], file.bytes().data() + from,
                 std::min(4 * colours, file.size() - from));
}

void mendPnm(FileBytes& file)
{
    if (!file.startsWith("P1")) return;
    std::size_t at = 2;
    const auto skipToDigit = [&] {
        while (at < file.size() && (file.byte(at) < '0' || file.byte(at) > '9')) {
            if (file.byte(at++) != '#') continue;
            while (at < file.size() && file.byte(at) != '\n') ++at;
        }
    };
    const auto number = [&] {
        skipToDigit();
        std::int64_t value = 0;
        while (file.byte(at) >= '0' && file.byte(at) <= '9')
            value = std::min<std::int64_t>(value * 10 + file.byte(at++) - '0', 1 << 20);
        return value;
    };
    const std::int64_t width = number(), height = number();
    if (!Bits::sizeAllowed(width, height)) return;

    const std::size_t bytesARow = static_cast<std::size_t>(width + 7) / 8;
    const std::string header = "P4\n" + std::to_string(width) + ' ' + std::to_string(height) + '\n';
    std::vector<std::uint8_t> raw(header.size() + bytesARow * static_cast<std::size_t>(height));
    std::copy(header.begin(), header.end(), raw.begin());
    for (std::int64_t y = 0; y < height; ++y) {
        std::uint8_t* row = raw.data() + header.size() + bytesARow * static_cast<std::size_t>(y);
        for (std::int64_t x = 0; x < width; ++x) {
            skipToDigit();
            if (at >= file.size()) return; // too short: the reader reports that
            if (file.byte(at++) == '1') row[x / 8] |= static_cast<std::uint8_t>(128 >> x % 8);
        }
    }
    file.replace(std::move(raw));
}

void mendPcx(FileBytes& file)
{
    constexpr std::size_t kHeader = 128;
    enum Field : std::size_t {
        Encoding = 2,
        BitsAPixel = 3,
        Left = 4,
        Top = 6,
        Right = 8,
        Bottom = 10,
        Planes = 65,
        BytesALine = 66
    };
    const std::int64_t width = std::int64_t{file.little16(Right)} - file.little16(Left) + 1;
    const std::int64_t height = std::int64_t{file.little16(Bottom)} - file.little16(Top) + 1;
    const std::size_t bytesARow = std::size_t{file.byte(Planes)} * file.little16(BytesALine);
    constexpr std::size_t kMostFromAByte = 32, kLongestRun = 63; // which takes two
    const bool isTrueColour = file.byte(BitsAPixel) == 8 && file.byte(Planes) == 3;
    if (file.byte(0) != 10 || file.byte(Encoding) != 1 || !isTrueColour || !Bits::sizeAllowed(width, height) ||
        bytesARow == 0 || bytesARow * static_cast<std::size_t>(height) > kMostFromAByte * file.size())
        return;

    const std::size_t rows = static_cast<std::size_t>(height) + (height == 1 ? 1 : 0);
    std::vector<std::uint8_t> flat(kHeader + rows * bytesARow + kLongestRun); // the last one may go beyond the end
    std::copy_n(file.bytes().data(), kHeader, flat.data());
    const auto put16 = [&](Field field, std::uint32_t value) {
        flat[field] = static_cast<std::uint8_t>(value);
        flat[field + 1] = static_cast<std::uint8_t>(value >> 8);
    };
    flat[Encoding] = 0;
    if (height == 1) put16(Bottom, file.little16(Bottom) + 1);
    if (width == 1) put16(Right, file.little16(Right) + 1);

    std::size_t to = kHeader;
    const std::size_t end = kHeader + static_cast<std::size_t>(height) * bytesARow;
    for (std::size_t at = kHeader; to < end && at < file.size();) {
        const std::uint32_t first = file.byte(at++);
        const bool isRun = first >= 0xc0;
        const std::size_t run = isRun ? first & kLongestRun : 1;
        std::fill_n(flat.data() + to, run, static_cast<std::uint8_t>(isRun ? file.byte(at++) : first));
        to += run;
    }
    if (to < end) return; // the reader will find it truncated
    std::fill(flat.begin() + static_cast<std::ptrdiff_t>(end), flat.end(), std::uint8_t{0});
    flat.resize(kHeader + rows * bytesARow);
    file.replace(std::move(flat));
}

void mendRas(FileBytes& file)
{
    constexpr std::size_t kHeader = 32;
    enum Field : std::size_t {
        Width = 4,
        Height = 8,
        Depth = 12,
        Length = 16,
        Type = 20,
        MapType = 24,
        MapLength = 28
    };
    enum Type : std::uint32_t { Old = 0, Standard = 1, ByteEncoded = 2 };
    const std::size_t map = file.big32(MapLength), colours = map / 3;
    const std::int64_t width = file.big32(Width), height = file.big32(Height);
    const std::uint32_t type = file.big32(Type);
    const bool isCase = file.big32(0) == 0x59a66a95 && file.big32(Depth) == 8 && file.big32(MapType) == 1 &&
                        type <= ByteEncoded && map == 768 && file.size() > kHeader + map &&
                        Bits::sizeAllowed(width, height);
    if (!isCase) return;

    // Rows are padded to an even length; in the encoded form 128 0 is a byte of 128, 128 n v are n+1 bytes of v.
    std::size_t at = kHeader + map, left = 0;
    std::uint8_t value = 0;
    const auto next = [&] {
        if (left > 0) return --left, value;
        value = static_cast<std::uint8_t>(file.byte(at++));
        if (type == ByteEncoded && value == 128 && file.byte(at++) != 0) {
            left = file.byte(at - 1);
            value = static_cast<std::uint8_t>(file.byte(at++));
        }
        return value;
    };
    const std::size_t bytesARow = (static_cast<std::size_t>(width) * 3 + 1) / 2 * 2;
    std::vector<std::uint8_t> flat(kHeader + bytesARow * static_cast<std::size_t>(height));
    std::copy_n(file.bytes().data(), kHeader, flat.data());
    putBig32(flat, Depth, 24);
    putBig32(flat, Length, static_cast<std::uint32_t>(flat.size() - kHeader));
    putBig32(flat, Type, Standard);
    putBig32(flat, MapType, 0);
    putBig32(flat, MapLength, 0);
    const std::uint8_t* const reds = file.bytes().data() + kHeader;
    for (std::int64_t y = 0; y < height; ++y) {
        std::uint8_t* to = flat.data() + kHeader + bytesARow * static_cast<std::size_t>(y);
        for (std::int64_t x = 0; x < width; ++x, to += 3) {
            const std::uint8_t index = next();
            for (std::size_t part = 0; part < 3; ++part) to[part] = reds[colours * (2 - part) + index]; // blue first
        }
        if (width % 2) next();
        if (at > file.size()) { // the rest is black, and the reader will find the end missing
            std::fill_n(to - 3 * width, bytesARow, std::uint8_t{0});
            flat.pop_back();
            break;
        }
    }
    file.replace(std::move(flat));
}

void mendIff(FileBytes& file)
{
    constexpr std::size_t kFormHeader = 12, kChunkHeader = 8;
    constexpr std::uint32_t kForm = 0x464f524d, kBody = 0x424f4459, kBackward = 0x80000000;
    if (file.big32(0) != kForm) return;
    for (std::size_t at = kFormHeader; at + kChunkHeader <= file.size();) {
        if (file.big32(at) == kBody) return;
        const std::uint32_t length = file.big32(at + 4);
        if (length >= kBackward) putBig32(file.bytes(), at + 4, 0);
        const std::size_t end = at + kChunkHeader + length + length % 2;
        at = end <= file.size() ? end : at + kChunkHeader; // where the reader continues
    }
    putBig32(file.bytes(), 0, 0);
}

} // namespace velara::decode
