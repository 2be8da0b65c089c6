#include "platform/BackgroundQueue.h"
#include <QCoreApplication>
#include <QEvent>

namespace velara {

struct BackgroundQueue::Task {
    std::function<void(const GoOn&)> work;
    std::function<void()> done; // used by the asking thread only
    std::atomic<bool> wanted = true;
};

BackgroundQueue::Request BackgroundQueue::add(std::function<void(const GoOn&)> work, std::function<void()> done)
{
    auto task = std::make_shared<Task>();
    task->work = std::move(work);
    task->done = std::move(done);
    {
        const std::lock_guard guard(guard_);
        std::erase_if(tasks_, [](const auto& each) { return !each->wanted; });
        tasks_.push_back(task);
    }
    workers_.start([this] { doNewest(); });
    return {task.get(), [task](void*) {
                task->wanted = false;
                task->done = nullptr;
            }};
}

/// There is nothing to do when those that wait were released meanwhile.
void BackgroundQueue::doNewest()
{
    std::shared_ptr<Task> task;
    {
        const std::lock_guard guard(guard_);
        if (ends_ || tasks_.empty()) return;
        task = std::move(tasks_.back());
        tasks_.pop_back();
    }
    if (!task->wanted) return;
    try {
        task->work([&](auto) { return task->wanted && !ends_; });
    } catch (const std::exception& failure) { // the answer comes, without a result
        qWarning("velara-studio: %s", failure.what());
    }
    {
        const std::lock_guard guard(guard_);
        told_.push_back(std::move(task));
    }
    QCoreApplication::postEvent(&answers_, new QEvent(QEvent::User));
}

bool BackgroundQueue::Answers::event(QEvent* event)
{
    if (event->type() != QEvent::User) return QObject::event(event);
    queue_.tellOldest(); // may end the queue
    return true;
}

void BackgroundQueue::tellOldest()
{
    std::shared_ptr<Task> task;
    {
        const std::lock_guard guard(guard_);
        task = std::move(told_.front());
        told_.pop_front();
    }
    if (const std::function<void()> done = task->done) done(); // may release the request
}

} // namespace velara
