// Mouse, wheel and keys on the display of a document, with the real tools.
#include "region/outline.h"
#include "ui/view/ImageFixture.h"
#include "ui/view/fDisplay.h"
#include "ui/widgets/marks/motion.h"
#include <QAccessible>

namespace velara {

struct Mouse : ImageFixture {
    void send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held)
    {
        sendMouse(iDst(), type, at, button, held);
    }
    void press(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::MouseButtonPress, at, button, button);
    }
    void drag(QPoint at) { send(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton); }
    void release(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::MouseButtonRelease, at, button, Qt::NoButton);
    }
    void wheel(QPoint at, QPoint angle, Qt::KeyboardModifiers keys = {}) { sendWheel(iDst(), at, angle, keys); }
    void choose(const char* tool) { frame.setup_.CurrentTool = tool; }
};

TEST_F(Mouse, PaintsWhereThePointerIsAndCommitsOnce)
{
    fImage& w = open(flatBits(100, 80, 0, 0, 0), 120, 100);
    frame.setup_.ForeColor = 0x0000FF;
    choose("Pencil");
    w.setZoomFactor(3);
    w.Scroll(31, 14);
    press({5, 4}); // (5 + 31) \ 3, (4 + 14) \ 3
    drag({5 + 9, 4});
    EXPECT_NE(shown(9, 4), 0u) << "seen while it is drawn";
    EXPECT_EQ(shown(9, 4), colourAt(w.bits(), 13, 6));
    EXPECT_FALSE(w.document().Changed);
    release({5 + 9, 4});
    for (int x = 12; x <= 15; ++x) EXPECT_NE(colourAt(w.bits(), x, 6), 0u) << x;
    EXPECT_EQ(colourAt(w.bits(), 11, 6), 0u);
    EXPECT_EQ(colourAt(w.bits(), 16, 6), 0u);
    EXPECT_EQ(frame.snapshots, 1);
    EXPECT_TRUE(frame.filter_.bits() == w.bits());
    EXPECT_TRUE(w.document().Changed);
}

TEST_F(Mouse, MovesWithinAPixelAreDropped)
{
    fImage& w = open(randomBits(40, 30, 1));
    w.setZoomFactor(5);
    hover({12, 12});
    EXPECT_EQ(frame.status[Panel::Pos], "X:2 Y:2");
    frame.status[Panel::Pos] = "untouched";
    hover({14, 10});
    EXPECT_EQ(frame.status[Panel::Pos], "untouched");
    hover({15, 10});
    EXPECT_EQ(frame.status[Panel::Pos], "X:3 Y:2");
    QTest::keyClick(iDst(), Qt::Key_Up);
    QTest::keyClick(iDst(), Qt::Key_Left);
    EXPECT_EQ(frame.status[Panel::Pos], "X:2 Y:1") << "arrows go on from there";
    send(QEvent::MouseMove, {-30, 10}, Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(frame.status[Panel::Pos], "X:0 Y:2") << "a drag beyond the edge";
    EXPECT_EQ(frame.snapshots, 0);
}

// Arrows move a crosshair, Enter presses and releases; the view follows.
TEST_F(Mouse, APictureIsDrawnOnByKeysAlone)
{
    fImage& w = open(flatBits(100, 80, 0, 0, 0), 60, 50);
    frame.setup_.ForeColor = 0x0000FF;
    choose("Pencil");
    w.setZoomFactor(2);
    w.Scroll(0, 0);
    const auto key = [&](Qt::Key k, Qt::KeyboardModifiers with = {}) { QTest::keyClick(iDst(), k, with); };
    key(Qt::Key_Return);
    EXPECT_EQ(frame.snapshots, 0) << "no crosshair yet";
    hover({4, 6});
    key(Qt::Key_Right); // 3, 3
    key(Qt::Key_Return);
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(w.strokeUnderWay());
    EXPECT_NE(shown(7, 14), 0u) << "seen while it is drawn";
    key(Qt::Key_Return);
    EXPECT_FALSE(w.strokeUnderWay());
    for (int y = 3; y <= 13; ++y) EXPECT_NE(colourAt(w.bits(), 3, y), 0u) << y;
    EXPECT_EQ(colourAt(w.bits(), 3, 14), 0u);
    EXPECT_EQ(frame.snapshots, 1);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(iDst());
    EXPECT_EQ(spoken->role(), QAccessible::Canvas);
    EXPECT_TRUE(spoken->text(QAccessible::Value).startsWith("3, 13: red "))
        << spoken->text(QAccessible::Value).toStdString();

    for (int i = 0; i < 20; ++i) key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(frame.status[Panel::Pos], "X:99 Y:13");
    EXPECT_GT(w.GetSBV().x(), 0) << "the crosshair is kept in sight";
    key(Qt::Key_Enter);
    key(Qt::Key_Left, Qt::ShiftModifier);
    key(Qt::Key_Escape);
    key(Qt::Key_Return); // nothing is held: presses anew
    EXPECT_TRUE(w.strokeUnderWay());
    press({10, 10}); // the mouse takes over
    release({10, 10});
    EXPECT_FALSE(w.strokeUnderWay());
    EXPECT_EQ(frame.snapshots, 3);
    EXPECT_EQ(colourAt(w.bits(), 93, 13), 0u) << "dropped";
    key(Qt::Key_Return);
    EXPECT_FALSE(w.strokeUnderWay()) << "the mouse has removed the crosshair";
}

TEST_F(Mouse, SelectsWithABandAndShowsTheOutline)
{
    const Bits bits = flatBits(60, 50, 90, 90, 90);
    fImage& w = open(bits, 300, 300);
    w.setZoomFactor(4);
    choose("Select");
    frame.setup_.SelectionMode = SelectionMode::New;
    frame.setup_.SelectionShape = SelectionShape::Rectangle;
    press({8, 8});
    drag({41, 29});
    QWidget* band = control("shpRect");
    ASSERT_TRUE(band->isVisible());
    EXPECT_EQ(band->geometry(), QRect(8, 8, 32, 20));
    release({41, 29});
    EXPECT_FALSE(band->isVisible());
    EXPECT_EQ(w.document().Region.Region().bounds(), (Rect{2, 2, 10, 7}));
    EXPECT_EQ(frame.filter_.BitsRegion().bounds(), (Rect{2, 2, 10, 7}));
    auto* timer = w.findChild<QTimer*>("tmrSelection");
    ASSERT_TRUE(timer->isActive());

    const auto pattern = [&] { return w.findChild<fDisplay*>()->selection().brushIndex(); };
    const auto expectOutline = [&](bool on) {
        const int n = pattern();
        const QImage screen = iDst()->grab().toImage();
        for (int y = 0; y < screen.height(); ++y)
            for (int x = 0; x < screen.width(); ++x) {
                const bool edge =
                    on && x >= 8 && x < 40 && y >= 8 && y < 28 && (x == 8 || x == 39 || y == 8 || y == 27);
                ASSERT_EQ(screen.pixel(x, y) & 0xFFFFFF, !edge               ? 0x5A5A5Au
                                                         : isStripe(n, x, y) ? 0xFFFFFFu
                                                                             : 0u)
                    << x << "," << y;
            }
    };
    expectOutline(true);
    const int before = pattern();
    EXPECT_TRUE(comes([&] { return pattern() != before; })) << "it marches";
    setLessMotion(true);
    int ticks = 0, rests = pattern();
    QObject::connect(timer, &QTimer::timeout, [&] { ++ticks; });
    EXPECT_TRUE(comes([&] { return ticks > 0; }));
    EXPECT_EQ(pattern(), rests);
    setLessMotion(false);
    expectOutline(true);
    w.deactivate();
    expectOutline(false);
    ToolSurface& surface = w;
    surface.UpdateRegion();
    expectOutline(true);
    surface.repaint({50, 40, 51, 41});
    expectOutline(false);
}

TEST_F(Mouse, TheHandAndTheMiddleButtonScrollAndPaintNothing)
{
    const Bits bits = randomBits(300, 200, 1);
    fImage& w = open(bits, 120, 100);
    choose("Pencil");
    for (const auto button : {Qt::MiddleButton, Qt::LeftButton}) { // the left one by the hand
        const bool hand = button == Qt::LeftButton;
        w.setMouseScroll(hand);
        EXPECT_EQ(iDst()->cursor().shape() == Qt::OpenHandCursor, hand);
        const auto pan = [&](QPoint to) { send(QEvent::MouseMove, to, Qt::NoButton, button); };
        w.Scroll(50, 40);
        press({60, 50}, button);
        EXPECT_EQ(iDst()->cursor().shape(), Qt::ClosedHandCursor);
        pan({50, 53});
        EXPECT_EQ(w.GetSBV(), QPoint(60, 37));
        pan({500, 500});
        EXPECT_EQ(w.GetSBV(), QPoint(0, 0)) << "no further than the edge";
        release({500, 500}, button);
        EXPECT_EQ(iDst()->cursor().shape() == Qt::OpenHandCursor, hand);
        EXPECT_NE(iDst()->cursor().shape(), Qt::ClosedHandCursor);
        EXPECT_TRUE(w.bits() == bits);
        EXPECT_EQ(frame.snapshots, 0);
    }
    w.resize(400, 300); // now all of it is visible: nothing to scroll
    EXPECT_EQ(iDst()->cursor().shape(), Qt::ArrowCursor);
    press({5, 5});
    drag({9, 9});
    release({9, 9});
    EXPECT_TRUE(w.bits() == bits);
    w.setMouseScroll(false);
    press({5, 5});
    release({5, 5});
    EXPECT_EQ(frame.snapshots, 1);
}

TEST_F(Mouse, TheWheelScrollsAndZoomsAboutThePointer)
{
    fImage& w = open(randomBits(300, 200, 1), 120, 100);
    w.Scroll(50, 40);
    wheel({10, 10}, {0, -120});
    EXPECT_EQ(w.GetSBV(), QPoint(50, 88));
    wheel({10, 10}, {0, 120}, Qt::ShiftModifier);
    EXPECT_EQ(w.GetSBV(), QPoint(2, 88));
    const QPoint before = w.GetSBV() + QPoint(30, 20);
    wheel({30, 20}, {0, 120}, Qt::ControlModifier);
    EXPECT_EQ(w.ZoomFactor(), 2);
    EXPECT_EQ((w.GetSBV() + QPoint(30, 20)) / 2, before);
    EXPECT_EQ(frame.status[Panel::Zoom], "2 : 1");
    wheel({30, 20}, {0, -60}, Qt::ControlModifier);
    EXPECT_EQ(w.ZoomFactor(), 2) << "half a notch";
    wheel({30, 20}, {0, -60}, Qt::ControlModifier);
    EXPECT_EQ(w.ZoomFactor(), 1);
    EXPECT_EQ(w.GetSBV(), before - QPoint(30, 20));
}

TEST_F(Mouse, AHalfMadePolygonKeepsItsPlaceInThePicture)
{
    fImage& w = open(randomBits(60, 50, 1), 100, 90);
    choose("Select");
    frame.setup_.SelectionShape = SelectionShape::Polygon;
    press({5, 5});
    release({5, 5});
    press({30, 8});
    release({30, 8});
    const auto placeOf = [&](const char* line) { return control(line)->geometry().topLeft() + w.GetSBV(); };
    EXPECT_EQ(placeOf("shpLine_0"), QPoint(5, 5));
    hover({50, 30}); // a line to the pointer
    w.setZoomFactor(3);
    EXPECT_EQ(placeOf("shpLine_1"), QPoint(90, 24));
    EXPECT_EQ(placeOf("shpLine_0"), QPoint(15, 15));
    EXPECT_EQ(control("shpLine_0")->size(), QSize(76, 10));
    w.Scroll(40, 20);
    EXPECT_EQ(placeOf("shpLine_0"), QPoint(15, 15));
    wheel({10, 10}, {0, -120});
    EXPECT_EQ(placeOf("shpLine_0"), QPoint(15, 15));
    const QPoint third = QPoint(60, 60) - w.GetSBV();
    press(third);
    release(third);
    send(QEvent::MouseButtonDblClick, third, Qt::LeftButton, Qt::LeftButton);
    release(third);
    EXPECT_TRUE(control("shpLine_0")->isHidden());
    EXPECT_TRUE(w.document().Region.Region().contains(18, 10));
}

TEST_F(Mouse, WithinAStrokeTheMiddleButtonIsIgnored)
{
    fImage& w = open(randomBits(300, 200, 1), 120, 100);
    choose("Pencil");
    w.Scroll(60, 37);
    press({5, 5});
    press({60, 50}, Qt::MiddleButton);
    send(QEvent::MouseMove, {20, 20}, Qt::NoButton, Qt::MiddleButton);
    EXPECT_EQ(w.GetSBV(), QPoint(60, 37));
    release({20, 20}, Qt::MiddleButton);
    release({6, 6});
    EXPECT_EQ(frame.snapshots, 1);
    ASSERT_TRUE(comes([&] { return !frame.workspace_.isBusy(w.document().handle()); }));
    press({60, 50}, Qt::BackButton); // an unused button
    EXPECT_FALSE(w.strokeUnderWay());
    release({60, 50}, Qt::BackButton);
}

} // namespace velara
