#include "ui/widgets/viewLayout.h"
#include <gtest/gtest.h>

namespace velara {

struct LayoutRow {
    const char* what;
    ViewSpace space;
    bool needH, needV;
    Rect iDst;
    int hMax, vMax;
};

constexpr LayoutRow kLayouts[] = {
    // clang-format off
    {"one pixel at the highest zoom",    {1, 1, 15, 200, 100, 20},     false, false, {92, 42, 107, 57}, 0, 0},
    {"odd rest goes to the right",       {5, 4, 1, 100, 101, 20},      false, false, {47, 48, 52, 52},  0, 0},
    {"exactly as wide as the window",    {200, 50, 1, 200, 100, 20},   false, false, {0, 25, 200, 75},  0, 0},
    {"one column more",                  {201, 50, 1, 200, 100, 20},   true,  false, {0, 15, 200, 65},  1, 0},
    {"one bar makes the other needed",   {201, 90, 1, 200, 100, 20},   true,  true,  {0, 0, 180, 80},   21, 10},
    {"and the other way",                {190, 101, 1, 200, 100, 20},  true,  true,  {0, 0, 180, 80},   10, 21},
    {"only a vertical bar",              {100, 101, 1, 200, 100, 20},  false, true,  {40, 0, 140, 100}, 0, 1},
    {"zoomed",                           {100, 100, 3, 200, 100, 20},  true,  true,  {0, 0, 180, 80},   120, 220},
    {"the largest picture",              {32767, 32767, 1, 200, 100, 20}, true, true, {0, 0, 180, 80},  32587, 32687},
    {"a window below twice the bars",    {100, 100, 1, 10, 10, 20},    true,  true,  {0, 0, 20, 20},    80, 80},
    // clang-format on
};

TEST(ViewLayout, Table)
{
    for (const LayoutRow& row : kLayouts) {
        const ViewLayout l = layOut(row.space);
        EXPECT_EQ(std::tie(l.needH, l.needV, l.iDst, l.hMax, l.vMax),
                  std::tie(row.needH, row.needV, row.iDst, row.hMax, row.vMax))
            << row.what;
    }
    const ViewLayout both = layOut({300, 300, 1, 200, 100, 20});
    EXPECT_EQ(both.hSB, (Rect{0, 80, 180, 100}));
    EXPECT_EQ(both.vSB, (Rect{180, 0, 200, 80}));
    EXPECT_EQ(both.shp, (Rect{180, 80, 200, 100}));
}

TEST(ViewLayout, ScrollPlaceIsKeptRelatively)
{
    EXPECT_EQ(restoredValue(300, true, 50, 100), 150);
    EXPECT_EQ(restoredValue(100, true, 150, 300), 50);
    EXPECT_EQ(restoredValue(101, false, 7, 100), 50) << "first shown in the middle, halves to the even place";
    EXPECT_EQ(restoredValue(103, true, 0, 0), 52) << "no range before";
    EXPECT_EQ(restoredValue(5, true, 1, 10), 0) << "0.5";
    EXPECT_EQ(restoredValue(10, true, 12, 10), 10) << "beyond the range";
    EXPECT_EQ(restoredValue(0, true, 3, 10), 0);
}

TEST(ViewLayout, PixelUnderThePointer)
{
    EXPECT_EQ(pictureAt(0, 0, 3), 0);
    EXPECT_EQ(pictureAt(1, 1, 3), 0);
    EXPECT_EQ(pictureAt(1, 2, 3), 1);
    EXPECT_EQ(pictureAt(0.75, 0, 1), 0) << "fractions of a logical pixel";
    EXPECT_EQ(pictureAt(-1, 0, 3), 0) << "toward zero";
    EXPECT_EQ(pictureAt(-6, 0, 3), -2);
    EXPECT_EQ(viewRect({2, 3, 5, 4}, 4, 1, 3), (Rect{2, 8, 11, 11}));
}

TEST(PageAxis, InTheMiddleOrMovedByItsBar)
{
    constexpr int kCases[][6] = {// container, picture, value of the bar; then range, value and place
                                 {100, 40, 7, 0, 0, 30},
                                 {100, 41, 0, 0, 0, 29},
                                 {100, 100, 3, 0, 0, 0},
                                 {100, 101, 3, 1, 1, -1},
                                 {100, 350, 120, 250, 120, -120},
                                 {100, 350, -5, 250, 0, 0},
                                 {1, 32767, 99999, 32766, 32766, -32766}};
    for (const auto& [container, picture, bar, maximum, value, place] : kCases) {
        const PageAxis got = pageAxis(container, picture, bar);
        EXPECT_EQ(std::tie(got.maximum, got.value, got.place), std::tie(maximum, value, place)) << container << picture;
    }
}

} // namespace velara
