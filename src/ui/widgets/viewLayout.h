// The arithmetic of a document's window and of pages with a picture: where the display and the scroll bars lie, where a
// scroll bar stands after a change of size, and which picture pixel lies under the pointer. Lengths are logical screen
// pixels.
#pragma once
#include "region/Region.h"

namespace velara {

constexpr int kLeastZoom = 1, kMostZoom = 15; // whole magnifications
constexpr int kMostZoomedSide = 32767;        // bound of a picture's side times the zoom
constexpr int kLeastBarsWidth = 13;

/// What is to be laid out: a picture at a zoom in a window's client area, with bars of a thickness.
struct ViewSpace {
    int pictureWidth, pictureHeight, zoom;
    int clientWidth, clientHeight, barsWidth;
};

struct ViewLayout {
    bool needH = false, needV = false; // bars that are shown
    Rect hSB, vSB, shp, iDst;
    int hMax = 0, vMax = 0; // ranges of the bars; a page is iDst's size, a step the zoom
};

/// False when a zoomed side is beyond the bound; such a picture goes back to zoom 1.
bool zoomFits(int pictureWidth, int pictureHeight, int zoom);

/// A client area below twice the bars' thickness counts as that large.
ViewLayout layOut(const ViewSpace& space);

/// Where a bar with the new maximum stands so that the same relative place is shown: in the middle the first time, and
/// after a layout without a range. A value outside of 0..maximum is limited to it.
int restoredValue(int maximum, bool laidOut, float lastValue, float lastMaximum);

/// Picture column (or row) under a place of the display; at is relative to the display's edge.
int pictureAt(double at, int scroll, int zoom);

/// A picture in a container, along one direction: the bar's range and value, and where the picture's edge lies.
struct PageAxis {
    int maximum, value, place;
};
/// In the middle when it is no longer than the container; else moved by the bar, whose value is limited to its range.
PageAxis pageAxis(int container, int picture, int value);

/// The part of the display that shows these picture pixels, not cut to the display.
Rect viewRect(const Rect& pixels, int scrollX, int scrollY, int zoom);

} // namespace velara
