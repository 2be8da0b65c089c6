// Mixtures of palette entries, compared with their definition, one after the other in plain loops.
#include "reduce/mixing/ColourMixer.h"
#include "reduce/palettes.h"
#include "support/instructionSets.h"
#include "support/pictures.h"
#include <algorithm>
#include <bit>
#include <numeric>
#include <random>

namespace velara {
namespace {

using Mixture = ColourMixer::Mixture;

struct Plain {
    std::vector<std::array<float, 3>> off; // of the candidates from the colour
    std::vector<int> used, parts;
    std::array<float, 3> mean{};

    float square(const std::array<float, 3>& v) const { return v[0] * v[0] + v[1] * v[1] + v[2] * v[2]; }
    float apart(int a, int b) const
    {
        const auto &p = off[std::size_t(a)], &q = off[std::size_t(b)];
        return std::max(square({p[0] - q[0], p[1] - q[1], p[2] - q[2]}), 1.0F);
    }
    float slope(int i, float weight, float seen) const
    {
        const auto& o = off[std::size_t(i)];
        return mean[0] * weight * o[0] + mean[1] * weight * o[1] + mean[2] * weight * o[2] + seen * square(o);
    }
    void move(std::size_t from, int entry, float wanted)
    {
        const int moved = std::min(int(wanted + 0.5F), parts[from]);
        const auto to = std::size_t(std::ranges::find(used, entry) - used.begin());
        if (to == used.size()) used.push_back(entry), parts.push_back(0);
        parts[to] += moved;
        parts[from] -= moved;
        for (std::size_t c = 0; c < 3; ++c)
            mean[c] += float(moved) * (off[std::size_t(entry)][c] - off[std::size_t(used[from])][c]);
        if (parts[from] > 0) return;
        used[from] = used.back(), parts[from] = parts.back();
        used.pop_back(), parts.pop_back();
    }
    bool gather(float seen)
    {
        const float weight = 2 * (1 - seen) / ColourMixer::kParts;
        const auto slopeAt = [&](int i) { return slope(i, weight, seen); };
        int best = 0;
        for (int i = 1; i < int(off.size()); ++i)
            if (int(slopeAt(i) * 32) < int(slopeAt(best) * 32)) best = i;
        const auto from = std::size_t(std::ranges::max_element(used, {}, slopeAt) - used.begin());
        if (std::ranges::find(used, best) == used.end() && used.size() == ColourMixer::kMostMixed) return false;
        const float wanted = (slopeAt(used[from]) - slopeAt(best)) / (weight * apart(best, used[from]));
        if (wanted >= 0.5F) move(from, best, wanted);
        return wanted >= 0.5F;
    }
    bool balance(float seen)
    {
        const float weight = 2 * (1 - seen) / ColourMixer::kParts;
        float most = 0, wanted = 0;
        std::size_t from = 0, to = 0;
        for (std::size_t a = 0; a < used.size(); ++a)
            for (std::size_t b = 0; b < used.size(); ++b) {
                const float gain = slope(used[a], weight, seen) - slope(used[b], weight, seen);
                const float cost = weight * apart(used[a], used[b]);
                if (gain < 0.5F * cost || gain * gain <= most * cost) continue;
                most = gain * gain / cost, wanted = gain / cost, from = a, to = b;
            }
        if (most > 0) move(from, used[to], wanted);
        return most > 0;
    }
};

/// Pairs of brightness and entry, with the parts.
std::vector<std::array<int, 3>> plainMixture(const std::vector<Pixel>& palette, Pixel p, Contrast contrast)
{
    const auto distance = [](Pixel a, std::array<int, 3> b) {
        const int d[] = {a.c[0] - b[0], a.c[1] - b[1], a.c[2] - b[2]};
        return d[0] * d[0] + d[1] * d[1] + d[2] * d[2];
    };
    const auto toOther = [&](Pixel a, Pixel b) { return distance(a, {b.c[0], b.c[1], b.c[2]}); };
    std::vector<int> near(palette.size());
    std::iota(near.begin(), near.end(), 0);
    std::ranges::stable_sort(near, {}, [&](int i) {
        return distance(palette[std::size_t(i)], {p.c[0] / 16 * 16 + 8, p.c[1] / 16 * 16 + 8, p.c[2] / 16 * 16 + 8});
    });
    near.resize(std::min<std::size_t>(near.size(), 32));
    Plain plain;
    const auto colour = [&](int i) { return palette[std::size_t(near[std::size_t(i)])]; };
    for (int i = 0; i < int(near.size()); ++i)
        plain.off.push_back(
            {float(colour(i).c[0] - p.c[0]), float(colour(i).c[1] - p.c[1]), float(colour(i).c[2] - p.c[2])});
    const auto first =
        int(std::ranges::min_element(plain.off, {}, [&](auto& o) { return plain.square(o); }) - plain.off.begin());
    plain.used = {first}, plain.parts = {ColourMixer::kParts};
    for (std::size_t c = 0; c < 3; ++c) plain.mean[c] = ColourMixer::kParts * plain.off[std::size_t(first)][c];
    int apart = 3 * 255 * 255;
    for (const Pixel& other : palette)
        if (const int d = toOther(colour(first), other); d > 0) apart = std::min(apart, d);
    const float ratio = contrast.close / float(apart), closeness = ratio * ratio / (1 + ratio * ratio);
    for (const float seen : {contrast.seen + (0.5F - contrast.seen) * closeness, 0.5F * closeness + 0.01F})
        for (int step = 0; step < ColourMixer::kParts && plain.gather(seen);) ++step;
    for (int step = 0; step < ColourMixer::kParts && plain.balance(0.5F * closeness);) ++step;
    std::vector<std::array<int, 3>> mixed;
    for (std::size_t u = 0; u < plain.used.size(); ++u) {
        const Pixel c = colour(plain.used[u]);
        mixed.push_back({greyOf(c.c[2], c.c[1], c.c[0]), near[std::size_t(plain.used[u])], plain.parts[u]});
    }
    std::ranges::sort(mixed);
    return mixed;
}

TEST(Mixtures, AreThoseOfTheDefinitionHoweverManyAreMadeTogether)
{
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    for (const auto& [size, mask] : {std::pair(256, 0xFFFFFFU), {256, 0x3F3F3FU}, {40, 0xFFFFFFU}, {3, 0xFFFFFFU}}) {
        std::vector<Pixel> palette, colours;
        for (int i = 0; i < size; ++i) palette.push_back(std::bit_cast<Pixel>(std::uint32_t(random()) & mask));
        for (int i = 0; i < 150; ++i) colours.push_back(std::bit_cast<Pixel>(std::uint32_t(random()) & mask));
        for (const Contrast contrast : {Contrast{0.05F, 40}, {0.1F, 500}, {0.05F, 0}})
            withEachInstructionSet([&, mask = mask] {
                ColourMixer mixer(palette, contrast);
                std::vector<Mixture> together(colours.size());
                mixer.mixtures(colours.data(), int(colours.size()), together.data());
                for (std::size_t i = 0; i < colours.size(); ++i) {
                    const auto wanted = plainMixture(palette, colours[i], contrast);
                    for (const Mixture& got : {together[i], mixer(colours[i])}) {
                        ASSERT_EQ(wanted.size(), got.count) << i << " of mask " << mask;
                        for (std::size_t u = 0; u < wanted.size(); ++u)
                            ASSERT_TRUE(wanted[u][1] == got.entries[u] && wanted[u][2] == got.parts[u])
                                << i << " of mask " << mask << ", part " << u;
                    }
                }
            });
    }
}

} // namespace
} // namespace velara
