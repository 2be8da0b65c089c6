// Masks that can't be read, and the division of neighbourhood filters.
#include "engine/ShortDivider.h"
#include "support/filterOf.h"
#include "support/pictures.h"

namespace velara {
namespace {

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
