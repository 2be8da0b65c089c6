#include "commands/filterDialogs.h"
#include "engine/operations.h"
#include "support/filterOf.h"
#include "support/pictures.h"
#include <set>

namespace velara {
namespace {

TEST(Presets, EachRunsAndChangesThePicture)
{
    const Bits bits = randomBits(40, 30, 1);
    for (const Preset& preset : presets()) {
        cBitFilter filter = filterOf(bits);
        const Operation* operation = findOperation(preset.operation);
        ASSERT_NE(nullptr, operation) << preset.word;
        EXPECT_NO_THROW(operation->call(filter, preset.arguments)) << preset.word;
        const bool staysAsItIs = preset.operation == "LENS"; // its centre lies far outside of the picture
        EXPECT_NE(staysAsItIs, !sameBits(bits, filter.bits())) << preset.word;
    }
}

TEST(Presets, AWordMeansOneThing)
{
    std::set<std::string_view> words;
    for (const Preset& preset : presets()) {
        EXPECT_TRUE(words.insert(preset.word).second) << preset.word;
        EXPECT_EQ(nullptr, findFilterRow(preset.word)) << preset.word << " opens a dialog, too";
    }
    EXPECT_EQ(80, std::get<int>(findPreset("LUMMINUS")->arguments[0])) << "brighter than LUMPLUS, whatever its name";
    EXPECT_FALSE(findPreset("FLIPH")->yields);
    EXPECT_EQ(nullptr, findPreset("MOSAIC"));
}

} // namespace
} // namespace velara
