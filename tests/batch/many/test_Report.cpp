#include "batch/many/Coordinator.h"
#include "batch/many/Report.h"
#include "batch/many/Tally.h"
#include <gtest/gtest.h>

namespace velara {
namespace {

TEST(Report, NamesOfAnyBytesAreJson)
{
    const QString odd = QString("a\"\\\n\x1b\u00e9\U0001f600") + QChar(0xdce9);
    EXPECT_EQ(R"({"input":"a\"\\\u000a\u001b)"
              "\u00e9\U0001f600"
              R"(\udce9","output":"o","result":"failed","bytes":12,"milliseconds":3.5,"reason":"why"})"
              "\n",
              jsonOf({odd, "o", "failed", 12, 3.46, "why"}));
}

TEST(Coordinator, LargePicturesAreWorkedOnOneAfterTheOther)
{
    constexpr std::int64_t kGiga = std::int64_t{1} << 30, kLarge = 256 << 20, kPhoto = 12'000'000;
    EXPECT_TRUE(fitsBeside(kLarge, 0, kGiga)) << "one is refused by its own steps, if it has to be";
    EXPECT_FALSE(fitsBeside(kLarge, 100, 4 * kGiga));
    EXPECT_TRUE(fitsBeside(kPhoto, 2 * kPhoto, kGiga));
    EXPECT_FALSE(fitsBeside(kPhoto, 3 * kPhoto, kGiga));
}

TEST(Tally, TheLineFitsTheTerminal)
{
    EXPECT_EQ("[############..................] 40 of 100, 2 failed, 2280 a minute, 0:02 left",
              barOf({100, 30, 8, 2}, 0.842105, 80));
    EXPECT_EQ("[#####] 5 of 5, 60 a minute, 0:00 left", barOf({5, 5, 0, 0}, 5, 38));
    EXPECT_EQ("5 of 5, 60", barOf({5, 5, 0, 0}, 5, 10));
    EXPECT_EQ("0 of 9", barOf({9, 0, 0, 0}, 3, 12)) << "nothing is known yet";
    EXPECT_TRUE(barOf({2000, 1000, 0, 0}, 3661, 80).endsWith("1:01:01 left"));
}

TEST(Tally, TheLastWordsNameWhatThereIs)
{
    EXPECT_EQ("40 done, 12 skipped, 2 failed, 46 not begun, in 0:14 (180 a minute)", summaryOf({100, 40, 12, 2}, 14));
    EXPECT_EQ("3 done, in 1:05 (3 a minute)", summaryOf({3, 3, 0, 0}, 65));
    EXPECT_EQ("5 skipped, in 0:00", summaryOf({5, 0, 5, 0}, 0).section(", ", 1));
}

} // namespace
} // namespace velara
