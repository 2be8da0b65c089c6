// The nearest of a fixed set of colours, for all pixels of a picture. The answers stand in a table of all colours,
// which is filled cube by cube as colours are asked for: a byte each, so that more of it stays in the cache, and a
// second one where there are more than 256 colours to choose from.
#pragma once
#include "pixels/Bits.h"
#include <array>
#include <bit>
#include <memory>
#include <vector>

namespace velara {

/// How far two colours are from each other: the sum of what their channels differ by, or of the squares of that.
enum class Distance { Sum, Squares };

class NearestColours {
  public:
    static constexpr std::size_t kMost = 0xFFFF;

    /// 1 to kMost colours; the fourth bytes are not looked at. std::bad_alloc when memory is short.
    NearestColours(const std::vector<Pixel>& colours, Distance distance);

    /// The position of the nearest one, the lowest of equals. The fourth byte is not looked at.
    int operator()(Pixel p)
    {
        const auto word = std::bit_cast<std::uint32_t>(p);
        const std::uint32_t at = kPlace[0][word & 255] | kPlace[1][word >> 8 & 255] | kPlace[2][word >> 16 & 255];
        if (!filled_[at >> 3 * kInside]) [[unlikely]]
            fillCube(at >> 3 * kInside);
        return high_ ? low_[at] | high_[at] << 8 : low_[at];
    }

  private:
    // A colour's place in the table: the cube by the high bits of its channels, and the place inside by the low ones,
    // so that similar colours stand together.
    static constexpr int kInside = 3, kOutside = 8 - kInside, kSide = 1 << kInside;
    static constexpr auto kPlace = [] { // by channel and level
        std::array<std::array<std::uint32_t, 256>, 3> place{};
        for (int channel = 0; channel < 3; ++channel)
            for (std::uint32_t v = 0; v < 256; ++v)
                place[channel][v] = v >> kInside << (3 * kInside + channel * kOutside) | v % kSide << channel * kInside;
        return place;
    }();

    void fillCube(std::uint32_t cube);

    struct Candidate {
        std::array<int, 3> c; // blue, green, red
        std::uint16_t entry;
    };
    using Candidates = std::vector<Candidate>;
    struct Free {
        void operator()(std::uint8_t* table) const;
    };

    Candidates nearTo(const Candidates& all, std::array<int, 3> low, int side) const;

    Distance distance_;
    Candidates colours_;
    std::array<Candidates, 512> regions_; // of 32 a side; empty until asked for
    std::vector<std::uint8_t> filled_ = std::vector<std::uint8_t>(1 << 3 * kOutside); // by cube
    std::unique_ptr<std::uint8_t[], Free> low_, high_;
};

} // namespace velara
