// The operations that crop, rotate and resize, where their rules are easy to miss.
#include "support/faults.h"
#include "support/filterOf.h"
#include "support/instructionSets.h"
#include "support/pictures.h"
#include "tools/reference/definitions.h"

namespace velara {
namespace {

TEST(Geometry, CropCutsWithTheObjectsOwnSizeAndMaskedCropWithTheSources)
{
    const Bits source = randomBits(9, 8, 1);
    cBitFilter small = filterOf(randomBits(4, 3, 2));
    small.BitsCrop(source, 1, -5, 100, 100);
    EXPECT_EQ(small.BitsWidth(), 3);
    EXPECT_EQ(small.BitsHeight(), 3);
    EXPECT_EQ(small.bits().at(0, 2), source.at(1, 2));
    small.setBitsRegion(Region::rectangle(0, 0, 2, 2));
    small.BitsCropMasked(source, 1, -5, 100, 100);
    EXPECT_EQ(small.BitsWidth(), 8);
    EXPECT_EQ(small.bits().at(0, 1), source.at(1, 1));
    EXPECT_EQ(small.bits().at(1, 1), (Pixel{{0, 0, 0, 255}}));
}

TEST(Geometry, UnusableSizesAndSourcesChangeNothing)
{
    const Bits before = randomBits(5, 4, 3);
    cBitFilter f = filterOf(before);
    const std::function<void()> calls[] = {
        [&] { f.BitsCrop(before, 5, 0, 9, 4); },
        [&] { f.BitsCrop(Bits(4, 9), 0, 0, 5, 4); }, // beyond the source
        [&] { f.BitsCrop(Bits(9, 3), 0, 0, 5, 4); },
        [&] { f.BitsCropMasked(before, 2, 2, 2, 3); },
        [&] { f.BitsResize(before, 0, 3); },
        [&] { f.BitsResize(before, 32768, 1); },
        [&] { f.BitsResample(before, 32767, 32767); },
        [&] { f.BitsResample(Bits(), 3, 3); },
        [&] { f.BitsRotate90(Bits()); },
        [&] { f.BitsTakeFromPicture(Bits(3, 3), -1, 3); },
    };
    for (const auto& call : calls) {
        EXPECT_THROW(call(), RuntimeError) << &call - calls;
        EXPECT_TRUE(f.bits().sharesWith(before)) << &call - calls;
    }
    f.BitsTakeFromPicture(Bits(), 9, 9); // no fault, and no change
    EXPECT_TRUE(f.bits().sharesWith(before));
}

TEST(Geometry, ASecondObjectsPictureMayBeReplacedDuringProgress)
{
    const Bits before = randomBits(40, 30, 4);
    cBitFilter quiet = filterOf(before);
    quiet.BitsResample(before, 70, 50);
    std::uint32_t now = 100;
    cBitFilter f = filterOf(before);
    f.clock = [&] { return now += 20; };
    f.Progress = [&](int) { f.setBits(Bits(2, 2)); };
    f.BitsResample(f.bits(), 70, 50);
    f.Progress = nullptr;
    EXPECT_EQ(f.BitsWidth(), 2) << "the last report comes after the assignment";
    Bits result;
    f.setBits(before);
    f.Progress = [&](int percent) { percent == 100 ? void(result = f.bits()) : f.setBits(Bits(2, 2)); };
    f.BitsResample(f.bits(), 70, 50);
    EXPECT_TRUE(sameBits(quiet.bits(), result));
}

TEST(Geometry, ARunOfOneRowIsAtItsEndWhenAReportFallsDue)
{
    const struct {
        const char* name;
        Arguments arguments;
        Bits bits;
    } kCases[] = {{"EMBOSS", {10}, randomBits(30, 1, 1)},
                  {"BitsResample", {9, 1}, randomBits(30, 7, 2)},
                  {"LENS", {0.5, 0.5, 0.01, 50}, randomBits(30, 1, 3)},
                  {"TileMask", {randomBits(9, 9, 4), 0, 6, false, 0, -1}, randomBits(30, 7, 5)}};
    for (const auto& c : kCases) {
        cBitFilter f = filterOf(c.bits);
        f.clock = [now = 100u]() mutable { return now += 20; };
        f.Progress = [&](int percent) { EXPECT_EQ(percent, 100) << c.name; };
        EXPECT_EQ(faultOf([&] { findOperation(c.name)->call(f, c.arguments); }), std::nullopt) << c.name;
    }
}

/// Large pictures are copied by non-temporal stores beside and between the selected pixels.
TEST(Geometry, WhatIsNotSelectedStaysInALargePicture)
{
    const Bits before = randomBits(2049, 2047, 5);
    const Region ellipse = Region::ellipse(7, 1, 2041, 2040);
    EXPECT_TRUE(sameBits(definedResult("Invert", before, ellipse, {}), run("Invert", {}, before, ellipse)));
}

/// Sizes at which pictures go past the cache, parts of a resize and sources of warps come next to a half, blocks and
/// tiles are cut off, and blends that are next to a half, or halves, and have to be computed again.
TEST(Geometry, FastWaysAreAsDefined)
{
    const Bits small = randomBits(451, 333, 6), large = randomBits(2051, 2053, 7), tile = randomBits(65, 9, 8);
    const Bits wide = randomBits(6001, 201, 9), even = randomBits(450, 61, 10);
    const Region all = Region::rectangle(0, 0, 3000, 3000), ellipse = Region::ellipse(5, 3, 2001, 1900);
    const struct {
        const char* name;
        Arguments arguments;
        const Bits& bits;
        const Region& region;
    } cases[] = {
        {"BitsRotate90", {}, large, all},
        {"BitsRotate90", {}, small, all},
        {"BitsCropMasked", {3, 4, 2050, 2051}, large, ellipse},
        {"BitsBlack", {}, large, ellipse},
        {"BitsResample", {1025, 1027}, large, all},
        {"BitsResample", {900, 1332}, small, all},
        {"BitsResample", {3001, 3}, small, all},
        {"BitsResample", {2, 700}, small, all},
        {"PIXELIZE", {2}, small, all},
        {"PIXELIZE", {21}, small, all},
        {"Halftone", {1, 20, 30}, small, all},
        {"Halftone", {1, 20, 30}, even, all},
        {"SHARPEN", {10}, small, all},
        {"Blurs", {2}, large, all},
        {"Flip", {false, true}, small, all},
        {"Flip", {true, true}, even, all},
        {"STRETCH", {50, -30, false}, wide, ellipse},
        {"ROTATE", {30, true}, large, all},
        {"ROTATE", {60, false}, wide, ellipse},
        {"RotateSmooth", {30}, wide, all},
        {"FOLD", {50, -50, true}, wide, all},
        {"TWIRL", {20, 0, true}, large, all},
        {"TWIRL", {-37, 33, false}, wide, all},
        {"BEND", {0, true}, large, all},
        {"BEND", {-57, false}, wide, all},
        {"LENS", {0.5, 0.5, 0.45, 40}, large, all},
        {"LENS", {0.5, 0.5, 0.45, 40}, wide, all}, // heights whose roots come next to a half
        {"GLASS", {"slanting", 0}, large, all},
        {"GLASS", {"slanting", 1}, large, all},
        {"GLASS", {"slanting", 0}, small, ellipse},
        {"GLASS", {"slanting", 1}, small, ellipse},
        {"TileMask", {tile, -7, 3, true, 33, 0x123456}, small, all},
        {"TileMask", {tile, 11, 3, true, 50, -1}, small, all},
        {"TileMask", {tile, 5, -2, false, 30, -1}, small, all},
        {"GradientLinear", {100, 50, 300, 250, 0x0000FF, 0x00FF00, 50, 1}, small, all},
        {"GradientLinear", {0, 0, 450, 332, 0x80FF20, 0x81FF40, 50, 1}, small, all},
        {"GradientLinear", {0, 0, 450, 332, 0x80FF20, 0x2010F0, 35, 30}, small, all},
        {"GradientCircular", {200, 150, 203, 152, 0x80FF20, -1, 77, 9}, small, all},
    };
    for (const auto& c : cases)
        EXPECT_TRUE(
            sameBits(definedResult(c.name, c.bits, c.region, c.arguments), run(c.name, c.arguments, c.bits, c.region)))
            << c.name << ' ' << &c - cases;
}

/// Sources far from the centre: many of them are in doubt, on both sides of it.
TEST(Geometry, TwirlsAreAsDefinedWithAllInstructionSets)
{
    const Bits wide = randomBits(6001, 101, 14);
    const Region all = Region::rectangle(0, 0, 6001, 101);
    for (const int level : {20, -300}) {
        const Bits wanted = definedResult("TWIRL", wide, all, {level, 7, true});
        withEachInstructionSet([&] {
            EXPECT_TRUE(sameBits(wanted, run("TWIRL", {level, 7, true}, wide, all))) << level;
        });
    }
}

/// Targets between pairs of sources, and those of parts that singles are not right for.
TEST(Geometry, ResizesAreAsDefinedWithAllInstructionSets)
{
    const Bits small = randomBits(451, 333, 11), even = randomBits(450, 60, 12), large = randomBits(8200, 1031, 13);
    const struct {
        const Bits& bits;
        int width, height;
    } cases[] = {{small, 225, 166}, {even, 225, 30}, {even, 17, 29}, {large, 4100, 1030}, {small, 1371, 1000}};
    for (const auto& c : cases) {
        const Arguments size{c.width, c.height};
        const Bits wanted = definedResult("BitsResample", c.bits, {}, size);
        withEachInstructionSet(
            [&] { EXPECT_TRUE(sameBits(wanted, run("BitsResample", size, c.bits, {}))) << c.width; });
    }
}

} // namespace
} // namespace velara
