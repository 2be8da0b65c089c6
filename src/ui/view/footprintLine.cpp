#include "ui/view/footprintLine.h"
#include <algorithm>
#include <cmath>

namespace velara {

namespace {

constexpr int kSmallest = 5; // screen pixels
constexpr int kPieces = 32;  // rectangles along a line

/// Down the right side, then mirrored up the left.
QPolygon roundDisc(int r, int zoom)
{
    const auto right = [&](int dy) {
        return (static_cast<int>(std::sqrt(double(r) * r - double(dy) * dy)) + 1) * zoom;
    };
    QPolygon line;
    for (int dy = -r; dy <= 0; ++dy) {
        if (dy > -r) line << QPoint(right(dy - 1), dy * zoom - 1);
        line << QPoint(right(dy), dy * zoom - 1);
    }
    for (int dy = 0; dy <= r; ++dy) {
        line << QPoint(right(dy), (dy + 1) * zoom);
        if (dy < r) line << QPoint(right(dy + 1), (dy + 1) * zoom);
    }
    for (auto i = line.size(); i-- > 0;) line << QPoint(zoom - 1 - line[i].x(), line[i].y());
    return line;
}

} // namespace

QPolygon footprintLine(const Footprint& footprint, int zoom)
{
    const Rect& box = footprint.box;
    if (footprint.kind == Footprint::None || std::max(box.width(), box.height()) * zoom < kSmallest) return {};
    if (footprint.kind == Footprint::Disc) return roundDisc(-box.left, zoom);
    const int left = box.left * zoom - 1, top = box.top * zoom - 1, right = box.right * zoom,
              bottom = box.bottom * zoom;
    return QPolygon({{left, top}, {right, top}, {right, bottom}, {left, bottom}});
}

QRegion underLine(const QPolygon& line)
{
    QRegion under;
    const auto count = line.size(), step = std::max<qsizetype>(1, count / kPieces);
    for (qsizetype from = 0; from < count; from += step) {
        const auto to = std::min(from + step, count);
        QRect piece(line[to % count], QSize(1, 1));
        for (auto i = from; i < to; ++i) piece |= QRect(line[i], QSize(1, 1));
        under += piece.adjusted(-1, -1, 1, 1);
    }
    return under;
}

} // namespace velara
