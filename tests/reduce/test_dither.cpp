// The effect of each dither on flat areas and on a ramp, and where its error goes.
#include "pixels/threads/parallelFor.h"
#include "reduce/bestColours.h"
#include "reduce/dither.h"
#include "reduce/mixing/ColourMixer.h"
#include "reduce/reduceColours.h"
#include "support/instructionSets.h"
#include "support/pictures.h"
#include <array>
#include <cmath>
#include <map>
#include <random>
#include <set>
#include <span>
#include <thread>

namespace velara {
namespace {

constexpr Dither kDithers[] = {Dither::None,        Dither::Binary,       Dither::Ordered,    Dither::Haftone,
                               Dither::ForwardDiag, Dither::BackwardDiag, Dither::Horizontal, Dither::Vertical,
                               Dither::Odd,         Dither::Even};
const std::span kSpreading = std::span(kDithers).subspan(2);

std::array<double, 3> meanOf(const IndexedPicture& picture)
{
    std::array<double, 3> sum{};
    for (const std::uint8_t i : picture.indices) {
        const Pixel p = pixelFor(picture.palette[i]);
        for (std::size_t c = 0; c < 3; ++c) sum[c] += p.c[c];
    }
    for (double& s : sum) s /= double(picture.indices.size());
    return sum;
}

TEST(Dither, AnEvenAreaKeepsItsMean)
{
    const Palette palettes[] = {blackAndWhite(),
                                vgaColours(),
                                halftoneColours(),
                                webSafeColours(),
                                fixedColours(4),
                                fixedColours(8),
                                fixedColours(16),
                                fixedColours(64),
                                fixedColours(256),
                                greyRamp(4),
                                {0x000000, 0x1020F0, 0xE04010, 0x20C030, 0xFFFFFF}};
    for (const Dither dither : kSpreading)
        for (const Palette& palette : palettes)
            for (const int tone : {40, 100, 127, 128, 160, 201}) {
                const auto level = static_cast<std::uint8_t>(tone);
                const auto mean = meanOf(dithered(flatBits(64, 64, level, level, level), palette, dither));
                for (const double m : mean) EXPECT_NEAR(tone, m, 3) << int(dither) << ", colours " << palette.size();
            }
}

TEST(Dither, ColoursTooAndPaletteColoursStayPure)
{
    const Palette cube = webSafeColours();
    for (const Dither dither : kSpreading) {
        const auto mean = meanOf(dithered(flatBits(64, 64, 30, 120, 200), cube, dither));
        for (const std::size_t c : {0, 1, 2}) EXPECT_NEAR((std::array{30, 120, 200}[c]), mean[c], 3) << int(dither);
        const IndexedPicture pure = dithered(flatBits(16, 16, 51, 102, 255), cube, dither);
        EXPECT_EQ(1U, std::set(pure.indices.begin(), pure.indices.end()).size()) << int(dither);
    }
}

TEST(Dither, EachDiffersFromEachOnARamp)
{
    const Bits ramp = drawnBits(256, 64, [](int x, int) { return pixelFor(colourOf(1, 1, 1) * x); });
    std::map<Dither, std::vector<std::uint8_t>> results;
    for (const Dither dither : kDithers) results[dither] = dithered(ramp, greyRamp(4), dither).indices;
    for (const auto& [a, first] : results)
        for (const auto& [b, second] : results) {
            int differ = 0;
            for (std::size_t i = 0; i < first.size(); ++i) differ += first[i] != second[i];
            EXPECT_TRUE(a == b || differ > 256 * 64 / 10) << int(a) << " and " << int(b) << ": " << differ;
        }
}

/// The pixels that change when one pixel of a flat area gets slightly lighter.
std::vector<std::array<int, 2>> reachOf(Dither dither, int x, int y)
{
    Bits area = flatBits(48, 48, 100, 100, 100);
    const auto before = dithered(area, greyRamp(4), dither).indices;
    area.at(x, y) = pixelFor(colourOf(1, 1, 1) * 140);
    const auto after = dithered(area, greyRamp(4), dither).indices;
    std::vector<std::array<int, 2>> reach;
    for (int i = 0; i < 48 * 48; ++i)
        if (before[std::size_t(i)] != after[std::size_t(i)]) reach.push_back({i % 48 - x, i / 48 - y});
    return reach;
}

TEST(Dither, TheErrorGoesWhereItsNameSays)
{
    const std::pair<Dither, bool (*)(int dx, int dy, int y)> rows[] = {
        {Dither::ForwardDiag, [](int dx, int dy, int) { return dx == dy && dy >= 0; }},
        {Dither::BackwardDiag, [](int dx, int dy, int) { return dx == -dy && dy >= 0; }},
        {Dither::Horizontal, [](int dx, int dy, int) { return dy == 0 && dx >= 0; }},
        {Dither::Vertical, [](int dx, int dy, int) { return dx == 0 && dy >= 0; }},
        {Dither::Odd, [](int dx, int dy, int y) { return dy > 0 || (dy == 0 && (y % 2 ? dx <= 0 : dx >= 0)); }},
        {Dither::Even, [](int dx, int dy, int y) { return dy > 0 || (dy == 0 && (y % 2 ? dx >= 0 : dx <= 0)); }},
    };
    for (const auto& [dither, reached] : rows)
        for (const int y : {20, 21}) {
            int others = 0;
            for (const auto [dx, dy] : reachOf(dither, 24, y)) {
                EXPECT_TRUE(reached(dx, dy, y)) << int(dither) << " at " << dx << ',' << dy;
                others += dx != 0 || dy != 0;
            }
            EXPECT_GT(others, 3) << int(dither);
        }
}

TEST(Dither, AnyNumberOfThreadsGivesTheSame)
{
    const Bits picture = randomBits(301, 97, 9);
    const auto result = [&](Dither dither) {
        std::vector<int> percents;
        const auto reduced = dithered(picture, vgaColours(), dither, [&](int percent) { percents.push_back(percent); });
        return std::pair(reduced.indices, percents);
    };
    for (const Dither dither : kDithers) {
        setThreadCount(1);
        const auto one = result(dither);
        for (const int threads : {2, 3, 8}) {
            setThreadCount(threads, 1);
            EXPECT_TRUE(result(dither) == one) << int(dither) << " by " << threads;
        }
    }
    setThreadCount(int(std::thread::hardware_concurrency()));
}

/// The diffusion from row to row, in plain loops, for a picture without plain places. Errors have a limit.
std::vector<std::uint8_t> plainlyTurned(const Bits& picture, const Palette& palette, int parity)
{
    const auto nearest = [&](std::array<int, 3> to) {
        const auto apart = [&](Colour c) {
            const Pixel p = pixelFor(c);
            int sum = 0;
            for (std::size_t i = 0; i < 3; ++i) sum += (p.c[i] - to[i]) * (p.c[i] - to[i]);
            return sum;
        };
        return static_cast<std::uint8_t>(std::ranges::min_element(palette, {}, apart) - palette.begin());
    };
    const int width = picture.width();
    std::vector<std::uint8_t> entries(std::size_t(width * picture.height()));
    std::vector<std::array<int, 3>> errors(std::size_t(width * (picture.height() + 1)));
    for (int y = 0; y < picture.height(); ++y)
        for (int i = 0, step = y % 2 == parity ? -1 : 1; i < width; ++i) {
            const int x = step < 0 ? width - 1 - i : i, at = y * width + x;
            const Pixel p = picture.at(x, y);
            std::array<int, 3> wanted, shown;
            for (std::size_t c = 0; c < 3; ++c) {
                wanted[c] = p.c[c] + errors[std::size_t(at)][c];
                shown[c] = std::clamp(wanted[c], 0, 255);
            }
            if (shown != std::array<int, 3>{p.c[0], p.c[1], p.c[2]})
                for (int& level : shown) level = level / 4 * 4 + 2;
            const std::uint8_t entry = entries[std::size_t(at)] = nearest(shown);
            for (std::size_t c = 0; c < 3; ++c) {
                const int error = std::clamp(wanted[c] - pixelFor(palette[entry]).c[c], -160, 160);
                const int next = error * 7 >> 4, back = error * 3 >> 4, middle = error * 5 >> 4;
                const auto give = [&](int dx, int dy, int part) {
                    if (unsigned(x + dx) < unsigned(width)) errors[std::size_t(at + dy * width + dx)][c] += part;
                };
                give(step, 0, next);
                give(-step, 1, back);
                give(0, 1, middle);
                give(step, 1, error - next - back - middle);
            }
        }
    return entries;
}

TEST(Dither, TurningIsAsDefinedWithinThePalettesReachAndBeyond)
{
    const Bits picture = randomBits(97, 61, 12);
    for (const Palette& palette : {fixedColours(256), vgaColours(), Palette{0x606060, 0x9080A0}, {0x2040FF}})
        for (const int parity : {0, 1})
            EXPECT_EQ(plainlyTurned(picture, palette, parity),
                      dithered(picture, palette, parity ? Dither::Odd : Dither::Even).indices)
                << palette.size() << " colours, " << parity;
}

/// Up to the edges, where no error comes in.
TEST(Dither, TheTwoOfAPairMirrorEachOther)
{
    Bits picture = randomBits(40, 40, 3), mirror(40, 40);
    for (int i = 0; i < 40; ++i) picture.at(i, 0) = picture.at(0, i) = picture.at(39, i) = {};
    for (int i = 0; i < 1600; ++i) mirror.at(39 - i % 40, i / 40) = picture.at(i % 40, i / 40);
    for (const auto& [one, other] :
         {std::pair{Dither::ForwardDiag, Dither::BackwardDiag}, {Dither::Odd, Dither::Even}}) {
        const auto left = dithered(picture, vgaColours(), one).indices;
        const auto right = dithered(mirror, vgaColours(), other).indices;
        for (std::size_t i = 0; i < left.size(); ++i)
            ASSERT_EQ(left[i], right[i / 40 * 40 + 39 - i % 40]) << int(one) << " at " << i % 40 << ',' << i / 40;
    }
}

TEST(Dither, TheSmallestAndTheThinnest)
{
    for (const Dither dither : kDithers)
        for (const auto [w, h] : {std::array{1, 1}, {1, 50}, {50, 1}, {2, 2}})
            EXPECT_EQ(std::size_t(w * h), dithered(randomBits(w, h, 2), vgaColours(), dither).indices.size());
    for (const Dither dither : {Dither::Odd, Dither::Even}) { // the last pixel of a row has one below it, too
        const auto column = dithered(flatBits(1, 50, 100, 100, 100), blackAndWhite(), dither).indices;
        EXPECT_EQ(2U, std::set(column.begin(), column.end()).size()) << int(dither);
    }
}

/// The squared error that is left from afar: a binomial blur of 9 pixels, a sigma of 1.4.
double seenFromAfar(const Bits& picture, const IndexedPicture& reduced)
{
    const int w = picture.width(), h = picture.height();
    double sum = 0;
    for (int c = 0; c < 3; ++c) {
        std::vector<double> off(std::size_t(w * h));
        for (int i = 0; i < w * h; ++i)
            off[std::size_t(i)] =
                picture.at(i % w, i / w).c[c] - pixelFor(reduced.palette[reduced.indices[std::size_t(i)]]).c[c];
        for (const int step : {1, w})
            for (int pass = 0; pass < 8; ++pass)
                for (int i = w * h - 1; i >= step; --i)
                    off[std::size_t(i)] = (off[std::size_t(i)] + off[std::size_t(i - step)]) / 2;
        for (int i = 8 * w; i < w * h; ++i) sum += i % w < 8 ? 0 : off[std::size_t(i)] * off[std::size_t(i)];
    }
    return sum;
}

TEST(Dither, WithBestColoursItIsNeverWorseFromAfarThanNone)
{
    std::mt19937 random(7);
    const auto noise = [&](int most) { return int(random() % unsigned(2 * most + 1)) - most; };
    const Bits pictures[] = {
        drawnBits(320, 200,
                  [](int x, int) { return pixelFor(colourOf(20 + x / 8, 90 + x * 100 / 319, 100 + x * 90 / 319)); }),
        drawnBits(320, 200,
                  [](int x, int y) { return pixelFor(colourOf(120 + (x + y) / 6, 160 + x / 6, 200 + y / 4)); }),
        drawnBits(320, 200, [&](int x, int y) { // of more than 2^14 colours
            const auto wave = [](double at, int height) { return 128 + int(height * std::sin(at)); };
            return pixelFor(colourOf(wave(x / 37.0, 90) + noise(2), wave(y / 31.0 + x / 90.0, 70) + noise(2),
                                     wave((x + y) / 43.0, 50) + noise(2)));
        })};
    for (const Bits& picture : pictures)
        for (const int bits : {4, 6, 8}) {
            BestPalette best;
            const auto error = [&](Dither dither) {
                return seenFromAfar(picture,
                                    reduceColours(picture, {0, bits, kOptimal, int(dither)}, {}, &best).indexed);
            };
            const double none = error(Dither::None);
            for (const Dither dither : {Dither::Ordered, Dither::Haftone, Dither::Odd})
                EXPECT_LE(error(dither), none * 1.005)
                    << bits << " bits, " << int(dither) << ", picture " << &picture - pictures;
            if (&picture ==
                pictures + 1) { // its outermost colours are reached as well; else it is a thirteenth at best
                EXPECT_LT(error(Dither::Odd), none / 15) << bits;
            }
        }
}

TEST(Dither, DiffusedErrorSparesPlainPlaces)
{
    const Bits half = drawnBits(64, 64, [](int x, int) { return pixelFor(x < 32 ? 0x101010 : colourOf(90, 91, 90)); });
    for (const Dither dither : kSpreading.subspan(2)) {
        const auto indices = dithered(half, {0x101013, 0x5A5A5A, 0x646464}, dither).indices;
        for (int i = 0; i < 64 * 64; ++i)
            if (i % 64 > 40 && i % 64 < 58 && i / 64 > 6 && i / 64 < 57) {
                ASSERT_EQ(1, indices[std::size_t(i)]) << int(dither) << " at " << i % 64 << ',' << i / 64;
            }
    }
}

/// Of very many colours, some of them the palette's; the runs of pixels whose mixtures are made together are cut off.
TEST(Dither, ScreensAreTheSameWithAllInstructionSetsAndSparePaletteColours)
{
    const Palette palette = fixedColours(256);
    Bits picture = randomBits(1500, 40, 5);
    for (int x = 0; x < 1500; x += 7) picture.row(x % 40)[x] = pixelFor(palette[std::size_t(x) % palette.size()]);
    for (const Dither dither : {Dither::Ordered, Dither::Haftone}) {
        const auto best = dithered(picture, palette, dither).indices;
        withEachInstructionSet([&] { EXPECT_EQ(best, dithered(picture, palette, dither).indices) << int(dither); });
        for (int x = 0; x < 1500; x += 7)
            EXPECT_EQ(int(std::size_t(x) % palette.size()), best[std::size_t(x % 40 * 1500 + x)]) << x;
    }
}

TEST(Dither, MixturesOfNearEntriesHaveLessContrast)
{
    std::vector<Pixel> palette;
    for (const Colour c : fixedColours(64)) palette.push_back(pixelFor(c));
    const auto variance = [&](float close) {
        ColourMixer mixer(palette, {0.05F, close});
        double sum = 0;
        for (int level = 3; level < 256; level += 11) {
            const Pixel colour = pixelFor(colourOf(level, 255 - level, level / 2 + 40));
            const auto mixture = mixer(colour);
            for (std::size_t i = 0; i < mixture.count; ++i)
                for (std::size_t c = 0; c < 3; ++c)
                    sum += mixture.parts[i] * std::pow(palette[mixture.entries[i]].c[c] - colour.c[c], 2);
        }
        return sum;
    };
    EXPECT_LT(variance(20000), 0.95 * variance(0));
}

TEST(Palettes, AnEvenSpreadForEveryCount)
{
    for (int count = 2; count <= 256; ++count) {
        const Palette palette = fixedColours(count), ramp = greyRamp(count);
        const std::set<Colour> colours(palette.begin(), palette.end());
        EXPECT_EQ(palette.size(), colours.size()) << count;
        EXPECT_LE(palette.size(), std::size_t(count));
        EXPECT_GT(palette.size(), std::size_t(count) * 6 / 10) << count;
        EXPECT_TRUE(colours.contains(0) && colours.contains(0xFFFFFF)) << count;
        ASSERT_EQ(std::size_t(count), ramp.size());
        for (int i = 0; i < count; ++i)
            EXPECT_NEAR(i * 255.0 / (count - 1), redOf(ramp[std::size_t(i)]), 0.51) << count;
    }
}

TEST(ReduceColours, WordsBitsAndGreys)
{
    const Bits picture = randomBits(24, 20, 8);
    for (const int word : {kFixedColour, kMapped, kOptimal, kCounted | 2, kCounted | 4, kVgaPalette, kWebPalette,
                           kHalftonePalette, kGreyPalette})
        for (const int bits : {1, 2, 3, 4, 5, 6, 7, 8})
            for (const int mode : {0, kGreyscale}) {
                const ReducedPicture reduced = reduceColours(picture, {mode, bits, word, 0x100});
                EXPECT_EQ(bits, reduced.bitCount);
                const auto& indexed = reduced.indexed;
                ASSERT_LE(indexed.palette.size(), std::size_t(1) << bits);
                for (const std::uint8_t i : indexed.indices) ASSERT_LT(i, indexed.palette.size());
                for (const Colour c : indexed.palette)
                    EXPECT_TRUE(mode != kGreyscale || (redOf(c) == greenOf(c) && greenOf(c) == blueOf(c))) << word;
            }
    const Pixel grey = reduceColours(picture, {kGreyscale, 16, kMapped, 0}).full.at(7, 7);
    EXPECT_TRUE(grey.c[0] == grey.c[1] && grey.c[1] == grey.c[2]);
    EXPECT_TRUE(sameBits(picture, reduceColours(picture, {0, 24, kMapped, 0}).full));
    EXPECT_EQ(0, reduceColours(picture, {0, 9, kOptimal, 0}).bitCount);
    EXPECT_EQ(0, reduceColours({}, {}).bitCount);
}

TEST(BestColours, ManyPixelsAreSampledAndColoursStayNear)
{
    const Bits photo =
        drawnBits(1200, 900, [](int x, int y) { return pixelFor(colourOf(x * 255 / 1199, y * 255 / 899, 90)); });
    const IndexedPicture best = reduceToBestColours(photo, 256);
    EXPECT_EQ(256U, best.palette.size());
    double error = 0;
    for (int i = 0; i < 1200 * 900; i += 97) {
        const Pixel want = photo.at(i % 1200, i / 1200), got = pixelFor(best.palette[best.indices[std::size_t(i)]]);
        for (int c = 0; c < 3; ++c) error += (want.c[c] - got.c[c]) * (want.c[c] - got.c[c]);
    }
    EXPECT_LT(error / (1200 * 900 / 97), 100) << "16 by 16 cells would have about 42";
}

} // namespace
} // namespace velara
