#include "app/start/ripples.h"
#include "pixels/numbers.h"
#include <algorithm>
#include <cmath>
#include <cstring>

namespace velara {

Ripples::Ripples(const QImage& picture)
    : source_(picture.convertToFormat(QImage::Format_RGB32)), shown_(source_),
      limit_(std::max(picture.width(), picture.height()))
{
}

namespace {

/// Copies a square of the source at (x + 2, y + 2) to (x, y), clipped to both pictures.
void copyShifted(const QImage& from, QImage& to, int x, int y, int size)
{
    constexpr int kShift = 2; // along both axes: this looks like water
    const int left = std::max(x, 0), right = std::min(x + size, from.width() - kShift);
    const int top = std::max(y, 0), bottom = std::min(y + size, from.height() - kShift);
    if (left >= right) return;
    for (int row = top; row < bottom; ++row)
        std::memcpy(to.scanLine(row) + left * 4, from.constScanLine(row + kShift) + (left + kShift) * 4,
                    std::size_t(right - left) * 4);
}

} // namespace

void Ripples::draw(const Ripple& ripple, int size)
{
    constexpr double kPi = 3.14159265358979;
    for (int degree = 0; degree <= 360; ++degree) {
        const double angle = degree * kPi / 180;
        copyShifted(source_, drawn_, roundEven(ripple.radius * std::cos(angle) + ripple.x),
                    roundEven(ripple.radius * std::sin(angle) + ripple.y), size);
    }
}

bool Ripples::drawNext(const std::function<double()>& random)
{
    if (next_ == first_) drawn_ = source_;
    if (next_ < count()) {
        Ripple& ripple = list_[next_++];
        draw(ripple, roundEven(2 * random()) + ripple.size);
        ripple.radius = static_cast<std::int16_t>(ripple.radius + 3);
        if (ripple.size > 1) --ripple.size;
    }
    if (next_ < count()) return false;
    shown_ = drawn_;
    for (std::size_t i = first_; i < count(); ++i)
        if (list_[i].radius >= limit_) first_ = i + 1;
    next_ = first_;
    return true;
}

} // namespace velara
