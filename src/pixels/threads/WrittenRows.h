// The rows of a picture that several threads write to. Bits::row asks at each call who else holds the picture.
#pragma once
#include "pixels/Bits.h"

namespace velara {

/// Valid while the picture lives, is held alone and is not assigned to.
class WrittenRows {
  public:
    explicit WrittenRows(Bits& bits) : first_(bits.row(0)), stride_(bits.stride()) {}
    /// Pointer to x = 0, as Bits::row.
    Pixel* row(int y) const { return first_ + y * stride_; }
    std::ptrdiff_t stride() const { return stride_; }

  private:
    Pixel* first_;
    std::ptrdiff_t stride_;
};

} // namespace velara
