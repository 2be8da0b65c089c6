// What the display shows: the visible part of a picture at an integer zoom, nearest neighbour, directly from the
// picture's memory. No zoomed copy exists: a strip of rows at a time goes through a small buffer that stays in the
// cache, which takes half the time of a buffer for the whole view.
#pragma once
#include "pixels/Bits.h"
#include "region/Region.h"
#include <QImage>
#include <functional>
#include <vector>

class QPainter;

namespace velara {

class ColourTable;

/// The view of the picture: the scroll position and the zoom in logical pixels, and the device pixels per logical
/// pixel.
struct ViewSpot {
    int scrollX = 0, scrollY = 0, zoom = 1;
    double ratio = 1;
};

class ViewRenderer {
  public:
    /// Draws over a strip before it is shown; gets the strip and its corner's position in the view.
    using Overlay = std::function<void(QImage& strip, int left, int top)>;

    /// Paints part of the view, in device pixels; the painter's coordinates are logical. The corners passed to overlay
    /// are multiples of 8. colours: those of the screen; null: the picture's own.
    void paint(QPainter& painter, const Bits& bits, const ViewSpot& spot, const Rect& part, const Overlay& overlay,
               const ColourTable* colours = nullptr);

    /// Renders the view from (left, top) to the whole target, a 32-bit image; the fourth byte is always 255. Positions
    /// outside of the picture show its nearest pixel.
    void render(const Bits& bits, const ViewSpot& spot, int left, int top, QImage& target);

  private:
    std::vector<int> columns_; // picture column of each device column
    std::vector<std::uint32_t> strip_;
};

/// A part of the picture made smaller: each device pixel is the mean of the `step` by `step` picture pixels under it,
/// step at least 1. part is in device pixels; what lies outside of the picture shows its last pixel.
QImage reducedView(const Bits& bits, double step, const Rect& part);

} // namespace velara
