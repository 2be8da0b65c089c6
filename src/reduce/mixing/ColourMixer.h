// Approximates colours by mixtures of palette entries. The mean of a mixture is the colour, as far as the palette
// reaches, and its entries are as near to the colour as the palette allows: a screen of dots is as fine as the palette.
#pragma once
#include "pixels/Register.h"
#include "reduce/mixing/kernels_mixing.h"
#include <array>
#include <memory>
#include <vector>

namespace velara {

class ColourMixer {
  public:
    static constexpr int kParts = MixedParts::kParts;
    static constexpr std::size_t kMostMixed = MixedParts::kMost;
    using Mixture = MixedParts; // of entries of the palette, dark to light

    /// colours: 1 to 256.
    ColourMixer(const std::vector<Pixel>& colours, Contrast contrast);

    /// Of n colours; many at a time take a fraction of the time. A colour of the palette gives that alone.
    void mixtures(const Pixel* colours, int n, Mixture* mixed);
    Mixture operator()(Pixel p)
    {
        Mixture mixture;
        mixtures(&p, 1, &mixture);
        return mixture;
    }

  private:
    static constexpr int kTogether = 512;

    /// The entries nearest to a cell of colours; the last one repeated to fill up.
    struct Candidates {
        std::array<std::uint8_t, MixingCandidates::kCount> entries;
        MixingCandidates near;
    };
    const Candidates& candidatesNear(Pixel p);
    void sort(Mixture& mixture) const;

    std::vector<Pixel> colours_;
    std::vector<std::uint16_t> ranks_; // of the colours from dark to light
    std::vector<float> apart_;         // squared distance of each colour from the next one
    Contrast contrast_;
    std::vector<std::shared_ptr<const Candidates>> cells_ =
        std::vector<std::shared_ptr<const Candidates>>(16 * 16 * 16);
};

} // namespace velara
