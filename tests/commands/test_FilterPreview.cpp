// The table of the filter dialogs, and their preview.
#include "commands/FilterPreview.h"
#include "support/pictures.h"

namespace velara {
namespace {

TEST(FilterDialogs, TheGammaSliderCountsFromItsMiddle)
{
    const FilterSlider& slider = findFilterRow("GAMMA")->sliders[0];
    EXPECT_EQ(0, slider.minimum());
    EXPECT_EQ(200, slider.maximum());
    EXPECT_EQ("1.00", slider.text(100).toStdString());
    EXPECT_EQ("-7", findFilterRow("BRIGHTNESS")->sliders[0].text(-7).toStdString());
}

TEST(FilterPreview, RunsOnACopyThatFitsTheBox)
{
    const FilterRow& scanlines = *findFilterRow("ADDSCANLINES");
    constexpr QSize kCases[][2] = {{{50, 40}, {50, 40}},
                                   {{400, 100}, {200, 50}},
                                   {{100, 800}, {25, 200}},
                                   {{3000, 2}, {200, 1}},
                                   {{1, 1}, {1, 1}}};
    for (const auto& [size, copy] : kCases) {
        const FilterPreview preview(randomBits(size.width(), size.height(), 5), Region(), {200, 200});
        EXPECT_EQ(copy, QSize(preview.source().width(), preview.source().height()));
        const Bits result = preview.run(scanlines, scanlines.defaults()); // a single row raises nothing, either
        EXPECT_EQ(copy, QSize(result.width(), result.height()));
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
