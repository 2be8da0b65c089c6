// The seeded trials that compare the fast code with the definitions: for every operation, paint primitive, preset and
// dialog the same pictures, selections and arguments through both, and checksums of the results.
#pragma once
#include "pixels/RuntimeError.h"
#include "tools/reference/Dice.h"
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace velara {

/// One call, made by the program and by the definition. Both may throw RuntimeError.
struct Trial {
    std::string where;  // picture, selection and arguments, for a person
    std::size_t column; // of the checksum that includes it
    std::function<Bits()> fast, literal;
};

/// A list of subjects, each with its trials.
struct TrialFamily {
    const char* sums; // the file of its checksums, within tests/
    std::vector<std::string> subjects;
    std::function<void(const std::string& subject, const std::function<void(const Trial&)>& visit)> eachTrial;
};
TrialFamily operationTrials();
TrialFamily paintTrials();
TrialFamily commandTrials();

/// The picture that a trial leaves, or the fault that it raised.
struct TrialResult {
    Bits bits;
    std::optional<Fault> fault;
    friend bool operator==(const TrialResult&, const TrialResult&) = default;
};
TrialResult resultOf(const std::function<Bits()>& run);

/// One checksum per column, over size and every byte, margin included.
using Sums = std::vector<std::uint32_t>;
Sums sumsOf(const TrialFamily& family, const std::string& subject, std::function<Bits()> Trial::*side);
/// "NAME: 0123ABCD 4567CDEF ...", one line per subject; # begins a comment.
std::string sumsLine(const std::string& subject, const Sums& sums);

} // namespace velara
