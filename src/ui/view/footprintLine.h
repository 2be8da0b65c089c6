// The line that shows on the screen what a tool of some size would change.
#pragma once
#include "tools/ToolContext.h"
#include <QPolygon>
#include <QRegion>

namespace velara {

/// The line just outside of what is changed, step by step along its pixels. In screen pixels from the upper left corner
/// of the pixel that the tool is held at. Empty where nothing is changed, or too little for a line to be of use.
QPolygon footprintLine(const Footprint& footprint, int zoom);

/// Where the closed line is drawn, as a few thin rectangles along it.
QRegion underLine(const QPolygon& line);

} // namespace velara
