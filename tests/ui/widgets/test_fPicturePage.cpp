// Two pages with a picture, used by mouse, wheel and keys.
#include "support/pictures.h"
#include "support/ui/WindowTest.h"
#include "ui/widgets/fPicturePage.h"

namespace velara {
namespace {

/// Marks the parts that it paints.
struct Canvas final : fPicture {
    QRect last;
    Canvas() : fPicture("c", "c") {}
    void paintOver(QPainter&, const QRect& part) override { last |= part; }
};

struct PicturePages : WindowTest {
    QWidget window;
    Canvas* canvas = new Canvas;
    fPicturePage left{{"CLeft", "Left", "HLeft", "VLeft"}, "Before", canvas};
    fPicturePage right{{"CRight", "Right", "HRight", "VRight"}, "After"};
    Bits picture = randomBits(900, 700, 3);

    void SetUp() override
    {
        used = &window;
        auto* row = new QHBoxLayout(&window);
        row->addWidget(&left);
        row->addWidget(&right);
        left.setPartner(right);
        window.resize(640, 320);
        window.show();
        show(picture);
    }
    void TearDown() override
    {
        left.setParent(nullptr);
        right.setParent(nullptr);
    }
    void show(const Bits& bits)
    {
        left.setBits(bits);
        right.setBits(bits);
        QCoreApplication::processEvents();
    }
    QPoint at(fPicturePage& page) { return page.picture().pos(); }
};

/// The colour in a grab of the container at a position.
QRgb shownAt(fPicturePage& page, QPoint place) { return page.grab().toImage().pixel(place) & 0xFFFFFF; }

TEST_F(PicturePages, ThePartnerShowsTheSamePlace)
{
    ASSERT_TRUE(find("HLeft")->isEnabled());
    find<QScrollBar>("HLeft")->setValue(123);
    find<QScrollBar>("VRight")->setValue(45);
    EXPECT_EQ(QPoint(-123, -45), at(left));
    EXPECT_EQ(QPoint(-123, -45), at(right));
    for (fPicturePage* page : {&left, &right})
        EXPECT_EQ(colourAt(picture, 123 + 20, 45 + 30), shownAt(*page, {20, 30}));
    right.setBits(randomBits(900, 700, 4));
    EXPECT_EQ(QPoint(-123, -45), at(right)) << "another picture of that size stays in its place";
}

TEST_F(PicturePages, SmallerPicturesStandInTheMiddleAndBarsAreOff)
{
    left.setScroll({300, 200});
    show(randomBits(40, 30, 1));
    const QWidget* container = find("CLeft");
    EXPECT_EQ(QPoint((container->width() - 40) / 2, (container->height() - 30) / 2), at(left));
    EXPECT_FALSE(find("HLeft")->isEnabled());
    EXPECT_FALSE(find("VRight")->isEnabled());
    show(randomBits(900, 10, 1)); // scrolls in one direction only
    EXPECT_TRUE(find("HLeft")->isEnabled());
    EXPECT_FALSE(find("VLeft")->isEnabled());
    show({});
    EXPECT_FALSE(find("HLeft")->isEnabled());
}

TEST_F(PicturePages, TheMouseDragsThePictureAndKeepsHoldOfItBeyondTheEdge)
{
    const auto send = [&](QEvent::Type type, QPoint inContainer, Qt::MouseButton button) {
        sendMouse(&left.picture(), type, left.picture().mapFromParent(inContainer), button,
                  type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton);
    };
    send(QEvent::MouseButtonPress, {100, 100}, Qt::LeftButton);
    send(QEvent::MouseMove, {60, 90}, Qt::NoButton);
    EXPECT_EQ(QPoint(-40, -10), at(left));
    EXPECT_EQ(QPoint(-40, -10), at(right));
    send(QEvent::MouseMove, {180, 90}, Qt::NoButton); // 80 too far
    EXPECT_EQ(QPoint(0, -10), at(left));
    send(QEvent::MouseMove, {110, 90}, Qt::NoButton);
    EXPECT_EQ(QPoint(0, -10), at(left));
    send(QEvent::MouseMove, {90, 90}, Qt::NoButton);
    EXPECT_EQ(QPoint(-10, -10), at(left));
    send(QEvent::MouseButtonRelease, {90, 90}, Qt::LeftButton);
    send(QEvent::MouseMove, {10, 10}, Qt::NoButton);
    EXPECT_EQ(QPoint(-10, -10), at(left)) << "let go";
}

TEST_F(PicturePages, WheelAndKeysMoveAndZoomBoth)
{
    QTest::keyClick(&left, Qt::Key_Down);
    QTest::keyClick(&left, Qt::Key_Right);
    EXPECT_EQ(QPoint(-16, -16), at(right));
    sendWheel(&left, {5, 5}, {0, -120});
    EXPECT_EQ(QPoint(-16, -64), at(right));
    left.setScroll({450, 350});
    sendWheel(&left, {5, 5}, {0, 120}, Qt::ControlModifier);
    EXPECT_EQ(2, right.picture().zoom());
    EXPECT_EQ(at(left), at(right));
    EXPECT_EQ(QSize(1800, 1400), right.picture().size());
    const QPoint scroll = right.scroll();
    EXPECT_EQ(colourAt(picture, (scroll.x() + 21) / 2, (scroll.y() + 30) / 2), shownAt(right, {21, 30}));
    right.setZoom(99);
    EXPECT_EQ(15, left.picture().zoom()) << "the most";
}

TEST_F(PicturePages, AWholePictureIsShownSmallerWhereThatIsAllowed)
{
    left.zoomToFit();
    EXPECT_EQ(1, left.picture().zoom());
    left.setLeastZoom(-5);
    left.zoomToFit();
    const QSize room = left.findChild<QWidget*>("CLeft")->size(), shown = canvas->size();
    EXPECT_EQ(shown, canvas->zoomedSize());
    EXPECT_TRUE(room.width() >= shown.width() && room.height() >= shown.height()) << shown.width();
    const int part = 2 - canvas->zoom();
    EXPECT_GT((900 + part - 2) / (part - 1), room.width()) << "the largest that fits";
    const QPoint pixel(7 * part, 5 * part);
    EXPECT_EQ(pixel, canvas->pixelAt(canvas->placeOf(pixel)));
    for (const std::size_t channel : {0, 1, 2}) {
        int sum = 0;
        for (int i = 0; i < part * part; ++i) sum += picture.at(pixel.x() + i % part, pixel.y() + i / part).c[channel];
        const int mean = (sum + part * part / 2) / (part * part);
        EXPECT_EQ(mean, shownAt(left, canvas->pos() + canvas->placeOf(pixel).toPoint()) >> 8 * channel & 255);
    }
    left.setZoom(-99);
    EXPECT_EQ(-5, canvas->zoom()) << "the least";
}

TEST_F(PicturePages, ACanvasRepaintsOnlyWhatChanges)
{
    left.setScroll({100, 100});
    canvas->repaint();
    canvas->last = {};
    canvas->updatePixels({120, 130, 140, 135});
    EXPECT_TRUE(comes([&] { return canvas->last == QRect(120, 130, 20, 5); }));
    EXPECT_EQ(QPoint(120, 130), canvas->pixelAt(canvas->placeOf(QPointF(120, 130))));
}

} // namespace
} // namespace velara
