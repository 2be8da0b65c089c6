#include "pixels/NearestColours.h"
#include <algorithm>
#include <cstdlib>
#include <new>
#include <sys/mman.h>
#include <unordered_set>

namespace velara {

namespace {

constexpr std::size_t kColours = std::size_t{1} << 24;
constexpr int kRegionSide = 32;
constexpr std::size_t kFewEnough = 96; // to hold each against each

int far(Distance distance, int difference)
{
    return distance == Distance::Squares ? difference * difference : std::abs(difference);
}

// Huge pages: colours are looked up all over the table.
std::uint8_t* newTable()
{
    void* block = mmap(nullptr, kColours, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (block == MAP_FAILED) throw std::bad_alloc();
    madvise(block, kColours, MADV_HUGEPAGE);
    return static_cast<std::uint8_t*>(block);
}

} // namespace

void NearestColours::Free::operator()(std::uint8_t* table) const { munmap(table, kColours); }

NearestColours::NearestColours(const std::vector<Pixel>& colours, Distance distance)
    : distance_(distance), low_(newTable()), high_(colours.size() > 256 ? newTable() : nullptr)
{
    std::unordered_set<int> known; // of equals the first one alone
    for (std::size_t i = 0; i < colours.size(); ++i) {
        const auto& c = colours[i].c;
        if (known.insert(c[2] << 16 | c[1] << 8 | c[0]).second)
            colours_.push_back({{c[0], c[1], c[2]}, static_cast<std::uint16_t>(i)});
    }
}

/// Those of all that are nearest to some colour of the cube, in their order; a few more where there are very many.
NearestColours::Candidates NearestColours::nearTo(const Candidates& all, std::array<int, 3> low, int side) const
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
    // How much farther one is than another is, in each channel, at its greatest at an end of the cube.
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

void NearestColours::fillCube(std::uint32_t cube)
{
    std::array<int, 3> low, regionLow;
    std::size_t region = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        low[i] = static_cast<int>(cube >> i * kOutside & ((1U << kOutside) - 1)) * kSide;
        regionLow[i] = low[i] / kRegionSide * kRegionSide;
        region = region * (256 / kRegionSide) + static_cast<std::size_t>(low[i] / kRegionSide);
    }
    Candidates& wide = regions_[region];
    if (wide.empty()) wide = nearTo(colours_, regionLow, kRegionSide);
    const Candidates candidates = nearTo(wide, low, kSide);
    const std::size_t place = std::size_t{cube} << 3 * kInside;
    const auto put = [&](std::size_t at, int entry) {
        low_[at] = static_cast<std::uint8_t>(entry);
        if (high_) high_[at] = static_cast<std::uint8_t>(entry >> 8);
    };
    filled_[cube] = 1;
    if (candidates.size() == 1) {
        for (std::size_t i = 0; i < kSide * kSide * kSide; ++i) put(place + i, candidates.front().entry);
        return;
    }
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
            const std::size_t line = place + static_cast<std::size_t>((red * kSide + green) * kSide);
            for (std::size_t blue = 0; blue < kSide; ++blue) put(line + blue, entry[blue]);
        }
}

} // namespace velara
