// BackgroundQueue: one thread that reads previews, the one asked for last first.
#pragma once
#include "fileio/load/PictureLoader.h"
#include "seams/Previews.h"
#include <QObject>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace velara {

class BackgroundQueue {
  public:
    /// Runs in the thread; is to end soon once goOn says no.
    using Work = std::function<Preview(const GoOn& goOn)>;

    BackgroundQueue() = default;
    /// Gives up what is under way.
    ~BackgroundQueue();
    BackgroundQueue(const BackgroundQueue&) = delete;
    BackgroundQueue& operator=(const BackgroundQueue&) = delete;

    Previews::Request add(Work work, Previews::Done done);

  private:
    struct Task;
    void run();

    QObject answers_; // they come in the thread that made this
    std::mutex guard_;
    std::condition_variable changed_;
    std::vector<std::shared_ptr<Task>> tasks_;
    std::atomic<bool> ends_ = false;
    std::thread thread_;
};

} // namespace velara
