// Trials run in a child process watched by another: a crash or a hang costs one trial, and its input is kept.
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
    bool brief = false;            // the number of trials in each subject's row
    bool warm = false;             // read pictures by WarmReaders
    std::chrono::seconds time{60}; // in total, divided by the shares
    QString keep = "fuzz-faults";  // for inputs of faults
    QString samples;
    QStringList formats;   // of pictures; empty: all
    bool noDeaths = false; // Place::noDeaths
};

/// Shared by both processes.
struct Progress {
    static constexpr std::size_t kMost = 8;
    std::array<std::atomic<std::uint64_t>, kMost> done{}, begun{};
    std::array<std::atomic<std::int64_t>, kMost> spent{}; // milliseconds
    std::atomic<std::size_t> subject{0};
    std::atomic<std::int64_t> since{0}; // start of the present trial, milliseconds
    std::atomic<std::int64_t> slowest{0};
    std::atomic<std::uint64_t> faults{0}, crashes{0}, hangs{0};
    std::atomic<long> readerPeak{0}; // kB
    Tally tally{};
};

/// Runs the plan; returns the final counts. Faults are reported on standard error as they occur.
const Progress& carryOut(const Plan& plan, const Place& place);

} // namespace velara::fuzz
