// Vector kernels of the painting filters: 3 by 3 windows, and the choice among the four at a pixel's corners.
#pragma once
#include "engine/SpanOf.h"
#include <vector>

namespace velara {

/// The 3 by 3 windows of one row of centres, from x = -1 to the picture's width, per channel: the mean (sum \ 9) and
/// four times the sum of absolute deviations. Each window is at the corner of four pixels and is computed once.
class WindowRow {
  public:
    explicit WindowRow(int width)
        : means_((static_cast<std::size_t>(width) + 2 + kLine - 1) / kLine), even_(means_.size()), odd_(means_.size())
    {
    }
    // Pointers to x = 0: the means as pixels, the distances as pairs of 16 bits (blue and red, green and fourth byte).
    Pixel* means() { return means_.data()->pixels + 1; }
    Pixel* even() { return even_.data()->pixels + 1; }
    Pixel* odd() { return odd_.data()->pixels + 1; }
    const Pixel* means() const { return means_.data()->pixels + 1; }
    const Pixel* even() const { return even_.data()->pixels + 1; }
    const Pixel* odd() const { return odd_.data()->pixels + 1; }

  private:
    static constexpr std::size_t kLine = 16;
    /// So that vectors from x = -1 on are whole cache lines.
    struct alignas(64) Line {
        Pixel pixels[kLine];
    };
    std::vector<Line> means_, even_, odd_;
};

struct QuadrantKernels {
    /// Computes the windows around the centres x0..x1-1 of the row at from.
    void (*windows)(const Pixel* from, std::ptrdiff_t stride, int x0, int x1, WindowRow& to);
    /// Each channel takes the mean of the window with the smallest deviation, ties to the first: upper left, upper
    /// right, lower left and, if four, lower right. above and below hold the centres of the rows above and below.
    void (*choose)(SpanOf, const WindowRow& above, const WindowRow& below, bool four);
};
const QuadrantKernels& quadrantKernels();

} // namespace velara
