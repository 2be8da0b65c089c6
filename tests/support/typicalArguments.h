// Arguments of the engine's operations for benchmarks and comparisons, from their rows.
#pragma once
#include "engine/operations.h"

namespace velara {

/// The usual ones. Booleans are true, pictures small.
Arguments typicalArguments(const Operation& operation);

} // namespace velara
