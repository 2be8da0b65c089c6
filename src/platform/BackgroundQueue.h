// BackgroundQueue: threads for slow work; the last request is served first.
#pragma once
#include "pixels/threads/Workers.h"
#include "seams/GoOn.h"
#include <QObject>
#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace velara {

class BackgroundQueue {
  public:
    /// Runs in a thread of the queue; should end soon after goOn returns false. Where it throws the answer is a default
    /// Result.
    template <class Result> using Work = std::function<Result(const GoOn& goOn)>;
    /// Releasing it cancels the work: no answer comes then.
    using Request = std::shared_ptr<void>;

    /// threads: pieces of work done at the same time, at least one.
    explicit BackgroundQueue(std::size_t threads = 1) : workers_(threads) {}
    /// Cancels work under way.
    ~BackgroundQueue() { ends_ = true; }
    BackgroundQueue(const BackgroundQueue&) = delete;
    BackgroundQueue& operator=(const BackgroundQueue&) = delete;

    /// done is called in the thread that made the queue, never during this call.
    Request add(std::function<void(const GoOn&)> work, std::function<void()> done);
    template <class Result> Request add(Work<Result> work, std::function<void(const Result&)> done)
    {
        auto result = std::make_shared<Result>();
        return add([work = std::move(work), result](const GoOn& goOn) { *result = work(goOn); },
                   [done = std::move(done), result] { done(*result); });
    }

  private:
    struct Task;
    /// Lives in the thread that made the queue; each event delivers one answer.
    struct Answers final : QObject {
        explicit Answers(BackgroundQueue& queue) : queue_(queue) {}
        bool event(QEvent* event) override;
        BackgroundQueue& queue_;
    };
    void doNewest();
    void tellOldest();

    Answers answers_{*this};
    std::mutex guard_;                         // also what the work has written goes over by it
    std::vector<std::shared_ptr<Task>> tasks_; // that wait
    std::deque<std::shared_ptr<Task>> told_;   // done, to be told
    std::atomic<bool> ends_ = false;
    Workers workers_;
};

} // namespace velara
