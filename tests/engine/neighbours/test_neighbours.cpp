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

} // namespace
} // namespace velara
