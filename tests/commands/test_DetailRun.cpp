// The filter on the whole picture in a thread beside that of the windows.
#include "commands/DetailRun.h"
#include "pixels/RuntimeError.h"
#include "support/filterOf.h"
#include "support/pictures.h"
#include <chrono>

namespace velara {

struct DetailRunTest : ::testing::Test {
    const FilterRow& row = *findFilterRow("BRIGHTNESS");
    const Bits picture = randomBits(300, 200, 4);
    const Region selection = Region::ellipse(10, 20, 200, 180);
    std::mutex guard;
    std::condition_variable came;
    std::vector<Bits> results;

    std::function<void(const Bits&)> keep()
    {
        return [this](const Bits& result) {
            const std::lock_guard lock(guard);
            results.push_back(result);
            came.notify_one();
        };
    }
    DetailRun::Filter brightness() const
    {
        return [this](cBitFilter& filter, const FilterArgs& args) { return row.call(filter, args); };
    }
    static FilterArgs level(int value) { return {.value = {value}}; }
    Bits wanted(int value) const
    {
        cBitFilter filter = filterOf(picture, selection);
        return row.call(filter, level(value));
    }
    bool lastIs(const Bits& bits)
    {
        std::unique_lock lock(guard);
        return came.wait_for(lock, std::chrono::seconds(10),
                             [&] { return !results.empty() && sameBits(bits, results.back()); });
    }
};

TEST_F(DetailRunTest, TheLastArgumentsAreAlwaysRunAndFewOfThoseBetween)
{
    DetailRun run(brightness(), picture, selection, keep());
    for (int value = 1; value <= 200; ++value) run.start(level(value));
    EXPECT_TRUE(lastIs(wanted(200)));
    EXPECT_LT(results.size(), 100U);
    run.stop(); // doesn't prevent a later start
    run.start(level(-30));
    EXPECT_TRUE(lastIs(wanted(-30)));
}

TEST_F(DetailRunTest, AFailureSaysNothingAndTheNextRunWorks)
{
    const auto sometimes = [](cBitFilter& filter, const FilterArgs& args) {
        if (args.value[0] == 0) throw RuntimeError(Fault::Overflow);
        return filter.BRIGHTNESS(args.value[0]);
    };
    DetailRun run(sometimes, picture, selection, keep());
    run.start(level(0));
    run.start(level(7));
    EXPECT_TRUE(lastIs(wanted(7)));
}

TEST_F(DetailRunTest, StoppingEndsARunThatWorksAndTheRestIsSilence)
{
    static std::atomic<bool> works, ended;
    works = ended = false;
    const auto endless = [](cBitFilter& filter, const FilterArgs&) -> Bits {
        works = true;
        try {
            for (;;) filter.Progress(1);
        } catch (...) {
            ended = true;
            throw;
        }
    };
    {
        DetailRun run(endless, picture, selection, keep());
        run.start({});
        while (!works) std::this_thread::yield();
    } // waits for the thread
    EXPECT_TRUE(ended);
    EXPECT_TRUE(results.empty());
}

} // namespace velara
