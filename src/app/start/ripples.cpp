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
        copyShifted(source_, shown_, roundEven(ripple.radius * std::cos(angle) + ripple.x),
                    roundEven(ripple.radius * std::sin(angle) + ripple.y), size);
    }
}

void Ripples::tick(const std::function<double()>& random, const std::function<void()>& yield)
{
    shown_ = source_;
    for (std::size_t i = std::size_t(first_); i < list_.size(); ++i) { // by index: a yield may add some
        const int size = roundEven(2 * random()) + list_[i].size;
        draw(list_[i], size);
        yield();
        Ripple& ripple = list_[i];
        ripple.radius = static_cast<std::int16_t>(ripple.radius + 3);
        if (ripple.size > 1) --ripple.size;
    }
    for (int i = first_; i < count(); ++i)
        if (list_[std::size_t(i)].radius >= limit_) first_ = i + 1;
}

} // namespace velara
