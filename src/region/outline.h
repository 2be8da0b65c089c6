// The marching outline: the frame of a region, one or more pixels wide, and the stripes that it is drawn with. Work and
// time are those of the visible part, whatever the size of the region.
#pragma once
#include "region/Region.h"
#include <QImage>
#include <array>

namespace velara {

/// The covered pixels of which one of the pixels `width` to the left or right or `height` above or below is not
/// covered, within view: paint(y, x0, x1) for the columns x0 up to but not including x1, row by row. Signs do not
/// matter; 0, 0 paints nothing. Corners count by these four only, so the inner corner of a concave one stays out.
class FrameSpans {
  public:
    FrameSpans(const Region& region, int width, int height) : region_(region), width_(width), height_(height) {}

    /// The spans of row y within the columns left up to but not including right. Valid until the next call.
    std::span<const Span> row(int y, int left, int right);

  private:
    void keepInterior(std::span<const Span> row, int shift, int left, int right);

    const Region& region_;
    int width_, height_;
    std::vector<Span> interior_, scratch_;
};

/// Eight rows of diagonal stripes four pixels wide, the most significant bit at x = 0; pattern n begins n rows further.
constexpr std::array<std::uint8_t, 8> kStripes{240, 120, 60, 30, 15, 135, 195, 225};
/// True where pattern n is light at the device pixel (x, y). The pattern hangs on the device and does not move with the
/// region.
constexpr bool isStripe(int n, int x, int y) { return kStripes[(y + n) & 7] >> (7 - (x & 7)) & 1; }

/// Draws the frame of region, one pixel wide and moved by dx, dy, with pattern n in white and black into the part of
/// the device. The device is a 32-bit image.
void drawOutline(QImage& device, const Region& region, int dx, int dy, int n, const Rect& part);

} // namespace velara
