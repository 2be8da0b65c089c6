#include "pixels/random.h"
#include <gtest/gtest.h>
#include <set>

namespace velara {
namespace {

TEST(Random, ValuesFillTheUnitIntervalEvenly)
{
    const Random random(7);
    constexpr int kDraws = 1 << 20, kBins = 64;
    int bins[kBins] = {};
    double neighbours = 0, last = 0.5;
    for (std::uint32_t i = 0; i < kDraws; ++i) {
        const float v = random.single(i);
        ASSERT_TRUE(v >= 0 && v < 1) << i;
        ++bins[static_cast<int>(v * kBins)];
        neighbours += (v - 0.5) * (last - 0.5);
        last = v;
    }
    EXPECT_NEAR(neighbours / kDraws, 0, 0.0005); // no correlation between successive values
    for (const int n : bins) EXPECT_NEAR(n, kDraws / kBins, 5 * 128);
}

TEST(Random, SeedsGiveUnrelatedSequences)
{
    std::set<std::uint32_t> firsts;
    for (std::uint64_t seed = 0; seed < 1000; ++seed) firsts.insert(Random(seed).bits(0) ^ Random(seed << 32).bits(1));
    EXPECT_GT(firsts.size(), 990u);
}

} // namespace
} // namespace velara
