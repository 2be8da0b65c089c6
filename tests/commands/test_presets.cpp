#include "commands/presets.h"
#include "seams/findRow.h"
#include "support/sums.h"

namespace velara {
namespace {

TEST(Presets, AndDialogsGiveWhatTheirDefinitionsGive) { expectCommittedSums(commandTrials()); }

TEST(Presets, OnlyThoseThatFlipRunAtOnce)
{
    EXPECT_EQ(80, std::get<int>(findRow(presets(), "LUMMINUS", &Preset::word)->arguments[0]))
        << "brighter than LUMPLUS, whatever its name";
    for (const Preset& preset : presets()) EXPECT_EQ(preset.yields, preset.operation != "Flip") << preset.word;
}

} // namespace
} // namespace velara
