#include "batch/many/Coordinator.h"
#include "batch/BatchPlatform.h"
#include "batch/many/Worker.h"
#include "fileio/waitFor.h"
#include "pixels/memory/MemoryBudget.h"
#include "seams/printable.h"
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace velara {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kBetweenBars = std::chrono::milliseconds(200);

/// Those by which a person or a scheduler ends a program, but for the ones that the program was started to ignore.
sigset_t endingSignals()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int each : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction now {};
        if (sigaction(each, nullptr, &now) == 0 && now.sa_handler != SIG_IGN) sigaddset(&set, each);
    }
    return set;
}

int columns()
{
    winsize size{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col - 1 : 79;
}

QString reasonOfEnd(int status)
{
    const QString what = QStringLiteral("the process that worked on it ended");
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
        return what + QStringLiteral(": it was killed, perhaps for want of memory");
    if (WIFSIGNALED(status)) return what + QStringLiteral(": ") + QString::fromLocal8Bit(strsignal(WTERMSIG(status)));
    return what;
}

} // namespace

Coordinator::Coordinator(const CommandLine& line, const Plan& plan, Report& report, int jobs)
    : line_(line), plan_(plan), report_(report), jobs_(static_cast<std::size_t>(jobs)),
      memory_(MemoryBudget::available() / 4 * 3), begun_(Clock::now()), lateNames_(*line.many, plan),
      hasBar_(isatty(STDERR_FILENO) == 1)
{
    outcome_.tally.total = plan.size();
    const sigset_t set = endingSignals();
    sigprocmask(SIG_BLOCK, &set, nullptr); // of the workers, too: they end with this program
    signals_ = Descriptor(signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK));
}

double Coordinator::seconds() const { return std::chrono::duration<double>(Clock::now() - begun_).count(); }

void Coordinator::say(const QString& text)
{
    if (hasBar_) std::fputs("\r\033[K", stderr);
    complain(printable(text));
    if (hasBar_) show(true);
}

void Coordinator::show(bool always)
{
    if (!hasBar_ || (!always && Clock::now() - shown_ < kBetweenBars)) return;
    shown_ = Clock::now();
    std::fprintf(stderr, "\r\033[K%s", barOf(outcome_.tally, seconds(), columns()).toUtf8().constData());
    std::fflush(stderr);
}

void Coordinator::stop(const QString& why)
{
    if (!isStopping_) say(why);
    isStopping_ = true;
}

/// Of those that have to be worked on; -1: there is none any more.
int Coordinator::takePicture()
{
    if (isStopping_) return -1;
    if (!again_.empty()) {
        const int picture = again_.front();
        again_.pop_front();
        return picture;
    }
    tellSkipped();
    return nextPicture_ < plan_.size() && !isStopping_ ? nextPicture_++ : -1;
}

/// The next ones that need no work, or can't be worked on.
void Coordinator::tellSkipped()
{
    for (; nextPicture_ < plan_.size() && !isStopping_; ++nextPicture_) {
        const bool isSkipped = plan_.isSkipped(nextPicture_);
        const auto fault = plan_.faults.find(nextPicture_);
        if (!isSkipped && fault == plan_.faults.end()) return;
        done({isSkipped ? Told::Skipped : Told::Failed, nextPicture_},
             isSkipped ? QStringLiteral("the output is there") : fault->second);
    }
}

bool Coordinator::start()
{
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) return false;
    Descriptor ours(ends[0]);
    const Descriptor theirs(ends[1]);
    const pid_t self = getpid(), pid = fork();
    if (pid < 0) return false;
    if (pid == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL); // what it has written has no name yet
        if (getppid() != self) _exit(1);
        ours.close();
        signals_.close();
        for (Hand& other : hands_) other.socket.close();
        work(line_, plan_, theirs.get());
    }
    hands_.push_back({pid, std::move(ours)});
    return true;
}

/// Gives each worker its first picture, and starts those that are missing.
void Coordinator::feed()
{
    for (Hand& hand : hands_)
        if (hand.current < 0) read(hand, takePicture());
    while (hands_.size() < jobs_) {
        const int picture = takePicture();
        if (picture < 0) return;
        if (!start()) {
            again_.push_front(picture);
            if (hands_.empty()) stop(QStringLiteral("no worker can be started: ") + std::strerror(errno));
            return;
        }
        read(hands_.back(), picture);
    }
}

void Coordinator::read(Hand& hand, int picture)
{
    if (picture < 0) return;
    (hand.current < 0 ? hand.current : hand.next) = picture;
    const WorkOrder order{WorkOrder::Read, picture};
    send(hand.socket.get(), &order, sizeof order, MSG_NOSIGNAL); // one that has ended is noticed by its connection
}

bool Coordinator::mayGoOn(std::int64_t pixels) const
{
    std::int64_t used = 0;
    for (const Hand& hand : hands_)
        if (!hand.isWaiting) used += hand.pixels;
    return fitsBeside(pixels, used, memory_);
}

/// The current picture is worked on, and the next one is read meanwhile.
void Coordinator::goOn(Hand& hand)
{
    hand.isWaiting = true;
    if (isStopping_ || !mayGoOn(hand.pixels)) return;
    hand.isWaiting = false;
    if (hand.next < 0) read(hand, takePicture());
    const WorkOrder order{WorkOrder::GoOn, hand.current};
    send(hand.socket.get(), &order, sizeof order, MSG_NOSIGNAL);
}

void Coordinator::advance(Hand& hand)
{
    hand.current = std::exchange(hand.next, -1);
    hand.pixels = 0;
    hand.isWaiting = false;
    for (Hand& other : hands_)
        if (other.isWaiting) goOn(other);
}

void Coordinator::hear(Hand& hand)
{
    std::array<char, sizeof(Told) + kMostReason> message;
    const ssize_t size = recv(hand.socket.get(), message.data(), message.size(), MSG_DONTWAIT);
    if (size < 0 && (errno == EAGAIN || errno == EINTR)) return;
    if (size < static_cast<ssize_t>(sizeof(Told))) return ended(hand);
    Told told;
    std::memcpy(&told, message.data(), sizeof told);
    if (told.kind == Told::Ready) {
        hand.pixels = told.pixels;
        return goOn(hand);
    }
    if (told.kind == Told::Named) return name(hand, told);
    done(told, QString::fromUtf8(message.data() + sizeof told, told.reasonBytes));
    advance(hand);
}

void Coordinator::name(Hand& hand, const Told& told)
{
    const WorkOrder answer = lateNames_.answer(told, named_[told.picture]);
    send(hand.socket.get(), &answer, sizeof answer, MSG_NOSIGNAL);
}

void Coordinator::done(const Told& told, const QString& reason)
{
    static constexpr const char* kResults[] = {"", "done", "skipped", "failed"};
    const auto named = named_.extract(told.picture);
    const QString input = plan_.input(told.picture), output = named ? named.mapped() : plan_.output(told.picture);
    Tally& tally = outcome_.tally;
    (told.kind == Told::Written ? tally.done : told.kind == Told::Skipped ? tally.skipped : tally.failed) += 1;
    report_.add({input, output, kResults[told.kind], told.bytes, told.milliseconds, reason});
    if (told.kind == Told::Failed) {
        say(input + QStringLiteral(": ") + reason);
        if (line_.many->stopAtFirst) stop(QStringLiteral("no other picture is begun, as --stop-at-first says"));
    } else if (line_.verbose) {
        say(input + QStringLiteral(" -> ") + output + QStringLiteral(": ") + kResults[told.kind]);
    }
    if (told.diskIsFull) stop(QStringLiteral("no other picture is begun, since the disk is full"));
    show(false);
}

/// A worker that ended by itself: the picture that it worked on is to blame, the one that it read ahead is not.
void Coordinator::ended(Hand& hand)
{
    const int status = waitFor(std::exchange(hand.pid, -1));
    if (hand.next >= 0) again_.push_front(hand.next);
    hand.next = -1;
    if (hand.current >= 0) done({Told::Failed, hand.current}, reasonOfEnd(status));
    advance(hand);
}

void Coordinator::hearSignal()
{
    signalfd_siginfo info{};
    if (::read(signals_.get(), &info, sizeof info) != sizeof info) return;
    isAtOnce_ = outcome_.signal != 0;
    outcome_.signal = static_cast<int>(info.ssi_signo);
    stop(QStringLiteral("no other picture is begun, those under way are ended; a second signal ends at once"));
}

Coordinator::Outcome Coordinator::run()
{
    for (;;) {
        feed();
        std::vector<pollfd> waiting{{signals_.get(), POLLIN, 0}};
        bool goesOn = false;
        for (const Hand& hand : hands_) {
            waiting.push_back({hand.socket.get(), POLLIN, 0});
            goesOn |= hand.current >= 0 && (!isStopping_ || (hand.pixels > 0 && !hand.isWaiting));
        }
        if (!goesOn || isAtOnce_) break;
        if (poll(waiting.data(), waiting.size(), hasBar_ ? 500 : -1) < 0) continue;
        if (waiting[0].revents) hearSignal();
        auto hand = hands_.begin();
        for (std::size_t i = 1; i < waiting.size(); ++i, ++hand)
            if (waiting[i].revents) hear(*hand);
        hands_.remove_if([](const Hand& each) { return each.pid < 0; });
        show(false);
    }
    if (hasBar_) std::fputs("\r\033[K", stderr);
    for (Hand& hand : hands_) {
        hand.socket.close();
        if (isAtOnce_ || isStopping_) kill(hand.pid, SIGKILL); // they may be in the middle of reading
    }
    for (const Hand& hand : hands_) waitFor(hand.pid);
    outcome_.seconds = seconds();
    return outcome_;
}

} // namespace velara
