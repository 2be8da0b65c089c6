// Shrinker: a picture scaled down row by row, so that it needs no memory of its full size.
#pragma once
#include "pixels/Bits.h"
#include <QImage>
#include <vector>

namespace velara {

class Shrinker {
  public:
    /// Scales a picture of this size to fit the box; never enlarges.
    Shrinker(QSize picture, QSize box);
    /// The next row, from the top.
    void take(const Pixel* row);
    /// After the last row.
    QImage image() const;

  private:
    void putOut();

    QSize picture_, target_;
    int block_;                       // block_ by block_ pixels are averaged before the finer scaling
    std::vector<std::uint64_t> sums_; // blue, green and red of the current blocks
    int rows_ = 0, done_ = 0;         // rows in the current blocks; finished block rows
    QImage image_;
};

} // namespace velara
