// Workers: threads that do what they are given, first come, first begun. Both ends of a piece of work go by a lock, so
// that each side sees what the other has written.
#pragma once
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace velara {

class Workers {
  public:
    /// So many threads at most; each starts when there is work for it.
    explicit Workers(std::size_t threads = 1) : most_(threads) {}
    /// Waits until all is done.
    ~Workers() { finish(); }
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;

    /// work must not throw. Where no thread can be had it is done before this returns.
    void start(std::function<void()> work);
    /// Waits until all is done, and ends the threads.
    void finish();

  private:
    void run();

    const std::size_t most_;
    std::mutex guard_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> waiting_;
    std::size_t idle_ = 0;
    bool ends_ = false;
    std::vector<std::thread> threads_;
};

} // namespace velara
