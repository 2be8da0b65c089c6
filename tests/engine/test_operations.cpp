// Every operation of the table compared with the results of its definition, for random pictures, selections and
// arguments.
#include "support/sums.h"

namespace velara {
namespace {

TEST(Operations, GiveWhatTheirDefinitionsGive) { expectCommittedSums(operationTrials()); }

} // namespace
} // namespace velara
