#include "app/start/SessionEnd.h"
#include "app/frame/fMain.h"
#include <QApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <sys/eventfd.h>
#include <unistd.h>

namespace velara {

namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};
constexpr unsigned kFrozen = 11; // seconds after which the system ends a program whose event loop is blocked

std::array<struct sigaction, kSignals.size()> before;
std::atomic<int> wakeUp{-1}; // an event counter that the event loop watches
std::atomic<bool> pending{false};
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

/// May interrupt anything, on any thread: async-signal-safe calls only.
void onSignal(int)
{
    const int reason = errno;
    const std::uint64_t one = 1;
    if (!pending.exchange(true)) alarm(kFrozen);
    [[maybe_unused]] const ssize_t written = write(wakeUp, &one, sizeof one);
    errno = reason;
}

void takeSignals()
{
    struct sigaction ours {};
    ours.sa_handler = onSignal;
    ours.sa_flags = SA_RESTART;
    sigemptyset(&ours.sa_mask);
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        sigaction(kSignals[i], nullptr, &before[i]);
        if (before[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &ours, nullptr);
    }
}

void giveSignalsBack()
{
    for (std::size_t i = 0; i < kSignals.size(); ++i) sigaction(kSignals[i], &before[i], nullptr);
}

} // namespace

SessionEnd::SessionEnd(fMain& frame, std::chrono::milliseconds patience, std::function<void()> leave)
    : frame_(frame), leave_(leave ? std::move(leave) : [] { std::_Exit(EXIT_FAILURE); })
{
    patience_.setSingleShot(true);
    patience_.setInterval(patience);
    connect(&patience_, &QTimer::timeout, this, &SessionEnd::leave);
    connect(&frame_, &fMain::asking, this, &SessionEnd::asked);
    connect(&frame_, &fMain::stays, this, [this] {
        ends_ = false;
        patience_.stop();
    });
    wakeUp = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    auto* woken = new QSocketNotifier(wakeUp, QSocketNotifier::Read, this);
    connect(woken, &QSocketNotifier::activated, this, [this] {
        std::uint64_t count = 0;
        [[maybe_unused]] const ssize_t taken = read(wakeUp, &count, sizeof count);
        alarm(0);
        pending = false;
        begin();
    });
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& session) {
        if (!session.allowsInteraction()) return; // nobody can be asked
        begin();
        if (!frame_.isClosed()) session.cancel();
        session.release();
    });
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { // not by the frame
        const auto isLost = [](const DocumentHandle& document) { return document->wouldBeLost(); };
        if (!frame_.isClosed() && std::ranges::any_of(frame_.workspace().documents(), isLost)) this->leave();
    });
    takeSignals();
}

SessionEnd::~SessionEnd()
{
    giveSignalsBack();
    ::close(wakeUp.exchange(-1));
}

bool SessionEnd::isAsking() const { return std::ranges::any_of(frame_.documents(), &fImage::isAsking); }

void SessionEnd::begin()
{
    if (frame_.isClosed()) return;
    ends_ = true;
    if (!patience_.isActive()) patience_.start();
    close();
}

/// An open question continues with what its answer causes.
void SessionEnd::close()
{
    if (frame_.isClosing() || isAsking()) return;
    while (QWidget* menu = QApplication::activePopupWidget()) // it would keep mouse and keys from the question
        if (!menu->close()) break;
    frame_.close();
    if (frame_.isClosed()) patience_.stop();
}

void SessionEnd::asked(fImage::Question question)
{
    if (!ends_) return;
    if (question == fImage::Question::Stands) patience_.start();
    if (question == fImage::Question::Answered) patience_.stop(); // the user is there
    // The question was about that document alone: now it is the frame's turn.
    if (question == fImage::Question::Done && !frame_.isClosing()) QTimer::singleShot(0, this, &SessionEnd::close);
}

void SessionEnd::leave()
{
    for (const DocumentHandle& document : frame_.workspace().documents())
        document->undo.stands(); // waits for the writing
    frame_.saveState();
    leave_();
}

} // namespace velara
