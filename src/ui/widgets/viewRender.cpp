#include "ui/widgets/viewRender.h"
#include "ui/widgets/ColourTable.h"
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace velara {

namespace {

constexpr std::uint32_t kOpaque = 0xFF000000;

/// The picture column or row of each device pixel from 0: exact for integer ratios, the one under the centre of the
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

void ViewRenderer::render(const Bits& bits, const ViewSpot& spot, int left, int top, QImage& target)
{
    const int width = target.width();
    if (target.isNull() || bits.isNull()) return;
    const Axis across(spot.scrollX, spot.zoom, spot.ratio, bits.maxX());
    const Axis down(spot.scrollY, spot.zoom, spot.ratio, bits.maxY());
    columns_.resize(static_cast<std::size_t>(width));
    for (int x = 0; x < width; ++x) columns_[static_cast<std::size_t>(x)] = across.at(left + x);
    const bool oneToOne = spot.ratio >= 1 && columns_.back() - columns_.front() == width - 1;

    const auto lineOf = [&, first = target.bits()](int y) {
        return reinterpret_cast<std::uint32_t*>(first + y * target.bytesPerLine());
    };
    int shown = -1; // the picture row in the line above
    for (int y = 0; y < target.height(); ++y) {
        std::uint32_t* const line = lineOf(y);
        const int row = down.at(top + y);
        if (row == shown)
            std::memcpy(line, lineOf(y - 1), sizeof *line * static_cast<std::size_t>(width));
        else if (oneToOne)
            copyOpaque(words(bits, row) + columns_.front(), line, width);
        else
            pickOpaque(words(bits, row), columns_.data(), line, width);
        shown = row;
    }
}

void ViewRenderer::paint(QPainter& painter, const Bits& bits, const ViewSpot& spot, const Rect& part,
                         const Overlay& overlay, const ColourTable* colours)
{
    constexpr int kGrid = 8;
    constexpr int kStripPixels = 1 << 16;
    const int left = part.left & -kGrid, width = part.right - left;
    if (part.isEmpty()) return;
    const int rows = std::max(kStripPixels / width, kGrid) & -kGrid;
    strip_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(rows));
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.scale(1 / spot.ratio, 1 / spot.ratio); // to device pixels, so that nothing is scaled twice
    for (int top = part.top & -kGrid; top < part.bottom; top += rows) {
        QImage strip(reinterpret_cast<uchar*>(strip_.data()), width, std::min(rows, part.bottom - top), 4 * width,
                     QImage::Format_RGB32);
        render(bits, spot, left, top, strip);
        if (colours) colours->convert(strip);
        if (overlay) overlay(strip, left, top);
        painter.drawImage(left, top, strip);
    }
    painter.restore();
}

QImage reducedView(const Bits& bits, double step, const Rect& part)
{
    struct Run {
        int from, end;
    };
    const auto runsOf = [step](int first, int end, int side) {
        std::vector<Run> runs;
        for (int i = first; i < end; ++i) {
            const int from = std::min(static_cast<int>(i * step), side - 1);
            runs.push_back({from, std::clamp(static_cast<int>((i + 1) * step), from + 1, side)});
        }
        return runs;
    };
    const std::vector<Run> columns = runsOf(part.left, part.right, bits.width());
    const std::vector<Run> rows = runsOf(part.top, part.bottom, bits.height());
    QImage small(part.width(), part.height(), QImage::Format_RGB32);
    std::vector<std::array<std::uint32_t, 3>> sums(columns.size());
    for (std::size_t y = 0; y < rows.size(); ++y) {
        std::ranges::fill(sums, std::array<std::uint32_t, 3>{});
        for (int row = rows[y].from; row < rows[y].end; ++row)
            for (std::size_t x = 0; x < columns.size(); ++x)
                for (const Pixel* pixel = bits.row(row) + columns[x].from; pixel < bits.row(row) + columns[x].end;
                     ++pixel)
                    for (std::size_t c = 0; c < 3; ++c) sums[x][c] += pixel->c[c];
        auto* to = reinterpret_cast<QRgb*>(small.scanLine(static_cast<int>(y)));
        for (std::size_t x = 0; x < columns.size(); ++x) {
            const auto count = std::uint32_t((rows[y].end - rows[y].from) * (columns[x].end - columns[x].from));
            const auto mean = [&](std::size_t c) { return static_cast<int>((sums[x][c] + count / 2) / count); };
            to[x] = qRgb(mean(2), mean(1), mean(0));
        }
    }
    return small;
}

} // namespace velara
