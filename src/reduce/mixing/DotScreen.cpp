#include "reduce/mixing/DotScreen.h"
#include "pixels/threads/Copies.h"
#include "pixels/threads/parallelFor.h"
#include <algorithm>
#include <atomic>
#include <bit>
#include <optional>

namespace velara {

namespace {

/// Bayer's matrix: each doubling inserts 0, 2 / 3, 1 between the thresholds there are.
constexpr auto dispersed()
{
    std::array<std::uint8_t, 64> matrix{};
    for (std::size_t y = 0; y < 8; ++y)
        for (std::size_t x = 0; x < 8; ++x)
            for (std::size_t bit = 0; bit < 3; ++bit) {
                const std::size_t column = x >> bit & 1, row = y >> bit & 1;
                matrix[y * 8 + x] |= static_cast<std::uint8_t>(((column ^ row) << 1 | row) << (4 - 2 * bit));
            }
    return matrix;
}

} // namespace

constexpr DotMatrix kDispersedDots{dispersed(), {0.05F, 40}};

// Clustered dots: two a square, each growing outwards from its centre; the second lags the first by one step.
// clang-format off
constexpr DotMatrix kClusteredDots{{
    24, 10, 12, 26, 35, 47, 49, 37,
     8,  0,  2, 14, 45, 59, 61, 51,
    22,  6,  4, 16, 43, 57, 63, 53,
    30, 20, 18, 28, 33, 41, 55, 39,
    34, 46, 48, 36, 25, 11, 13, 27,
    44, 58, 60, 50,  9,  1,  3, 15,
    42, 56, 62, 52, 23,  7,  5, 17,
    32, 40, 54, 38, 31, 21, 19, 29}, {0.1F, 500}};
// clang-format on

namespace {

/// The colours of a picture; nothing where there are so many that a mixture for each of them would take longer than it
/// is worth.
std::optional<std::vector<Pixel>> fewColours(const Bits& bits)
{
    constexpr std::size_t kMany = 1 << 14;
    std::vector<bool> known(1 << 24);
    std::vector<Pixel> colours;
    for (int y = 0; y < bits.height(); ++y)
        for (int x = 0; x < bits.width(); ++x) {
            auto seen = known[channelBits(bits.row(y)[x])];
            if (seen) continue;
            seen = true;
            colours.push_back(bits.row(y)[x]);
            if (colours.size() == kMany) return std::nullopt;
        }
    return colours;
}

/// body(x, n, cells) for runs of a row's pixels, with the levels that each of them takes.
template <class Body> void eachRun(const Pixel* from, int width, int y, Body body)
{
    constexpr int kRun = 1024;
    // The two fractions of a sequence that fills the plane evenly and has no common period with the thresholds.
    constexpr unsigned kAlong = 3242174889, kDown = 2447445414;
    std::array<std::uint32_t, kRun> cells;
    for (int x = 0; x < width; x += kRun) {
        const int n = std::min(kRun, width - x);
        MixtureCells::of(from + x, n, unsigned(y) * kDown + unsigned(x) * kAlong, kAlong, cells.data());
        body(x, n, cells.data());
    }
}

/// The cells that a picture uses, a byte each. Several threads write the same.
std::vector<std::atomic<std::uint8_t>> usedCells(const Bits& bits, const ReduceProgress& progress)
{
    std::vector<std::atomic<std::uint8_t>> used(MixtureCells::kCount);
    const auto row = [&](int y) {
        eachRun(bits.row(y), bits.width(), y, [&](int, int n, const std::uint32_t* cells) {
            for (int i = 0; i < n; ++i)
                if (std::atomic<std::uint8_t>& cell = used[cells[i]]; cell.load(std::memory_order_relaxed) == 0)
                    cell.store(1, std::memory_order_relaxed);
        });
    };
    parallelFor(bits.height(), turnsTogether(bits.width()), row, [&](int y) {
        if (progress && y % 64 == 0) progress(0);
    });
    return used;
}

} // namespace

DotScreen::DotScreen(const Bits& bits, const std::vector<Pixel>& colours, const DotMatrix& matrix, PaletteOf origin,
                     const ReduceProgress& progress)
    : matrix_(matrix)
{
    const ColourMixer mixer(colours, {matrix.contrast.seen, origin == PaletteOf::Any ? 0 : matrix.contrast.close});
    if (const auto few = fewColours(bits))
        mixEach(*few, mixer);
    else
        mixLevels(bits, colours, mixer, progress);
}

void DotScreen::mixEach(const std::vector<Pixel>& used, const ColourMixer& mixer)
{
    constexpr std::size_t kTogether = 1 << 10, kRoom = 4; // slots a colour, so that most are found at once
    std::vector<ColourMixer::Mixture> mixtures(used.size());
    Copies<ColourMixer> mixers([&mixer] { return mixer; });
    const auto some = [&](int i) {
        const std::size_t first = std::size_t(i) * kTogether, n = std::min(kTogether, used.size() - first);
        mixers.lend([&](ColourMixer& own) { own.mixtures(&used[first], int(n), &mixtures[first]); });
    };
    parallelFor(int((used.size() + kTogether - 1) / kTogether), 1, some);
    each_.resize(std::bit_ceil(kRoom * used.size()));
    for (std::size_t i = 0; i < used.size(); ++i) {
        const std::uint32_t colour = channelBits(used[i]);
        each_[slotOf(colour)] = {colour, Dots::of(mixtures[i])};
    }
}

/// Where a colour is, or where there is room for it.
inline std::size_t DotScreen::slotOf(std::uint32_t colour) const
{
    const std::size_t last = each_.size() - 1;
    std::size_t slot = std::uint64_t{colour * 2654435769U} * each_.size() >> 32; // golden ratio
    while (each_[slot].colour != colour && each_[slot].colour != OfColour().colour) slot = (slot + 1) & last;
    return slot;
}

void DotScreen::mixLevels(const Bits& bits, const std::vector<Pixel>& colours, const ColourMixer& mixer,
                          const ReduceProgress& progress)
{
    constexpr std::uint32_t kLevels = MixtureCells::kLevels, kSide = 4, kSides = kLevels / kSide;
    const auto used = usedCells(bits, progress);
    levels_.resize(MixtureCells::kCount);
    Copies<ColourMixer> mixers([&mixer] { return mixer; });
    // A column of cubes, with all blue levels: what they are mixed from is looked for once.
    const auto column = [&](int i, ColourMixer& own) {
        const auto channel = [](std::uint32_t level) { return static_cast<std::uint8_t>(std::min(level << 2, 255U)); };
        const auto end = [](std::uint32_t side) { return side + 1 == kSides ? kLevels : (side + 1) * kSide; };
        const std::uint32_t reds = std::uint32_t(i) / kSides, greens = std::uint32_t(i) % kSides;
        std::vector<std::uint32_t> cells;
        std::vector<Pixel> mixed;
        for (std::uint32_t red = reds * kSide; red < end(reds); ++red)
            for (std::uint32_t green = greens * kSide; green < end(greens); ++green)
                for (std::uint32_t blue = 0; blue < kLevels; ++blue)
                    if (const auto cell = MixtureCells::of(blue, green, red); used[cell] != 0) {
                        cells.push_back(cell);
                        mixed.push_back({channel(blue), channel(green), channel(red), 0});
                    }
        std::vector<ColourMixer::Mixture> mixtures(mixed.size());
        own.mixtures(mixed.data(), int(mixed.size()), mixtures.data());
        for (std::size_t k = 0; k < cells.size(); ++k) levels_[cells[k]] = Dots::of(mixtures[k]);
    };
    parallelFor(kSides * kSides, 1, [&](int i) { mixers.lend([&](ColourMixer& own) { column(i, own); }); });
    for (std::size_t i = 0; i < colours.size(); ++i) {
        const Pixel& p = colours[i];
        own_.emplace_back(channelBits(p), static_cast<std::uint8_t>(i));
        for (unsigned corner = 0; corner < 8; ++corner) { // pixels of that colour are in the cells around it
            const auto level = [&](int c) { return (p.c[c] >> 2) + (corner >> c & 1); };
            levels_[MixtureCells::of(level(0), level(1), level(2))].markOwn();
        }
    }
    std::ranges::sort(own_);
}

void DotScreen::row(const Pixel* from, std::uint8_t* to, int width, int y) const
{
    std::array<std::uint64_t, 8> spread;
    std::transform(&matrix_.thresholds[std::size_t(y % 8 * 8)], &matrix_.thresholds[std::size_t(y % 8 * 8)] + 8,
                   spread.begin(), Dots::spread);
    if (!each_.empty()) {
        for (int x = 0; x < width; ++x) to[x] = each_[slotOf(channelBits(from[x]))].dots.at(spread[std::size_t(x % 8)]);
        return;
    }
    eachRun(from, width, y, [&, levels = levels_.data()](int x0, int n, const std::uint32_t* cells) {
        for (int i = 0; i < n; ++i) __builtin_prefetch(&levels[cells[i]]); // a large table
        const Pixel* const pixels = from + x0;
        std::uint8_t* const entries = to + x0;
        for (int i = 0; i < n; ++i) {
            const Dots& dots = levels[cells[i]];
            const std::uint8_t entry = dots.at(spread[std::size_t((x0 + i) % 8)]);
            entries[i] = dots.maybeOwn() ? ownOr(pixels[i], entry) : entry;
        }
    });
}

/// The palette's own entry for its colours, else the one given.
[[gnu::noinline]] std::uint8_t DotScreen::ownOr(Pixel p, std::uint8_t entry) const
{
    const auto own = std::ranges::lower_bound(own_, std::pair(channelBits(p), std::uint8_t{0}));
    return own != own_.end() && own->first == channelBits(p) ? own->second : entry;
}

DotScreen::Dots DotScreen::Dots::of(const ColourMixer::Mixture& mixture)
{
    Dots dots{.entries = mixture.entries};
    dots.ends.fill(ColourMixer::kParts);
    int end = 0;
    for (std::size_t i = 0; i < mixture.count; ++i) dots.ends[i] = static_cast<std::uint8_t>(end += mixture.parts[i]);
    return dots;
}

} // namespace velara
