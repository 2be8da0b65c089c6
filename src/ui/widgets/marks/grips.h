// The eight grips around a layer, an area or a rectangle: which sides each moves, its pointer, its place and its look.
#pragma once
#include <QPainter>
#include <QRectF>
#include <Qt>

namespace velara {

constexpr int kGripSide = 9; // screen pixels

struct Grip {
    int across, down; // -1 left or top, 1 right or bottom
    Qt::CursorShape pointer;
};

constexpr Grip kGrips[] = {{-1, -1, Qt::SizeFDiagCursor}, {0, -1, Qt::SizeVerCursor},  {1, -1, Qt::SizeBDiagCursor},
                           {1, 0, Qt::SizeHorCursor},     {1, 1, Qt::SizeFDiagCursor}, {0, 1, Qt::SizeVerCursor},
                           {-1, 1, Qt::SizeBDiagCursor},  {-1, 0, Qt::SizeHorCursor}};

/// The square of a grip, centred on its corner or the middle of its side.
inline QRect gripBox(const QRectF& box, const Grip& grip)
{
    QRectF square(0, 0, kGripSide, kGripSide);
    square.moveCenter(box.center() + QPointF(grip.across * box.width(), grip.down * box.height()) / 2);
    return square.toRect();
}

inline void paintGrip(QPainter& painter, const QRect& square)
{
    painter.fillRect(square, Qt::black);
    painter.fillRect(square.adjusted(1, 1, -1, -1), Qt::white);
}

} // namespace velara
