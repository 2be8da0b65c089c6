// The marching outline: the border of a region, one or more pixels wide, and the stripes that it is drawn with. Cost is
// proportional to the visible part, not to the region.
#pragma once
#include "region/Region.h"
#include <array>

class QImage;

namespace velara {

/// Calls paint(y, x0, x1), row by row, for the region's border within view, x1 excluded. A pixel of the region belongs
/// to the border when one of the pixels `width` to its left or right or `height` above or below lies outside; so the
/// inner corner of a concave shape doesn't. Signs do not matter; 0, 0 paints nothing.
class FrameSpans {
  public:
    FrameSpans(const Region& region, int width, int height) : region_(region), width_(width), height_(height) {}

    /// The spans of row y within columns [left, right). Valid until the next call.
    std::span<const Span> row(int y, int left, int right);

  private:
    void keepInterior(std::span<const Span> row, int shift, int left, int right);

    const Region& region_;
    int width_, height_;
    std::vector<Span> interior_, scratch_;
};

/// Eight rows of diagonal stripes four pixels wide, the most significant bit at x = 0; pattern n begins n rows further.
constexpr std::array<std::uint8_t, 8> kStripes{240, 120, 60, 30, 15, 135, 195, 225};
/// True where pattern n is light at the device pixel (x, y). The pattern is fixed to the device, not to the region.
constexpr bool isStripe(int n, int x, int y) { return kStripes[(y + n) & 7] >> (7 - (x & 7)) & 1; }

/// Draws the region's border, one pixel wide and moved by dx, dy, with pattern n in white and black into part of the
/// device, a 32-bit image.
void drawOutline(QImage& device, const Region& region, int dx, int dy, int n, const Rect& part);

} // namespace velara
