#include "platform/BackgroundQueue.h"

namespace velara {

struct BackgroundQueue::Task {
    std::function<void(const GoOn&)> work;
    std::function<void()> done; // used by the asking thread only
    std::atomic<bool> wanted = true;
};

BackgroundQueue::~BackgroundQueue()
{
    {
        const std::lock_guard guard(guard_);
        ends_ = true;
    }
    changed_.notify_all();
    for (std::thread& thread : threads_) thread.join();
}

BackgroundQueue::Request BackgroundQueue::add(std::function<void(const GoOn&)> work, std::function<void()> done)
{
    auto task = std::make_shared<Task>();
    task->work = std::move(work);
    task->done = std::move(done);
    {
        const std::lock_guard guard(guard_);
        std::erase_if(tasks_, [](const auto& each) { return !each->wanted; });
        tasks_.push_back(task);
        if (threads_.size() < most_) threads_.emplace_back(&BackgroundQueue::run, this);
    }
    changed_.notify_one();
    return {task.get(), [task](void*) {
                task->wanted = false;
                task->done = nullptr;
            }};
}

void BackgroundQueue::run()
{
    for (;;) {
        std::shared_ptr<Task> task;
        {
            std::unique_lock guard(guard_);
            changed_.wait(guard, [this] { return ends_ || !tasks_.empty(); });
            if (ends_) return;
            task = std::move(tasks_.back());
            tasks_.pop_back();
        }
        if (!task->wanted) continue;
        try {
            task->work([&](auto) { return task->wanted && !ends_; });
        } catch (const std::exception& failure) { // the answer comes, without a result
            qWarning("velara-studio: %s", failure.what());
        }
        const auto tell = [task] {
            if (const std::function<void()> done = task->done) done(); // may release the request
        };
        QMetaObject::invokeMethod(&answers_, tell, Qt::QueuedConnection);
    }
}

} // namespace velara
