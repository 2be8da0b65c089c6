// Vector kernels of the colour filters: channels, sums of channels and grey weights.
#pragma once
#include "engine/SpanOf.h"
#include <array>
#include <functional>

namespace velara {

/// Byte c of the result is byte `from` (bits 8c..8c+7, 0 to 3) of the pixel, AND keep, XOR flip.
struct ChannelMap {
    std::uint32_t from, keep, flip;
};
constexpr std::uint32_t kChannelsInPlace = 0x03020100, kFourthByte = 0xFF000000;

/// The grey of this system: green counts most. Computed in doubles, in this order.
inline double greyOf(const Pixel& p) { return 0.707 * p.c[1] + 0.071 * p.c[0] + 0.222 * p.c[2]; }
/// The brightness whose median Equalize uses.
inline double brightnessOf(const Pixel& p) { return 0.586 * p.c[1] + 0.113 * p.c[0] + 0.301 * p.c[2]; }

/// Thousandths by channel; their sum is 1000.
struct Weights {
    int c0, c1, c2;
};
constexpr Weights kGreyWeights{71, 707, 222}, kBrightnessWeights{113, 586, 301};

constexpr std::uint16_t kGreyInDoubt = 256;

/// A table of 256 entries that may leave 0..255, which happens before the entry low and after the entry high alone.
struct StretchTable {
    std::array<std::int32_t, 256> entries;
    std::array<std::uint8_t, 256> limited; // to bytes
    std::uint8_t low, high;
    bool isWide; // entries past +-kMostNarrow
    static constexpr std::int32_t kMostNarrow = 1 << 28;
};

struct ColourKernels {
    void (*channels)(const SpanOf&, const ChannelMap&);
    /// Adds plus, then subtracts minus, with saturation, byte by byte.
    void (*add)(const SpanOf&, std::uint32_t plus, std::uint32_t minus);
    /// table[c] of each of the three channels, 256 bytes.
    void (*table)(const SpanOf&, const std::uint8_t* table);
    /// The entries of the three channels. Half of a channel's excess below 0 or above 255 goes to each of the others,
    /// until all are in range: this preserves the hue longer than clamping.
    void (*stretch)(const SpanOf&, const StretchTable& table);
    /// Black where c0+c1+c2 <= bound, white elsewhere.
    void (*threshold)(const SpanOf&, int bound);
    /// round(greyOf) in the bytes that keep doesn't cover.
    void (*grey)(const SpanOf&, std::uint32_t keep);
    /// table[c0+c1+c2], 766 colours with a fourth byte of 0.
    void (*bySum)(const SpanOf&, const std::uint32_t* table);
    /// clamp(c + round((c - grey)*k)) or, roundsSum, clamp(round(c + (c - grey)*k)); grey = (c0+c1+c2) \ 3,
    /// |k| <= 1000.
    void (*saturate)(const SpanOf&, float k, bool roundsSum);
    /// The grey greys[sum] of the weighted sum in thousandths, 0..255000; where that is kGreyInDoubt, redo(pixel). One
    /// more entry is read.
    void (*byGreySum)(const SpanOf&, const std::uint16_t* greys, const std::function<std::uint8_t(const Pixel&)>& redo);
    /// round(brightnessOf) of n pixels, in the three channels of out.
    void (*brightness)(const Pixel* from, int n, Pixel* out);
    /// The sum of (c0+c1+c2) \ 3 over n pixels; n < 2^21.
    std::uint32_t (*sumOfThirds)(const Pixel* from, int n);
    /// Copies n pixels by non-temporal stores.
    void (*copyPast)(const Pixel* from, Pixel* to, int n);
};
const ColourKernels& colourKernels();

} // namespace velara
