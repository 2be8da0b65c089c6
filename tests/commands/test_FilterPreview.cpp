// The table of the filter dialogs, and their preview.
#include "commands/FilterPreview.h"
#include "engine/operations.h"
#include "support/filterOf.h"
#include "support/pictures.h"

namespace velara {
namespace {

using namespace std::string_literals;

struct Meaning {
    std::string operation;
    Arguments arguments;
};

/// What each number means for the values 11, 7 and 3, the colours 0x112233 and 0x445566, the option, the centre
/// (0.25, 0.75) in a preview of 100 pixels, "vertical" glass of mode 2, and banks green inverted, blue, red killed.
const Meaning kMeanings[] = {
    {"COLORIZE", {26 / 40.0, 0.07, 0.03}},
    {"BRIGHTNESS", {11}},
    {"CONTRAST", {11}},
    {"SATURATION", {11}},
    {"GammaCorrection", {11}},
    {"DIFFUSE", {11, 7}},
    {"Blurs", {2}},
    {"Halftone", {11, 7, 3}},
    {"PIXELIZE", {11}},
    {"EMBOSS", {11}},
    {"ENGRAVE", {11}},
    {"CONTOUR", {11, 0x445566}},
    {"SKETCH", {11, true, 0x445566}},
    {"Threshold", {11}},
    {"ISOLATE", {0x112233, 0x445566, 11}},
    {"Reduction", {11}},
    {"REPLACE", {0x112233, 0x445566, 11}},
    {"ReplaceHS", {0x112233, 0x445566, 11, 7, 3}},
    {"ReplaceL", {0x112233, 0x445566, 11, 7}},
    {"SHARPEN", {11}},
    {"SOFTEN", {11}},
    {"Shift", {0x112233, 11, 7}},
    {"RotateH", {11, 7}},
    {"RotateL", {11, 7}},
    {"StretchH", {11, 7, 3}},
    {"ShiftRGB", {11, 7, 3}},
    {"SwapRGB", {1, 0, 2, true, false, false, 0, 0, 255}},
    {"LENS", {0.25, 0.75, 0.11, 7}},
    {"WAVES", {11, 7, 3}},
    {"BEND", {11, true}},
    {"FOLD", {11, 7, true}},
    {"ROTATE", {11, true}},
    {"STRETCH", {11, 7, true}},
    {"TILE", {11}},
    {"TWIRL", {11, 7, true}},
    {"Grid", {11, 7, true, 0x445566, 3}},
    {"Light", {0.25, 0.75, 0.11, 7, 3}},
    {"NOISE", {11, true}},
    {"Scanlines", {11}},
    {"GLASS", {"vertical"s, 2}},
    {"GLASS", {"curtain"s, 2}},
};

FilterArgs distinctArguments(int number)
{
    FilterArgs args;
    args.value = {number == 6 ? 2 : 11, 7, 3};
    args.colour = {0x112233, 0x445566};
    args.option = true;
    args.centerX = 0.25f;
    args.centerY = 0.75f;
    args.longerSide = 100;
    args.style = "vertical";
    args.mode = 2;
    args.channel = {1, 0, 2};
    args.invert = {true, false, false};
    args.kill = {false, false, true};
    return args;
}

cBitFilter engine(const Bits& bits)
{
    return filterOf(bits, Region::ellipse(2, 2, bits.width() - 3, bits.height() - 2));
}

TEST(FilterDialogs, EachNumberRunsItsOperation)
{
    const Bits bits = randomBits(60, 45, 3);
    ASSERT_EQ(std::size(kMeanings), filterRows().size());
    for (const FilterRow& row : filterRows()) {
        const Meaning& meaning = kMeanings[row.number];
        const Operation* operation = findOperation(meaning.operation);
        ASSERT_NE(nullptr, operation) << meaning.operation;
        cBitFilter wanted = engine(bits), got = engine(bits);
        operation->call(wanted, meaning.arguments);
        EXPECT_TRUE(sameBits(wanted.bits(), row.call(got, distinctArguments(row.number)))) << row.title;
    }
}

TEST(FilterDialogs, WordsOpenTheirNumbers)
{
    const std::pair<const char*, int> kWords[] = {{"COLORIZE", 0},     {"LIGHTCUSTOM", 1},   {"BRIGHTNESS", 1},
                                                  {"HAFTONE", 7},      {"SKETCH", 12},       {"CUSTOMSOFTEN", 20},
                                                  {"LENSFLARE", 36},   {"CUSTOMNOISE", 37},  {"ADDNOISE", 37},
                                                  {"CUSTOMGLASS", 39}, {"CUSTOMCURTAIN", 40}};
    for (const auto& [word, number] : kWords) {
        ASSERT_NE(nullptr, findFilterRow(word)) << word;
        EXPECT_EQ(number, findFilterRow(word)->number) << word;
    }
    for (const char* word : {"", "MOSAIC", "LIGHTEMBOSS", "brightness"})
        EXPECT_EQ(nullptr, findFilterRow(word)) << word;
}

TEST(FilterDialogs, TheGammaSliderCountsFromItsMiddle)
{
    const FilterRow& row = *findFilterRow("GAMMA");
    const FilterSlider& slider = row.sliders[0];
    EXPECT_EQ(0, slider.minimum());
    EXPECT_EQ(200, slider.maximum());
    EXPECT_EQ(100, slider.initial());
    EXPECT_EQ("1.00", slider.text(100).toStdString());
    EXPECT_EQ(0, row.defaults().value[0]);
    EXPECT_EQ(-100, slider.minimum() - slider.centre());
    EXPECT_EQ("-7", findFilterRow("BRIGHTNESS")->sliders[0].text(-7).toStdString());
}

TEST(FilterPreview, RunsOnACopyThatFitsTheBox)
{
    const FilterRow& scanlines = *findFilterRow("ADDSCANLINES");
    const struct {
        int width, height, copyWidth, copyHeight;
    } kCases[] = {{50, 40, 50, 40}, {400, 100, 200, 50}, {100, 800, 25, 200}, {3000, 2, 200, 1}, {1, 1, 1, 1}};
    for (const auto& c : kCases) {
        const FilterPreview preview(randomBits(c.width, c.height, 5), Region(), {200, 200});
        EXPECT_EQ(c.copyWidth, preview.source().width());
        EXPECT_EQ(c.copyHeight, preview.source().height());
        const Bits result = preview.run(scanlines, scanlines.defaults());
        EXPECT_EQ(c.copyWidth, result.width()) << "a single row raises nothing, either";
        EXPECT_FALSE(sameBits(preview.source(), result));
    }
    EXPECT_TRUE(FilterPreview(Bits(), Region(), {200, 200}).source().isNull());
}

TEST(FilterPreview, TheSelectionComesInTheCopysScale)
{
    const Bits bits = randomBits(400, 200, 6);
    const auto boundsOf = [&](const Region& region) {
        return FilterPreview(bits, region, {100, 100}).region().bounds();
    };
    EXPECT_EQ((Rect{10, 5, 30, 20}), boundsOf(Region::rectangle(40, 20, 120, 80)));
    EXPECT_EQ((Rect{0, 0, 100, 50}), boundsOf(Region::rectangle(0, 0, 400, 200)));
    EXPECT_EQ((Rect{0, 0, 100, 50}), boundsOf(Region()));
}

TEST(RunPacer, OneRunAFrameAndOneAfterTheLastChange)
{
    RunPacer pacer;
    EXPECT_EQ(0u, pacer.change(1000));
    EXPECT_EQ(std::nullopt, pacer.change(1001)) << "the run that waits shows this one too";
    pacer.runStarts(1002);
    EXPECT_EQ(RunPacer::kFrame - 3, pacer.change(1005));
    EXPECT_EQ(std::nullopt, pacer.change(1010));
    pacer.runStarts(1018);
    EXPECT_EQ(0u, pacer.change(1018 + RunPacer::kFrame));
    pacer.runStarts(0xFFFFFFF8);
    EXPECT_EQ(RunPacer::kFrame - 10, pacer.change(2)) << "the clock wraps";
}

} // namespace
} // namespace velara
