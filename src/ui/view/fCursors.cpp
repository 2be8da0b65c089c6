#include "ui/view/fCursors.h"
#include <QGuiApplication>
#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace velara {

namespace {

constexpr int kSide = 24;

/// A cursor's drawing on a grid of 24 by 24: black with a white outline, visible on every picture.
struct Holder {
    Pointer pointer;
    int hotX, hotY;
    void (*shape)(QPainterPath&);
};

void polygon(QPainterPath& path, std::initializer_list<QPointF> points)
{
    path.addPolygon(QPolygonF(QList<QPointF>(points)));
    path.closeSubpath();
}

void pencil(QPainterPath& p) { polygon(p, {{1, 22}, {3, 15}, {15, 3}, {20, 8}, {8, 20}}); }
void brush(QPainterPath& p)
{
    polygon(p, {{1, 22}, {4, 15}, {8, 19}});
    polygon(p, {{6, 13}, {10, 17}, {22, 5}, {18, 1}});
}
void airbrush(QPainterPath& p)
{
    p.addRoundedRect(QRectF(8, 9, 8, 14), 2, 2);
    p.addRect(QRectF(10, 5, 4, 4));
    for (const QPointF dot : {QPointF(2, 2), QPointF(6, 2), QPointF(4, 5), QPointF(7, 6), QPointF(2, 7)})
        p.addEllipse(dot, 1, 1);
}
void fill(QPainterPath& p)
{
    polygon(p, {{9, 4}, {20, 12}, {13, 21}, {3, 13}});
    polygon(p, {{2, 14}, {5, 16}, {4, 23}, {1, 22}});
}
void stamp(QPainterPath& p)
{
    p.addRect(QRectF(3, 18, 18, 4));
    polygon(p, {{8, 17}, {10, 9}, {14, 9}, {16, 17}});
    p.addEllipse(QPointF(12, 5), 4, 4);
}
void gradient(QPainterPath& p)
{
    p.addRect(QRectF(11, 0, 1, 9));
    p.addRect(QRectF(11, 14, 1, 9));
    p.addRect(QRectF(0, 11, 9, 1));
    p.addRect(QRectF(14, 11, 9, 1));
    for (int i = 0; i < 4; ++i) p.addRect(QRectF(14 + 2 * i, 16, 1, 6 - i));
}
void picker(QPainterPath& p)
{
    polygon(p, {{1, 22}, {2, 18}, {11, 9}, {14, 12}, {5, 21}});
    polygon(p, {{10, 6}, {12, 4}, {14, 6}, {18, 1}, {22, 5}, {17, 9}, {19, 11}, {17, 13}});
}

constexpr Holder kHolders[] = {
    // clang-format off
    {Pointer::cBrush,     1, 22, brush},
    {Pointer::cAirBrush,  2,  2, airbrush},
    {Pointer::cFill,      2, 22, fill},
    {Pointer::cPencil,    1, 22, pencil},
    {Pointer::cTextures, 12, 22, stamp},
    {Pointer::cGradient, 11, 11, gradient},
    {Pointer::cPicker,    1, 22, picker},
    // clang-format on
};

QCursor drawn(const Holder& holder)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmap pixmap(QSize(kSide, kSide) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainterPath path;
    holder.shape(path);
    path.translate(0.5, 0.5);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(path, QPen(Qt::white, 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(path, QColor(40, 40, 40));
    painter.end();
    return QCursor(pixmap, holder.hotX, holder.hotY);
}

} // namespace

QCursor cursorOf(Pointer pointer)
{
    switch (pointer) {
    case Pointer::Default:
        return QCursor(Qt::ArrowCursor);
    case Pointer::Cross:
        return QCursor(Qt::CrossCursor);
    case Pointer::Sizing:
        return QCursor(Qt::SizeAllCursor);
    case Pointer::Waiting:
        return QCursor(Qt::BusyCursor);
    default:
        break;
    }
    static auto& made = *new QHash<int, QCursor>; // outlives the application object on purpose
    const int key = static_cast<int>(pointer);
    if (const auto it = made.constFind(key); it != made.constEnd()) return *it;
    for (const Holder& holder : kHolders)
        if (holder.pointer == pointer) return *made.insert(key, drawn(holder));
    return QCursor(Qt::ArrowCursor);
}

QCursor cGrab() { return QCursor(Qt::ClosedHandCursor); }
QCursor cRelease() { return QCursor(Qt::OpenHandCursor); }

} // namespace velara
