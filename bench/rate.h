// What the machine reaches in loops of nothing else: the limits that a row is held against.
#pragma once

namespace velara::bench {

/// Milliseconds for a million operations on whole vectors of the instruction set in use: a mixture of additions, logic,
/// shifts and products that don't wait for one another.
double millisecondsAMillionOperations();
/// Four-byte lanes of such a vector.
int lanesOfAVector();
/// Milliseconds for a million additions, each of which waits for the one before: a million cycles.
double millisecondsAMillionCycles();

} // namespace velara::bench
