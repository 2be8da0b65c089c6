#include "paint/Painter.h"
#include "pixels/RuntimeError.h"
#include "support/instructionSets.h"
#include "support/pictures.h"
#include "support/sums.h"

namespace velara {
namespace {

TEST(Painter, PaintsWhatItsDefinitionPaints)
{
    withEachInstructionSet([] { expectCommittedSums(paintTrials()); });
}

struct PainterCases : ::testing::Test {
    const Bits plain = flatBits(20, 10, 100, 100, 100, 7);
    Bits bits = plain;
    cBitRegion selection;
    TouchedTiles touched;
    Painter painter{bits, selection, touched};
    PainterCases() { selection.Init(0, 0, 20, 10); }

    int changed() const
    {
        int count = 0;
        for (int y = -2; y < 12; ++y)
            for (int x = -2; x < 22; ++x) count += bits.at(x, y) != plain.at(x, y);
        return count;
    }
};

TEST_F(PainterCases, AStrokeThatStandsStillIsADab)
{
    painter.CreateDoneBitsTable();
    painter.BitsBrush(15, 5, 2, 0, 0); // marks a cross as done without changing it
    painter.BitsBrush(15, 5, 2, 100, 0);
    EXPECT_EQ(changed(), 0);
    painter.CreateDoneBitsTable();
    painter.BitsBrushLine(15, 5, 15, 5, 2, 100, 0, 0);
    EXPECT_EQ(changed(), 5);
    EXPECT_EQ(painter.takeTouched(), (Rect{14, 4, 17, 7}));
    EXPECT_TRUE(painter.takeTouched().isEmpty());
}

TEST_F(PainterCases, FillsAtTheirLimits)
{
    painter.BitsFill(-1, 3, 0xFFFFFF, 765, 100);
    painter.BitsFill(20, 3, 0xFFFFFF, 765, 100);
    EXPECT_EQ(changed(), 0);
    painter.BitsFill(5, 5, colourOf(109, 91, 100), 765, 100); // within 9 of the seed
    EXPECT_EQ(changed(), 1);
    painter.CreateDoneBitsTable();
    painter.BitsFill(0, 0, 0, 0, 100); // around the odd pixel
    EXPECT_EQ(changed(), 200);
    EXPECT_EQ(bits.at(5, 5), (Pixel{{100, 91, 109, 7}}));
}

TEST_F(PainterCases, APictureIsPaintedOntoItselfAsItWas)
{
    bits = randomBits(20, 10, 4);
    Bits copied = bits;
    Painter(copied, selection, touched).BitsPaint(3, 2, Bits(copied), -1, 70, true);
    painter.BitsPaint(3, 2, bits, -1, 70, true);
    EXPECT_TRUE(sameBits(copied, bits));
}

TEST_F(PainterCases, ColoursAreReadInsideOnly)
{
    EXPECT_EQ(painter.BitsGetPixel(3, 3), colourOf(100, 100, 100));
    EXPECT_EQ(painter.BitsGetPixel(20, 3), 0);
    EXPECT_EQ(painter.BitsGetPixel(3, -1), 0);
    bits = Bits();
    EXPECT_EQ(painter.BitsGetPixel(3, 3), -1);
}

TEST_F(PainterCases, FaultsAreRaisedAndFarAwayIsHarmless)
{
    EXPECT_THROW(painter.BitsAirbrush(3, 3, 1, 50, 50, 50, 0), RuntimeError);
    EXPECT_THROW(painter.BitsBrush(3, 3, 5, 300, 0xFFFFFF), RuntimeError);
    EXPECT_THROW(painter.BitsSoften(3, 3, 5, 140, true), RuntimeError);
    for (int i = 0; i < 2; ++i) // an incomplete table has no effect
        EXPECT_THROW(painter.BitsPaint(3, 3, randomBits(9, 9, 1), -1, 300, true), RuntimeError);
    EXPECT_THROW(painter.BitsBrushLine(0, 0, 40000, 0, 5, 50, 0, 0), RuntimeError);
    EXPECT_THROW(painter.BitsBrushLine(0, 0, 40, 0, 0, 50, 0, 0), RuntimeError);
    const int far = 2000000000;
    painter.BitsBrush(-far, far, 300, 50, 0);
    painter.BitsBrush(3, 3, -5, 50, 0);
    painter.BitsEllipse(-far, 0, far / 2, far / 2, 0, 50);
    painter.BitsPaint(far, -far, randomBits(9, 9, 1), -1, 50, true);
    painter.BitsPaint(-far, 0, randomBits(9, 9, 1), -1, 50, true);
    EXPECT_EQ(changed(), 0);
    painter.BitsBrush(10, 5, 30000, 100, 0xFFFFFF); // larger than the picture
    EXPECT_EQ(changed(), 200);
    bits = Bits();
    painter.BitsBrush(3, 3, 9, 50, 0);
    painter.BitsLine(3, 3, 9, 50, 0, 9);
    painter.BitsFill(3, 3, 0, 0, 9);
    painter.BitsPaint(3, 3, randomBits(9, 9, 1), -1, 50, true);
    painter.BitsAirbrush(3, 3, 9, 50, 50, 50, 0);
}

TEST(DoneBits, AResetClearsEveryRow)
{
    DoneBits done;
    using Runs = std::vector<std::pair<int, int>>;
    const auto claimed = [&](int from, int to) {
        Runs runs;
        done.claim(2, from, to, [&](int x0, int x1) { runs.emplace_back(x0, x1); });
        return runs;
    };
    for (int round = 0; round < 3; ++round) {
        done.reset(200, 5);
        EXPECT_EQ(claimed(60, 140), (Runs{{60, 140}}));
        EXPECT_EQ(claimed(0, 200), (Runs{{0, 60}, {140, 200}}));
    }
}

} // namespace
} // namespace velara
