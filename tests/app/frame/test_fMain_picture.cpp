// Pictures in the frame, edited with the mouse: which document a stroke belongs to, and the resulting engine, undo and
// screen contents.
#include "app/frame/frameTest.h"
#include <QTest>

namespace velara {

struct FramePicture : FrameTest {
    std::uint32_t shown(fImage* image, int x, int y) { return display(image)->grab().toImage().pixel(x, y) & 0xFFFFFF; }
};

TEST_F(FramePicture, AFilterKeepsToTheSelectionOfTheMouse)
{
    fImage* image = open(flatBits(60, 50, 10, 20, 30));
    click("Select");
    drag(image, {10, 10}, {30, 25});
    command("INVERT");
    EXPECT_EQ(image->bits().at(10, 10), (Pixel{{245, 235, 225, 0}}));
    EXPECT_EQ(image->bits().at(9, 10), (Pixel{{10, 20, 30, 0}}));
    EXPECT_EQ(shown(image, 20, 20), 0xE1EBF5u);
    EXPECT_EQ(shown(image, 40, 40), 0x1E140Au);
    command("CROP");
    EXPECT_EQ(image->PictureWidth(), 20);
    EXPECT_EQ(display(image)->size(), QSize(20, 15));
    EXPECT_TRUE(image->document().Region.IsEmptyRegion());
}

TEST_F(FramePicture, APressInAnotherPictureLeavesTheOneThatADragHungOn)
{
    fImage* other = open(flatBits(60, 50, 1, 2, 3), "other.bmp");
    fImage* image = open(flatBits(60, 50, 10, 20, 30));
    const Bits before = image->bits();
    click("Pencil");
    mouse(image, QEvent::MouseButtonPress, {10, 10}, Qt::LeftButton);
    mouse(image, QEvent::MouseMove, {30, 30}, Qt::LeftButton);
    ASSERT_FALSE(image->bits() == before);
    mouse(other, QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton); // as when the frame isn't the active window
    EXPECT_EQ(frame->GetActiveImage(), other);
    EXPECT_TRUE(image->bits() == before);
}

TEST_F(FramePicture, ADragIsTakenBackBeforeTheEngineLeavesItsPicture)
{
    fImage* image = open(flatBits(60, 50, 10, 20, 30));
    const Bits before = image->bits();
    const DocumentHandle other =
        frame->workspace().add(flatBits(60, 50, 1, 2, 3)); // without a window that comes to the front
    click("Pencil");
    mouse(image, QEvent::MouseButtonPress, {10, 10}, Qt::LeftButton);
    mouse(image, QEvent::MouseMove, {30, 30}, Qt::LeftButton);
    const Bits kept = image->bits(); // as a save under way does: the next stroke paints in a block of its own
    mouse(image, QEvent::MouseMove, {30, 40}, Qt::LeftButton);
    ASSERT_FALSE(kept == before);
    frame->workspace().handOver(*other);
    EXPECT_TRUE(image->bits() == before);
    mouse(image, QEvent::MouseMove, {10, 40}, Qt::LeftButton);
    image->dropGesture();
    EXPECT_TRUE(image->bits() == before);
    EXPECT_TRUE(frame->workspace().engine().bits() == other->bits());
}

TEST_F(FramePicture, WhoTakesAToolPutsTheHandAway)
{
    fImage* image = open(randomBits(2000, 1500, 1));
    ASSERT_TRUE(frame->mouseScrolling()) << "on with the first document";
    const Bits before = image->bits();
    const QPoint place = image->GetSBV();
    drag(image, {50, 50}, {40, 45});
    EXPECT_EQ(image->GetSBV(), place + QPoint(10, 5));
    click("Pencil");
    EXPECT_FALSE(frame->toolPane().button("MouseScroll")->isChecked());
    click("MouseScroll");
    EXPECT_EQ(frame->toolPane().tool(), "") << "one of them looks pressed";
    click("MouseScroll");
    EXPECT_EQ(frame->toolPane().tool(), "Pencil");
    drag(image, {50, 50}, {40, 45});
    EXPECT_EQ(image->GetSBV(), place + QPoint(10, 5));
    EXPECT_FALSE(image->bits() == before);
}

} // namespace velara
