// SnapshotWriter: the one thread that writes undo snapshots while the user goes on.
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

    /// Runs the jobs one after the other, in the order of the calls. Where no thread can be had, before this returns.
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
