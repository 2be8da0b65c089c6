// Blocks: measures how long the window's thread doesn't process events. Time spent waiting for a processor is not
// counted: a loaded machine doesn't count as blocking.
#pragma once
#include <QString>
#include <atomic>
#include <chrono>
#include <map>
#include <thread>

namespace velara::monkey {

class Blocks {
  public:
    using Milliseconds = std::chrono::milliseconds;

    /// For the calling thread. Without a beat for `patience` the process ends itself: it hangs.
    explicit Blocks(Milliseconds patience);
    ~Blocks();
    Blocks(const Blocks&) = delete;

    /// Call when the thread processes events; doing is what it did since the last beat.
    void beat(const QString& doing);
    /// Excludes the monkey's own work from the last beat() to here.
    void next();
    Milliseconds longest() const { return longest_; }
    /// Those above half a second: the longest per `doing`.
    const std::map<QString, Milliseconds>& noted() const { return noted_; }

  private:
    void watch(Milliseconds patience);
    Milliseconds now() const;

    const int schedule_; // the kernel's scheduling statistics of the thread
    std::atomic<Milliseconds> last_;
    std::atomic<bool> over_ = false;
    Milliseconds longest_{0};
    std::map<QString, Milliseconds> noted_;
    std::thread watcher_;
};

} // namespace velara::monkey
