// Picking from a picture of several screens, on screens of different density.
#include "support/pictures.h"
#include "ui/utilities/fCaptureRectangle.h"
#include <QApplication>
#include <QKeyEvent>

namespace velara {

TEST(ScreenCover, ADragCountsThePixelsOfTheScreensThatItIsOn)
{
    // 100 by 80 at one pixel per unit; right of it, lower, 100 by 80 at two; nothing above that one.
    const ScreenPicture picture{randomBits(300, 200, 4),
                                {{{0, 0, 100, 80}, {0, 0, 100, 80}}, {{100, 20, 100, 80}, {100, 40, 200, 160}}}};
    fCaptureRectangle picker(nullptr);
    int picks = 0, leaves = 0;
    QObject::connect(&picker, &fCaptureRectangle::picked, [&] { ++picks; });
    QObject::connect(&picker, &ScreenCover::left, [&] { ++leaves; });
    const std::tuple<QPointF, QPointF, QRect> drags[] = {
        {{10, 10}, {40, 30}, {10, 10, 30, 20}},
        {{110, 30}, {150.5, 70}, {120, 60, 81, 80}},    // half a unit is a pixel
        {{190, 90}, {20, 5}, {20, 5, 260, 175}},        // from one screen to the other
        {{110, 30}, {5000, 5000}, {120, 60, 180, 140}}, // beyond all of them
    };
    for (const auto& [from, to, wanted] : drags) {
        picker.ShowPicture(picture);
        picker.press(from);
        picker.move((from + to) / 2);
        picker.release(to);
        EXPECT_TRUE(sameBits(partOf(picture.bits, wanted), picker.picRectangle())) << to.x();
    }
    EXPECT_EQ(picks, int(std::size(drags)));

    picker.ShowPicture(picture);
    picker.press({10, 10});
    picker.release({10, 60}); // no width
    EXPECT_EQ(picks, int(std::size(drags)));
    QList<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == "fCaptureRectangle" && window->isVisible()) windows << window;
    ASSERT_EQ(windows.size(), 2);
    windows[1]->close(); // closing one closes both
    EXPECT_FALSE(windows[0]->isVisible());
    EXPECT_EQ(leaves, 1);
}

// Shift leaves the rectangle with grips, W places that of a window, Enter picks it, or everything.
TEST(ScreenCover, ARectangleThatStaysIsPulledByItsGripsAndPickedByEnter)
{
    const QRect window(30, 20, 60, 50), hidden(0, 0, 100, 90);
    const ScreenPicture picture{
        randomBits(200, 150, 5), {{{0, 0, 200, 150}, {0, 0, 200, 150}}}, {window, hidden, {0, 0, 200, 150}}};
    fCaptureRectangle picker(nullptr);
    const auto press = [&](Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, {});
        EXPECT_TRUE(picker.key(event));
    };
    const auto drag = [&](QPointF from, QPointF to) {
        picker.press(from);
        picker.move(to);
        picker.release(to);
    };
    const std::tuple<QPointF, QPointF, QRect> pulls[] = {
        {{30, 45}, {10, 99}, {10, 20, 80, 50}},     // the left side
        {{90, 70}, {100, 80}, {30, 20, 70, 60}},    // the lower right corner
        {{60, 40}, {500, 500}, {140, 100, 60, 50}}, // all of it, as far as the picture goes
        {{60, 20}, {60, 140}, {30, 69, 60, 1}},     // the upper side, not past the lower one
    };
    for (const auto& [from, to, wanted] : pulls) {
        picker.ShowPicture(picture);
        picker.move({40, 30});
        press(Qt::Key_W);
        EXPECT_EQ(picker.rectangle(), window) << "the topmost one";
        drag(from, to);
        EXPECT_EQ(picker.rectangle(), wanted) << to.x();
        press(Qt::Key_Return);
        EXPECT_TRUE(sameBits(partOf(picture.bits, wanted), picker.picRectangle()));
    }
    picker.ShowPicture(picture);
    press(Qt::Key_Return);
    EXPECT_TRUE(sameBits(partOf(picture.bits, {0, 0, 200, 150}), picker.picRectangle())) << "without one, all";
}

} // namespace velara
