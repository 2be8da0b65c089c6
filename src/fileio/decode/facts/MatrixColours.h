// MatrixColours: from the colours of a profile of three curves and three primaries, as cameras and browsers write them,
// to sRGB. As the colour library does it, but in single precision for 16 bits, too, and several times as fast.
#pragma once
#include "pixels/Bits.h"
#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace velara::decode {

class MatrixColours {
  public:
    /// profile, srgb: Little CMS's handles; bytes per sample: 1 or 2. Null when the profile isn't of that kind.
    static std::shared_ptr<const MatrixColours> of(void* profile, void* srgb, int bytes);

    /// For 1 byte; may be in place. The fourth byte stays.
    void convert(const Pixel* from, Pixel* to, int count) const;
    /// For 1 or 2 bytes: red, green, blue, in the machine's order.
    void convert(const std::uint8_t* from, Pixel* to, int count) const { convertSamples(from, to, count); }
    void convert(const std::uint16_t* from, Pixel* to, int count) const { convertSamples(from, to, count); }

  private:
    using Light = float __attribute__((vector_size(16))); // red, green, blue and nothing, in steps of the table below

    MatrixColours() = default;
    template <class Sample> void convertSamples(const Sample* from, Pixel* to, int count) const;
    void put(Light light, Pixel& to) const;

    static constexpr int kSteps = 1 << 14;          // an eighth of a level where sRGB is steepest
    std::array<std::vector<float>, 3> linear_;      // by sample: of red, green, blue
    std::array<Light, 3> columns_{};                // what a whole red, green, blue is
    std::array<std::uint8_t, kSteps + 1> levels_{}; // sRGB's by light
};

} // namespace velara::decode
