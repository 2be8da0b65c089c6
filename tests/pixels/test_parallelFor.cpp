// Loops spread over threads: each turn once, reports in order, and the end of a plain loop at the first fault.
#include "pixels/threads/parallelFor.h"
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
