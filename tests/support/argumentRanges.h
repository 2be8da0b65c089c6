// What the arguments of the engine's operations may be: the table that random trials and benchmarks draw from.
#pragma once
#include "engine/operations.h"
#include <random>
#include <span>

namespace velara {

/// A parameter of one operation, or of every operation that has no row of its own when `operation` is empty. Whole
/// numbers and singles lie in low..high; a text is one of texts. Booleans and pictures need no row.
struct ArgumentRange {
    std::string_view operation, parameter;
    double low, high, typical;
    std::vector<std::string> texts = {}; // the first is the typical one
};
std::span<const ArgumentRange> argumentRanges();

/// std::invalid_argument names a parameter that has no row.
const ArgumentRange& rangeOf(const Operation& operation, const Parameter& parameter);

/// std::invalid_argument names a parameter that has no row. Pictures are small.
Arguments typicalArguments(const Operation& operation);
/// The ends of a range come up more often than what lies between.
Arguments randomArguments(const Operation& operation, std::mt19937& random);

} // namespace velara
