// The eight grips around a layer or an area: which sides each moves, and its pointer.
#pragma once
#include <Qt>

namespace velara {

constexpr int kGripSide = 9; // screen pixels

/// -1 left or top, 1 right or bottom.
constexpr struct {
    int across, down;
    Qt::CursorShape pointer;
} kGrips[] = {{-1, -1, Qt::SizeFDiagCursor}, {0, -1, Qt::SizeVerCursor},  {1, -1, Qt::SizeBDiagCursor},
              {1, 0, Qt::SizeHorCursor},     {1, 1, Qt::SizeFDiagCursor}, {0, 1, Qt::SizeVerCursor},
              {-1, 1, Qt::SizeBDiagCursor},  {-1, 0, Qt::SizeHorCursor}};

} // namespace velara
