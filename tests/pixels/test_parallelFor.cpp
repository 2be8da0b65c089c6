// Loops spread over threads: each turn once, reports in order, and the end of a plain loop at the first fault.
#include "pixels/threads/inWaves.h"
#include "pixels/threads/parallelFor.h"
#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <mutex>
#include <numeric>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>

namespace velara {

struct ParallelFor : ::testing::TestWithParam<int> {
    void SetUp() override { setThreadCount(GetParam(), 1); }
    void TearDown() override { setThreadCount(int(std::thread::hardware_concurrency())); }
};

TEST_P(ParallelFor, TakesEachTurnOnceAndReportsInOrderOnTheCallersThread)
{
    for (const int count : {0, 1, 7, 1000}) {
        std::vector<std::atomic<int>> taken(static_cast<std::size_t>(count));
        std::vector<int> told, wanted(taken.size());
        std::iota(wanted.begin(), wanted.end(), 0);
        const auto caller = std::this_thread::get_id();
        parallelFor(
            count, 3, [&](int i) { ++taken[std::size_t(i)]; },
            [&](int i) {
                EXPECT_EQ(taken[std::size_t(i)], 1);
                EXPECT_EQ(std::this_thread::get_id(), caller);
                told.push_back(i);
            });
        EXPECT_EQ(told, wanted);
        for (const auto& times : taken) EXPECT_EQ(times, 1);
    }
}

TEST_P(ParallelFor, EndsAtTheFirstTurnThatThrows)
{
    for (const int together : {1, 16}) {
        std::vector<int> told;
        std::atomic<bool> firstThrows = false, otherBegan = false;
        const bool both = GetParam() > 1 && together == 1; // then another thread is in turn 213, and throws after 211
        const auto turn = [&](int i) {
            if (i != 211 && i != 213 && i < 400) return;
            if (i == 213) otherBegan = true;
            while (both && i == 211 && !otherBegan) std::this_thread::yield();
            if (i == 211) firstThrows = true;
            while (i == 213 && !firstThrows) std::this_thread::yield();
            if (i == 213) std::this_thread::sleep_for(std::chrono::milliseconds(5));
            throw std::runtime_error(std::to_string(i));
        };
        try {
            parallelFor(500, together, turn, [&](int i) { told.push_back(i); });
            FAIL();
        } catch (const std::runtime_error& error) {
            EXPECT_STREQ(error.what(), "211");
        }
        EXPECT_EQ(told.size(), 211);
    }
}

TEST_P(ParallelFor, AReportThatThrowsEndsItWithNobodyInATurn)
{
    std::atomic<int> inside = 0, taken = 0;
    const auto loop = [&] {
        parallelFor(
            100000, 1,
            [&](int) {
                ++inside;
                ++taken;
                std::this_thread::sleep_for(std::chrono::microseconds(10));
                --inside;
            },
            [](int i) {
                if (i == 5) throw std::out_of_range("enough");
            });
    };
    EXPECT_THROW(loop(), std::out_of_range);
    EXPECT_EQ(inside, 0);
    EXPECT_LT(taken, 100000);
}

/// Each place of a row is made of three places of the row above, in a ring of no more rows than may be under way.
TEST_P(ParallelFor, WavesFollowOneAnotherAndKeepToTheirRing)
{
    constexpr int kRows = 300, kColumns = 97;
    const auto made = [&](int ring) {
        std::vector<std::vector<unsigned>> rows(static_cast<std::size_t>(ring), std::vector<unsigned>(kColumns));
        std::vector<int> told;
        const auto row = [&](int y, Wave& wave) {
            const auto& above = rows[std::size_t((y + ring - 1) % ring)];
            auto& here = rows[std::size_t(y % ring)];
            for (int x = 0; x < kColumns; ++x) {
                if (!wave.follow(y, std::min(x + 2, kColumns))) return;
                here[std::size_t(x)] = unsigned(x ^ y) + 3 * above[std::size_t(x)] +
                                       above[std::size_t(std::max(x - 1, 0))] +
                                       5 * above[std::size_t(std::min(x + 1, kColumns - 1))];
                wave.reach(y, x + 1);
            }
        };
        inWaves(kRows, kColumns, row, [&](int y) { told.push_back(y); });
        EXPECT_EQ(told.size(), kRows);
        EXPECT_TRUE(std::ranges::is_sorted(told));
        return rows[(kRows - 1) % std::size_t(ring)];
    };
    EXPECT_EQ(made(GetParam() + 1), made(kRows)); // a row reads the one above
}

TEST_P(ParallelFor, AWaveThatFailsLeavesNobodyWaiting)
{
    const auto wave = [](int failing, int ending) {
        inWaves(
            1000, 1,
            [&](int i, Wave& wave) {
                for (int x = 1; x <= 50; ++x) {
                    if (!wave.follow(i, x)) return;
                    if (i == failing && x == 25) throw std::runtime_error("in a turn");
                    wave.reach(i, x);
                }
            },
            [&](int i) {
                if (i == ending) throw std::out_of_range("enough");
            });
    };
    for (int tries = 0; tries < 20; ++tries) {
        EXPECT_THROW(wave(211, 1000), std::runtime_error);
        EXPECT_THROW(wave(1000, 113), std::out_of_range);
    }
}

INSTANTIATE_TEST_SUITE_P(Threads, ParallelFor, ::testing::Values(1, 2, 3, 8));

// A second thread works, unless there is one only.
TEST(ParallelForThreads, AreUsed)
{
    setThreadCount(2, 1);
    std::mutex guard;
    std::set<std::thread::id> ids;
    const auto turn = [&](int) {
        const std::lock_guard lock(guard);
        ids.insert(std::this_thread::get_id());
    };
    for (int tries = 0; ids.size() < 2 && tries < 100000; ++tries) parallelFor(64, 1, turn);
    EXPECT_EQ(ids.size(), 2);
    setThreadCount(int(std::thread::hardware_concurrency()));
}

} // namespace velara
