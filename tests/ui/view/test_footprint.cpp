// The line at the pointer that shows what a tool would change.
#include "tools/Tools.h"
#include "ui/view/ImageFixture.h"
#include "ui/view/footprintLine.h"

namespace velara {

/// Accumulates a widget's repainted region.
struct Repaints : QObject {
    qint64 area = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            for (const QRect& part : static_cast<QPaintEvent*>(event)->region())
                area += qint64(part.width()) * part.height();
        return false;
    }
};

struct FootprintTest : ImageFixture {
    bool lineIsSeen() const
    {
        const QImage seen = iDst()->grab().toImage();
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x)
                if ((seen.pixel(x, y) & 0xFFFFFF) != 0x404040) return true;
        return false;
    }
};

TEST_F(FootprintTest, TheLineGoesRoundThePixelsThatAPressChanges)
{
    for (const char* tool : {"Brush", "Airbrush", "Stamp"})
        for (const int size : {3, 4, 9, 40})
            for (const int zoom : {3, 4}) {
                fImage& window = open(flatBits(90, 80, 0, 0, 0), 400, 300);
                window.setZoomFactor(zoom);
                auto& s = frame.setup_;
                s.CurrentTool = tool;
                s.ForeColor = 0xFFFFFF;
                s.BrushSize = s.AirbrushSize = static_cast<std::int16_t>(size);
                s.BrushPressure = s.AirbrushPressure = s.AirbrushQuantity = s.StampPressure = s.AirbrushDefinition =
                    100;
                s.StampMask = s.StampUseMaskColor = false;
                frame.toolStores_.stamp = flatBits(size, size + 5, 255, 255, 255);
                const Tools tools(window.document(), frame, window);
                const QPolygon line = footprintLine(tools.footprint(), zoom);
                ASSERT_FALSE(line.isEmpty());
                const QPoint at(45, 40);
                Tools(window.document(), frame, window).press(Tools::Left, at.x(), at.y());
                for (int y = 0; y < 80; ++y)
                    for (int x = 0; x < 90; ++x) {
                        const QPoint middle = (QPoint(x, y) - at) * zoom + QPoint(zoom / 2, zoom / 2);
                        const bool inside = line.containsPoint(middle, Qt::OddEvenFill);
                        ASSERT_EQ(window.bits().at(x, y).c[0] != 0, inside) << tool << size << ' ' << x << ' ' << y;
                    }
            }
}

TEST_F(FootprintTest, TheLineFollowsThePointerAndRepaintsLittle)
{
    fImage& window = open(flatBits(600, 500, 64, 64, 64), 600, 500);
    frame.setup_.CurrentTool = "Brush";
    frame.setup_.BrushSize = 150;
    EXPECT_FALSE(lineIsSeen());
    hover({200, 200});
    EXPECT_TRUE(lineIsSeen());
    EXPECT_NE(shown(200 - 76, 200), 0x404040u);
    QApplication::processEvents(); // the repaint requested by the first line
    Repaints repaints;
    iDst()->installEventFilter(&repaints);
    hover({203, 201});
    EXPECT_TRUE(comes([&] { return repaints.area > 0; }));
    EXPECT_LT(repaints.area, 150 * 150 / 2) << "along the line, not all that it encloses";
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(iDst(), &leave);
    EXPECT_FALSE(lineIsSeen());
    hover({100, 100});
    window.setMouseScroll(true); // fits: nothing to scroll, the tool continues
    EXPECT_TRUE(lineIsSeen());
    frame.setup_.CurrentTool = "Pencil";
    hover({101, 100});
    EXPECT_FALSE(lineIsSeen()) << "a tool without a size";
}

} // namespace velara
