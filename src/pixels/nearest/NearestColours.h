// Nearest-colour search in a fixed palette, for every pixel of a picture. Colour space is divided into cubes; each
// keeps the few candidates that can be nearest to any colour inside it, so that the table stays in the processor's
// cache. Cubes are filled when first used.
#pragma once
#include "pixels/Register.h"
#include "pixels/nearest/kernels_nearest.h"
#include <array>
#include <deque>
#include <vector>

namespace velara {

/// Distance of two colours: the sum of absolute differences of their channels, or of squared differences.
enum class Distance { Sum, Squares };

class NearestColours {
  public:
    static constexpr std::size_t kMost = 0xFFFF;

    /// 1 to kMost colours; fourth bytes are ignored.
    NearestColours(const std::vector<Pixel>& colours, Distance distance);

    /// Index of the nearest colour, ties to the lowest index. The fourth byte is ignored.
    int operator()(Pixel p) { return (*this)(inRegister(p)); }
    /// The same for a pixel in the low four bytes of a register.
    int operator()(Register p)
    {
        const Cube& cube = cubes_[std::size_t(wordOf(cubesOf(p)))];
        if (!cube.hasFew()) [[unlikely]]
            return lookCloser(std::bit_cast<Pixel>(wordOf(p)));
        return among(cube, p);
    }
    /// Looks into the cubes of these pixels, on all cores, so that copies made afterwards need not.
    void expect(const std::vector<Pixel>& pixels);
    /// Replaces count pixels by their nearest colours; fourth bytes are copied from from.
    void colour(const Pixel* from, Pixel* to, int count);

    /// The indices of count pixels' nearest colours, of at most 256 colours.
    void entries(const Pixel* from, std::uint8_t* to, int count);

  private:
    static constexpr int kInside = 3, kOutside = 8 - kInside, kSide = 1 << kInside;
    static constexpr std::size_t kFew = NearestCube::kFew;

    /// The last candidate is repeated to fill up. A cube without any is crowded or not filled yet; its first colour is
    /// then a number, see kUnknown.
    struct Cube : NearestCube {
        bool hasFew() const { return colours[0].c[3] <= colours[kFew - 1].c[3]; }
        std::uint32_t number() const { return std::bit_cast<std::uint32_t>(colours[0]) & 0xFFFFFF; }
    };
    using Crowd = std::array<std::uint16_t, kSide * kSide * kSide>; // nearest index for each colour of the cube

    struct Candidate {
        std::array<int, 3> c; // blue, green, red
        std::uint16_t entry;
    };
    using Candidates = std::vector<Candidate>;
    using Corner = std::array<int, 3>; // the least levels of a cube or a region

    static constexpr std::uint32_t kUnknown = 0xFFFFFF; // the number of a cube that is not filled yet
    static Cube numbered(std::uint32_t number) { return {{{std::bit_cast<Pixel>(number | 1 << 24)}}}; }

    /// Cube numbers of four pixels.
    static Register cubesOf(Register pixels) { return fiveBitsOf(pixels); }
    static_assert(kInside == 3);
    int among(const Cube& cube, Register p) const
    {
        const auto all = std::bit_cast<Register>(cube);
        return nearestEntry(distances(all, fourTimes(p)), all);
    }
    Register distances(Register a, Register b) const
    {
        const Register off = differences(a, b);
        return distance_ == Distance::Sum ? sumsOf(off) : squaresOf(off);
    }

    int lookCloser(Pixel p);
    Candidates nearTo(const Candidates& all, Corner low, int side) const;
    static std::size_t regionOf(Corner low);
    Cube lookInto(Corner low, std::deque<Crowd>& crowds);
    std::uint32_t crowdOf(const Candidates& candidates, Corner low, std::deque<Crowd>& crowds) const;
    void tellGreysBySum();

    Distance distance_;
    std::vector<Pixel> colours_;
    Candidates distinct_;                 // palette without duplicates; the first index of each
    std::array<Candidates, 512> regions_; // of 32 a side; empty until asked for
    std::vector<Cube> cubes_;
    std::deque<Crowd> crowds_;
    std::vector<std::uint16_t>
        bySum_; // nearest index by sum of the channels, for a palette of greys and squared distance
};

} // namespace velara
