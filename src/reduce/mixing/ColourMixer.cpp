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

ColourMixer::ColourMixer(const std::vector<Pixel>& colours, Contrast contrast) : colours_(colours), contrast_(contrast)
{
    for (const Pixel& p : colours) {
        brightness_.push_back(greyOf(p.c[2], p.c[1], p.c[0]));
        int apart = 3 * 255 * 255;
        for (const Pixel& other : colours)
            if (const int distance = distanceOf(wide(p), wide(other)); distance > 0) apart = std::min(apart, distance);
        apart_.push_back(float(apart));
    }
}

const ColourMixer::Candidates& ColourMixer::candidatesNear(Pixel p)
{
    auto& cell = cells_[std::size_t(p.c[0] >> 4 | (p.c[1] >> 4) << 4 | (p.c[2] >> 4) << 8)];
    if (cell) return *cell;
    cell = std::make_unique<Candidates>();
    const Lanes middle = (wide(p) & ~15) + 8;
    std::vector<std::pair<int, std::uint8_t>> order;
    for (std::size_t i = 0; i < colours_.size(); ++i) {
        order.emplace_back(distanceOf(wide(colours_[i]), middle), static_cast<std::uint8_t>(i));
    }
    constexpr std::size_t kCandidates = MixingCandidates::kCount;
    const std::size_t count = std::min(order.size(), kCandidates);
    std::partial_sort(order.begin(), order.begin() + std::ptrdiff_t(count), order.end());
    for (std::size_t i = 0; i < kCandidates; ++i) {
        cell->entries[i] = order[std::min(i, count - 1)].second;
        for (std::size_t c = 0; c < 3; ++c) cell->near.channels[c][i] = colours_[cell->entries[i]].c[c];
        cell->near.apart[i] = apart_[cell->entries[i]];
    }
    return *cell;
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
        mixed[i] = sorted(mixed[i]);
    }
}

ColourMixer::Mixture ColourMixer::sorted(const Mixture& mixture) const
{
    Mixture result = mixture;
    const auto isDarker = [this](std::uint8_t a, std::uint8_t b) {
        return std::pair(brightness_[a], a) < std::pair(brightness_[b], b);
    };
    for (std::size_t i = 1; i < result.count; ++i)
        for (std::size_t j = i; j > 0 && isDarker(result.entries[j], result.entries[j - 1]); --j) {
            std::swap(result.entries[j], result.entries[j - 1]);
            std::swap(result.parts[j], result.parts[j - 1]);
        }
    return result;
}

} // namespace velara
