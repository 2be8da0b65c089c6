#include "reduce/stretchPalette.h"
#include "pixels/IndexedPicture.h"
#include "reduce/mixing/ColourMixer.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace velara {

namespace {

constexpr double kSampledPixels = 1 << 13;
constexpr int kRounds = 8;
constexpr float kSeen = 0.05F; // the share of the variance that counts: mixtures stay narrow

std::vector<Pixel> sampleOf(const Bits& bits)
{
    const int step = static_cast<int>(std::ceil(std::sqrt(double(bits.width()) * bits.height() / kSampledPixels)));
    std::vector<Pixel> sample;
    for (int y = 0; y < bits.height(); y += step)
        for (int x = 0; x < bits.width(); x += step) sample.push_back(bits.row(y)[x]);
    return sample;
}

using Place = std::array<float, 3>;

Place placeOf(Pixel p) { return {float(p.c[0]), float(p.c[1]), float(p.c[2])}; }

/// What one round of mixtures asks of an entry: the sum of shifts, each by the entry's part.
struct Pull {
    Place shift{};
    float parts = 0;
};

struct Round {
    std::vector<Pull> pulls;
    double cost = 0; // what is missing, and the share of the variance that counts
};

Round roundOf(const std::vector<Pixel>& sample, const std::vector<Pixel>& colours)
{
    ColourMixer mixer(colours, {kSeen, 40});
    std::vector<ColourMixer::Mixture> mixtures(sample.size());
    mixer.mixtures(sample.data(), static_cast<int>(sample.size()), mixtures.data());
    Round round{.pulls = std::vector<Pull>(colours.size())};
    for (std::size_t k = 0; k < sample.size(); ++k) {
        const ColourMixer::Mixture& mixture = mixtures[k];
        const Place wanted = placeOf(sample[k]);
        Place missing = wanted;
        for (std::size_t i = 0; i < mixture.count; ++i)
            for (std::size_t c = 0; c < 3; ++c)
                missing[c] -= float(mixture.parts[i] * colours[mixture.entries[i]].c[c]) / ColourMixer::kParts;
        for (std::size_t i = 0; i < mixture.count; ++i) {
            Pull& pull = round.pulls[mixture.entries[i]];
            const auto part = float(mixture.parts[i]);
            const Place at = placeOf(colours[mixture.entries[i]]);
            for (std::size_t c = 0; c < 3; ++c) {
                const float off = wanted[c] - at[c];
                pull.shift[c] += part * ((1 - kSeen) * missing[c] + kSeen * off);
                round.cost += part * ((1 - kSeen) * missing[c] * missing[c] + kSeen * off * off);
            }
            pull.parts += part;
        }
    }
    return round;
}

} // namespace

Palette stretchedPalette(const Bits& bits, const Palette& palette, const ReduceProgress& progress)
{
    const std::vector<Pixel> sample = sampleOf(bits);
    std::vector<Pixel> colours;
    std::vector<Place> places;
    for (const Colour c : palette) {
        colours.push_back(pixelFor(c));
        places.push_back(placeOf(colours.back()));
    }
    std::vector<Pixel> best = colours;
    double least = std::numeric_limits<double>::infinity();
    for (int round = 0; round < kRounds; ++round) {
        if (progress) progress(0);
        const auto [pulls, cost] = roundOf(sample, colours);
        if (cost < least) best = colours;
        least = std::min(cost, least);
        for (std::size_t i = 0; i < pulls.size(); ++i)
            for (int c = 0; c < 3 && pulls[i].parts > 0; ++c) {
                float& place = places[i][std::size_t(c)];
                place = std::clamp(place + 1.5F * pulls[i].shift[std::size_t(c)] / pulls[i].parts, 0.0F, 255.0F);
                colours[i].c[c] = static_cast<std::uint8_t>(place + 0.5F);
            }
    }
    Palette stretched;
    for (const Pixel& p : best) stretched.push_back(colourOf(p.c[2], p.c[1], p.c[0]));
    return stretched;
}

} // namespace velara
