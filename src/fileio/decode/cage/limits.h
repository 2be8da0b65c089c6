// The resource limits of a reader.
#pragma once
#include "fileio/decode/cage/Cage.h"

namespace velara::decode {

/// Changes to the root folder, and makes this process the first to be killed when memory runs out. Returns its share of
/// the free memory, as bytes of address space.
unsigned long long settleDown(Needs needs);

/// Sets the limits, never above the present ones: memory, the processor time of the slowest picture, no file, no
/// process, no new descriptor (except a few for fonts). An encoder's threads count as processes: only the filter keeps
/// it from those, and its time is its own affair. False when one could not be set.
bool limitResources(Needs needs, unsigned long long memory);

/// Drops all capabilities, including those that a program could regain.
bool dropCapabilities();

} // namespace velara::decode
