#include "pixels/threads/parallelFor.h"
#include "pixels/threads/Workers.h"
#include <algorithm>
#include <atomic>
#include <exception>
#include <limits>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace velara {

namespace {

constexpr int kWorthHelp = 3; // a loop of fewer pieces is over before a helper has woken

std::atomic<int> wanted{0}, pieceOfPixels{kPixelsAPiece}; // 0: all cores

/// One loop. A helper may come late, when the loop has ended: then it touches nothing of the caller's.
class Loop {
  public:
    Loop(int count, int together, const std::function<void(int)>& turn, const std::function<void(int)>& done)
        : count_(count), together_(together), turn_(turn), done_(done),
          ready_(static_cast<std::size_t>((count + together - 1) / together))
    {
    }

    void help()
    {
        {
            const std::lock_guard lock(guard_);
            if (ended_) return;
            ++helpers_;
        }
        while (takePiece()) continue;
        const std::lock_guard lock(guard_);
        if (--helpers_ == 0) left_.notify_all();
    }

    void run()
    {
        try {
            while (takePiece()) tell();
            end();
            tell();
        } catch (...) {
            failedAt_ = 0; // of done: nobody begins another turn
            end();
            throw;
        }
        // Not left here: a late helper may be the last to let go of this.
        if (std::exception_ptr failure = std::exchange(failure_, nullptr)) std::rethrow_exception(std::move(failure));
    }

  private:
    /// False when there is none left to take.
    bool takePiece()
    {
        const int piece = next_.fetch_add(1);
        const std::int64_t first = std::int64_t{piece} * together_;
        const int end = static_cast<int>(std::min<std::int64_t>(first + together_, count_));
        for (std::int64_t i = first; i < end; ++i) {
            if (i >= failedAt_) return false;
            try {
                turn_(static_cast<int>(i));
            } catch (...) {
                noteFailure(static_cast<int>(i));
                break;
            }
        }
        if (first >= count_) return false;
        ready_[static_cast<std::size_t>(piece)].store(true, std::memory_order_release);
        return true;
    }

    void noteFailure(int turn)
    {
        const std::lock_guard lock(guard_);
        if (turn >= failedAt_) return;
        failedAt_ = turn;
        failure_ = std::current_exception();
    }

    /// Of the turns that are done without a gap.
    void tell()
    {
        for (; told_ < std::min<int>(count_, failedAt_); ++told_) {
            if (!ready_[static_cast<std::size_t>(told_ / together_)].load(std::memory_order_acquire)) return;
            if (done_) done_(told_);
        }
    }

    void end()
    {
        std::unique_lock lock(guard_);
        ended_ = true;
        left_.wait(lock, [this] { return helpers_ == 0; });
    }

    const int count_, together_;
    const std::function<void(int)>&turn_, &done_;
    std::vector<std::atomic<bool>> ready_; // by piece
    std::atomic<int> next_{0}, failedAt_{std::numeric_limits<int>::max()};
    int told_ = 0; // the caller's own
    std::mutex guard_;
    std::condition_variable left_;
    std::exception_ptr failure_;
    int helpers_ = 0;
    bool ended_ = false;
};

Workers& helpers()
{
    static Workers workers(kMostThreads);
    return workers;
}

} // namespace

int threadCount()
{
    static const int cores = std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMostThreads);
    const int set = wanted;
    return set > 0 ? set : cores;
}

void setThreadCount(int threads, int pixelsAPiece)
{
    wanted = std::clamp(threads, 1, kMostThreads);
    pieceOfPixels = std::max(pixelsAPiece, 1);
}

int turnsTogether(std::int64_t pixelsATurn)
{
    return static_cast<int>(std::max<std::int64_t>(1, pieceOfPixels / std::max<std::int64_t>(1, pixelsATurn)));
}

void parallelFor(int count, int together, const std::function<void(int)>& turn, const std::function<void(int)>& done)
{
    const int pieces = (count + together - 1) / together, threads = std::min(threadCount(), pieces);
    if (threads < 2 || pieces < kWorthHelp) {
        for (int i = 0; i < count; ++i) {
            turn(i);
            if (done) done(i);
        }
        return;
    }
    const auto loop = std::make_shared<Loop>(count, together, turn, done);
    try {
        for (int i = 1; i < threads; ++i) helpers().start([loop] { loop->help(); });
    } catch (const std::bad_alloc&) { // those that have begun are waited for by run()
    }
    loop->run();
}

} // namespace velara
