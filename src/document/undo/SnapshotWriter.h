// SnapshotWriter: the one thread that writes undo snapshots in the background.
#pragma once
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace velara {

class SnapshotWriter {
  public:
    static SnapshotWriter& instance();

    /// Runs the jobs one after the other, in the order of the calls; before this returns when no thread can be started.
    void add(std::function<void()> job);

  private:
    SnapshotWriter() = default;
    ~SnapshotWriter();
    void work();

    std::mutex guard_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> jobs_;
    bool ends_ = false;
    std::thread thread_; // starts with the first job
};

} // namespace velara
