#include "paint/Painter.h"
#include "pixels/RuntimeError.h"
#include "support/pictures.h"
#include "tools/reference/paintTwins.h"
#include <random>

namespace velara {
namespace {

/// A picture of a few flat colours with some noise, for floods to run through.
Bits patches(int width, int height, std::mt19937& random, int noise)
{
    Bits bits = randomBits(width, height, static_cast<std::uint32_t>(random()));
    const int cell = 2 + static_cast<int>(random() % 9);
    const std::uint32_t salt = random();
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const std::uint32_t patch =
                (static_cast<std::uint32_t>(y / cell * 37 + x / cell) * 2654435761u + salt) >> 29;
            for (int c = 0; c < 3; ++c)
                bits.at(x, y).c[c] = static_cast<std::uint8_t>((patch % 3) * 90 + random() % (noise + 1));
        }
    return bits;
}

/// A painter and its twin over one picture and selection.
struct Pair {
    std::mt19937& random;
    Bits bits;
    cBitRegion selection;
    TouchedTiles touched;
    Painter painter{bits, selection, touched};
    PaintTwin twin;
    const Bits before;

    int within(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }

    Pair(std::mt19937& r, const Bits& picture) : random(r), bits(picture), before(picture)
    {
        selection.Init(0, 0, bits.width(), bits.height());
        if (within(0, 2)) selection.setRegion(randomRegion(bits.width(), bits.height(), random()));
        twin.bits = bits;
        twin.limit = selection.RegionMain();
        twin.region = selection.working();
        twin.random = Random(5);
        painter.setRandomSeed(5);
        restart();
    }
    void restart()
    {
        painter.CreateDoneBitsTable();
        twin.CreateDoneBitsTable();
    }

    /// Equal in every byte; and what changed lies within the rectangle and the tiles that were reported.
    ::testing::AssertionResult agree()
    {
        if (const auto same = sameBits(twin.bits, bits); !same) return same;
        const Rect rect = painter.takeTouched();
        Bits tiles = before;
        touched.forEach([&](const Rect& t) {
            for (int y = t.top; y < t.bottom; ++y)
                for (int x = t.left; x < t.right; ++x) tiles.at(x, y) = std::as_const(bits).at(x, y);
        });
        for (int y = 0; y < bits.height(); ++y)
            for (int x = 0; x < bits.width(); ++x)
                if (!(std::as_const(bits).at(x, y) == before.at(x, y)) && !rect.contains(x, y))
                    return ::testing::AssertionFailure() << x << ", " << y << " lies outside of the touched rectangle";
        return sameBits(bits, tiles);
    }
};

/// Calls the same operation of painter and twin.
#define BOTH(call)                                                                                                     \
    do {                                                                                                               \
        p.painter.call;                                                                                                \
        p.twin.call;                                                                                                   \
    } while (false)

struct Point {
    int x, y;
};
Point somewhere(Pair& p) { return {p.within(-12, p.bits.width() + 12), p.within(-12, p.bits.height() + 12)}; }
Colour anyColour(Pair& p) { return p.within(0, 0xFFFFFF); }
int percent(Pair& p) { return p.within(0, 3) == 0 ? 100 : p.within(0, 100); }

struct Row {
    const char* name;
    void (*run)(Pair& p);
};

const Row kRows[] = {
    {"Brush",
     [](Pair& p) {
         const auto [x, y] = somewhere(p);
         const int size = p.within(0, 40), opacity = percent(p);
         const Colour colour = anyColour(p);
         BOTH(BitsBrush(x, y, size, opacity, colour));
         BOTH(BitsBrush(x + 5, y - 3, size, opacity, colour)); // overlapping: each pixel once
     }},
    {"Brightness",
     [](Pair& p) {
         const auto [x, y] = somewhere(p);
         const int size = p.within(0, 40), amount = percent(p);
         const bool lighten = p.within(0, 1);
         BOTH(BitsBrightness(x, y, size, amount, lighten));
         BOTH(BitsBrightness(x + 5, y, size, amount, !lighten));
     }},
    {"Masked",
     [](Pair& p) {
         const auto [x, y] = somewhere(p);
         const Bits source = randomBits(p.within(1, 12), p.within(1, 12), p.random());
         const int size = p.within(0, 40), opacity = percent(p);
         BOTH(BitsMasked(x, y, source, size, opacity));
         BOTH(BitsMaskedLine(x, y, x + 9, y - 4, size + 1, opacity, source));
     }},
    {"Soften",
     [](Pair& p) {
         const auto [x, y] = somewhere(p);
         const int size = p.within(0, 40), strength = percent(p);
         const bool repeat = p.within(0, 1);
         BOTH(BitsSoften(x, y, size, strength, repeat));
         BOTH(BitsSoften(x + 2, y + 2, size, strength, repeat));
     }},
    {"Sharpen",
     [](Pair& p) {
         const auto [x, y] = somewhere(p);
         const int size = p.within(0, 40), strength = percent(p);
         BOTH(BitsSharpen(x, y, size, strength));
         BOTH(BitsSharpen(x + 2, y + 2, size, strength));
     }},
    {"BrushLine",
     [](Pair& p) {
         const auto [x, y] = somewhere(p);
         const auto [x2, y2] = somewhere(p);
         const int size = p.within(1, 20), strength = percent(p), mode = p.within(-1, 6);
         const Colour colour = anyColour(p);
         BOTH(BitsBrushLine(x, y, x2, y2, size, strength, colour, mode));
     }},
    {"Airbrush",
     [](Pair& p) {
         for (int i = 0; i < 3; ++i) {
             const auto [x, y] = somewhere(p);
             const int size = p.within(2, 40), opacity = percent(p), density = percent(p), softness = percent(p);
             const Colour colour = anyColour(p);
             BOTH(BitsAirbrush(x, y, size, opacity, density, softness, colour));
         }
     }},
    {"Line",
     [](Pair& p) {
         const auto [x, y] = somewhere(p);
         const auto [x2, y2] = p.within(0, 4) ? somewhere(p) : Point{x, y};
         const Colour colour = anyColour(p);
         const int opacity = percent(p);
         BOTH(BitsLine(x, y, x2, y2, colour, opacity));
         BOTH(BitsLine(x2, y2, x2, y, colour, opacity));
     }},
    {"Rectangle",
     [](Pair& p) {
         const auto [x, y] = somewhere(p);
         const auto [x2, y2] = somewhere(p);
         const Colour colour = anyColour(p);
         const int opacity = percent(p);
         BOTH(BitsRectangle(x, y, x2, y2, colour, opacity));
     }},
    {"Ellipse",
     [](Pair& p) {
         const auto [x, y] = somewhere(p);
         const int rx = p.within(0, 40), ry = p.within(0, 40), opacity = percent(p);
         const Colour colour = anyColour(p);
         BOTH(BitsEllipse(x, y, rx, ry, colour, opacity));
     }},
    {"Polygon",
     [](Pair& p) {
         const auto [x, y] = somewhere(p);
         const auto [x2, y2] = somewhere(p);
         const int sides = p.within(0, 12), opacity = percent(p);
         const Colour colour = anyColour(p);
         BOTH(BitsPolygon(x, y, x2, y2, sides, colour, opacity));
     }},
    {"Paint",
     [](Pair& p) {
         const auto [x, y] = somewhere(p);
         Bits source = patches(p.within(1, 70), p.within(1, 70), p.random, 0);
         const Pixel corner = source.at(0, 0);
         const Colour key = p.within(0, 1) ? -1 : colourOf(corner.c[2], corner.c[1], corner.c[0]);
         const int opacity = percent(p);
         const bool useRegion = p.within(0, 1);
         BOTH(BitsPaint(x, y, source, key, opacity, useRegion));
         BOTH(BitsPaint(-x, y - 20, source, key, opacity, !useRegion));
     }},
    {"PaintPreMasked",
     [](Pair& p) {
         const auto [x, y] = somewhere(p);
         Bits source = randomBits(p.within(1, 70), p.within(1, 70), p.random());
         for (int i = 0; i < source.width(); ++i)
             for (int j = 0; j < source.height(); ++j)
                 if (p.within(0, 1)) source.at(i, j).c[3] = 255;
         const int opacity = percent(p);
         const bool useRegion = p.within(0, 1);
         BOTH(BitsPaintPreMasked(x, y, source, opacity, useRegion));
         BOTH(BitsPaintPreMasked(-x, y - 20, source, opacity, !useRegion));
     }},
    {"BWMask",
     [](Pair& p) {
         const auto [x, y] = somewhere(p);
         const Bits source = randomBits(p.within(1, 70), p.within(1, 70), p.random());
         const int opacity = percent(p);
         const Colour colour = anyColour(p);
         BOTH(BitsBWMask(x, y, source, colour, opacity));
     }},
    {"Fill",
     [](Pair& p) {
         for (int i = 0; i < 2; ++i) { // the second meets what the first has marked as done only when it restarts
             const int x = p.within(0, p.bits.maxX()), y = p.within(0, p.bits.maxY());
             const int tolerance = p.within(0, 3) ? p.within(0, 60) : 765, opacity = percent(p);
             const Colour colour = anyColour(p);
             BOTH(BitsFill(x, y, colour, tolerance, opacity));
             p.restart();
         }
     }},
    {"FillTexture",
     [](Pair& p) {
         const int x = p.within(0, p.bits.maxX()), y = p.within(0, p.bits.maxY());
         const Bits source = randomBits(p.within(1, 30), p.within(1, 30), p.random());
         const int tolerance = p.within(0, 3) ? p.within(0, 60) : 765, opacity = percent(p);
         BOTH(BitsFillTexture(x, y, source, tolerance, opacity));
     }},
};

class PainterTwins : public ::testing::TestWithParam<Row> {};

TEST_P(PainterTwins, EveryByteIsThatOfTheLiteralForm)
{
    std::mt19937 random(77);
    for (int trial = 0; trial < 250; ++trial) {
        const int width = trial % 10 == 0 ? 1 + trial % 3 : 20 + static_cast<int>(random() % 140);
        const int height = trial % 15 == 0 ? 1 : 10 + static_cast<int>(random() % 80);
        Pair pair(random, patches(width, height, random, trial % 3 ? 12 : 255));
        GetParam().run(pair);
        ASSERT_TRUE(pair.agree()) << "trial " << trial << ", " << width << " x " << height;
    }
}
INSTANTIATE_TEST_SUITE_P(All, PainterTwins, ::testing::ValuesIn(kRows),
                         [](const auto& info) { return std::string(info.param.name); });

struct PainterCases : ::testing::Test {
    Bits bits = flatBits(20, 10, 100, 100, 100, 7);
    cBitRegion selection;
    TouchedTiles touched;
    Painter painter{bits, selection, touched};
    PainterCases() { selection.Init(0, 0, 20, 10); }

    int changed() const
    {
        int count = 0;
        for (int y = -2; y < 12; ++y)
            for (int x = -2; x < 22; ++x)
                count +=
                    !(bits.at(x, y) == (x >= 0 && x < 20 && y >= 0 && y < 10 ? Pixel{{100, 100, 100, 7}} : Pixel{}));
        return count;
    }
};

TEST_F(PainterCases, SmallBrushesAndStillStrokes)
{
    painter.CreateDoneBitsTable();
    painter.BitsBrush(3, 3, 1, 100, 0x0000FF);
    EXPECT_EQ(changed(), 1);
    EXPECT_EQ(bits.at(3, 3), (Pixel{{0, 0, 255, 7}}));
    painter.BitsBrush(10, 5, 2, 100, 0xFF0000); // a cross
    EXPECT_EQ(changed(), 6);
    painter.BitsBrush(15, 5, 2, 0, 0); // marks them done without a change
    painter.BitsBrush(15, 5, 2, 100, 0);
    EXPECT_EQ(changed(), 6);
    painter.CreateDoneBitsTable();
    painter.BitsBrushLine(15, 5, 15, 5, 2, 100, 0, 0);
    EXPECT_EQ(changed(), 11);
    EXPECT_EQ(painter.takeTouched(), (Rect{2 + 1, 3, 17, 7}));
    EXPECT_TRUE(painter.takeTouched().isEmpty());
}

TEST_F(PainterCases, FillsAtTheirLimits)
{
    painter.BitsFill(5, 5, colourOf(109, 91, 100), 765, 100); // within 9 of the seed
    EXPECT_EQ(changed(), 1);
    painter.CreateDoneBitsTable();
    painter.BitsFill(0, 0, 0, 0, 100); // around the odd pixel
    EXPECT_EQ(changed(), 200);
    EXPECT_EQ(bits.at(5, 5), (Pixel{{100, 91, 109, 7}}));
    selection.CreateRect(0, 0, 3, 3, Combine::Or, true);
    painter.CreateDoneBitsTable();
    painter.BitsFill(10, 5, 0xFFFFFF, 765, 100); // starts outside of the selection
    EXPECT_EQ(bits.at(0, 0), (Pixel{{0, 0, 0, 7}}));
    painter.CreateDoneBitsTable();
    painter.BitsFill(3, 2, 0xFFFFFF, 0, 100); // a neighbour of the seed lies within it
    EXPECT_EQ(bits.at(0, 0), (Pixel{{255, 255, 255, 7}}));
    EXPECT_EQ(bits.at(3, 2), (Pixel{{0, 0, 0, 7}}));
    painter.BitsFill(-1, 3, 0, 0, 100);
    painter.BitsFill(20, 3, 0, 0, 100);
}

TEST_F(PainterCases, ColoursAreReadInsideOnly)
{
    EXPECT_EQ(painter.BitsGetPixel(3, 3), colourOf(100, 100, 100));
    EXPECT_EQ(painter.BitsGetPixel(20, 3), 0);
    EXPECT_EQ(painter.BitsGetPixel(3, -1), 0);
    bits = Bits();
    EXPECT_EQ(painter.BitsGetPixel(3, 3), -1);
}

TEST_F(PainterCases, FaultsAreRaisedAndFarAwayIsHarmless)
{
    EXPECT_THROW(painter.BitsAirbrush(3, 3, 1, 50, 50, 50, 0), RuntimeError);
    EXPECT_THROW(painter.BitsBrush(3, 3, 5, 300, 0xFFFFFF), RuntimeError);
    EXPECT_THROW(painter.BitsSoften(3, 3, 5, 140, true), RuntimeError);
    EXPECT_THROW(painter.BitsBrushLine(0, 0, 40000, 0, 5, 50, 0, 0), RuntimeError);
    EXPECT_THROW(painter.BitsBrushLine(0, 0, 40, 0, 0, 50, 0, 0), RuntimeError);
    const int far = 2000000000;
    painter.BitsBrush(-far, far, 300, 50, 0);
    painter.BitsBrush(3, 3, -5, 50, 0);
    painter.BitsPaint(far, -far, randomBits(9, 9, 1), -1, 50, true);
    painter.BitsPaint(-far, 0, randomBits(9, 9, 1), -1, 50, true);
    EXPECT_EQ(changed(), 0);
    painter.BitsBrush(10, 5, 30000, 100, 0xFFFFFF); // larger than the picture
    EXPECT_EQ(changed(), 200);
    bits = Bits();
    painter.BitsBrush(3, 3, 9, 50, 0);
    painter.BitsLine(3, 3, 9, 50, 0, 9);
    painter.BitsFill(3, 3, 0, 0, 9);
    painter.BitsPaint(3, 3, randomBits(9, 9, 1), -1, 50, true);
    painter.BitsAirbrush(3, 3, 9, 50, 50, 50, 0);
}

TEST(DoneBits, AResetClearsEveryRow)
{
    DoneBits done;
    for (int round = 0; round < 3; ++round) {
        done.reset(200, 5);
        int runs = 0;
        done.claim(2, 60, 140, [&](int x0, int x1) {
            EXPECT_EQ(x0, 60);
            EXPECT_EQ(x1, 140);
            ++runs;
        });
        std::vector<std::pair<int, int>> got;
        done.claim(2, 0, 200, [&](int x0, int x1) { got.emplace_back(x0, x1); });
        EXPECT_EQ(got, (std::vector<std::pair<int, int>>{{0, 60}, {140, 200}}));
        EXPECT_EQ(runs, 1);
    }
}

} // namespace
} // namespace velara
