// Neighbourhood filters: values computed by hand, masks that can't be parsed, the division.
#include "engine/ShortDivider.h"
#include "support/filterOf.h"
#include "support/pictures.h"

namespace velara {
namespace {

/// 10 20 30 / 40 55 60 / 70 80 200 in every channel, the fourth byte 7.
Bits nineValues()
{
    static constexpr int values[3][3] = {{10, 20, 30}, {40, 55, 60}, {70, 80, 200}};
    return drawnBits(3, 3, [](int x, int y) {
        const auto v = static_cast<std::uint8_t>(values[y][x]);
        return Pixel{{v, v, v, 7}};
    });
}

TEST(Neighbours, TheCentreOfNineValues)
{
    const std::string cross = "0 1 0/1 4 1/0 1 0", above = "0 1 0/0 0 0/0 0 0", right = "0 0 0/0 0 1/0 0 0";
    const std::tuple<std::string_view, Arguments, Pixel> rows[] = {
        {"SHARPEN", {8}, {{53, 53, 53, 7}}},                // (55*116 - 2*510) \ 100
        {"EDGEENHANCE", {9}, {{48, 48, 48, 7}}},            // (55*18 - 510) \ 10
        {"RankFilterND", {-1}, {{55, 55, 55, 7}}},          // a margin of 2: nothing is left
        {"CONTOUR", {186, 0x010203}, {{185, 185, 185, 7}}}, // 8*55 - 510 + 255
        {"CONTOUR", {185, 0x010203}, {{1, 2, 3, 7}}},
        {"EMBOSS", {5}, {{56, 56, 56, 7}}}, // 55.5: half to even
        {"MaskFilter", {cross, 8.0, 1, 2, 3, false}, {{55, 54, 53, 7}}},
        {"MaskFilter", {above, 1.0, 0, 0, 0, false}, {{20, 20, 20, 7}}},
        {"MaskFilter", {right, 2.5, 0, 0, 0, true}, {{30, 30, 30, 7}}}, // the divisor becomes 2
        {"SKETCH", {184, false, 0x010203}, {{1, 2, 3, 7}}},
        {"SKETCH", {185, false, 0x010203}, {{55, 55, 55, 7}}},
    };
    for (const auto& [operation, arguments, wanted] : rows) {
        const Bits out = run(operation, arguments, nineValues(), Region::rectangle(0, 0, 3, 3));
        EXPECT_EQ(out.at(1, 1), wanted) << operation;
    }
}

TEST(Neighbours, UnreadableMasksAreNamed)
{
    for (const char* text : {"", "1 2/3", "1 2 3", "one", "1 2/3 4x", "1/2", "99999999999"})
        EXPECT_THROW(run("MaskFilter", {std::string(text), 1.0, 0, 0, 0, false}, randomBits(3, 3, 1), Region()),
                     std::invalid_argument)
            << text;
}

TEST(ShortDivider, IsTheFloorOfTheQuotient)
{
    for (int divisor = 1; divisor <= ShortDivider::kGreatest + 1; ++divisor) {
        const ShortDivider divided(divisor);
        for (int n = -ShortDivider::kMostBelow; n <= ShortDivider::kMostBelow; ++n) {
            const int floor = n / divisor - (n % divisor < 0);
            ASSERT_EQ(divided(n), floor) << n << " / " << divisor;
        }
    }
    EXPECT_EQ(ShortDivider(INT64_MAX)(-1), -1);
}

// Masks whose sums just fit into 16 bits, and those that don't: of a flat picture, the quotient toward zero.
TEST(Neighbours, MasksAtTheLimitOfShortSums)
{
    const struct {
        int factor; // of each of two pixels
        double divisor;
        int added, wanted;
    } rows[] = {{64, 128, 0, 255},  {64, 129, 0, 253},    {64, 32640, 7, 8},   {64, 32641, 7, 7},
                {64, 40000, 7, 7},  {64, 1, -32000, 255}, {-64, 128, 300, 45}, {-64, -129, 0, 253},
                {65, 130, 0, 255},  {64, 1, -32640, 0},   {64, 1, -32639, 1},  {-64, 1, 32641, 1},
                {-64, 129, 255, 2}, {100, 200, -255, 0},  {-64, 32640, 8, 7},  {64, -1, 32767, 127}};
    for (const auto& [factor, divisor, added, wanted] : rows) {
        const std::string half = "0 " + std::to_string(factor), mask = half + " 0/0 0 0/" + half + " 0";
        const Bits out = run("MaskFilter", {mask, divisor, added, added, added, false}, flatBits(40, 3, 255, 255, 255),
                             Region::rectangle(0, 0, 40, 3));
        for (const int x : {0, 21, 39})
            EXPECT_EQ(out.at(x, 1).c[1], wanted) << factor << ' ' << divisor << ' ' << added;
    }
}

// Two parts far from each other: blocks of pixels between them have no source, those beside them few.
TEST(Neighbours, DiffuseTakesFromTheSelectionAlone)
{
    const Bits bits = drawnBits(620, 210, [](int x, int y) {
        const int place = x + 620 * y;
        return Pixel{{std::uint8_t(place), std::uint8_t(place >> 8), std::uint8_t(place >> 16), 0}};
    });
    const Region all = Region::rectangle(3, 2, 600, 208),
                 parts = Region::rectangle(3, 2, 140, 40).combined(Region::rectangle(390, 150, 600, 208), Combine::Or);
    for (const Arguments& ranges : {Arguments{9, 21}, Arguments{-30, 5}, Arguments{127, 127}}) {
        const Bits free = run("DIFFUSE", ranges, bits, all), kept = run("DIFFUSE", ranges, bits, parts);
        int moved = 0;
        for (int y = 0; y < bits.height(); ++y)
            for (int x = 0; x < bits.width(); ++x) {
                const Pixel source = free.at(x, y); // its colour is its place
                const int place = source.c[0] | source.c[1] << 8 | source.c[2] << 16;
                const bool isSelected = parts.contains(place % 620, place / 620);
                ASSERT_EQ(isSelected ? source : bits.at(x, y), kept.at(x, y)) << x << ',' << y;
                moved += isSelected && place != x + 620 * y;
            }
        EXPECT_GT(moved, 5000);
    }
}

} // namespace
} // namespace velara
