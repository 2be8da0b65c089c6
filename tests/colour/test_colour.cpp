// Colours of the picker and of the colour box: conversions, planes, cells and the user's list.
#include "colour/colourCells.h"
#include "colour/planes.h"
#include "colour/presetColours.h"
#include <gtest/gtest.h>
#include <set>

namespace velara {
namespace {

TEST(PickedColour, EveryColourComesBackFromItsHsbAndTypingWhatIsShownChangesNothing)
{
    int wrong = 0;
    PickedColour picked;
    for (Colour c = 0; c <= 0xFFFFFF; ++c) {
        if (colourOf(toRgb(toHsb(rgbOf(c)))) != c) ++wrong;
        picked.setColour(c);
        for (const Part part : {Part::Hue, Part::Saturation, Part::Brightness, Part::Red, Part::Green, Part::Blue})
            picked.type(part, picked.shown(part));
        if (picked.colour() != c) ++wrong;
    }
    EXPECT_EQ(0, wrong);
}

TEST(PickedColour, PartsThatWereTypedStayWhatTheyAre)
{
    PickedColour picked;
    for (const int hue : {7, 211, 360, 0}) {
        picked.type(Part::Saturation, 37);
        picked.type(Part::Brightness, 61);
        picked.type(Part::Hue, hue);
        EXPECT_EQ(hue, picked.shown(Part::Hue));
        EXPECT_EQ(37, picked.shown(Part::Saturation));
        EXPECT_EQ(61, picked.shown(Part::Brightness));
    }
    picked.type(Part::Hue, 120);
    picked.type(Part::Brightness, 0);
    EXPECT_EQ(0, picked.colour());
    picked.type(Part::Brightness, 100);
    picked.type(Part::Saturation, 100);
    EXPECT_EQ(0x00FF00, picked.colour()) << "hue and saturation outlive black";
    picked.setColour(0x808080);
    EXPECT_EQ(120, picked.shown(Part::Hue)) << "and the hue a grey";
    picked.type(Part::Green, 255);
    EXPECT_EQ(0x80FF80, picked.colour());
}

TEST(Planes, TheStripFoldsAndThePlaneRunsFromFullToNone)
{
    EXPECT_FLOAT_EQ(0, stripHue(0));
    EXPECT_FLOAT_EQ(200 / 40.0f, stripHue(83) + 1 / 40.0f);
    EXPECT_FLOAT_EQ((202 - 240) / 40.0f, stripHue(84)) << "below zero, toward red from the other side";
    EXPECT_FLOAT_EQ(0, stripHue(100));
    const QImage green = colourPlane(2);
    EXPECT_EQ(qRgb(0, 0, 0), green.pixel(0, 100));
    EXPECT_EQ(qRgb(0, 255, 0), green.pixel(0, 50));
    EXPECT_EQ(qRgb(128, 128, 128), green.pixel(100, 50));
}

TEST(Planes, FieldAndStripMarkThePlaceThatPicksTheColour)
{
    for (const Strip strip : {Strip::Hue, Strip::Saturation, Strip::Brightness})
        for (const QPoint place : {QPoint(0, 0), QPoint(255, 255), QPoint(17, 200)})
            for (const int row : {0, 100, 255}) {
                const Hsb at = atStripRow(strip, atFieldPlace(strip, {}, place), row);
                EXPECT_EQ(place, placeOnField(strip, at));
                EXPECT_EQ(row, rowOnStrip(strip, at));
                const Rgb c = toRgb(at);
                EXPECT_EQ(qRgb(c.r, c.g, c.b), pickerField(strip, at).pixel(place));
            }
    EXPECT_EQ(qRgb(0, 255, 0), pickerStrip(Strip::Hue, {0, 0, 0}).pixel(0, 85)) << "full beside a black colour";
}

TEST(Cells, SixteenColumnsAndTheSafeColours)
{
    EXPECT_EQ((Rect{10, 10, 25, 25}), cellRect(1));
    EXPECT_EQ((Rect{280, 10, 295, 25}), cellRect(16));
    EXPECT_EQ((Rect{10, 28, 25, 43}), cellRect(17));
    EXPECT_EQ((Rect{280, 244, 295, 259}), cellRect(224));
    EXPECT_EQ(17, cellAt(24, 28));
    EXPECT_EQ(0, cellAt(25, 28)) << "the gap";
    EXPECT_EQ(0x000000, safeColour(1));
    EXPECT_EQ(0x330000, safeColour(2)) << "blue is the innermost";
    EXPECT_EQ(0xFFFFFF, safeColour(216));
    EXPECT_FALSE(safeColour(217));
}

TEST(Cells, HexadecimalPadsAtItsFront)
{
    EXPECT_EQ("0FF5FF", GetHexVal(255, 5, 255));
    EXPECT_EQ("00105A", GetHexVal(16, 5, 10));
    EXPECT_EQ("000000", GetHexVal(0, 0, 0));
}

TEST(Cells, UserListIsReadAsFarAsItGoesAndWrittenToTheByte)
{
    constexpr std::pair<const char*, std::int32_t> kLines[] = {
        {" 255", 255}, {"-7", -7},        {" 2.5x9", 2}, {"3.5", 4},  {"abc", 0}, {"", 0},
        {"1e3", 1000}, {"9999999999", 5}, {"inf", 0},    {"+12", 12}, {"-", 0},   {"2147483647", 2147483647},
        {"1e999", 5},  {"nan", 0},
    };
    QByteArray text;
    for (const auto& [line, value] : kLines) text += QByteArray(line) + "\r\n";
    UserColours list;
    list.fill(5);
    readUserColours(text + " 8", list); // the last one without a terminator
    for (std::size_t i = 0; i < std::size(kLines); ++i) EXPECT_EQ(kLines[i].second, list[i]) << kLines[i].first;
    EXPECT_EQ(8, list[std::size(kLines)]);
    EXPECT_EQ(5, list[std::size(kLines) + 1]) << "no line, no change";
    list = {};
    list[1] = 0xFF00FF;
    list[2] = -3;
    const QByteArray written = userColoursText(list);
    EXPECT_TRUE(written.startsWith(" 0\r\n 16711935\r\n-3\r\n 0\r\n"));
    EXPECT_EQ(225, written.count("\r\n"));
    UserColours again;
    again.fill(9);
    readUserColours(written, again);
    EXPECT_EQ(list, again);
    readUserColours(QByteArray(1 << 20, '\xff'), again); // one endless line
    EXPECT_EQ(0, again[0]);
    EXPECT_EQ(0xFF00FF, again[1]);
}

TEST(Presets, SetsHoldTheColoursOfTheirNames)
{
    const std::size_t sizes[] = {16, 48, 48, 48, 48, 48, 0};
    for (int i = 0; i < kPresetSets; ++i) {
        const auto colours = presetSet(i).colours();
        EXPECT_EQ(sizes[i], colours.size());
        if (i >= 2 && i <= 4) {
            EXPECT_EQ(0xFF << 8 * (i - 2), colours[std::size_t(presetSet(i).shown)]);
        }
        EXPECT_EQ(colours.size(), std::set(colours.begin(), colours.end()).size()) << presetSet(i).name;
        for (const Colour c : colours) {
            const int own[] = {redOf(c), greenOf(c), blueOf(c)};
            if (i >= 2 && i <= 4) {
                EXPECT_EQ(own[i - 2], std::max({own[0], own[1], own[2]})) << presetSet(i).name;
            }
        }
    }
}

} // namespace
} // namespace velara
