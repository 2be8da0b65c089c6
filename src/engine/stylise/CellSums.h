// The sums of the pixels in each cell of a row of cells.
#pragma once
#include "engine/stylise/kernels_cells.h"
#include <algorithm>
#include <vector>

namespace velara {

/// Cells `side` columns wide, starting every `step` columns from `origin`; they may overlap.
class CellSums {
  public:
    CellSums(int width, std::int64_t origin, std::int64_t step, std::int64_t side)
        : width_(width), origin_(origin), step_(step), side_(side), columns_(4 * static_cast<std::size_t>(width)),
          cells_(static_cast<std::size_t>((width - 1 - origin) / step + 1))
    {
    }

    void clear() { std::ranges::fill(cells_, CellSum()); }
    /// Adds the pixels x0..x1-1 of some rows from `from` on, at most kRowsTogether, inside the picture.
    void add(const Pixel* from, std::ptrdiff_t stride, int rows, int x0, int x1)
    {
        cellKernels().addColumns(from + x0, stride, rows, columns_.data() + 4 * static_cast<std::size_t>(x0), x1 - x0);
        first_ = std::min(first_, x0);
        end_ = std::max(end_, x1);
    }
    /// To be called after rows, so that the columns' 16 bits never overflow.
    void rowsDone(int rows)
    {
        rows_ += rows;
        if (rows_ + kRowsTogether > kMostRows) finish();
    }
    static constexpr int kRowsTogether = 8;
    /// Brings the cells up to date.
    void finish()
    {
        rows_ = 0;
        if (first_ >= end_) return;
        std::size_t k = cellAt(first_ - side_ + 1); // the first one that reaches the added columns
        const std::size_t beyond = cellAt(end_ - 1) + 1;
        const auto cut = [&](std::size_t end) { // the cells partly outside of the picture
            for (; k < end; ++k) {
                const std::int64_t start = startOf(k), x0 = std::max<std::int64_t>(start, 0);
                const std::int64_t x1 = std::min<std::int64_t>(start + side_, width_);
                if (x0 < x1) cellKernels().addCells(columns_.data() + 4 * x0, step_, x1 - x0, &cells_[k], 1);
            }
        };
        std::size_t whole = k, last = beyond;
        while (whole < last && startOf(whole) < 0) ++whole;
        while (last > whole && startOf(last - 1) + side_ > width_) --last;
        cut(whole);
        if (whole < last)
            cellKernels().addCells(columns_.data() + 4 * startOf(whole), step_, side_, &cells_[whole], last - whole);
        k = last;
        cut(beyond);
        std::fill(columns_.begin() + 4 * std::ptrdiff_t{first_}, columns_.begin() + 4 * std::ptrdiff_t{end_},
                  std::uint16_t{0});
        first_ = width_;
        end_ = 0;
    }
    const std::vector<CellSum>& cells() const { return cells_; }

  private:
    /// The last cell that starts at column x or before it, the first one where none does.
    std::size_t cellAt(std::int64_t x) const
    {
        const std::int64_t cell = x < origin_ ? 0 : (x - origin_) / step_;
        return std::min(static_cast<std::size_t>(cell), cells_.size() - 1);
    }
    std::int64_t startOf(std::size_t cell) const { return origin_ + static_cast<std::int64_t>(cell) * step_; }

    static constexpr int kMostRows = 65535 / 255;
    const int width_;
    const std::int64_t origin_, step_, side_;
    std::vector<std::uint16_t> columns_;
    std::vector<CellSum> cells_;
    int rows_ = 0;
    int first_ = width_, end_ = 0; // of the columns that were added since they were brought to the cells
};

} // namespace velara
