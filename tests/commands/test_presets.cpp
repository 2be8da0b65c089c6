#include "commands/presets.h"
#include "seams/findRow.h"
#include "support/sums.h"

namespace velara {
namespace {

TEST(Presets, AndDialogsGiveWhatTheirDefinitionsGive) { expectCommittedSums(commandTrials()); }

TEST(Presets, LumMinusIsBrighterThanLumPlus)
{
    EXPECT_EQ(80, std::get<int>(findRow(presets(), "LUMMINUS", &Preset::word)->arguments[0])) << "whatever its name";
}

} // namespace
} // namespace velara
