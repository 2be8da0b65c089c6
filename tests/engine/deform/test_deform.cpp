// Deformations and generators: arguments that change nothing, faults, progress reports, odd cases.
#include "support/faults.h"
#include "support/filterOf.h"
#include "support/pictures.h"

namespace velara {
namespace {

TEST(Deform, Faults)
{
    const Bits column = randomBits(1, 9, 8), picture = randomBits(9, 9, 9);
    cBitFilter narrow = filterOf(column), f = filterOf(picture);
    const std::pair<Fault, std::function<void()>> rows[] = {
        {Fault::DivisionByZero, [&] { narrow.FOLD(10, 10, true); }},
        {Fault::DivisionByZero, [&] { narrow.TWIRL(0, 0, true); }},
        {Fault::DivisionByZero, [&] { f.TILE(0); }},
        {Fault::Overflow,
         [&] { f.STRETCH(2147483647, 0, true), filterOf(Bits(4000, 1)).STRETCH(2147483647, 0, true); }},
        {Fault::Overflow, [&] { f.LENS(1e9f, 0, 1, 0); }},
        {Fault::Overflow, [&] { f.GradientLinear(0, 0, 9, 9, 0, 0xFFFFFF, 300, 1); }},
        {Fault::Overflow, [&] { f.Grid(1, 1, false, 0xFFFFFF, 600); }},
        {Fault::OutOfRange, [&] { f.Grid(0, 1, false, 0, 0); }},
        {Fault::OutOfRange, [&] { f.Texturize(Bits(1, 5)); }},
        {Fault::OutOfRange, [&] { f.TileMask(Bits(), 0, 0, true, 0, -1); }},
    };
    for (const auto& row : rows) EXPECT_EQ(faultOf(row.second), row.first) << &row - rows;
    narrow.setBitsRegion(Region());
    EXPECT_TRUE(sameBits(column, narrow.FOLD(10, 10, true))) << "no pixel, no division";
}

TEST(Deform, ReportsOnceARowWhenDue)
{
    cBitFilter f = filterOf(randomBits(3, 101, 11));
    std::uint32_t now = 0;
    f.clock = [&] { return now += 11; };
    std::vector<int> percents;
    f.Progress = [&](int percent) { percents.push_back(percent); };
    f.STRETCH(10, 10, true);
    ASSERT_EQ(percents.size(), 102u);
    EXPECT_EQ(percents[50], 50);
    percents.clear();
    f.GradientLinear(1, 1, 1, 1, 0, 0, 50, 1);
    EXPECT_TRUE(percents.empty()) << "two points in one draw nothing and say nothing";
}

TEST(Deform, UnknownGlassTakesTheFirstPixel)
{
    Bits before = flatBits(4, 3, 9, 9, 9, 9);
    before.at(0, 0) = {{1, 2, 3, 4}};
    cBitFilter f = filterOf(before);
    EXPECT_EQ(f.GLASS("frosted", 0).at(3, 2), (Pixel{{1, 2, 3, 9}}));
    EXPECT_EQ(f.GLASS("vertical", 3).at(3, 2), (Pixel{{1, 2, 3, 9}}));
    f.setBitsRegion(Region::rectangle(1, 0, 4, 3)); // without the first pixel
    EXPECT_TRUE(sameBits(before, f.GLASS("frosted", 0)));
}

TEST(Deform, ACellOfManyWhiteRowsStaysWhite)
{
    const Bits white = flatBits(3, 300, 255, 255, 255);
    EXPECT_TRUE(sameBits(white, filterOf(white).PIXELIZE(300))) << "257 times 255 fills 16 bits";
}

} // namespace
} // namespace velara
