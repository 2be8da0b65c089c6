// Approximates colours by mixtures of palette entries. The mean of a mixture is the colour, as far as the palette
// reaches, and its entries are as near to the colour as the palette allows: a screen of dots is as fine as the palette.
#pragma once
#include "pixels/Register.h"
#include <array>
#include <memory>
#include <vector>

namespace velara {

/// How much of a mixture's contrast is still seen from afar, as a share of its variance, 0 to 1: the more, the less it
/// may vary for the sake of its mean. It rises to a half where entries are nearer to each other than close, a squared
/// distance: there the picture's own noise mixes already, and contrast costs more than it brings.
struct Contrast {
    float seen, close;
};

class ColourMixer {
  public:
    static constexpr int kParts = 64;
    static constexpr std::size_t kMostMixed = 8;
    struct Mixture {
        std::array<std::uint8_t, kMostMixed> entries, parts; // dark to light; parts sum up to kParts
        std::size_t count;
    };

    /// colours: 1 to 256.
    ColourMixer(const std::vector<Pixel>& colours, Contrast contrast);

    /// A colour of the palette gives that alone.
    Mixture operator()(Pixel p);

  private:
    static constexpr std::size_t kCandidates = 32;
    using Each = std::array<float, kCandidates>;
    /// The entries nearest to a cell of colours, channel by channel; the last one repeated to fill up.
    struct Candidates {
        std::array<std::uint8_t, kCandidates> entries;
        std::array<Each, 3> channels;
    };
    const Candidates& candidatesNear(Pixel p);
    Mixture sorted(const Mixture& mixture) const;

    const std::vector<Pixel> colours_;
    std::vector<int> brightness_;
    std::vector<float> apart_; // squared distance of each colour from the next one
    Contrast contrast_;
    std::vector<std::unique_ptr<Candidates>> cells_ = std::vector<std::unique_ptr<Candidates>>(16 * 16 * 16);
};

} // namespace velara
