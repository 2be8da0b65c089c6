#include "document/undo/SnapshotWriter.h"
#include <system_error>

namespace velara {

SnapshotWriter& SnapshotWriter::instance()
{
    static SnapshotWriter writer;
    return writer;
}

SnapshotWriter::~SnapshotWriter()
{
    {
        const std::lock_guard lock(guard_);
        ends_ = true;
    }
    changed_.notify_one();
    if (thread_.joinable()) thread_.join();
}

void SnapshotWriter::add(std::function<void()> job)
{
    if (!thread_.joinable()) {
        try {
            thread_ = std::thread(&SnapshotWriter::work, this);
        } catch (const std::system_error&) {
            return job();
        }
    }
    {
        const std::lock_guard lock(guard_);
        jobs_.push_back(std::move(job));
    }
    changed_.notify_one();
}

void SnapshotWriter::work()
{
    std::unique_lock lock(guard_);
    for (;;) {
        changed_.wait(lock, [this] { return ends_ || !jobs_.empty(); });
        if (jobs_.empty()) return;
        const std::function<void()> job = std::move(jobs_.front());
        jobs_.pop_front();
        lock.unlock();
        job();
        lock.lock();
    }
}

} // namespace velara
