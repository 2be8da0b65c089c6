#include "commands/filterDialogs.h"
#include "engine/operations.h"
#include "support/sums.h"
#include <set>

namespace velara {
namespace {

TEST(Presets, AndDialogsGiveWhatTheirDefinitionsGive) { expectCommittedSums(commandTrials()); }

TEST(Presets, AWordMeansOneThing)
{
    std::set<std::string_view> words;
    for (const Preset& preset : presets()) {
        EXPECT_TRUE(words.insert(preset.word).second) << preset.word;
        EXPECT_EQ(nullptr, findFilterRow(preset.word)) << preset.word << " opens a dialog, too";
    }
    EXPECT_EQ(80, std::get<int>(findPreset("LUMMINUS")->arguments[0])) << "brighter than LUMPLUS, whatever its name";
    for (const Preset& preset : presets()) EXPECT_EQ(preset.yields, preset.operation != "Flip") << preset.word;
    EXPECT_EQ(nullptr, findPreset("MOSAIC"));
}

} // namespace
} // namespace velara
