// A document's undo steps and the commands that change its size.
#include "commands/sizeWords.h"
#include "document/Draft.h"
#include "document/resizing.h"
#include "pixels/RuntimeError.h"
#include "pixels/numbers.h"
#include "seams/findRow.h"
#include "support/filterOf.h"
#include "support/fullDisk.h"
#include "support/pictures.h"
#include "tools/reference/definitions.h"
#include <QTemporaryDir>

namespace velara {
namespace {

struct ResizingTest : ::testing::Test {
    QTemporaryDir folder;
    Document document{folder.path(), 1};
    cBitFilter filter;

    void open(const Bits& bits)
    {
        document.takePicture(bits);
        document.handTo(filter);
        document.SaveUndoBits();
    }
    void select(int left, int top, int right, int bottom)
    {
        document.Region.setRegion(Region::rectangle(left, top, right, bottom));
        document.handTo(filter);
    }
    /// Runs a sizing word as the frame and the batch program do.
    void zoom(int factor, bool enlarge = false)
    {
        Draft draft(document, document.bits(), filter, After::Sizing);
        const Outcome outcome =
            draft.attempt([=](Document& d, cBitFilter& f) { zoomImage(d, f, factor, enlarge, false); });
        if (outcome.fault) std::rethrow_exception(outcome.fault);
        draft.take();
        draft.handTo(filter, true);
    }
    void expectSize(int width, int height)
    {
        EXPECT_EQ(width, document.PictureWidth());
        EXPECT_EQ(height, document.PictureHeight());
        EXPECT_TRUE(document.bits().sharesWith(filter.bits())) << "document and engine hold one picture";
        EXPECT_EQ(Region::rectangle(0, 0, width, height), document.Region.RegionMain());
        EXPECT_EQ(document.Region.working(), filter.BitsRegion());
    }
};

/// The valid pixels' colours, row by row.
std::vector<int> colours(const Bits& bits)
{
    std::vector<int> list;
    for (int y = 0; y < bits.height(); ++y)
        for (int x = 0; x < bits.width(); ++x) list.push_back(static_cast<int>(colourAt(bits, x, y)));
    return list;
}

Bits numbered(int width, int height)
{
    return drawnBits(width, height, [](int x, int y) { return Pixel{{std::uint8_t(1 + x + 10 * y), 0, 0, 0}}; });
}

TEST_F(ResizingTest, AStepBackKeepsTheSelectionUnlessTheSizeChanges)
{
    const Bits first = randomBits(8, 6, 1), second = randomBits(8, 6, 2);
    open(first);
    for (const Bits& bits : {second, randomBits(8, 3, 3), randomBits(3, 3, 4)}) {
        document.setBits(bits);
        document.SaveUndoBits();
    }
    for (const int height : {3, 6}) { // changes of one side only, then of the other
        select(1, 1, 3, 3);
        ASSERT_TRUE(document.UndoBits(filter));
        EXPECT_TRUE(document.Region.IsEmptyRegion()) << height;
        expectSize(8, height);
    }
    EXPECT_TRUE(sameBits(second, filter.bits()));
    select(2, 2, 4, 4);
    ASSERT_TRUE(document.UndoBits(filter));
    EXPECT_TRUE(sameBits(first, document.bits()));
    EXPECT_EQ(Region::rectangle(2, 2, 4, 4), filter.BitsRegion());
    EXPECT_FALSE(document.UndoBits(filter));
    EXPECT_TRUE(sameBits(first, document.bits()));
}

TEST_F(ResizingTest, AnEmptyDocumentTakesNoPixels)
{
    document.setBits(randomBits(3, 3, 1));
    EXPECT_FALSE(document.PictureExists());
    document.takePicture(Bits(2, 1));
    document.setBits(Bits());
    EXPECT_TRUE(document.PictureExists());
}

TEST_F(ResizingTest, ARunOfSizingsStartsFromThePictureBeforeTheFirst)
{
    const Bits bits = randomBits(21, 10, 4);
    open(bits);
    select(0, 0, 4, 4);
    zoom(2); // 10.5 and 5: half to even
    expectSize(10, 5);
    EXPECT_TRUE(document.Region.IsEmptyRegion());
    zoom(2);
    expectSize(10, 5);
    zoom(3, true);
    expectSize(63, 30);
    zoom(1);
    expectSize(21, 10);
    EXPECT_EQ(colours(bits), colours(document.bits()));
    EXPECT_TRUE(document.Zoomed);
    document.Zoomed = false; // as after another change
    zoom(2);
    zoom(2);
    expectSize(10, 5);
    ASSERT_TRUE(document.UndoBits(filter));
    expectSize(21, 10);
}

TEST_F(ResizingTest, TheNaturalSizeIsNoStep)
{
    const Bits bits = randomBits(8, 6, 1), second = randomBits(8, 6, 2);
    open(bits);
    document.setBits(second);
    document.SaveUndoBits();
    document.UndoBits(filter);
    zoom(1);
    EXPECT_EQ(1, document.undo.UndoStep());
    EXPECT_TRUE(document.undo.canRedo());
    EXPECT_FALSE(document.Zoomed);
}

TEST_F(ResizingTest, SizingThrowsNoEditAway)
{
    const Bits bits = randomBits(20, 20, 1), edited = randomBits(20, 20, 2);
    const auto edit = [&] {
        document.Zoomed = false;
        document.setBits(edited);
        document.handTo(filter);
        document.SaveUndoBits();
        document.undo.stands();
    };
    open(bits);
    { // the edit can't be written, but the smaller picture can
        const FullDisk full(1000);
        edit();
        for (const auto& [factor, size] : {std::pair{2, 10}, {3, 7}, {1, 20}}) {
            zoom(factor);
            EXPECT_EQ(size != 20, document.undo.stands());
            expectSize(size, size);
        }
        EXPECT_EQ(colours(edited), colours(document.bits()));
        zoom(2);
        ASSERT_TRUE(document.UndoBits(filter));
        EXPECT_EQ(colours(edited), colours(document.bits()));
        EXPECT_FALSE(document.undo.passedOver());
    }
    open(bits);
    edit();
    { // the edit is written, the larger picture can't be
        const FullDisk full(3000);
        zoom(2, true);
        zoom(2, true);
        expectSize(40, 40);
        zoom(1);
        EXPECT_EQ(colours(edited), colours(document.bits()));
    }
    open(bits);
    edit();
    zoom(2);
    document.UndoBits(filter); // by the user: the run is over
    zoom(1);
    EXPECT_EQ(colours(edited), colours(document.bits()));
    zoom(2);
    zoom(1);
    EXPECT_EQ(colours(edited), colours(document.bits()));
}

TEST_F(ResizingTest, WhatCannotBeSizedStaysAsItWas)
{
    const Bits bits = randomBits(2, 30, 5);
    open(bits);
    EXPECT_THROW(zoom(5), RuntimeError) << "no column would be left";
    EXPECT_TRUE(sameBits(bits, document.bits()));
    EXPECT_FALSE(document.Zoomed);
    zoom(2, true);
    const Bits doubled = document.bits();
    EXPECT_THROW(zoom(5), RuntimeError);
    EXPECT_TRUE(sameBits(doubled, document.bits())) << "though it began with the step before";
    EXPECT_EQ(2, document.undo.UndoStep());
    expectSize(4, 60);
    EXPECT_THROW(zoomImage(document, filter, 2000000000, true, true), RuntimeError);
    EXPECT_THROW(zoomImage(document, filter, 0, false, false), RuntimeError);
}

TEST_F(ResizingTest, QuarterTurnsMoveEveryPixel)
{
    const struct {
        const char* word;
        std::vector<int> wanted;
        int width;
    } kCases[] = {
        {"N90", {21, 11, 1, 22, 12, 2, 23, 13, 3, 24, 14, 4, 25, 15, 5}, 3},
        {"A270", {5, 15, 25, 4, 14, 24, 3, 13, 23, 2, 12, 22, 1, 11, 21}, 3},
        {"N180", {25, 24, 23, 22, 21, 15, 14, 13, 12, 11, 5, 4, 3, 2, 1}, 5},
    };
    for (const auto& c : kCases) {
        open(numbered(5, 3)); // the square to rotate in has a side of 5
        rotateImage(document, filter, findRow(sizeWords(), c.word, &SizeWord::word)->value, false);
        expectSize(c.width, 15 / c.width);
        EXPECT_EQ(c.wanted, colours(document.bits())) << c.word;
    }
}

/// The definition: the picture centred in a black square, and the whole square rotated.
cBitFilter turnedSquare(const Bits& picture, int side, int degrees, bool smooth)
{
    cBitFilter square = filterOf(Bits(side, side));
    const int left = (side - picture.width()) / 2, top = (side - picture.height()) / 2;
    square.setBits(square.TileMask(picture, left, top, false, 0, -1));
    const Arguments arguments = smooth ? Arguments{degrees} : Arguments{degrees, false};
    square.setBits(definedResult(smooth ? "RotateSmooth" : "ROTATE", square.bits(), square.BitsRegion(), arguments));
    return square;
}

/// Only the visible part of the square is computed; halves of a pixel, the square's edge, and pixels kept because their
/// source lies outside of it come out the same.
TEST_F(ResizingTest, TurningGivesWhatTheTurnedSquareHas)
{
    const std::pair<int, int> kSizes[] = {{1, 1}, {2, 1}, {7, 2}, {2, 9}, {8, 5}, {9, 6}, {90, 1}, {30, 31}, {70, 67}};
    for (const auto& [w, h] : kSizes)
        for (const int degrees : {-45, -90, -180, 90, 180, 0, 1, 30, 135, -179})
            for (const bool smooth : {false, true}) {
                const Bits picture = randomBits(w, h, 7); // margin and fourth bytes, too
                open(picture);
                turnOnSquare(document, filter, degrees, smooth);
                const double diagonal = std::sqrt(w * w + h * h), angle = degrees * 0.0174533;
                EXPECT_TRUE(sameBits(turnedSquare(picture, roundEven(diagonal), degrees, smooth).bits(), filter.bits()))
                    << w << " x " << h << ", dialog, " << degrees << (smooth ? " smooth" : "");

                open(picture);
                rotateImage(document, filter, degrees, smooth);
                const double c = std::fabs(std::cos(angle)), s = std::fabs(std::sin(angle));
                const int side = int(diagonal), width = roundEven(h * s + c * w), height = roundEven(c * h + s * w);
                const int left = (side - width) / 2, top = (side - height) / 2;
                cBitFilter cut = turnedSquare(picture, side, degrees, smooth);
                cut.BitsCrop(cut.bits(), left, top, left + width, top + height);
                EXPECT_TRUE(sameBits(cut.bits(), filter.bits()))
                    << w << " x " << h << ", word, " << degrees << (smooth ? " smooth" : "");
            }
}

TEST_F(ResizingTest, WhatWouldBeTooLargeIsRefusedWithTheNumbers)
{
    open(Bits(30720, 96));
    const auto refusal = [&](const Job& job) {
        Draft draft(document, document.bits(), filter, After::Step);
        return draft.attempt(job).reason.toStdString();
    };
    EXPECT_EQ("the picture would have 453 megapixels (21790 x 21790 pixels); at most 256 are possible",
              refusal([](Document& d, cBitFilter& f) { rotateImage(d, f, -45, true); }));
    EXPECT_EQ("the picture would have 61440 x 192 pixels; a side has at most 32767",
              refusal([](Document& d, cBitFilter& f) { zoomImage(d, f, 2, true, false); }));
    EXPECT_EQ("", refusal([](Document& d, cBitFilter& f) { rotateImage(d, f, -90, false); }));
    EXPECT_TRUE(document.bits().sharesWith(filter.bits()));
}

TEST_F(ResizingTest, CroppingTakesTheBoxOfTheSelection)
{
    const Bits bits = numbered(6, 5);
    open(bits);
    EXPECT_EQ(CropAnswer::NothingSelected, cropAnswer(document));
    select(1, 1, 2, 4);
    EXPECT_EQ(CropAnswer::TooSmall, cropAnswer(document));
    cropImage(document, filter);
    EXPECT_TRUE(sameBits(bits, document.bits()));
    document.Region.setRegion(Region::rectangle(4, 3, 9, 9)); // partly outside
    EXPECT_EQ(CropAnswer::Possible, cropAnswer(document));
    cropImage(document, filter);
    expectSize(2, 2);
    EXPECT_EQ((std::vector{35, 36, 45, 46}), colours(document.bits()));
    EXPECT_TRUE(document.Region.IsEmptyRegion());
}

} // namespace
} // namespace velara
