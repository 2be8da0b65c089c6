// Blocks: how long the window's thread goes without looking at its events. The time that it waits for a processor while
// others have them all is not counted: a loaded machine makes no block.
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

    /// Of the calling thread. Where there is no beat for so long the process ends itself: it hangs.
    explicit Blocks(Milliseconds patience);
    ~Blocks();
    Blocks(const Blocks&) = delete;

    /// The thread looks at its events; since the last beat it did this.
    void beat(const QString& doing);
    /// What the thread does from here to next() is the monkey's own.
    void next();
    Milliseconds longest() const { return longest_; }
    /// Those above half a second: the longest of each doing.
    const std::map<QString, Milliseconds>& noted() const { return noted_; }

  private:
    void watch(Milliseconds patience);
    Milliseconds now() const;

    const int schedule_; // the system's account of the thread
    std::atomic<Milliseconds> last_;
    std::atomic<bool> over_ = false;
    Milliseconds longest_{0};
    std::map<QString, Milliseconds> noted_;
    std::thread watcher_;
};

} // namespace velara::monkey
