// Sixteen bytes in a vector register, for look-ups that depend on each other from pixel to pixel: SSE4.1 where the
// processor has it, the compiler's own vectors elsewhere, with the same results.
#pragma once
#include "pixels/Bits.h"
#include <algorithm>
#include <bit>
#include <cstring>
#ifdef __SSE4_1__
#include <smmintrin.h>
#endif

namespace velara {

using Lanes = int __attribute__((vector_size(16))); // blue, green, red and the fourth byte of a pixel, or four pixels

using Words = std::int16_t __attribute__((vector_size(16))); // the four bytes of a pixel in the low lanes

namespace detail {
using Bytes = std::uint8_t __attribute__((vector_size(16)));
} // namespace detail

#ifdef __SSE4_1__

using Register = __m128i;

inline Register inRegister(const Pixel& p) { return _mm_cvtsi32_si128(std::bit_cast<int>(p)); }
/// The low four bytes.
inline int wordOf(Register v) { return _mm_cvtsi128_si32(v); }
inline int secondWordOf(Register v) { return _mm_extract_epi32(v, 1); }
/// The low four bytes of both, one after the other.
inline Register joined(Register a, Register b) { return _mm_unpacklo_epi32(a, b); }
inline Register fourOf(const Pixel* p) { return _mm_loadu_si128(reinterpret_cast<const Register*>(p)); }
inline void put(Register v, void* to) { _mm_storeu_si128(static_cast<Register*>(to), v); }
/// The low four bytes four times.
inline Register fourTimes(Register v) { return _mm_shuffle_epi32(v, 0); }
inline Register entriesOf(Register pixels) { return _mm_srli_epi32(pixels, 24); }
inline bool anyGreater(Register a, Register b) { return _mm_movemask_epi8(_mm_cmpgt_epi32(a, b)) != 0; }
inline Register lesser(Register a, Register b) { return _mm_min_epi32(a, b); }
/// b where its lane of `least` is greater than that of `than`, else a.
inline Register whereGreater(Register least, Register than, Register a, Register b)
{
    return _mm_blendv_epi8(a, b, _mm_cmpgt_epi32(least, than));
}
/// The colours of a with the fourth bytes of b.
inline Register withFourth(Register a, Register b)
{
    return _mm_blendv_epi8(a, b, _mm_set1_epi32(static_cast<int>(0xFF000000)));
}
/// Absolute differences of the bytes.
inline Register differences(Register a, Register b) { return _mm_or_si128(_mm_subs_epu8(a, b), _mm_subs_epu8(b, a)); }
/// For each of four pixels: the sum of its three channels, and of their squares.
inline Register sumsOf(Register v)
{
    return _mm_madd_epi16(_mm_maddubs_epi16(v, _mm_set1_epi32(0x010101)), _mm_set1_epi16(1));
}
inline Register squaresOf(Register v)
{
    const Register outer = _mm_and_si128(v, _mm_set1_epi32(0xFF00FF));
    const Register middle = _mm_and_si128(_mm_srli_epi32(v, 8), _mm_set1_epi32(0xFF));
    return _mm_add_epi32(_mm_madd_epi16(outer, outer), _mm_madd_epi16(middle, middle));
}
/// The high five bits of the channels as one number for each of four pixels: red, green, blue.
inline Register fiveBitsOf(Register pixels)
{
    const Register high = _mm_and_si128(pixels, _mm_set1_epi8(-8));
    const Register ofTwo = _mm_maddubs_epi16(high, _mm_set1_epi32(1 << 16 | 32 << 8 | 1));
    return _mm_srli_epi32(_mm_madd_epi16(ofTwo, _mm_set1_epi32(1024 << 16 | 1)), 3);
}
/// Ranks by distance; the fourth bytes of the candidates break ties. The fourth byte of the first.
inline int nearestEntry(Register distances, Register candidates)
{
    const Register ranked = _mm_or_si128(_mm_slli_epi32(distances, 8), entriesOf(candidates));
    const Register two = lesser(ranked, _mm_shuffle_epi32(ranked, 0x4E));
    return wordOf(lesser(two, _mm_shuffle_epi32(two, 0xB1))) & 255;
}
/// Four registers of four lanes each, turned: lane i of all of them becomes register i.
inline void transpose(Register (&r)[4])
{
    const Register first = _mm_unpacklo_epi32(r[0], r[1]), second = _mm_unpacklo_epi32(r[2], r[3]),
                   third = _mm_unpackhi_epi32(r[0], r[1]), last = _mm_unpackhi_epi32(r[2], r[3]);
    r[0] = _mm_unpacklo_epi64(first, second);
    r[1] = _mm_unpackhi_epi64(first, second);
    r[2] = _mm_unpacklo_epi64(third, last);
    r[3] = _mm_unpackhi_epi64(third, last);
}
/// The sum of the absolute differences of the low three bytes.
inline int errorOf(Register p, Register found)
{
    return wordOf(_mm_sad_epu8(_mm_and_si128(p, _mm_cvtsi32_si128(0xFFFFFF)), found));
}
/// Both pixels plus seven and four sixteenths of the error p - found, truncated toward zero, clamped to bytes.
inline Register plusError(Register both, Register p, Register found)
{
    const Register twice = _mm_set_epi8(-1, 3, -1, 2, -1, 1, -1, 0, -1, 3, -1, 2, -1, 1, -1, 0);
    const Register error = _mm_sub_epi16(_mm_shuffle_epi8(p, twice), _mm_shuffle_epi8(found, twice));
    const Register share = _mm_mullo_epi16(error, _mm_set_epi16(0, 4, 4, 4, 0, 7, 7, 7));
    const Register upwards = _mm_srli_epi16(_mm_srai_epi16(share, 15), 12); // 15 where it is negative
    const Register sixteenth = _mm_srai_epi16(_mm_add_epi16(share, upwards), 4);
    const Register sum = _mm_add_epi16(_mm_cvtepu8_epi16(both), sixteenth);
    return _mm_packus_epi16(sum, sum);
}
inline Lanes wide(const Pixel& p) { return std::bit_cast<Lanes>(_mm_cvtepu8_epi32(inRegister(p))); }
inline Lanes limited(Lanes v, int least, int most)
{
    const auto r = std::bit_cast<Register>(v);
    return std::bit_cast<Lanes>(_mm_min_epi32(_mm_max_epi32(r, _mm_set1_epi32(least)), _mm_set1_epi32(most)));
}
/// Each lane, limited to 0..255, as a byte.
inline Pixel narrowLimited(Lanes v)
{
    const Register words = _mm_packs_epi32(std::bit_cast<Register>(v), std::bit_cast<Register>(v));
    return std::bit_cast<Pixel>(wordOf(_mm_packus_epi16(words, words)));
}
inline Words wordsOf(const Pixel& p) { return std::bit_cast<Words>(_mm_cvtepu8_epi16(inRegister(p))); }
/// The low four lanes, from and to memory; in integers, and back without the fourth one.
inline Words fourWordsAt(const std::int16_t* p)
{
    return std::bit_cast<Words>(_mm_loadl_epi64(reinterpret_cast<const Register*>(p)));
}
inline void putFour(Words v, std::int16_t* to)
{
    _mm_storel_epi64(reinterpret_cast<Register*>(to), std::bit_cast<Register>(v));
}
inline Lanes lanesOf(Words v) { return std::bit_cast<Lanes>(_mm_cvtepi16_epi32(std::bit_cast<Register>(v))); }
inline Words threeWordsOf(Lanes v)
{
    const Register words = _mm_packs_epi32(std::bit_cast<Register>(v), _mm_setzero_si128());
    return std::bit_cast<Words>(_mm_insert_epi16(words, 0, 3));
}
/// Each of the four lanes, limited to 0..255, as a byte.
inline Pixel narrowLimited(Words v)
{
    const auto words = std::bit_cast<Register>(v);
    return std::bit_cast<Pixel>(wordOf(_mm_packus_epi16(words, words)));
}
/// One of the four lanes is beyond plus or minus most.
inline bool anyBeyond(Words v, std::int16_t most)
{
    const auto words = std::bit_cast<Register>(v);
    const Register above = _mm_cmpgt_epi16(words, _mm_set1_epi16(most)),
                   below = _mm_cmplt_epi16(words, _mm_set1_epi16(static_cast<std::int16_t>(-most)));
    return (_mm_movemask_epi8(_mm_or_si128(above, below)) & 0xFF) != 0;
}

#else

using Register = Lanes;

inline Lanes wide(const Pixel& p) { return Lanes{p.c[0], p.c[1], p.c[2], p.c[3]}; }
inline Register inRegister(const Pixel& p) { return Register{std::bit_cast<int>(p), 0, 0, 0}; }
inline int wordOf(Register v) { return v[0]; }
inline int secondWordOf(Register v) { return v[1]; }
inline Register joined(Register a, Register b) { return Register{a[0], b[0], 0, 0}; }
inline Register fourOf(const Pixel* p)
{
    Register v;
    std::memcpy(&v, p, sizeof v);
    return v;
}
inline void put(Register v, void* to) { std::memcpy(to, &v, sizeof v); }
inline Register fourTimes(Register v) { return Register{} + v[0]; }
inline Register entriesOf(Register pixels) { return pixels >> 24 & 255; }
inline bool anyGreater(Register a, Register b)
{
    const Register greater = a > b;
    return (greater[0] | greater[1] | greater[2] | greater[3]) != 0;
}
inline Register lesser(Register a, Register b) { return a < b ? a : b; }
inline Register whereGreater(Register least, Register than, Register a, Register b) { return least > than ? b : a; }
inline Register withFourth(Register a, Register b) { return (a & 0xFFFFFF) | (b & ~0xFFFFFF); }
inline Register differences(Register a, Register b)
{
    const auto x = std::bit_cast<detail::Bytes>(a), y = std::bit_cast<detail::Bytes>(b);
    return std::bit_cast<Register>(x > y ? x - y : y - x);
}
inline Register sumsOf(Register v) { return (v & 255) + (v >> 8 & 255) + (v >> 16 & 255); }
inline Register squaresOf(Register v)
{
    const Register blue = v & 255, green = v >> 8 & 255, red = v >> 16 & 255;
    return blue * blue + green * green + red * red;
}
inline Register fiveBitsOf(Register pixels)
{
    return (pixels >> 3 & 31) | (pixels >> 6 & 31 << 5) | (pixels >> 9 & 31 << 10);
}
inline int nearestEntry(Register distances, Register candidates)
{
    const Register ranked = distances << 8 | entriesOf(candidates);
    return std::min({ranked[0], ranked[1], ranked[2], ranked[3]}) & 255;
}
inline void transpose(Register (&r)[4])
{
    const Register a = r[0], b = r[1], c = r[2], d = r[3];
    for (int i = 0; i < 4; ++i) r[i] = Register{a[i], b[i], c[i], d[i]};
}
inline int errorOf(Register p, Register found)
{
    const Lanes off = wide(std::bit_cast<Pixel>(p[0])) - wide(std::bit_cast<Pixel>(found[0]));
    const Lanes error = off < 0 ? -off : off;
    return error[0] + error[1] + error[2];
}
inline Lanes limited(Lanes v, int least, int most)
{
    v = v < least ? Lanes{} + least : v;
    return v > most ? Lanes{} + most : v;
}
inline Pixel narrowLimited(Lanes v)
{
    const auto bytes = std::bit_cast<detail::Bytes>(limited(v, 0, 255));
    const auto low = __builtin_shufflevector(bytes, bytes, 0, 4, 8, 12, 0, 4, 8, 12, 0, 4, 8, 12, 0, 4, 8, 12);
    return std::bit_cast<Pixel>(std::bit_cast<Lanes>(low)[0]);
}
inline Words wordsOf(const Pixel& p) { return Words{p.c[0], p.c[1], p.c[2], p.c[3]}; }
inline Words fourWordsAt(const std::int16_t* p) { return Words{p[0], p[1], p[2], p[3]}; }
inline void putFour(Words v, std::int16_t* to) { std::memcpy(to, &v, 4 * sizeof *to); }
inline Lanes lanesOf(Words v) { return Lanes{v[0], v[1], v[2], v[3]}; }
inline Words threeWordsOf(Lanes v)
{
    return Words{static_cast<std::int16_t>(v[0]), static_cast<std::int16_t>(v[1]), static_cast<std::int16_t>(v[2])};
}
inline Pixel narrowLimited(Words v) { return narrowLimited(lanesOf(v)); }
inline bool anyBeyond(Words v, std::int16_t most)
{
    const auto isBeyond = [&](int i) { return v[i] > most || v[i] < -most; };
    return isBeyond(0) || isBeyond(1) || isBeyond(2) || isBeyond(3);
}
inline Register plusError(Register both, Register p, Register found)
{
    const Lanes error = wide(std::bit_cast<Pixel>(p[0])) - wide(std::bit_cast<Pixel>(found[0]));
    Register out{};
    for (int i = 0; i < 2; ++i) {
        const Lanes share = error * (i == 0 ? Lanes{7, 7, 7, 0} : Lanes{4, 4, 4, 0});
        Lanes sum = wide(std::bit_cast<Pixel>(both[i])) + (share / 16); // toward zero
        sum = sum < 0 ? Lanes{} : sum;
        sum = sum > 255 ? Lanes{} + 255 : sum;
        out[i] = sum[0] | sum[1] << 8 | sum[2] << 16 | sum[3] << 24;
    }
    return out;
}

#endif

// --- A pixel as four integers, for error diffusion

inline Lanes absolute(Lanes v) { return v < 0 ? -v : v; }

/// The three channels as one number, without the fourth byte.
inline std::uint32_t channelBits(const Pixel& p) { return std::bit_cast<std::uint32_t>(p) & 0xFFFFFF; }

} // namespace velara
