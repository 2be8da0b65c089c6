// The geometry of a document's window and of pages with a picture: the positions of the display and the scroll bars,
// the value of a scroll bar after a change of size, and the picture pixel under the pointer. Lengths are logical screen
// pixels.
#pragma once
#include "region/Region.h"

namespace velara {

constexpr int kLeastZoom = 1, kMostZoom = 15; // integer zooms
constexpr int kMostZoomedSide = 32767;        // bound of a picture's side times the zoom
constexpr int kLeastBarsWidth = 13;

/// The input of a layout: a picture at a zoom in a window's client area, with bars of a thickness.
struct ViewSpace {
    int pictureWidth, pictureHeight, zoom;
    int clientWidth, clientHeight, barsWidth;
};

struct ViewLayout {
    bool needH = false, needV = false; // visible bars
    Rect hSB, vSB, shp, iDst;
    int hMax = 0, vMax = 0; // ranges of the bars; a page is iDst's size, a step the zoom
};

/// False when a zoomed side is beyond the bound; such a picture returns to zoom 1.
bool zoomFits(int pictureWidth, int pictureHeight, int zoom);

/// A client area smaller than twice the bars' thickness is treated as that large.
ViewLayout layOut(const ViewSpace& space);

/// The value of a bar with the new maximum that shows the same relative position: the middle the first time, and after
/// a layout without a range. Values are clamped to 0..maximum.
int restoredValue(int maximum, bool laidOut, float lastValue, float lastMaximum);

/// Picture column (or row) at a position of the display; at is relative to the display's edge.
int pictureAt(double at, int scroll, int zoom);

/// A picture in a container, in one direction: the bar's range and value, and the position of the picture's edge.
struct PageAxis {
    int maximum, value, place;
};
/// Centred if it isn't longer than the container; else moved by the bar, whose value is clamped to its range.
PageAxis pageAxis(int container, int picture, int value);

/// The part of the display that shows these picture pixels, not clipped to the display.
Rect viewRect(const Rect& pixels, int scrollX, int scrollY, int zoom);

} // namespace velara
