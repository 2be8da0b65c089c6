// Shrinker: a picture scaled down row by row, so that it needs no memory of its full size.
#pragma once
#include "pixels/Bits.h"
#include <QImage>
#include <vector>

namespace velara {

class Shrinker {
  public:
    /// The picture of this size becomes one that fits the box; none is enlarged.
    Shrinker(QSize picture, QSize box);
    /// The next row, from the top.
    void take(const Pixel* row);
    /// After the last row.
    QImage image() const;

  private:
    void putOut();

    QSize picture_, target_;
    int block_;                       // so many pixels across and down become one, before the finer scaling
    std::vector<std::uint64_t> sums_; // blue, green and red of the blocks under way
    int rows_ = 0, done_ = 0;         // in the blocks under way; block rows put out
    QImage image_;
};

} // namespace velara
