#include "pixels/threads/Workers.h"
#include <system_error>

namespace velara {

void Workers::start(std::function<void()> work)
{
    std::unique_lock lock(guard_);
    waiting_.push_back(std::move(work));
    if (waiting_.size() > idle_ && threads_.size() < most_) {
        try {
            threads_.emplace_back(&Workers::run, this);
        } catch (const std::system_error&) {
            if (!threads_.empty()) return;
            work = std::move(waiting_.back());
            waiting_.pop_back();
            lock.unlock();
            return work();
        }
    }
    changed_.notify_one();
}

void Workers::run()
{
    std::unique_lock lock(guard_);
    for (;;) {
        ++idle_;
        changed_.wait(lock, [this] { return ends_ || !waiting_.empty(); });
        --idle_;
        if (waiting_.empty()) return;
        std::function<void()> work = std::move(waiting_.front());
        waiting_.pop_front();
        lock.unlock();
        work();
        work = nullptr; // what it holds goes before the next begins
        lock.lock();
    }
}

void Workers::finish()
{
    {
        const std::lock_guard lock(guard_);
        ends_ = true;
    }
    changed_.notify_all();
    for (std::thread& thread : threads_) thread.join();
    const std::lock_guard lock(guard_);
    threads_.clear();
    ends_ = false;
}

} // namespace velara
