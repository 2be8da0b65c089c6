#include "reduce/mixing/ColourMixer.h"
#include "reduce/palettes.h"
#include <algorithm>
#include <utility>

namespace velara {

namespace {

int distanceOf(Lanes a, Lanes b)
{
    const Lanes off = a - b, squares = off * off;
    return squares[0] + squares[1] + squares[2];
}

} // namespace

ColourMixer::ColourMixer(const std::vector<Pixel>& colours, Contrast contrast)
    : colours_(colours), ranks_(colours.size()), contrast_(contrast)
{
    std::vector<std::pair<int, std::size_t>> byBrightness;
    for (const Pixel& p : colours) {
        byBrightness.emplace_back(greyOf(p.c[2], p.c[1], p.c[0]), byBrightness.size());
        int apart = 3 * 255 * 255;
        for (const Pixel& other : colours)
            if (const int distance = distanceOf(wide(p), wide(other)); distance > 0) apart = std::min(apart, distance);
        apart_.push_back(float(apart));
    }
    std::ranges::sort(byBrightness);
    for (std::size_t i = 0; i < colours.size(); ++i) ranks_[byBrightness[i].second] = static_cast<std::uint16_t>(i);
}

const ColourMixer::Candidates& ColourMixer::candidatesNear(Pixel p)
{
    auto& kept = cells_[std::size_t(p.c[0] >> 4 | (p.c[1] >> 4) << 4 | (p.c[2] >> 4) << 8)];
    if (kept) return *kept;
    const auto cell = std::make_shared<Candidates>();
    const Lanes middle = (wide(p) & ~15) + 8;
    std::array<std::uint32_t, 256> order; // by distance, which takes 18 bits, and then by number
    for (std::size_t i = 0; i < colours_.size(); ++i)
        order[i] = static_cast<std::uint32_t>(distanceOf(wide(colours_[i]), middle)) << 8 | std::uint32_t(i);
    constexpr std::size_t kCandidates = MixingCandidates::kCount;
    const std::size_t count = std::min(colours_.size(), kCandidates);
    const auto end = order.begin() + std::ptrdiff_t(colours_.size()), last = order.begin() + std::ptrdiff_t(count);
    std::nth_element(order.begin(), last - 1, end);
    std::sort(order.begin(), last);
    for (std::size_t i = 0; i < kCandidates; ++i) {
        cell->entries[i] = static_cast<std::uint8_t>(order[std::min(i, count - 1)]);
        for (std::size_t c = 0; c < 3; ++c) cell->near.channels[c][i] = colours_[cell->entries[i]].c[c];
        cell->near.apart[i] = apart_[cell->entries[i]];
    }
    return *(kept = cell);
}

void ColourMixer::mixtures(const Pixel* colours, int n, Mixture* mixed)
{
    std::array<const MixingCandidates*, kTogether> near;
    for (int first = 0; first < n; first += kTogether) {
        const int count = std::min(kTogether, n - first);
        for (int i = 0; i < count; ++i) near[std::size_t(i)] = &candidatesNear(colours[first + i]).near;
        mix(near.data(), colours + first, count, contrast_, mixed + first);
    }
    for (int i = 0; i < n; ++i) {
        const Candidates& cell = candidatesNear(colours[i]);
        for (std::size_t u = 0; u < mixed[i].count; ++u) mixed[i].entries[u] = cell.entries[mixed[i].entries[u]];
        sort(mixed[i]);
    }
}

/// Dark to light, the lowest of equal ones first.
void ColourMixer::sort(Mixture& mixture) const
{
    for (std::size_t i = 1; i < mixture.count; ++i)
        for (std::size_t j = i; j > 0 && ranks_[mixture.entries[j]] < ranks_[mixture.entries[j - 1]]; --j) {
            std::swap(mixture.entries[j], mixture.entries[j - 1]);
            std::swap(mixture.parts[j], mixture.parts[j - 1]);
        }
}

} // namespace velara
