// The coverage of ellipses and polygons, and the flat word form of a region.
#include "filters/Region.h"

namespace velara {

Region Region::ellipse(int left, int top, int right, int bottom)
{
    return Region(QRegion(left, top, right - left, bottom - top, QRegion::Ellipse));
}

} // namespace velara
