// The presets and the effects of the textures box compared with what they stand for.
#include "commands/effects.h"
#include "commands/presets.h"
#include "seams/findRow.h"
#include "support/filterOf.h"
#include "support/pictures.h"
#include "support/sums.h"
#include <set>

namespace velara {
namespace {

constexpr int kWidth = 40, kHeight = 30, kValue = 25;
constexpr Colour kColour = 0x123456;

Bits effect(int index, int value, const Bits& bits, const Region& region)
{
    cBitFilter filter = filterOf(bits, region);
    ApplyTexture(filter, index, value, kColour);
    return filter.bits();
}

TEST(Presets, AndDialogsGiveWhatTheirDefinitionsGive) { expectCommittedSums(commandTrials()); }

TEST(Presets, LumMinusIsBrighterThanLumPlus)
{
    EXPECT_EQ(80, std::get<int>(findRow(presets(), "LUMMINUS", &Preset::word)->arguments[0])) << "whatever its name";
}

TEST(EffectsTest, EachEqualsItsOperation)
{
    const std::pair<const char*, Arguments> wanted[] = {
        {"Texturize", {storedTexture()}},
        {"CONTOUR", {25, 0xFFFFFF}},
        {"CONTRAST", {25}},
        {"DIFFUSE", {25, 25}},
        {"DILATE", {}},
        {"Dissolve", {}},
        {"EDGEENHANCE", {25}},
        {"EMBOSS", {25}},
        {"ENGRAVE", {25}},
        {"Equalize", {}},
        {"ERODE", {}},
        {"Flip", {true, false}},
        {"Flip", {false, true}},
        {"FOLD", {25, 25, true}},
        {"GammaCorrection", {25}},
        {"GreyScale", {}},
        {"Halftone", {25, 1, 1}},
        {"Invert", {}},
        {"NOISE", {25, true}},
        {"OLDPHOTO", {}},
        {"PAINTING", {}},
        {"PHOTOCOP", {}},
        {"PIXELIZE", {25}},
        {"RELIEF", {}},
        {"ROTATE", {90, true}},
        {"Scanlines", {25}},
        {"SHARPEN", {25}},
        {"SKETCH", {25, false, kColour}},
        {"SOFTEN", {25}},
        {"THERMIQUE", {}},
        {"TWIRL", {25, 90, true}},
        {"WAVES", {25, 20, 0}},
        {"XBLACK", {}},
    };
    ASSERT_EQ(std::size_t(kEffects), std::size(wanted));
    const Bits picture = randomBits(kWidth, kHeight, 1);
    const Region region = Region::ellipse(3, 2, 36, 28);
    std::set<std::string_view> names;
    for (int i = 0; i < kEffects; ++i) {
        const auto& name = effects()[std::size_t(i)].name;
        EXPECT_TRUE(names.insert(name).second) << name;
        const auto& [operation, arguments] = wanted[i];
        EXPECT_TRUE(sameBits(run(operation, arguments, picture, region), effect(i + 1, kValue, picture, region)))
            << name;
    }
    EXPECT_TRUE(sameBits(run("ROTATE", {4, true}, picture, region), effect(25, 1, picture, region)))
        << "3.6 is rounded";
}

TEST(EffectsTest, RefusesWhatThereIsNot)
{
    const Bits picture = randomBits(8, 8, 2);
    cBitFilter filter = filterOf(picture);
    for (const int index : {0, 34, -1}) EXPECT_THROW(ApplyTexture(filter, index, 1, 0), std::invalid_argument);
    for (const Bits& texture : {Bits(), Bits(1, 5), Bits(5, 1)})
        EXPECT_THROW(applyTexturePicture(filter, texture), std::invalid_argument);
    EXPECT_TRUE(filter.bits().sharesWith(picture));
    const Bits texture = randomBits(3, 2, 3);
    applyTexturePicture(filter, texture);
    EXPECT_TRUE(sameBits(run("Texturize", {texture}, picture, filter.BitsRegion()), filter.bits()));
}

TEST(EffectsTest, StoredTextureIsSeamless)
{
    const Bits& t = storedTexture();
    for (int y = 0; y < t.height(); ++y) EXPECT_EQ(t.at(0, y), t.at(t.maxX(), y)) << y;
    for (int x = 0; x < t.width(); ++x) EXPECT_EQ(t.at(x, 0), t.at(x, t.maxY())) << x;
}

} // namespace
} // namespace velara
