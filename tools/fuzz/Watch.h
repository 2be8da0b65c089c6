// Trials run in a process of their own, which another one watches: a crash or a hang costs a trial, and its input
// stays.
#pragma once
#include "tools/fuzz/Subject.h"
#include <atomic>
#include <chrono>
#include <functional>
#include <vector>

namespace velara::fuzz {

struct Plan {
    std::vector<const Subject*> subjects;
    std::uint64_t seed = 1;        // the first number
    std::uint64_t runs = 0;        // of each subject; 0: until the time is over
    bool brief = false;            // each subject as often as its row says
    bool warm = false;             // pictures by WarmReaders
    std::chrono::seconds time{60}; // in all, divided by the shares
    QString keep = "fuzz-faults";  // where inputs of faults go
    QString samples;
};

/// What both processes see.
struct Progress {
    static constexpr std::size_t kMost = 8;
    std::array<std::atomic<std::uint64_t>, kMost> done{}, begun{};
    std::array<std::atomic<std::int64_t>, kMost> spent{}; // milliseconds
    std::atomic<std::size_t> subject{0};
    std::atomic<std::int64_t> since{0}; // when the present trial began, milliseconds
    std::atomic<std::int64_t> slowest{0};
    std::atomic<std::uint64_t> faults{0}, crashes{0}, hangs{0};
    std::atomic<long> readerPeak{0}; // kB
    Tally tally{};
};

/// Runs the plan; the counts at its end. Faults are told on the error output as they come.
const Progress& carryOut(const Plan& plan, const Place& place);

} // namespace velara::fuzz
