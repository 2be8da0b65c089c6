#include "document/viewRender.h"
#include <algorithm>
#include <cmath>
#include <cstring>

namespace velara {

namespace {

constexpr std::uint32_t kOpaque = 0xFF000000;

/// The picture column or row of each device pixel from 0: exact for whole ratios, the one under the middle of the
/// device pixel for others.
class Axis {
  public:
    Axis(int scroll, int zoom, double ratio, int most) : scroll_(scroll), zoom_(zoom), most_(most), ratio_(ratio)
    {
        whole_ = ratio == std::floor(ratio) ? static_cast<int>(ratio) : 0;
    }
    int at(int device) const
    {
        const int logical = whole_ ? device / whole_ : static_cast<int>((device + 0.5) / ratio_);
        return std::clamp((logical + scroll_) / zoom_, 0, most_);
    }

  private:
    int scroll_, zoom_, most_, whole_;
    double ratio_;
};

const std::uint32_t* words(const Bits& bits, int y) { return reinterpret_cast<const std::uint32_t*>(bits.row(y)); }

void copyOpaque(const std::uint32_t* from, std::uint32_t* to, int count)
{
    for (int i = 0; i < count; ++i) to[i] = from[i] | kOpaque;
}

void pickOpaque(const std::uint32_t* from, const int* columns, std::uint32_t* to, int count)
{
    for (int i = 0; i < count; ++i) to[i] = from[columns[i]] | kOpaque;
}

} // namespace

void ViewRenderer::render(const Bits& bits, const ViewSpot& spot, const Rect& part, QImage& target)
{
    const Rect p = part.intersected({0, 0, target.width(), target.height()});
    if (p.isEmpty() || bits.isNull()) return;
    const Axis across(spot.scrollX, spot.zoom, spot.ratio, bits.maxX());
    const Axis down(spot.scrollY, spot.zoom, spot.ratio, bits.maxY());
    columns_.resize(static_cast<std::size_t>(p.width()));
    for (int x = 0; x < p.width(); ++x) columns_[static_cast<std::size_t>(x)] = across.at(p.left + x);
    const bool oneToOne = spot.ratio >= 1 && columns_.back() - columns_.front() == p.width() - 1;

    std::uint8_t* const first = target.bits() + std::ptrdiff_t(p.left) * 4;
    const auto lineOf = [&](int y) { return reinterpret_cast<std::uint32_t*>(first + y * target.bytesPerLine()); };
    int shown = -1; // the picture row that the line above holds
    for (int y = p.top; y < p.bottom; ++y) {
        std::uint32_t* const line = lineOf(y);
        const int row = down.at(y);
        if (row == shown)
            std::memcpy(line, lineOf(y - 1), sizeof *line * static_cast<std::size_t>(p.width()));
        else if (oneToOne)
            copyOpaque(words(bits, row) + columns_.front(), line, p.width());
        else
            pickOpaque(words(bits, row), columns_.data(), line, p.width());
        shown = row;
    }
}

} // namespace velara
