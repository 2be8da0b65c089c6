#include "reduce/ColourMixer.h"
#include "reduce/palettes.h"
#include <algorithm>
#include <utility>

namespace velara {

namespace {

/// A mixture under way: minimises the squared error of the mean plus the seen share of the variance, by moving parts
/// from the entry with the steepest cost to the one with the least. Entries are numbered among the candidates.
template <std::size_t candidates> struct Mixing {
    using Each = std::array<float, candidates>;
    static constexpr float kRank = 32; // steps of a cost that are told apart
    static constexpr std::size_t kMost = ColourMixer::kMostMixed;
    static constexpr int kParts = ColourMixer::kParts;

    std::array<Each, 3> off; // of the candidates from the colour
    Each far;                // squared distance
    std::array<std::size_t, kMost> used;
    std::array<int, kMost> parts;
    std::size_t count = 0;
    std::array<float, 3> mean; // its distance from the colour, times kParts

    Mixing(const std::array<Each, 3>& channels, Pixel p)
    {
        for (std::size_t c = 0; c < 3; ++c)
            for (std::size_t i = 0; i < candidates; ++i) off[c][i] = channels[c][i] - float(p.c[c]);
        for (std::size_t i = 0; i < candidates; ++i)
            far[i] = off[0][i] * off[0][i] + off[1][i] * off[1][i] + off[2][i] * off[2][i];
        mean = {};
        used[0] = least([&](std::size_t i) { return far[i]; });
        parts[0] = kParts;
        count = 1;
        for (std::size_t c = 0; c < 3; ++c) mean[c] = kParts * off[c][used[0]];
    }
    /// The index in the low bits breaks ties.
    static int ranked(float cost, std::size_t i) { return int(cost * kRank) * int(candidates) + int(i); }
    template <class Cost> static std::size_t least(Cost cost)
    {
        int best = ranked(cost(0), 0);
        for (std::size_t i = 1; i < candidates; ++i) best = std::min(best, ranked(cost(i), i));
        return std::size_t(best) % candidates;
    }
    float slope(std::size_t i, const std::array<float, 3>& pull, float seen) const
    {
        return pull[0] * off[0][i] + pull[1] * off[1][i] + pull[2] * off[2][i] + seen * far[i];
    }
    float apart(std::size_t a, std::size_t b) const
    {
        float sum = 0;
        for (const Each& channel : off) sum += (channel[a] - channel[b]) * (channel[a] - channel[b]);
        return sum;
    }
    /// Brings in the entry of the least cost, at the expense of the costliest, as long as that helps.
    void gather(float seen)
    {
        for (int step = 0; step < kParts; ++step) {
            const auto [weight, pull] = pullOf(seen);
            const auto slopeOf = [&](std::size_t i) { return slope(i, pull, seen); };
            std::size_t from = 0, to = 0;
            for (std::size_t u = 1; u < count; ++u)
                if (slopeOf(used[u]) > slopeOf(used[from])) from = u;
            const std::size_t best = least(slopeOf);
            while (to < count && used[to] != best) ++to;
            if (to == kMost) return;
            const float wanted =
                (slopeOf(used[from]) - slopeOf(best)) / (weight * std::max(apart(best, used[from]), 1.0F));
            if (wanted < 0.5F) return;
            shift(from, to, best, std::min(int(wanted + 0.5F), parts[from]));
        }
    }
    /// Evens out the parts of the entries there are: the best pair each time.
    void balance(float seen)
    {
        for (int step = 0; step < kParts && count > 1; ++step) {
            const auto [weight, pull] = pullOf(seen);
            std::size_t from = 0, to = 0;
            float most = 0, wanted = 0;
            for (std::size_t a = 0; a < count; ++a)
                for (std::size_t b = 0; b < count; ++b) {
                    const float gain = slope(used[a], pull, seen) - slope(used[b], pull, seen);
                    const float cost = weight * std::max(apart(used[a], used[b]), 1.0F);
                    if (gain * gain <= most * cost || gain < 0.5F * cost) continue;
                    most = gain * gain / cost;
                    wanted = gain / cost;
                    from = a;
                    to = b;
                }
            if (most == 0) return;
            shift(from, to, used[to], std::min(int(wanted + 0.5F), parts[from]));
        }
    }
    std::pair<float, std::array<float, 3>> pullOf(float seen) const
    {
        const float weight = 2 * (1 - seen) / kParts;
        return {weight, {mean[0] * weight, mean[1] * weight, mean[2] * weight}};
    }
    void shift(std::size_t from, std::size_t to, std::size_t entry, int moved)
    {
        if (to == count) {
            used[count] = entry;
            parts[count++] = 0;
        }
        parts[to] += moved;
        parts[from] -= moved;
        for (std::size_t c = 0; c < 3; ++c) mean[c] += float(moved) * (off[c][used[to]] - off[c][used[from]]);
        if (parts[from] > 0) return;
        --count;
        used[from] = used[count];
        parts[from] = parts[count];
    }
};

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
    const std::size_t count = std::min(order.size(), kCandidates);
    std::partial_sort(order.begin(), order.begin() + std::ptrdiff_t(count), order.end());
    for (std::size_t i = 0; i < kCandidates; ++i) {
        cell->entries[i] = order[std::min(i, count - 1)].second;
        for (std::size_t c = 0; c < 3; ++c) cell->channels[c][i] = colours_[cell->entries[i]].c[c];
    }
    return *cell;
}

/// Starts with the nearest entry. Once the entries are found, the mean is made as exact as their contrast allows.
ColourMixer::Mixture ColourMixer::operator()(Pixel p)
{
    constexpr float kMostSeen = 0.5F, kLeastSeen = 0.01F;
    const Candidates& near = candidatesNear(p);
    Mixing<kCandidates> mixing(near.channels, p);
    const float ratio = contrast_.close / apart_[near.entries[mixing.used[0]]];
    const float closeness = ratio * ratio / (1 + ratio * ratio);
    mixing.gather(contrast_.seen + (kMostSeen - contrast_.seen) * closeness);
    mixing.gather(kMostSeen * closeness + kLeastSeen);
    mixing.balance(kMostSeen * closeness);
    Mixture mixture{.entries = {}, .parts = {}, .count = mixing.count};
    for (std::size_t u = 0; u < mixing.count; ++u) {
        mixture.entries[u] = near.entries[mixing.used[u]];
        mixture.parts[u] = static_cast<std::uint8_t>(mixing.parts[u]);
    }
    return sorted(mixture);
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
