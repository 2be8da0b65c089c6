// The best palette of a picture.
#include "pixels/threads/parallelFor.h"
#include "reduce/best/refinePalette.h"
#include "reduce/bestColours.h"
#include "support/instructionSets.h"
#include "support/pictures.h"
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <random>
#include <thread>

namespace velara {
namespace {

int squareOf(std::array<int, 3> a, std::array<int, 3> b)
{
    int sum = 0;
    for (std::size_t c = 0; c < 3; ++c) sum += (a[c] - b[c]) * (a[c] - b[c]);
    return sum;
}

/// Eight rounds of means, which are kept in quarters of a level.
Palette plainlyRefined(const std::vector<Pixel>& sample, const Palette& palette)
{
    const auto quarters = [](Pixel p) { return std::array{4 * p.c[0], 4 * p.c[1], 4 * p.c[2]}; };
    std::vector<std::array<int, 3>> places;
    for (const Colour c : palette) places.push_back(quarters(pixelFor(c)));
    for (int round = 0; round < 8; ++round) {
        std::vector<std::array<int, 4>> sums(places.size());
        for (const Pixel p : sample) {
            const auto nearest =
                std::ranges::min_element(places, {}, [&](const auto& place) { return squareOf(place, quarters(p)); });
            auto& sum = sums[std::size_t(nearest - places.begin())];
            for (std::size_t c = 0; c < 3; ++c) sum[c] += p.c[c];
            ++sum[3];
        }
        for (std::size_t i = 0; i < places.size(); ++i)
            for (std::size_t c = 0; c < 3 && sums[i][3] > 0; ++c)
                places[i][c] = int(std::floor(4.0 * sums[i][c] / sums[i][3] + 0.5));
    }
    Palette refined;
    for (const auto& p : places) refined.push_back(colourOf((p[2] + 2) / 4, (p[1] + 2) / 4, (p[0] + 2) / 4));
    return refined;
}

TEST(BestColours, EntriesMoveToMeansWithAllInstructionSetsAndThreads)
{
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    for (const auto& [pixels, entries] : {std::pair(30011, 256), {777, 40}, {5, 8}, {1, 1}}) {
        std::vector<Pixel> sample;
        Palette palette; // with equal entries, and some that nothing is near to
        for (int i = 0; i < pixels; ++i) sample.push_back(std::bit_cast<Pixel>(std::uint32_t(random())));
        for (int i = 0; i < entries; ++i) palette.push_back(i % 3 ? Colour(random() & 0x3F7FFF) : 0x102030);
        const Palette wanted = plainlyRefined(sample, palette);
        withEachInstructionSet([&] { EXPECT_EQ(wanted, refinedPalette(sample, palette)) << pixels; });
        for (const int threads : {1, 2, 3, 8}) {
            setThreadCount(threads, 1);
            EXPECT_EQ(wanted, refinedPalette(sample, palette)) << pixels << " by " << threads;
        }
        setThreadCount(int(std::thread::hardware_concurrency()));
    }
}

double errorOf(const std::vector<Pixel>& pixels, const Palette& palette)
{
    double sum = 0;
    for (const Pixel p : pixels) {
        int least = 1 << 20;
        for (const Colour c : palette)
            least = std::min(least, squareOf({redOf(c), greenOf(c), blueOf(c)}, {p.c[2], p.c[1], p.c[0]}));
        sum += least;
    }
    return sum;
}

TEST(BestColours, NoRoundMoreWouldGainMuch)
{
    for (const int most : {64, 256}) {
        std::mt19937 random(4);
        const Bits picture = drawnBits(300, 200, [&](int x, int y) {
            const auto level = [&](double at) { return 100 + int(70 * std::sin(at)) + int(random() % 40); };
            return pixelFor(colourOf(level(x / 40.0), level(y / 30.0), level((x + y) / 90.0)));
        });
        std::vector<Pixel> pixels;
        for (int i = 0; i < 300 * 200; ++i) pixels.push_back(picture.at(i % 300, i / 300));
        const Palette best = bestPalette(picture, most);
        EXPECT_GT(errorOf(pixels, plainlyRefined(pixels, best)), 0.95 * errorOf(pixels, best)) << most;
    }
}

/// A small mark of a colour of its own is shown, whether there are few colours or so many that similar ones are counted
/// as one.
TEST(BestColours, SmallMarksKeepTheirColour)
{
    std::mt19937 random(3);
    for (const unsigned noise : {2U, 60U}) {
        Bits picture = drawnBits(400, 300, [&](int x, int y) {
            const auto level = [&](int base) { return base + int(random() % noise); };
            return pixelFor(colourOf(level(x / 4), level(60 + y / 4), level(90)));
        });
        for (int i = 0; i < 64; ++i) picture.at(200 + i % 8, 100 + i / 8) = pixelFor(colourOf(255, 0, 160));
        int nearest = 1 << 20;
        for (const Colour c : bestPalette(picture, 64))
            nearest = std::min(nearest, squareOf({redOf(c), greenOf(c), blueOf(c)}, {255, 0, 160}));
        EXPECT_LE(nearest, 3) << noise;
    }
}

} // namespace
} // namespace velara
