// The committed checksums of the seeded trials.
#pragma once
#include "tools/reference/trials.h"
#include <gtest/gtest.h>

namespace velara {

/// Runs every trial of the family through the program's own code and compares the result with the family's committed
/// checksums, which come from the definitions: `make reference` recomputes them, `make reference-diff` shows pixels and
/// values. A subject without a row and a row without a subject fail.
void expectCommittedSums(const TrialFamily& family);

} // namespace velara
