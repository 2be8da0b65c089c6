#include "Stretches.h"
#include <QAbstractEventDispatcher>
#include <QEvent>
#include <QThread>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace velara::bench {

namespace {

double milliseconds(clockid_t clock)
{
    timespec t{};
    clock_gettime(clock, &t);
    return double(t.tv_sec) * 1e3 + double(t.tv_nsec) / 1e6;
}

/// The second number of the scheduler's figures, in nanoseconds.
double waitedForProcessor()
{
    thread_local const int file = open("/proc/thread-self/schedstat", O_RDONLY | O_CLOEXEC);
    char text[80] = {};
    if (pread(file, text, sizeof text - 1, 0) <= 0) return 0;
    char* second = nullptr;
    std::strtoull(text, &second, 10);
    return double(std::strtoull(second, nullptr, 10)) / 1e6;
}

} // namespace

Moment Moment::now()
{
    return {milliseconds(CLOCK_MONOTONIC), waitedForProcessor(), milliseconds(CLOCK_THREAD_CPUTIME_ID)};
}

Stretches::Stretches(int& count, char** words) : QApplication(count, words), start_(Moment::now())
{
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
        ends("the loop itself");
        sleeps_ = true;
    });
}

/// What began at start_ is over, and the next begins.
void Stretches::ends(const QByteArray& what)
{
    const Moment now = Moment::now();
    const double busy = now.busySince(start_);
    if (!std::exchange(sleeps_, false) && busy > longest_.busy)
        longest_ = {busy, now.wall - start_.wall, now.processor - start_.processor, what};
    start_ = now;
}

/// An event that is sent from inside of another belongs to that one.
bool Stretches::notify(QObject* receiver, QEvent* event)
{
    const int level = thread()->loopLevel();
    if (QThread::currentThread() != thread() || (!levels_.empty() && levels_.back() == level))
        return QApplication::notify(receiver, event);
    const QByteArray what = QByteArray(receiver->metaObject()->className()).replace("velara::", "") + " event " +
                            QByteArray::number(int(event->type()));
    ends("before " + what);
    levels_.push_back(level);
    const bool taken = QApplication::notify(receiver, event);
    levels_.pop_back();
    ends(what);
    return taken;
}

} // namespace velara::bench
