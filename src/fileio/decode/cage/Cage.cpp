#include "fileio/decode/cage/Cage.h"
#include "fileio/decode/cage/Helpers.h"
#include "fileio/decode/cage/landlock.h"
#include "fileio/decode/cage/limits.h"
#include "fileio/decode/cage/seccompFilter.h"
#include <QSemaphore>
#include <QThreadPool>
#include <sys/prctl.h>

namespace velara::decode {

namespace {

Closing done(bool holds) { return holds ? Closing::Holds : Closing::Failed; }

Closing noNewPrivileges() { return done(prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0); }

/// Drawing distributes large fills over threads. Here it gets a single one, started before the cage closes and living
/// as long as the process; the filter forbids new threads.
[[maybe_unused]] void startTheOneThread()
{
    constexpr int kPatience = 2000; // ms
    QThreadPool& pool = *QThreadPool::globalInstance();
    pool.setMaxThreadCount(1);
    pool.setExpiryTimeout(-1);
    QSemaphore runs;
    pool.start([&runs] { runs.release(); });
    runs.tryAcquire(1, kPatience);
}

constexpr struct {
    CageLayer layer;
    const char *name, *what;
} kNames[] = {{NoNewPrivileges, "no new privileges", ""},
              {Limits, "limits", " of processes, descriptors, files, memory and time"},
              {Capabilities, "capabilities", ": none"},
              {Landlock, "Landlock", ": no path, no port"},
              {Seccomp, "seccomp", ": memory, the descriptors at hand and the end"}};

} // namespace

CageState enterCage([[maybe_unused]] Needs needs, unsigned layers, [[maybe_unused]] unsigned threads)
{
    CageState state;
    const auto close = [&](CageLayer layer, auto&& how) {
        if (!(layers & layer)) return;
        const Closing closing = how();
        if (closing == Closing::Holds) state.holding |= layer;
        if (closing == Closing::Failed) state.open |= layer;
    };
    [[maybe_unused]] const unsigned long long memory = settleDown(needs); // while paths can still be opened
    close(NoNewPrivileges, noNewPrivileges);
    close(Capabilities, [] { return done(dropCapabilities()); });
    close(Landlock, [] { return closePaths({}, Ports::Shut); });
#ifndef __SANITIZE_ADDRESS__ // the sanitizers inspect memory through pipes and report into files
    if (include(needs, Needs::Drawing)) startTheOneThread();
    if (include(needs, Needs::Helpers)) startHelpers(threads);
    close(Limits, [&] { return done(limitResources(needs, memory)); });
    close(Seccomp, [&] { return done(filterSystemCalls(needs)); });
#endif
    return state;
}

std::string namesOf(unsigned layers)
{
    std::string text;
    for (const auto& row : kNames)
        if (layers & row.layer) text += (text.empty() ? "" : ", ") + std::string(row.name);
    return text;
}

std::string describeCage(const CageState& state)
{
    std::string text;
    for (const auto& row : kNames)
        text += std::string(row.name) + row.what +
                (state.holding & row.layer ? ": holds\n"
                 : state.open & row.layer  ? ": could not be closed\n"
                                           : ": not on this kernel\n");
    return text;
}

} // namespace velara::decode
