// The filter dialogs: the contents of each, as text, compared with the row beside the definition of its operation; and
// their preview.
#include "commands/FilterPreview.h"
#include "support/pictures.h"
#include "tools/reference/dialogTrials.h"

namespace velara {
namespace {

std::string shown(const FilterSlider& s)
{
    return QStringLiteral("%1 %2..%3, %4").arg(s.caption).arg(s.least).arg(s.most).arg(s.byDefault).toStdString() +
           (s.step == 1 ? "" : ", by " + QString::number(s.step).toStdString());
}

std::string shown(const FilterRow& row)
{
    std::vector<std::string> parts;
    for (const FilterSlider& slider : row.sliders)
        if (slider.used()) parts.push_back(shown(slider));
    if (row.option) parts.push_back(std::string("option ") + row.option);
    const int wells = has(row.extras, FilterExtra::SourceWell) + has(row.extras, FilterExtra::TargetWell);
    if (wells) parts.push_back(wells == 1 ? "1 well" : "2 wells");
    for (const auto& [extra, text] :
         {std::pair(FilterExtra::PickColour, "picks a colour"), std::pair(FilterExtra::PickCentre, "picks the centre"),
          std::pair(FilterExtra::Banks, "banks"), std::pair(FilterExtra::Glass, "glass"),
          std::pair(FilterExtra::Curtain, "curtain")})
        if (has(row.extras, extra)) parts.push_back(text);
    std::string line = row.title;
    for (const std::string& part : parts) line += (&part == &parts[0] ? ": " : "; ") + part;
    return line;
}

TEST(Dialogs, ShowWhatTheirTrialsSay)
{
    for (const FilterRow& row : filterRows()) EXPECT_EQ(dialogTrial(row).shows, shown(row));
    EXPECT_EQ(dialogTrials().size(), filterRows().size());
}

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
    constexpr QSize kCases[][2] = {{{50, 40}, {50, 40}}, {{400, 100}, {200, 50}}, {{3000, 2}, {200, 1}}};
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
