// What a reader may take of the machine.
#pragma once
#include "fileio/decode/cage/Cage.h"

namespace velara::decode {

/// Moves to the root folder, and to the head of those that go when memory runs out. Returns what this process may take
/// of the memory that is free, as bytes of address space.
unsigned long long settleDown();

/// Sets the limits, never above those that stand: memory, the processor time of the slowest picture, no file, no
/// process, no further descriptor (but a few for fonts). False when one could not be set.
bool limitResources(Needs needs, unsigned long long memory);

/// Takes every capability away, those that a program could get back too.
bool dropCapabilities();

} // namespace velara::decode
