// Talks: questions to a library that may hang for as long as it likes, each in a thread of its own. The answer comes in
// the asking thread within the patience, whatever the library does; a thread that hangs is left to end by itself.
#pragma once
#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

namespace velara {

/// How long an answer is waited for; for any thread.
class Patience {
  public:
    explicit Patience(std::chrono::milliseconds most) { startAnew(most); }
    void startAnew(std::chrono::milliseconds most) { end_ = Clock::now() + most; }
    void giveUp() { wanted_ = false; }
    bool lasts() const { return wanted_ && Clock::now() < end_.load(); }

  private:
    using Clock = std::chrono::steady_clock;
    std::atomic<Clock::time_point> end_;
    std::atomic<bool> wanted_ = true;
};

class Talks {
  public:
    using Request = std::shared_ptr<void>;
    /// Runs in the thread, and is to end soon once the patience doesn't last.
    template <class Result> using Work = std::function<Result(Patience&)>;

    Talks();
    /// Gives those that are under way a second to end.
    ~Talks();
    Talks(const Talks&) = delete;
    Talks& operator=(const Talks&) = delete;

    /// done comes from the message loop, with what the work gave or, when the patience is over, with otherwise. Whoever
    /// lets go of the request gives the work up: no answer comes then.
    template <class Result>
    [[nodiscard]] Request ask(Work<Result> work, const Result& otherwise, std::chrono::milliseconds patience,
                              std::function<void(const Result&)> done)
    {
        struct Shared {
            Result result;
            std::atomic<bool> ready = false;
        };
        const auto most = std::make_shared<Patience>(patience);
        const auto shared = std::make_shared<Shared>();
        start(most, [=] {
            shared->result = work(*most);
            shared->ready = true;
        });
        return poll(most, [=] {
            const bool ready = shared->ready;
            if (ready || !most->lasts()) return std::function([=] { done(ready ? shared->result : otherwise); });
            return std::function<void()>();
        });
    }

  private:
    struct Open;
    void start(const std::shared_ptr<Patience>& patience, std::function<void()> work);
    /// Asks again and again until there is an answer to give.
    static Request poll(const std::shared_ptr<Patience>& patience, std::function<std::function<void()>()> answer);

    std::shared_ptr<Open> open_; // a thread may outlive this object
};

} // namespace velara
