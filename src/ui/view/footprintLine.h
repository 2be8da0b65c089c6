// The line on the screen around the pixels that a tool would change.
#pragma once
#include "tools/ToolContext.h"
#include <QPolygon>
#include <QRegion>

namespace velara {

/// The line just outside of those pixels, following their edges. In screen pixels from the upper left corner of the
/// pixel at the tool's position. Empty when there are none, or when the line would be too small to be useful.
QPolygon footprintLine(const Footprint& footprint, int zoom);

/// The pixels of the closed line, as a few thin rectangles along it.
QRegion underLine(const QPolygon& line);

} // namespace velara
