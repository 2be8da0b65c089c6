// The colour filters by worked examples, their measurements and faults, progress reports, hue and the nearest palette
// colour.
#include "engine/colour/mPalette.h"
#include "pixels/mHSLRGB.h"
#include "support/faults.h"
#include "support/filterOf.h"
#include "support/pictures.h"

namespace velara {
namespace {

Bits row(std::initializer_list<Pixel> pixels)
{
    Bits bits(static_cast<int>(pixels.size()), 1);
    std::copy(pixels.begin(), pixels.end(), bits.row(0));
    return bits;
}

/// Computed by hand, so that the definitions are checked, too; and cases that random pictures miss: exactly the
/// reference colour and one beside it, blends on a tie or at the limit of the tolerance.
TEST(ColourFilters, WorkedExamples)
{
    constexpr Colour kWhite = 0xFFFFFF, kReference = colourOf(30, 20, 10), kGrey = 0x646464, kBlue = 0xEC6464;
    const struct {
        const char* operation;
        Arguments arguments;
        Pixel before, after; // of a picture of this single colour: blue, green, red, fourth
    } rows[] = {
        {"CONTRAST", {100}, {{0, 60, 120, 9}}, {{0, 30, 150, 9}}},       // blue is 60 too low: both others lose 30
        {"CONTRAST", {1000000000}, {{0, 60, 120, 9}}, {{0, 6, 171, 9}}}, // from 60 and 600000000 to both sides
        {"SATURATION", {50}, {{10, 19, 31, 9}}, {{5, 18, 36, 9}}},       // 5, 18.5, 36.5
        {"GammaCorrection", {-100}, {{1, 100, 255, 9}}, {{0, 0, 0, 9}}},
        {"COLORIZE", {2.0, 1.0, 0.5}, {{255, 255, 255, 9}}, {{0, 255, 0, 9}}},
        {"GreyScale", {}, {{10, 20, 30, 9}}, {{22, 22, 22, 9}}}, // 21.51
        {"Threshold", {20}, {{20, 20, 22, 9}}, {{0, 0, 0, 9}}},
        {"Threshold", {20}, {{21, 21, 21, 9}}, {{255, 255, 255, 9}}},
        {"Reduction", {255}, {{128, 129, 255, 9}}, {{0, 255, 255, 9}}},
        {"ISOLATE", {kReference, kWhite, 0}, {{10, 20, 30, 9}}, {{10, 20, 30, 9}}},
        {"ISOLATE", {kReference, kWhite, 0}, {{10, 21, 30, 9}}, {{255, 255, 255, 9}}},
        {"REPLACE", {kReference, kWhite, 0}, {{10, 20, 30, 9}}, {{255, 255, 255, 9}}},
        {"REPLACE", {kReference, kWhite, 0}, {{10, 21, 30, 9}}, {{10, 21, 30, 9}}},
        {"REPLACE", {kGrey, kBlue, 5}, {{103, 100, 100, 9}}, {{208, 100, 100, 9}}},       // 207.5
        {"ReplaceL", {kGrey, kBlue, 100, 5}, {{103, 100, 100, 9}}, {{207, 100, 100, 9}}}, // by a single just below
        {"ReplaceHS", {kGrey, kBlue, 600, 100, 5}, {{103, 100, 100, 9}}, {{207, 100, 100, 9}}},
        {"ReplaceHS", {kGrey, 0x6464FF, 600, 100, 1000}, {{0, 0, 255, 9}}, {{97, 97, 255, 9}}}, // just within reach
        {"Shift", {kReference, 50, 0}, {{10, 20, 30, 9}}, {{60, 70, 80, 9}}},
        {"Shift", {kReference, 50, 0}, {{11, 20, 30, 9}}, {{11, 20, 30, 9}}},
        {"RotateH", {0, 0}, {{10, 20, 30, 9}}, {{20, 20, 20, 9}}},
        {"SwapBanks", {6}, {{10, 20, 30, 9}}, {{10, 20, 30, 9}}},
        {"ClassyColors", {7}, {{0, 255, 0, 9}}, {{0, 1, 1, 9}}},   // 256 wraps around
        {"Equalize", {}, {{64, 64, 64, 9}}, {{129, 129, 129, 9}}}, // the median is one less than the only grey
    };
    for (const auto& r : rows) {
        cBitFilter filter = filterOf(row({r.before, r.before, r.before}));
        findOperation(r.operation)->call(filter, r.arguments);
        EXPECT_TRUE(sameBits(row({r.after, r.after, r.after}), filter.bits())) << r.operation << ", row " << &r - rows;
    }
}

TEST(ColourFilters, EqualizeDividesByZeroAtAMedianOfOne)
{
    EXPECT_EQ(faultOf([] { filterOf(flatBits(4, 4, 2, 2, 2)).Equalize(); }), Fault::DivisionByZero);
    cBitFilter unselected = filterOf(flatBits(4, 4, 2, 2, 2));
    unselected.setBitsRegion({});
    EXPECT_EQ(faultOf([&] { unselected.Equalize(); }), Fault::DivisionByZero); // counts the whole picture
}

TEST(ColourFilters, ColoursOutsideOfTheScalesFailOnlyWhereAPixelHasThem)
{
    EXPECT_EQ(faultOf([] { filterOf(flatBits(4, 4, 0, 0, 0)).COLORIZE(0, 0, 9); }), std::nullopt);
    EXPECT_EQ(faultOf([] { filterOf(flatBits(4, 4, 99, 99, 99)).COLORIZE(0, 0, 9); }), Fault::Overflow);
    EXPECT_EQ(faultOf([] { filterOf(flatBits(4, 4, 9, 9, 9)).SwapRGB(0, 4, 0, 0, 0, 0, 0, 0, 0); }), Fault::OutOfRange);
}

TEST(ColourFilters, BrightnessIsMeasuredOverTheWholePicture)
{
    cBitFilter filter = filterOf(row({{{0, 0, 5, 0}}, {{90, 91, 91, 0}}, {{255, 255, 254, 0}}}));
    filter.setBitsRegion({});
    EXPECT_EQ(filter.GetLMin(), 1);
    EXPECT_EQ(filter.GetLMed(), 115); // (1 + 90 + 254) \ 3
    EXPECT_EQ(filter.GetLMax(), 254);
    EXPECT_EQ(cBitFilter().GetLMin(), 255);
    EXPECT_EQ(cBitFilter().GetLMax(), 0);
}

TEST(Hsl, HuesRunFromMinusOneToFive)
{
    const std::pair<Rgb, Hsl> rows[] = {
        {{255, 0, 0}, {0, 1, 0.5f}},      {{255, 255, 0}, {1, 1, 0.5f}},        {{0, 255, 0}, {2, 1, 0.5f}},
        {{0, 255, 255}, {3, 1, 0.5f}},    {{0, 0, 255}, {4, 1, 0.5f}},          {{255, 0, 255}, {-1, 1, 0.5f}},
        {{255, 0, 51}, {-0.2f, 1, 0.5f}}, {{51, 0, 255}, {4.2f, 1, 0.5f}},      {{80, 80, 80}, {0, 0, 80 / 255.0f}},
        {{255, 204, 204}, {0, 1, 0.9f}},  {{102, 51, 51}, {0, 1 / 3.0f, 0.3f}},
    };
    for (const auto& [rgb, wanted] : rows) {
        const Hsl hsl = RGBToHSL(rgb.r, rgb.g, rgb.b);
        const float off =
            std::max({std::abs(hsl.h - wanted.h), std::abs(hsl.s - wanted.s) / 10, std::abs(hsl.l - wanted.l)});
        EXPECT_LT(off, 1e-6) << rgb.r << " " << rgb.g << " " << rgb.b;
    }
    EXPECT_EQ(HueFromScale(200), 200);
    EXPECT_EQ(HueFromScale(201), -39);
}

/// Every colour once, through the vector kernel and, in an order that suits no vector, through the scalar conversions.
TEST(Hsl, EveryColourComesBackFromAHueRotationByNothing)
{
    Bits all(4096, 4096);
    for (int i = 0; i < 1 << 24; ++i)
        all.row(i >> 12)[i & 4095] = {{std::uint8_t(i), std::uint8_t(i >> 8), std::uint8_t(i >> 16), 7}};
    EXPECT_TRUE(sameBits(all, filterOf(all).RotateH(0, 100)));
    for (int i = 0; i < 1 << 24; i += 11) {
        const Rgb colour{i >> 16, i >> 8 & 255, i & 255};
        const Hsl hsl = RGBToHSL(colour.r, colour.g, colour.b);
        ASSERT_EQ(HSLToRGB(hsl.h, hsl.s, hsl.l), colour) << i;
    }
}

TEST(Palette, NearestKeepsTheEarlierOfTwoAndTheFirstWhenNothingIsNear)
{
    PaletteColors() = {{0, 0, 0}, {10, 0, 0}, {0, 10, 0}, {5, 5, 5}};
    EXPECT_EQ(NearestColor(9, 9, 0).red, 10);
    EXPECT_EQ(NearestColor(5, 5, 5).blue, 5);
    PaletteColors() = {{255, 255, 255}, {0, 0, 900}};
    EXPECT_EQ(NearestColor(0, 0, 0).red, 255); // 765 away
    PaletteColors().clear();
    EXPECT_EQ(faultOf([] { NearestColor(1, 2, 3); }), Fault::OutOfRange);
}

TEST(Progress, IsReportedEveryTenMillisecondsByPictureRow)
{
    cBitFilter filter = filterOf(randomBits(3, 101, 1));
    filter.setBitsRegion(Region::rectangle(0, 40, 3, 46));
    std::uint32_t now = 1000;
    std::vector<int> percents;
    filter.clock = [&] { return now += 3; }; // a row reads it once, and once more when it reports
    filter.Progress = [&](int percent) { percents.push_back(percent); };
    filter.Invert();
    EXPECT_EQ(percents, (std::vector<int>{40, 44, 100}));
    percents.clear();
    now += 5;
    filter.setBitsRegion({});
    filter.Invert();
    EXPECT_EQ(percents, std::vector<int>{100}); // nothing selected: 100 is reported anyway
}

TEST(Progress, CancellingLeavesThePicture)
{
    PaletteColors() = {{0, 0, 0}, {255, 255, 255}};
    const Bits before = randomBits(8, 8, 3);
    for (const char* name : {"Invert", "CONTRAST", "PaletteApply"}) {
        cBitFilter filter = filterOf(before);
        filter.Progress = [](int) { throw Cancelled(); };
        const Operation& op = *findOperation(name);
        EXPECT_THROW(op.call(filter, op.parameters.empty() ? Arguments{} : Arguments{40}), Cancelled) << name;
        EXPECT_TRUE(sameBits(before, filter.bits())) << name;
    }
}

} // namespace
} // namespace velara
