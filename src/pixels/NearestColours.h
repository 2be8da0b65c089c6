// Nearest-colour search in a fixed palette, for every pixel of a picture. Colour space is divided into cubes; each
// keeps the few candidates that can be nearest to any colour inside it, so that the table stays in the processor's
// cache. Cubes are filled when first used.
#pragma once
#include "pixels/PixelLanes.h"
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
    int operator()(__m128i p)
    {
        const Cube& cube = cubes_[std::size_t(_mm_cvtsi128_si32(cubesOf(p)))];
        if (!cube.hasFew()) [[unlikely]]
            return lookCloser(std::bit_cast<Pixel>(_mm_cvtsi128_si32(p)));
        return among(cube, p);
    }
    /// Replaces count pixels by their nearest colours; fourth bytes are copied from from.
    void colour(const Pixel* from, Pixel* to, int count);

  private:
    static constexpr int kInside = 3, kOutside = 8 - kInside, kSide = 1 << kInside, kLevels = 1 << kOutside, kFew = 4;

    /// Candidate colours with their indices as fourth bytes, ascending, the last one repeated to fill up. Indices out
    /// of order mark a cube that is crowded or not filled yet; its first colour is then a number, see kUnknown.
    struct alignas(16) Cube {
        std::array<Pixel, kFew> colours;

        bool hasFew() const { return colours[0].c[3] <= colours[kFew - 1].c[3]; }
        std::uint32_t number() const { return std::bit_cast<std::uint32_t>(colours[0]) & 0xFFFFFF; }
    };
    using Crowd = std::array<std::uint16_t, kSide * kSide * kSide>; // nearest index for each colour of the cube

    struct Candidate {
        std::array<int, 3> c; // blue, green, red
        std::uint16_t entry;
    };
    using Candidates = std::vector<Candidate>;

    static constexpr std::uint32_t kUnknown = 0xFFFFFF; // the number of a cube that is not filled yet
    static Cube numbered(std::uint32_t number) { return {{std::bit_cast<Pixel>(number | 1 << 24)}}; }

    /// Cube numbers of four pixels, from the high bits of the channels: red, green, blue.
    static __m128i cubesOf(__m128i pixels)
    {
        const __m128i high = _mm_and_si128(pixels, _mm_set1_epi8(-kSide));
        const __m128i ofTwo = _mm_maddubs_epi16(high, _mm_set1_epi32(1 << 16 | kLevels << 8 | 1));
        return _mm_srli_epi32(_mm_madd_epi16(ofTwo, _mm_set1_epi32(kLevels * kLevels << 16 | 1)), kInside);
    }
    int among(const Cube& cube, __m128i p) const
    {
        const __m128i all = std::bit_cast<__m128i>(cube);
        const __m128i four = _mm_shuffle_epi32(p, 0);
        // Indices in the low bits break ties.
        const __m128i ranked = _mm_or_si128(_mm_slli_epi32(distances(all, four), 8), _mm_srli_epi32(all, 24));
        const __m128i two = _mm_min_epi32(ranked, _mm_shuffle_epi32(ranked, 0x4E));
        return _mm_cvtsi128_si32(_mm_min_epi32(two, _mm_shuffle_epi32(two, 0xB1))) & 255;
    }
    __m128i distances(__m128i a, __m128i b) const
    {
        const __m128i off = _mm_or_si128(_mm_subs_epu8(a, b), _mm_subs_epu8(b, a));
        return distance_ == Distance::Sum ? sums(off) : squares(off);
    }
    static __m128i sums(__m128i off)
    {
        return _mm_madd_epi16(_mm_maddubs_epi16(off, _mm_set1_epi32(0x010101)), _mm_set1_epi16(1));
    }
    static __m128i squares(__m128i off)
    {
        const __m128i outer = _mm_and_si128(off, _mm_set1_epi32(0xFF00FF));
        const __m128i middle = _mm_and_si128(_mm_srli_epi32(off, 8), _mm_set1_epi32(0xFF));
        return _mm_add_epi32(_mm_madd_epi16(outer, outer), _mm_madd_epi16(middle, middle));
    }

    bool fourFew(const Pixel* from, Pixel* to) const;
    int lookCloser(Pixel p);
    Candidates nearTo(const Candidates& all, std::array<int, 3> low, int side) const;
    Cube lookInto(std::array<int, 3> low);
    std::uint32_t crowdOf(const Candidates& candidates, std::array<int, 3> low);
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
