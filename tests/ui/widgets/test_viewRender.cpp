#include "support/pictures.h"
#include "ui/widgets/viewRender.h"
#include <QPainter>

namespace velara {

namespace {

std::uint32_t opaque(const Bits& bits, int x, int y) { return 0xFF000000u | colourAt(bits, x, y); }

/// Paints a part of the view onto a red window.
QImage painted(const Bits& bits, const ViewSpot& spot, QSize size, const Rect& part)
{
    QImage window(size, QImage::Format_ARGB32_Premultiplied);
    window.setDevicePixelRatio(spot.ratio);
    window.fill(Qt::red);
    QPainter painter(&window);
    painter.setClipRect(
        QRectF(QPointF(part.left, part.top) / spot.ratio, QSizeF(part.width(), part.height()) / spot.ratio));
    ViewRenderer().paint(painter, bits, spot, part, {});
    painter.end();
    return window;
}

} // namespace

// The fourth bytes of the picture are random: none of them may reach the window.
TEST(ViewRender, EveryDevicePixelShowsItsPicturePixel)
{
    const Bits bits = randomBits(40, 30, 9);
    for (const int ratio : {1, 2, 3})
        for (const int zoom : {1, 2, 3, 15})
            for (const QPoint scroll : {QPoint(0, 0), QPoint(7, 5), QPoint(40 * zoom - 20, 30 * zoom - 10)}) {
                const QSize size(20 * ratio, 10 * ratio);
                const QImage window = painted(bits, {scroll.x(), scroll.y(), zoom, double(ratio)}, size,
                                              {0, 0, size.width(), size.height()});
                for (int y = 0; y < size.height(); ++y)
                    for (int x = 0; x < size.width(); ++x)
                        ASSERT_EQ(window.pixel(x, y), opaque(bits, std::min((x / ratio + scroll.x()) / zoom, 39),
                                                             std::min((y / ratio + scroll.y()) / zoom, 29)))
                            << "ratio " << ratio << " zoom " << zoom << " at " << x << "," << y;
            }
}

TEST(ViewRender, BrokenRatiosKeepWholePixels)
{
    const Bits bits = randomBits(40, 30, 9);
    const QImage window = painted(bits, {0, 0, 1, 1.5}, {60, 45}, {0, 0, 60, 45});
    // Three device pixels per two pixels of the picture.
    const int columns[] = {0, 1, 1};
    for (int y = 0; y < 45; ++y)
        for (int x = 0; x < 60; ++x)
            ASSERT_EQ(window.pixel(x, y), opaque(bits, x / 3 * 2 + columns[x % 3], y / 3 * 2 + columns[y % 3]))
                << x << "," << y;
}

TEST(ViewRender, OnlyThePartIsDrawn)
{
    const Bits bits = randomBits(100, 900, 9);
    const Rect part{13, 11, 90, 870}; // more rows than a strip of this width has
    const QImage window = painted(bits, {}, {100, 900}, part);
    for (int y = 0; y < 900; ++y)
        for (int x = 0; x < 100; ++x)
            ASSERT_EQ(window.pixel(x, y), part.contains(x, y) ? opaque(bits, x, y) : 0xFFFF0000u) << x << "," << y;
}

} // namespace velara
