#include "platform/desktop/printing/Talks.h"
#include <QTimer>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace velara {

namespace {

using namespace std::chrono_literals;

constexpr auto kPoll = 20ms;     // the thread can't call back: the asking object may be gone first
constexpr auto kEnding = 1000ms; // for abandoned threads, at the end of the program
constexpr int kMostOpen = 8;     // hanging threads

} // namespace

struct Talks::Open {
    std::mutex guard;
    std::condition_variable changed;
    int count = 0;
};

Talks::Talks() : open_(std::make_shared<Open>()) {}

Talks::~Talks()
{
    std::unique_lock guard(open_->guard);
    open_->changed.wait_for(guard, kEnding, [this] { return open_->count == 0; });
}

void Talks::start(const std::shared_ptr<Patience>& patience, std::function<void()> work)
{
    {
        const std::lock_guard guard(open_->guard);
        if (open_->count == kMostOpen) return patience->giveUp();
        ++open_->count;
    }
    std::thread([open = open_, work = std::move(work)]() mutable {
        work();
        work = nullptr;
        const std::lock_guard guard(open->guard);
        --open->count;
        open->changed.notify_all();
    }).detach();
}

Talks::Request Talks::poll(const std::shared_ptr<Patience>& patience, std::function<std::function<void()>()> answer)
{
    auto* timer = new QTimer;
    QObject::connect(timer, &QTimer::timeout, timer, [timer, answer = std::move(answer)] {
        const std::function<void()> give = answer();
        if (!give) return;
        timer->stop();
        give(); // may release the request
    });
    timer->start(kPoll);
    return {timer, [patience](QTimer* polling) {
                patience->giveUp();
                polling->stop();
                polling->deleteLater();
            }};
}

} // namespace velara
