// Every operation of the table against what its definition gave, over random pictures, selections and arguments.
#include "support/sums.h"

namespace velara {
namespace {

TEST(Operations, GiveWhatTheirDefinitionsGive) { expectCommittedSums(operationTrials()); }

} // namespace
} // namespace velara
