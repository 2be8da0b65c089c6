// Neighbourhood filters: values worked out by hand, and arguments beyond the dialogs.
#include "engine/ShortDivider.h"
#include "pixels/RuntimeError.h"
#include "support/filterOf.h"
#include "support/pictures.h"
#include <cmath>

namespace velara {
namespace {

/// 10 20 30 / 40 55 60 / 70 80 200 in every channel, the fourth byte 7.
Bits nineValues()
{
    static constexpr int values[3][3] = {{10, 20, 30}, {40, 55, 60}, {70, 80, 200}};
    Bits bits(3, 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 3; ++x) {
            const auto v = static_cast<std::uint8_t>(values[y][x]);
            bits.at(x, y) = {{v, v, v, 7}};
        }
    return bits;
}

TEST(Neighbours, TheCentreOfNineValues)
{
    const std::string cross = "0 1 0/1 4 1/0 1 0", above = "0 1 0/0 0 0/0 0 0", right = "0 0 0/0 0 1/0 0 0";
    const struct {
        std::string_view operation;
        Arguments arguments;
        Pixel wanted;
    } rows[] = {
        {"SHARPEN", {8}, {{53, 53, 53, 7}}},     // (55*116 - 2*510) \ 100
        {"SOFTEN", {100}, {{51, 51, 51, 7}}},    // (55 + 200) \ 5
        {"EDGEENHANCE", {9}, {{48, 48, 48, 7}}}, // (55*18 - 510) \ 10
        {"Blurs", {1}, {{63, 63, 63, 7}}},       // 510 \ 8
        {"Blurs", {0}, {{55, 55, 55, 7}}},
        {"DILATE", {}, {{200, 200, 200, 7}}},
        {"ERODE", {}, {{10, 10, 10, 7}}},
        {"RankFilterN4", {0}, {{20, 20, 20, 7}}},
        {"RankFilterN4", {1}, {{80, 80, 80, 7}}},
        {"RankFilterND", {0}, {{10, 10, 10, 7}}},
        {"RankFilterND", {1}, {{200, 200, 200, 7}}},
        {"RankFilterND", {-1}, {{55, 55, 55, 7}}},          // a margin of 2: nothing is left
        {"CONTOUR", {186, 0x010203}, {{185, 185, 185, 7}}}, // 8*55 - 510 + 255
        {"CONTOUR", {185, 0x010203}, {{1, 2, 3, 7}}},
        {"CONTOUR", {0, 0x010203}, {{1, 2, 3, 7}}},
        {"EMBOSS", {10}, {{17, 17, 17, 7}}}, // abs(55 - 200 + 128)
        {"ENGRAVE", {10}, {{255, 255, 255, 7}}},
        {"EMBOSS", {5}, {{56, 56, 56, 7}}}, // 55.5: to the even neighbour
        {"EMBOSS", {0}, {{128, 128, 128, 7}}},
        {"MaskFilter", {cross, 8.0, 1, 2, 3, false}, {{55, 54, 53, 7}}},
        {"MaskFilter", {above, 1.0, 0, 0, 0, false}, {{20, 20, 20, 7}}},
        {"MaskFilter", {right, 2.5, 0, 0, 0, true}, {{30, 30, 30, 7}}}, // the divisor becomes 2
        {"SKETCH", {184, true, 0}, {{255, 255, 255, 7}}},               // (3*(8*55 - 510) + 765) \ 3 = 185
        {"SKETCH", {185, true, 0}, {{0, 0, 0, 7}}},
        {"SKETCH", {184, false, 0x010203}, {{1, 2, 3, 7}}},
        {"SKETCH", {185, false, 0x010203}, {{55, 55, 55, 7}}},
    };
    for (const auto& r : rows) {
        const Bits out = run(r.operation, r.arguments, nineValues(), Region::rectangle(0, 0, 3, 3));
        EXPECT_EQ(out.at(1, 1), r.wanted) << r.operation;
    }
}

TEST(Neighbours, ReliefLeavesBlueAndChangesTheFourthByte)
{
    Bits bits = flatBits(5, 5, 10, 100, 201, 60);
    bits.at(2, 2).c[1] = 90;
    const Bits out = run("RELIEF", {}, bits, Region::rectangle(2, 1, 4, 3));
    EXPECT_EQ(out.at(3, 1), (Pixel{{10, 100, 150, 80}})); // flat but for the dark pixel to the lower left: weight 0
    EXPECT_EQ(out.at(2, 2), (Pixel{{10, 95, 150, 80}}));
    EXPECT_EQ(out.at(1, 1), bits.at(1, 1));
}

TEST(Neighbours, TheLastColumnAndRowOfAnEmbossRepeatTheResult)
{
    const Bits bits = randomBits(6, 5, 3);
    const Bits all = run("EMBOSS", {20}, bits, Region::rectangle(0, 0, 6, 5));
    const auto three = [](Pixel p) { return std::array{p.c[0], p.c[1], p.c[2]}; };
    for (int y = 0; y < 5; ++y) EXPECT_EQ(three(all.at(5, y)), three(all.at(4, y))) << y;
    for (int x = 0; x < 5; ++x) EXPECT_EQ(three(all.at(x, 4)), three(all.at(x, 3))) << x;
    const Bits corner = run("EMBOSS", {20}, bits, Region::rectangle(5, 4, 6, 5)); // the neighbour is not selected
    EXPECT_EQ(three(corner.at(5, 4)), three(bits.at(4, 4)));
}

TEST(Neighbours, MarginsAndZeroRangesLeavePixelsAlone)
{
    const Bits bits = randomBits(20, 10, 5);
    const struct {
        std::string_view operation;
        Arguments arguments;
        Region region;
    } rows[] = {
        {"SHARPEN", {50}, Region::rectangle(3, 0, 5, 10)}, // two columns wide, and a margin of one
        {"SOFTEN", {50}, Region::rectangle(0, 4, 20, 6)},
        {"RankFilterN4", {0}, Region::rectangle(3, 0, 4, 10)},
        {"DIFFUSE", {0, 0}, Region::ellipse(0, 0, 20, 10)},
        {"PIXELIZE", {1}, Region::ellipse(0, 0, 20, 10)},
        {"MaskFilter", {std::string("1 1 1/1 1 1/1 1 1"), 9.0, 0, 0, 0, true}, Region::rectangle(0, 0, 1, 10)},
    };
    for (const auto& r : rows)
        EXPECT_TRUE(sameBits(bits, run(r.operation, r.arguments, bits, r.region))) << r.operation;
}

TEST(Neighbours, DiffuseAsksTheRegionWhereAPixelComesFrom)
{
    Bits bits = flatBits(60, 60, 0, 0, 0);
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 60; ++x) bits.at(x, y).c[1] = static_cast<std::uint8_t>(x < 30 ? 200 : 10);
    // Two parts of one region: the gap between them lies in its box and can change.
    const Region parts = Region::rectangle(0, 0, 20, 60).combined(Region::rectangle(25, 0, 29, 60), Combine::Or);
    cBitFilter filter;
    filter.setBits(bits);
    filter.setBitsRegion(parts.combined(Region::rectangle(40, 0, 45, 60), Combine::Or));
    const Bits first = filter.DIFFUSE(50, 0), second = filter.DIFFUSE(50, 0);
    EXPECT_FALSE(sameBits(first, second)); // new numbers for each run
    filter.setRandomSeed(cBitFilter::kRandomSeed);
    EXPECT_TRUE(sameBits(first, filter.DIFFUSE(50, 0)));
    int darkened = 0, lit = 0, outside = 0;
    for (int y = 0; y < 60; ++y) {
        for (int x = 20; x < 25; ++x) darkened += first.at(x, y).c[1] == 10;
        for (int x = 30; x < 40; ++x) lit += first.at(x, y).c[1] == 200;
        for (int x = 45; x < 60; ++x) outside += first.at(x, y).c[1] != 10;
    }
    EXPECT_GT(darkened, 0);
    EXPECT_GT(lit, 0);
    EXPECT_EQ(outside, 0);
}

TEST(Neighbours, DivisionsByZeroComeWithTheFirstPixelAlone)
{
    const Bits bits = randomBits(5, 5, 1);
    const std::pair<std::string_view, Arguments> rows[] = {
        {"SHARPEN", {108}}, {"EDGEENHANCE", {-1}}, {"SOFTEN", {105}},
        {"PIXELIZE", {0}},  {"StuckiBW", {0}},     {"MaskFilter", {std::string("1"), 0.0, 0, 0, 0, false}}};
    for (const auto& [name, arguments] : rows) {
        EXPECT_THROW(run(name, arguments, bits, Region::rectangle(0, 0, 5, 5)), RuntimeError) << name;
        EXPECT_TRUE(sameBits(bits, run(name, arguments, bits, Region()))) << name;
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

} // namespace
} // namespace velara
