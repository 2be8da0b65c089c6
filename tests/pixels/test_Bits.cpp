#include "pixels/Bits.h"
#include "pixels/numbers.h"
#include "support/faults.h"
#include "support/pictures.h"

namespace velara {
namespace {

TEST(Bits, LayoutIsATopDownBitmapWithAMarginOfTwo)
{
    Bits bits(3, 2);
    ASSERT_EQ(bits.sizeInBytes(), 4u * 7 * 6);
    bits.at(0, 0) = {{1, 2, 3, 4}};
    bits.at(-2, -2) = {{5, 6, 7, 8}};
    bits.at(4, 3) = {{9, 10, 11, 12}};
    const Bits& read = bits;
    EXPECT_EQ(read.data()[(2 * 7 + 2) * 4 + 2], 3);
    EXPECT_EQ(read.data()[0], 5);
    EXPECT_EQ(read.data()[bits.sizeInBytes() - 1], 12);
}

TEST(Bits, CopiesShareUntilOneIsWritten)
{
    Bits a = randomBits(300, 300, 1); // large enough for a pooled block
    Bits b = a;
    EXPECT_TRUE(a.sharesWith(b));
    b.at(301, 301).c[3] ^= 1; // the last byte of the margin counts, too
    EXPECT_FALSE(a.sharesWith(b));
    EXPECT_FALSE(a == b);
    b.at(301, 301).c[3] ^= 1;
    EXPECT_TRUE(a == b);
}

TEST(Bits, ANewBufferIsZeroEvenInARecycledBlock)
{
    randomBits(600, 500, 2);
    const Bits fresh(600, 500);
    for (std::size_t i = 0; i < fresh.sizeInBytes(); ++i) ASSERT_EQ(fresh.data()[i], 0) << i;
}

TEST(Bits, SizesBelowOneAreEmpty)
{
    EXPECT_TRUE(Bits(0, 5).isNull());
    EXPECT_TRUE(Bits(5, -1).isNull());
}

TEST(Numbers, HalvesGoToTheEvenNeighbour)
{
    constexpr std::pair<double, int> kCases[] = {{2.5, 2}, {3.5, 4}, {-2.5, -2},     {-3.5, -4},
                                                 {0.5, 0}, {1.5, 2}, {2.4999999, 2}, {2147483647.4, 2147483647}};
    for (const auto& [v, wanted] : kCases) EXPECT_EQ(roundEven(v), wanted) << v;
    EXPECT_EQ(toByte(254.5), 254);
    EXPECT_EQ(toByte(255.5 - 1e-9), 255);
    EXPECT_EQ(toByte(-0.5), 0);
}

TEST(Numbers, FaultsAreTyped)
{
    EXPECT_EQ(faultOf([] { toByte(255.5); }), Fault::Overflow); // rounds to 256
    EXPECT_EQ(faultOf([] { toByte(-0.6); }), Fault::Overflow);
    EXPECT_EQ(faultOf([] { roundEven(2147483647.5); }), Fault::Overflow);
    EXPECT_EQ(faultOf([] { roundEven(std::nan("")); }), Fault::Overflow);
    EXPECT_EQ(faultOf([] { divide(1, 0); }), Fault::DivisionByZero);
    EXPECT_EQ(divide(-7, 2), -3);
}

} // namespace
} // namespace velara
