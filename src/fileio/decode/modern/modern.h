// Shared by the readers of the newer formats. They draw transparent pixels on white, as a page does.
#pragma once
#include "fileio/decode/readers.h"
#include <array>
#include <bit>
#include <cstring>
#include <memory>

namespace velara::decode {

constexpr std::size_t kMostCarried = std::size_t{64} << 20; // bytes of a profile or of the camera's facts; longer ones
                                                            // are left out

/// A colour part over white: part and alpha have the same maximum.
constexpr std::uint32_t overWhite(std::uint32_t part, std::uint32_t alpha, std::uint32_t most)
{
    return (part * alpha + most * (most - alpha) + most / 2) / most;
}

/// One pixel, of red, green, blue and alpha.
inline Pixel rgbaOverWhite(const std::uint8_t* rgba)
{
    const auto part = [&](int i) { return static_cast<std::uint8_t>(overWhite(rgba[i], rgba[3], 255)); };
    return {{part(2), part(1), part(0), 0}};
}

/// Pixels of red, green and blue.
inline void takeRow24(const std::uint8_t* from, Pixel* row, int width)
{
    using Lanes = std::uint8_t __attribute__((vector_size(16)));
    constexpr Lanes kPlaces{2, 1, 0, 3, 5, 4, 3, 6, 8, 7, 6, 9, 11, 10, 9, 12};
    constexpr auto kColours = std::bit_cast<std::uint32_t>(Pixel{{255, 255, 255, 0}});
    constexpr int kTogether = 4, kRead = 6; // sixteen bytes are read, those of six pixels
    int x = 0;
    for (; x <= width - kRead; x += kTogether, from += 3 * kTogether) {
        Lanes four;
        std::memcpy(&four, from, sizeof four);
        std::array<std::uint32_t, kTogether> words;
        four = __builtin_shuffle(four, kPlaces);
        std::memcpy(words.data(), &four, sizeof four);
        for (std::uint32_t& word : words) word &= kColours;
        std::memcpy(row + x, words.data(), sizeof four);
    }
    for (; x < width; ++x, from += 3) row[x] = {{from[2], from[1], from[0], 0}};
}

/// A copy of bytes that a library shows; empty when there are none or far too many.
inline std::vector<std::uint8_t> carriedBytes(const void* from, std::size_t size)
{
    const auto* bytes = static_cast<const std::uint8_t*>(from);
    return from && size <= kMostCarried ? std::vector<std::uint8_t>(bytes, bytes + size) : std::vector<std::uint8_t>();
}

/// EXIF from its byte order mark on: some writers put "Exif", two zeros or an offset before it.
std::vector<std::uint8_t> exifFrom(std::vector<std::uint8_t> bytes, std::size_t from = 0);

/// The ICC profile of colours by the numbers of ITU-T H.273; empty for sRGB and for those that have none.
std::vector<std::uint8_t> profileOf(int primaries, int transfer);

/// Gives a picture 16-bit samples, which `row` writes from red to blue, and rows made of their high bytes.
template <class Row> void giveDeepRows(Decoded& picture, Row row)
{
    picture.samples = {3, 2, [row](int y, void* to) { row(y, static_cast<std::uint16_t*>(to)); }};
    picture.row = [row = std::move(row),
                   line = std::vector<std::uint16_t>(3 * std::size_t(picture.width))](int y, Pixel* to) mutable {
        row(y, line.data());
        const auto high = [&](std::size_t i) { return static_cast<std::uint8_t>(line[i] >> 8); };
        for (std::size_t x = 0; x < line.size(); x += 3) *to++ = {{high(x + 2), high(x + 1), high(x), 0}};
    };
}

} // namespace velara::decode
