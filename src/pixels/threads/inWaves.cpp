#include "pixels/threads/inWaves.h"
#include "pixels/threads/parallelFor.h"
#include <limits>

namespace velara {

bool Wave::follow(int turn, int column) const
{
    if (turn == 0) return !failed_;
    const std::atomic<int>& before = reached_[static_cast<std::size_t>(turn - 1)];
    for (;;) {
        const int there = before;
        if (failed_) return false;
        if (there >= column) return true;
        before.wait(there);
    }
}

void Wave::reach(int turn, int column)
{
    std::atomic<int>& reached = reached_[static_cast<std::size_t>(turn)];
    reached = column;
    reached.notify_all();
}

void Wave::fail()
{
    failed_ = true;
    for (int i = 0; i < static_cast<int>(reached_.size()); ++i) reach(i, std::numeric_limits<int>::max());
}

void inWaves(int count, std::int64_t pixelsATurn, const std::function<void(int, Wave&)>& turn,
             const std::function<void(int)>& done)
{
    Wave wave(count);
    const auto failing = [&](auto&& call) {
        try {
            call();
        } catch (...) {
            wave.fail(); // before the loop knows: from then on it leaves turns out, which others may be waiting for
            throw;
        }
    };
    const bool few = turnsTogether(pixelsATurn) >= count;
    parallelFor(
        count, few ? std::max(count, 1) : 1,
        [&](int i) {
            failing([&] { turn(i, wave); });
            wave.reach(i, std::numeric_limits<int>::max());
        },
        [&](int i) {
            failing([&] {
                if (done) done(i);
            });
        });
}

} // namespace velara
