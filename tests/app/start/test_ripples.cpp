#include "app/start/ripples.h"
#include <gtest/gtest.h>

namespace velara {

namespace {

QImage picture(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) image.setPixel(x, y, qRgb(x, y, 0));
    return image;
}

} // namespace

TEST(Ripples, AStepShiftsTheRingAndLeavesTheRest)
{
    Ripples ripples(picture(64, 48));
    ripples.add(30, 20);
    ripples.tick([] { return 0.0; }, [] {});
    // The first step has radius 0: one square of 8 at the centre, from two pixels further.
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 64; ++x) {
            const bool inside = x >= 30 && x < 38 && y >= 20 && y < 28;
            const QRgb wanted = inside ? qRgb(x + 2, y + 2, 0) : qRgb(x, y, 0);
            ASSERT_EQ(ripples.picture().pixel(x, y), wanted) << x << "," << y;
        }
}

TEST(Ripples, TheyEndAtTheLargerSideAndSurviveTheEdges)
{
    Ripples ripples(picture(60, 40));
    ripples.add(-5, 39);
    ripples.add(59, 0);
    int yields = 0, ticks = 0;
    while (ripples.firstLive() < ripples.count() && ticks < 100) {
        ripples.tick([] { return 0.99; },
                     [&] {
                         if (++yields == 3) ripples.add(10, 10); // a click during the step
                     });
        ++ticks;
    }
    EXPECT_EQ(ripples.count(), 3);
    EXPECT_EQ(ticks, 21); // 20 steps of three to 60; the third began a step later
    EXPECT_EQ(yields, 20 * 3);
    ripples.tick([] { return 0.0; }, [] { FAIL() << "a dead ripple is drawn"; });
}

} // namespace velara
