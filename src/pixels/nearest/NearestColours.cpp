#include "pixels/nearest/NearestColours.h"
#include "pixels/threads/parallelFor.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <unordered_set>

namespace velara {

namespace {

constexpr int kRegionSide = 32;
constexpr std::size_t kFewEnough = 96; // to compare all pairs
constexpr std::size_t kFewGreys = 64;  // at most four of them in a cube

Pixel asPixel(const std::array<int, 3>& levels)
{
    const auto byte = [&](std::size_t c) { return static_cast<std::uint8_t>(levels[c]); };
    return {byte(0), byte(1), byte(2), 0};
}

int far(Distance distance, int difference)
{
    return distance == Distance::Squares ? difference * difference : std::abs(difference);
}

} // namespace

NearestColours::NearestColours(const std::vector<Pixel>& colours, Distance distance)
    : distance_(distance), colours_(colours), cubes_(std::size_t{1} << 3 * kOutside, numbered(kUnknown))
{
    std::unordered_set<int> known;
    for (std::size_t i = 0; i < colours.size(); ++i) {
        const auto& c = colours[i].c;
        if (known.insert(c[2] << 16 | c[1] << 8 | c[0]).second)
            distinct_.push_back({{c[0], c[1], c[2]}, static_cast<std::uint16_t>(i)});
    }
    const auto isGrey = [](const Candidate& c) { return c.c[0] == c.c[1] && c.c[1] == c.c[2]; };
    if (distance == Distance::Squares && distinct_.size() > kFewGreys && std::ranges::all_of(distinct_, isGrey))
        tellGreysBySum();
}

/// For a grey v the squared distance depends only on 3v^2 - 2v(red + green + blue), so the sum of the channels decides.
/// A long grey ramp would crowd every cube; this is faster.
void NearestColours::tellGreysBySum()
{
    constexpr int kMostSum = 3 * 255;
    for (int sum = 0; sum <= kMostSum; ++sum)
        bySum_.push_back(std::ranges::min_element(distinct_, {}, [sum](const Candidate& c) {
                             return 3 * c.c[0] * c.c[0] - 2 * c.c[0] * sum;
                         })->entry);
}

namespace {

/// Calls vectors(begin, n) for runs of n pixels, and single(i) for those of them that it doesn't tell as done.
template <class Vectors, class Single> void inRuns(int count, Vectors vectors, Single single)
{
    constexpr int kRun = 64;
    for (int begin = 0; begin < count; begin += kRun) {
        const int n = std::min(kRun, count - begin);
        for (std::uint64_t left = ~vectors(begin, n) & ~std::uint64_t{0} >> (kRun - n); left != 0; left &= left - 1)
            single(begin + std::countr_zero(left));
    }
}

} // namespace

void NearestColours::expect(const std::vector<Pixel>& pixels)
{
    if (!bySum_.empty()) return;
    struct Region {
        std::vector<Corner> cubes;
        std::deque<Crowd> crowds; // numbered on their own at first
    };
    std::vector<Region> regions(regions_.size());
    std::vector<bool> seen(cubes_.size());
    const auto cubeAt = [&](Pixel p) { return std::size_t(wordOf(cubesOf(inRegister(p)))); };
    for (const Pixel p : pixels) {
        const std::size_t at = cubeAt(p);
        if (seen[at] || cubes_[at].hasFew() || cubes_[at].number() != kUnknown) continue;
        seen[at] = true;
        const Corner low{p.c[0] & -kSide, p.c[1] & -kSide, p.c[2] & -kSide};
        regions[regionOf(low)].cubes.push_back(low);
    }
    parallelFor(static_cast<int>(regions.size()), 1, [&](int i) {
        Region& region = regions[std::size_t(i)];
        for (const Corner& low : region.cubes) cubes_[cubeAt(asPixel(low))] = lookInto(low, region.crowds);
    });
    for (Region& region : regions) {
        const auto before = static_cast<std::uint32_t>(crowds_.size());
        for (const Corner& low : region.cubes)
            if (Cube& cube = cubes_[cubeAt(asPixel(low))]; !cube.hasFew()) cube = numbered(cube.number() + before);
        std::ranges::move(region.crowds, std::back_inserter(crowds_));
    }
}

void NearestColours::colour(const Pixel* from, Pixel* to, int count)
{
    const bool squares = distance_ == Distance::Squares;
    inRuns(
        count, [&](int i, int n) { return nearestKernels().colours(from + i, n, cubes_.data(), squares, to + i); },
        [&](int i) {
            to[i] = colours_[std::size_t((*this)(from[i]))];
            to[i].c[3] = from[i].c[3];
        });
}

void NearestColours::entries(const Pixel* from, std::uint8_t* to, int count)
{
    const bool squares = distance_ == Distance::Squares;
    inRuns(
        count, [&](int i, int n) { return nearestKernels().entries(from + i, n, cubes_.data(), squares, to + i); },
        [&](int i) { to[i] = static_cast<std::uint8_t>((*this)(from[i])); });
}

/// The candidates that can be nearest to a colour of the cube, in palette order; slightly more for very large palettes.
NearestColours::Candidates NearestColours::nearTo(const Candidates& all, Corner low, int side) const
{
    const auto each = [&](auto part) { return part(0) + part(1) + part(2); };
    const auto high = [&](int i) { return low[std::size_t(i)] + side - 1; };
    const auto least = [&](const Candidate& c) {
        return each([&](int i) {
            const int v = c.c[std::size_t(i)];
            return far(distance_, std::max({low[std::size_t(i)] - v, v - high(i), 0}));
        });
    };
    const auto most = [&](const Candidate& c) {
        return each([&](int i) {
            const int v = c.c[std::size_t(i)];
            return far(distance_, std::max(std::abs(low[std::size_t(i)] - v), std::abs(v - high(i))));
        });
    };
    int reach = most(all.front());
    for (const Candidate& c : all) reach = std::min(reach, most(c));
    Candidates near;
    std::copy_if(all.begin(), all.end(), std::back_inserter(near),
                 [&](const Candidate& c) { return least(c) <= reach; });
    if (near.size() > kFewEnough) return near;
    // The difference of two distances is, in each channel, greatest at an end of the cube.
    const auto beaten = [&](const Candidate& c) {
        return std::any_of(near.begin(), near.end(), [&](const Candidate& by) {
            const int worst = each([&](int i) {
                const auto at = [&](int level) {
                    return far(distance_, by.c[std::size_t(i)] - level) - far(distance_, c.c[std::size_t(i)] - level);
                };
                return std::max(at(low[std::size_t(i)]), at(high(i)));
            });
            return worst < 0 || (worst == 0 && by.entry < c.entry);
        });
    };
    Candidates kept;
    std::copy_if(near.begin(), near.end(), std::back_inserter(kept), [&](const Candidate& c) { return !beaten(c); });
    return kept;
}

/// For a pixel in a cube that is crowded or not filled yet.
int NearestColours::lookCloser(Pixel p)
{
    if (!bySum_.empty()) return bySum_[std::size_t(p.c[0] + p.c[1] + p.c[2])];
    Cube& cube = cubes_[std::size_t(wordOf(cubesOf(inRegister(p))))];
    if (cube.number() == kUnknown) cube = lookInto({p.c[0] & -kSide, p.c[1] & -kSide, p.c[2] & -kSide}, crowds_);
    if (cube.hasFew()) return among(cube, inRegister(p));
    const auto inside = [&](int channel) { return p.c[channel] % kSide << channel * kInside; };
    return crowds_[cube.number()][std::size_t(inside(0) | inside(1) | inside(2))];
}

std::size_t NearestColours::regionOf(Corner low)
{
    std::size_t region = 0;
    for (const int level : low) region = region * (256 / kRegionSide) + static_cast<std::size_t>(level / kRegionSide);
    return region;
}

NearestColours::Cube NearestColours::lookInto(Corner low, std::deque<Crowd>& crowds)
{
    Candidates& wide = regions_[regionOf(low)];
    if (wide.empty())
        wide = nearTo(distinct_, {low[0] & -kRegionSide, low[1] & -kRegionSide, low[2] & -kRegionSide}, kRegionSide);
    const Candidates candidates = nearTo(wide, low, kSide);
    if (candidates.size() > kFew || candidates.back().entry > 255) return numbered(crowdOf(candidates, low, crowds));
    Cube cube;
    for (std::size_t i = 0; i < kFew; ++i) {
        const Candidate& c = candidates[std::min(i, candidates.size() - 1)];
        const auto byte = [](int v) { return static_cast<std::uint8_t>(v); };
        cube.colours[i] = {{byte(c.c[0]), byte(c.c[1]), byte(c.c[2]), byte(c.entry)}};
    }
    return cube;
}

/// Adds a table with the nearest index for each colour of a crowded cube; returns its number.
std::uint32_t NearestColours::crowdOf(const Candidates& candidates, Corner low, std::deque<Crowd>& crowds) const
{
    auto to = crowds.emplace_back().begin();
    for (int red = 0; red < kSide; ++red)
        for (int green = 0; green < kSide; ++green) {
            std::array<int, kSide> least, entry;
            least.fill(1 << 30);
            entry.fill(0);
            for (const Candidate& c : candidates) {
                const int base = far(distance_, c.c[2] - low[2] - red) + far(distance_, c.c[1] - low[1] - green);
                for (int blue = 0; blue < kSide; ++blue) {
                    const int distance = base + far(distance_, c.c[0] - low[0] - blue);
                    const bool nearer = distance < least[std::size_t(blue)];
                    least[std::size_t(blue)] = nearer ? distance : least[std::size_t(blue)];
                    entry[std::size_t(blue)] = nearer ? c.entry : entry[std::size_t(blue)];
                }
            }
            to = std::copy(entry.begin(), entry.end(), to);
        }
    return static_cast<std::uint32_t>(crowds.size() - 1);
}

} // namespace velara
