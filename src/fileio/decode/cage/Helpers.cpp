#include "fileio/decode/cage/Helpers.h"
#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <malloc.h>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace velara::decode {

namespace {

constexpr unsigned kMost = 3;

/// The work under way, and how many helpers have yet to leave it.
struct Team {
    std::mutex guard;
    std::condition_variable comes, ends;
    const std::function<void(std::uint32_t, unsigned)>* work = nullptr;
    std::atomic<std::uint64_t> next = 0; // beyond 32 bits: several threads may count past the end
    std::uint32_t end = 0;
    std::uint64_t round = 0;
    unsigned helpers = 0, begun = 0, busy = 0;
    std::exception_ptr fault;
};

/// Lives as long as the process, whose end takes the helpers with it.
Team& team()
{
    static auto* only = new Team;
    return *only;
}

void takeItems(Team& all, unsigned thread)
try {
    for (std::uint64_t item = all.next++; item < all.end; item = all.next++)
        (*all.work)(static_cast<std::uint32_t>(item), thread);
} catch (...) {
    all.next = all.end;
    const std::lock_guard lock(all.guard);
    if (!all.fault) all.fault = std::current_exception();
}

[[noreturn]] void help(unsigned thread)
{
    Team& all = team();
    std::unique_lock lock(all.guard);
    ++all.begun;
    all.ends.notify_one();
    for (std::uint64_t seen = 0;;) {
        all.comes.wait(lock, [&] { return all.round != seen; });
        seen = all.round;
        lock.unlock();
        takeItems(all, thread);
        lock.lock();
        if (--all.busy == 0) all.ends.notify_one();
    }
}

} // namespace

void startHelpers(unsigned threads)
{
    Team& all = team();
    const unsigned wanted = std::min(std::max(threads, 1U) - 1, kMost);
    if (wanted == 0) return;
    mallopt(M_ARENA_MAX, 1); // with memory of its own for each thread the C library would open files of the system
    try {
        for (; all.helpers < wanted; ++all.helpers) std::thread(help, all.helpers + 1).detach();
    } catch (const std::system_error&) { // fewer
    }
    std::unique_lock lock(all.guard); // what the C library does at a thread's beginning isn't possible later
    all.ends.wait(lock, [&] { return all.begun == all.helpers; });
}

unsigned threadsTogether() { return team().helpers + 1; }

bool beginTogether(std::uint32_t first, std::uint32_t end, const std::function<void(std::uint32_t, unsigned)>& work)
{
    Team& all = team();
    if (all.helpers == 0 || all.work) return false;
    {
        const std::lock_guard lock(all.guard);
        all.work = &work;
        all.next = first;
        all.end = end;
        all.busy = all.helpers;
        ++all.round;
    }
    all.comes.notify_all();
    return true;
}

void endTogether()
{
    Team& all = team();
    takeItems(all, 0);
    std::unique_lock lock(all.guard);
    all.ends.wait(lock, [&] { return all.busy == 0; });
    all.work = nullptr;
    if (all.fault) std::rethrow_exception(std::exchange(all.fault, nullptr));
}

void runTogether(std::uint32_t first, std::uint32_t end, const std::function<void(std::uint32_t, unsigned)>& work)
{
    if (end > first + 1 && beginTogether(first, end, work)) return endTogether();
    for (std::uint32_t item = first; item < end; ++item) work(item, 0);
}

} // namespace velara::decode
