// The nearest of a fixed set of colours, for all pixels of a picture. Colours are looked up all over their space, so
// what is known of it has to stay in the cache: for each cube of it the few that are nearest to some colour in there,
// among which the distance decides. Cubes are looked into as they are asked for.
#pragma once
#include "pixels/PixelLanes.h"
#include <array>
#include <deque>
#include <vector>

namespace velara {

/// How far two colours are from each other: the sum of what their channels differ by, or of the squares of that.
enum class Distance { Sum, Squares };

class NearestColours {
  public:
    static constexpr std::size_t kMost = 0xFFFF;

    /// 1 to kMost colours; the fourth bytes are not looked at.
    NearestColours(const std::vector<Pixel>& colours, Distance distance);

    /// The position of the nearest one, the lowest of equals. The fourth byte is not looked at.
    int operator()(Pixel p) { return at(p, wide(p)); }
    /// The same of bytes in lanes.
    int operator()(Lanes p) { return at(narrow(p), p); }

  private:
    static constexpr int kInside = 3, kOutside = 8 - kInside, kSide = 1 << kInside, kFew = 4;
    using Few = std::array<std::uint8_t, kFew>;

    /// Of a cube. One that is crowded, or not looked into yet, has its entries out of order, and a number instead of
    /// colours.
    struct alignas(16) Cube {
        std::array<Few, 3> channels; // blue, green, red
        Few entries;                 // in rising order, the last one again where there are fewer

        bool hasFew() const { return entries[0] <= entries[kFew - 1]; }
        std::uint32_t number() const { return std::bit_cast<std::uint32_t>(channels[0]); }
    };
    using Crowd = std::array<std::uint16_t, kSide * kSide * kSide>; // the nearest one by place in the cube

    struct Candidate {
        std::array<int, 3> c; // blue, green, red
        std::uint16_t entry;
    };
    using Candidates = std::vector<Candidate>;

    static std::uint32_t cubeOf(std::uint32_t word)
    {
        return (word >> 3 & 0x1F) | (word >> 6 & 0x3E0) | (word >> 9 & 0x7C00); // the high bits of the channels
    }
    static Cube numbered(std::uint32_t number) { return {{std::bit_cast<Few>(number), Few{}, Few{}}, Few{1, 0, 0, 0}}; }

    int at(Pixel p, Lanes channels)
    {
        const Cube& cube = cubes_[cubeOf(std::bit_cast<std::uint32_t>(p))];
        if (!cube.hasFew()) [[unlikely]]
            return lookCloser(p);
        return among(cube, channels);
    }
    int among(const Cube& cube, Lanes p) const
    {
        const auto bytes = std::bit_cast<__m128i>(cube);
        const auto part = [&](int i) { // four of the bytes
            return std::bit_cast<Lanes>(
                _mm_shuffle_epi8(bytes, std::bit_cast<__m128i>((Lanes{0, 1, 2, 3} + 4 * i) | ~255)));
        };
        const auto far = [&](Lanes of, Lanes from) {
            const Lanes v = of - from;
            return distance_ == Distance::Squares ? v * v : absolute(v);
        };
        const Lanes distances = far(part(0), __builtin_shufflevector(p, p, 0, 0, 0, 0)) +
                                far(part(1), __builtin_shufflevector(p, p, 1, 1, 1, 1)) +
                                far(part(2), __builtin_shufflevector(p, p, 2, 2, 2, 2));
        const Lanes ranked = distances << 8 | part(3); // the entry tells equals apart
        const Lanes two = lesser(ranked, __builtin_shufflevector(ranked, ranked, 2, 3, 0, 1));
        return lesser(two, __builtin_shufflevector(two, two, 1, 0, 3, 2))[0] & 255;
    }
    static Lanes lesser(Lanes a, Lanes b) { return a < b ? a : b; }

    int lookCloser(Pixel p);
    Candidates nearTo(const Candidates& all, std::array<int, 3> low, int side) const;
    Cube lookInto(std::array<int, 3> low);
    std::uint32_t crowdOf(const Candidates& candidates, std::array<int, 3> low);

    Distance distance_;
    Candidates colours_;
    std::array<Candidates, 512> regions_; // of 32 a side; empty until asked for
    std::vector<Cube> cubes_;
    std::deque<Crowd> crowds_;
};

} // namespace velara
