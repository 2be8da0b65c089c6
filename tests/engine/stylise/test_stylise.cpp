// Stylising filters: values worked out by hand.
#include "support/filterOf.h"
#include "support/pictures.h"

namespace velara {
namespace {

/// One row of grey values, fourth byte 9.
Bits greys(std::initializer_list<int> values)
{
    Bits bits(static_cast<int>(values.size()), 1);
    int x = 0;
    for (const int v : values) {
        const auto grey = static_cast<std::uint8_t>(v);
        bits.at(x++, 0) = {{grey, grey, grey, 9}};
    }
    return bits;
}

std::vector<int> firstChannel(const Bits& bits, int y = 0)
{
    std::vector<int> values;
    for (int x = 0; x < bits.width(); ++x) values.push_back(bits.at(x, y).c[0]);
    return values;
}

TEST(Stylise, ToneMapsLookAtEachChannel)
{
    const struct {
        std::string_view operation;
        Pixel before, after;
    } rows[] = {
        {"THERMIQUE", {{9, 8, 10, 1}}, {{0, 0, 10, 1}}},
        {"THERMIQUE", {{9, 10, 8, 1}}, {{0, 10, 0, 1}}},
        {"THERMIQUE", {{255, 254, 254, 1}}, {{255, 0, 0, 1}}},
        {"THERMIQUE", {{10, 10, 8, 1}}, {{10, 10, 8, 1}}}, // a tie for the top
        {"THERMIQUE", {{7, 7, 7, 1}}, {{7, 7, 7, 1}}},
        {"THERMIQUE", {{8, 8, 9, 255}}, {{0, 0, 9, 255}}}, // the fourth byte takes no part
        {"XBLACK", {{128, 200, 255, 1}}, {{0, 0, 0, 1}}},
        {"XBLACK", {{127, 0, 3, 1}}, {{255, 255, 255, 1}}},
        {"XBLACK", {{127, 128, 200, 1}}, {{127, 128, 200, 1}}},
        {"PHOTOCOP", {{128, 200, 255, 1}}, {{255, 255, 255, 1}}},
        {"PHOTOCOP", {{127, 0, 3, 1}}, {{0, 0, 0, 1}}},
    };
    for (const auto& r : rows) {
        Bits bits(1, 1);
        bits.at(0, 0) = r.before;
        EXPECT_EQ(run(r.operation, {}, bits, Region::rectangle(0, 0, 1, 1)).at(0, 0), r.after) << r.operation;
    }
}

TEST(Stylise, TheLowerRightNeverWinsInPainting)
{
    Bits bits = randomBits(5, 5, 1);
    for (int y = 2; y < 5; ++y)
        for (int x = 2; x < 5; ++x) bits.at(x, y) = {{77, 77, 77, 0}}; // the calmest window of the centre
    bits.at(2, 2) = {{76, 76, 76, 0}};
    const Region centre = Region::rectangle(2, 2, 3, 3);
    EXPECT_EQ(run("Dissolve", {}, bits, centre).at(2, 2), (Pixel{{76, 76, 76, 0}})); // 692 \ 9
    EXPECT_NE(run("PAINTING", {}, bits, centre).at(2, 2), (Pixel{{76, 76, 76, 0}}));
    const Bits flat = flatBits(9, 9, 5, 6, 7);
    const Bits out = run("PAINTING", {}, flat, Region::rectangle(2, 2, 7, 7));
    EXPECT_TRUE(sameBits(flat, out));
}

TEST(Stylise, PixelizeHoldsItsColourUntilTheNextBlock)
{
    Bits bits = greys({10, 20, 30, 41, 50, 60});
    EXPECT_EQ(firstChannel(run("PIXELIZE", {2}, bits, Region::rectangle(0, 0, 6, 1))),
              (std::vector{15, 15, 35, 35, 55, 55}));
    EXPECT_EQ(firstChannel(run("PIXELIZE", {2}, bits, Region::rectangle(1, 0, 4, 1))), // black at the very start
              (std::vector{10, 0, 35, 35, 50, 60}));
    EXPECT_EQ(firstChannel(run("PIXELIZE", {4}, bits, Region::rectangle(0, 0, 6, 1))), // cut at the picture's edge
              (std::vector{25, 25, 25, 25, 55, 55}));

    Bits rows(6, 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 6; ++x) rows.at(x, y).c[0] = static_cast<std::uint8_t>(10 * y + 40 * (x / 2));
    const Bits out = run("PIXELIZE", {2}, rows, Region::rectangle(1, 0, 6, 3));
    EXPECT_EQ(firstChannel(out, 1),
              (std::vector{10, 85, 45, 45, 85, 85})); // x = 1 keeps the last block of the row above
    EXPECT_EQ(firstChannel(out, 2), (std::vector{20, 85, 60, 60, 100, 100}));
}

TEST(Stylise, HalftoneDotsShareTheirEdgesWithTheNextCell)
{
    // Radius 1: cells of three columns, two apart. Limit 2, gain 1: full at the centre, half beside it, black at
    // corners.
    Bits bits(5, 5);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 5; ++x) bits.at(x, y) = {{200, 200, 200, 3}};
    const Bits out = run("Halftone", {1, 1, 0}, bits, Region::rectangle(0, 0, 5, 5));
    const std::vector<std::vector<int>> wanted = {{0, 100, 0, 100, 0},
                                                  {100, 200, 100, 200, 100},
                                                  {0, 100, 0, 100, 0},
                                                  {100, 200, 100, 200, 100},
                                                  {0, 100, 0, 100, 0}};
    for (int y = 0; y < 5; ++y) EXPECT_EQ(firstChannel(out, y), wanted[static_cast<std::size_t>(y)]) << y;
    EXPECT_EQ(out.at(2, 2).c[3], 3);
    // The gain of 2 brightens, up to 255.
    EXPECT_EQ(run("Halftone", {1, 1, 100}, bits, Region::rectangle(0, 0, 5, 5)).at(1, 1).c[0], 255);
}

TEST(Stylise, StuckiHandsTheErrorOnWithinTheRow)
{
    // Mean 106. 100 gives 0 and hands 19 (100*8\42) to the next and 9 to the one after next.
    EXPECT_EQ(firstChannel(run("StuckiBW", {10}, greys({100, 100, 100, 124}), Region::rectangle(0, 0, 4, 1))),
              (std::vector{0, 255, 0, 255}));
    // The last column takes nothing: 13 from its neighbour and -14 from the first would turn it black.
    EXPECT_EQ(firstChannel(run("StuckiBW", {10}, greys({100, 100, 100}), Region::rectangle(0, 0, 3, 1))),
              (std::vector{255, 0, 255}));
    EXPECT_EQ(firstChannel(run("StuckiBW", {10}, greys({0, 0, 0}), Region::rectangle(0, 0, 3, 1))),
              (std::vector{255, 255, 255})); // nothing is below a mean of 0
}

} // namespace
} // namespace velara
