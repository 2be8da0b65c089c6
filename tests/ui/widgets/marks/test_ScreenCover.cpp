// Picking from a picture of several screens, on screens of different density.
#include "support/pictures.h"
#include "ui/utilities/fCaptureRectangle.h"
#include <QApplication>

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

} // namespace velara
