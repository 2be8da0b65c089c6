// Talks: calls to a library that may hang, each in a thread of its own. The answer arrives in the asking thread within
// the time limit (Patience), whatever the library does; a thread that hangs is left to end by itself.
#pragma once
#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

namespace velara {

/// The time limit of an answer; thread-safe.
class Patience {
  public:
    /// Within another one it ends with that at the latest.
    explicit Patience(std::chrono::milliseconds most, const Patience* within = nullptr) : within_(within)
    {
        startAnew(most);
    }
    void startAnew(std::chrono::milliseconds most) { end_ = Clock::now() + most; }
    void giveUp() { wanted_ = false; }
    bool lasts() const { return wanted_ && Clock::now() < end_.load() && (!within_ || within_->lasts()); }

  private:
    using Clock = std::chrono::steady_clock;
    std::atomic<Clock::time_point> end_;
    std::atomic<bool> wanted_ = true;
    const Patience* within_;
};

class Talks {
  public:
    using Request = std::shared_ptr<void>;
    /// Runs in the thread, and should end soon after the patience is over.
    template <class Result> using Work = std::function<Result(Patience&)>;

    Talks();
    /// Gives threads under way a second to end.
    ~Talks();
    Talks(const Talks&) = delete;
    Talks& operator=(const Talks&) = delete;

    /// done is called from the message loop, with the result of the work or, when the patience is over, with otherwise.
    /// Releasing the request cancels the work: no answer comes then.
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
    /// Polls until there is an answer to deliver.
    static Request poll(const std::shared_ptr<Patience>& patience, std::function<std::function<void()>()> answer);

    std::shared_ptr<Open> open_; // a thread may outlive this object
};

} // namespace velara
