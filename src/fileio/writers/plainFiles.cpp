// BMP, Targa and portable pixmaps: a header and bare rows.
#include "fileio/writers/packRows.h"
#include "fileio/writers/pictureFiles.h"
#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace velara {

namespace {

constexpr double kInchesAMetre = 1 / 0.0254;
constexpr std::size_t kBmpFileHeader = 14, kBmpHeader = 40;
constexpr std::uint32_t kMasks = 3; // "compression" of a bitmap whose channels are told by masks

/// Bytes of a header, numbers little-endian.
class Header {
  public:
    Header& put(std::uint64_t value, int bytes)
    {
        for (int i = 0; i < bytes; ++i) bytes_.push_back(static_cast<std::uint8_t>(value >> 8 * i));
        return *this;
    }
    Header& put(std::string_view text)
    {
        bytes_.insert(bytes_.end(), text.begin(), text.end());
        return *this;
    }
    bool writeTo(ByteSink& to) const { return to.write(bytes_.data(), bytes_.size()); }

  private:
    std::vector<std::uint8_t> bytes_;
};

std::size_t pitchOf(int width, int bits)
{
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bits) + 31) / 32 * 4;
}

/// colours: entries of the palette that follows, or of the masks.
bool writeBmpHeader(int width, int height, int bits, std::size_t colours, ByteSink& to)
{
    const bool masks = bits == 16;
    const std::size_t offset = kBmpFileHeader + kBmpHeader + 4 * colours;
    const auto dots = static_cast<std::uint32_t>(std::lround(kUsualDots * kInchesAMetre));
    Header header;
    header.put("BM")
        .put(static_cast<std::uint32_t>(offset + pitchOf(width, bits) * static_cast<std::size_t>(height)), 4)
        .put(0, 4)
        .put(static_cast<std::uint32_t>(offset), 4)
        .put(kBmpHeader, 4)
        .put(static_cast<std::uint32_t>(width), 4)
        .put(static_cast<std::uint32_t>(height), 4)
        .put(1, 2) // planes
        .put(static_cast<std::uint32_t>(bits), 2)
        .put(masks ? kMasks : 0, 4)
        .put(0, 4) // may be left open where nothing is compressed
        .put(dots, 4)
        .put(dots, 4)
        .put(static_cast<std::uint32_t>(masks ? 0 : colours), 4)
        .put(static_cast<std::uint32_t>(masks ? 0 : colours), 4);
    return header.writeTo(to);
}

bool writePalette(const Palette& palette, std::size_t colours, ByteSink& to)
{
    Header entries;
    for (std::size_t i = 0; i < colours; ++i) {
        const Colour c = i < palette.size() ? palette[i] : 0;
        entries.put(static_cast<std::uint32_t>(redOf(c) << 16 | greenOf(c) << 8 | blueOf(c)), 4);
    }
    return entries.writeTo(to);
}

/// Packs indices of the given bits, the first one in the highest bits.
void packIndices(const std::uint8_t* from, std::uint8_t* to, int width, int bits)
{
    const int inByte = 8 / bits;
    for (int x = 0; x < width; x += inByte) {
        int byte = 0;
        for (int i = 0; i < inByte; ++i) byte = byte << bits | (x + i < width ? from[x + i] : 0);
        *to++ = static_cast<std::uint8_t>(byte);
    }
}

bool writeIndexed(const IndexedPicture& picture, int bits, ByteSink& to)
{
    const std::size_t colours = std::size_t{1} << bits, pitch = pitchOf(picture.width, bits);
    return writeBmpHeader(picture.width, picture.height, bits, colours, to) &&
           writePalette(picture.palette, colours, to) &&
           writeRows(to, picture.height, pitch, true, [&](int y, std::uint8_t* row) {
               std::memset(row + pitch - 4, 0, 4);
               packIndices(picture.indices.data() + std::ptrdiff_t{y} * picture.width, row, picture.width, bits);
           });
}

bool write15Bits(const Bits& picture, ByteSink& to)
{
    const int width = picture.width();
    const std::size_t pitch = pitchOf(width, 16);
    return writeBmpHeader(width, picture.height(), 16, 3, to) &&
           Header().put(0x7C00, 4).put(0x3E0, 4).put(0x1F, 4).writeTo(to) &&
           writeRows(to, picture.height(), pitch, true, [&](int y, std::uint8_t* row) {
               std::memset(row + pitch - 4, 0, 4);
               for (const Pixel *p = picture.row(y), *end = p + width; p < end; ++p, row += 2) {
                   const int word = p->c[2] >> 3 << 10 | p->c[1] >> 3 << 5 | p->c[0] >> 3;
                   row[0] = static_cast<std::uint8_t>(word);
                   row[1] = static_cast<std::uint8_t>(word >> 8);
               }
           });
}

} // namespace

bool writeBmp(const Bits& picture, ByteSink& to)
{
    const int width = picture.width();
    const std::size_t bytes = std::size_t(width) * 3, pitch = pitchOf(width, 24);
    return writeBmpHeader(width, picture.height(), 24, 0, to) &&
           writeRows(to, picture.height(), pitch, true, [&](int y, std::uint8_t* row) {
               packRow24(picture.row(y), row, width, Order::BlueFirst);
               std::memset(row + bytes, 0, pitch - bytes);
           });
}

bool writeBmp(const ReducedPicture& picture, ByteSink& to)
{
    const int bits = picture.bitCount;
    if (bits >= 1 && bits <= 8) return writeIndexed(picture.indexed, bits == 1 ? 1 : bits <= 4 ? 4 : 8, to);
    return bits == 16 ? write15Bits(picture.full, to) : bits == 24 && writeBmp(picture.full, to);
}

bool writeTga(const Bits& picture, ByteSink& to)
{
    const int width = picture.width();
    const Header header = Header()
                              .put(0, 2) // no identification, no palette
                              .put(2, 1) // true colour
                              .put(0, 5) // of the palette
                              .put(0, 4) // origin
                              .put(static_cast<std::uint32_t>(width), 2)
                              .put(static_cast<std::uint32_t>(picture.height()), 2)
                              .put(24, 1)
                              .put(0, 1); // bottom row first
    return header.writeTo(to) &&
           writeRows(to, picture.height(), std::size_t(width) * 3, true,
                     [&](int y, std::uint8_t* row) { packRow24(picture.row(y), row, width, Order::BlueFirst); }) &&
           Header().put(0, 8).put("TRUEVISION-XFILE.").put(0, 1).writeTo(to);
}

bool writePpm(const Bits& picture, ByteSink& to)
{
    const int width = picture.width();
    std::array<char, 40> header{};
    const int length = std::snprintf(header.data(), header.size(), "P6\n%d %d\n255\n", width, picture.height());
    return to.write(header.data(), static_cast<std::size_t>(length)) &&
           writeRows(to, picture.height(), std::size_t(width) * 3, false,
                     [&](int y, std::uint8_t* row) { packRow24(picture.row(y), row, width, Order::RedFirst); });
}

} // namespace velara
