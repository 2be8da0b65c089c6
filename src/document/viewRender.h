// What the display shows: the visible part of a picture in whole magnifications, nearest pixel, drawn straight from the
// picture's memory.
#pragma once
#include "filters/Bits.h"
#include "filters/Region.h"
#include <QImage>
#include <vector>

namespace velara {

/// How the display looks at the picture: the scroll place and the zoom in logical pixels, and how many device pixels a
/// logical one has.
struct ViewSpot {
    int scrollX = 0, scrollY = 0, zoom = 1;
    double ratio = 1;
    friend bool operator==(const ViewSpot&, const ViewSpot&) = default;
};

class ViewRenderer {
  public:
    /// Writes the device pixels of part (cut to target) of the view; the fourth byte is 255 throughout. target is a
    /// 32-bit image as large as the display in device pixels. Places outside of the picture show its nearest pixel.
    void render(const Bits& bits, const ViewSpot& spot, const Rect& part, QImage& target);

  private:
    std::vector<int> columns_; // picture column of each device column of part
};

} // namespace velara
