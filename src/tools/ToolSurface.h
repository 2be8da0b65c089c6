// ToolSurface: what the mouse tools ask of the view that they are used in. fImage is the real one; tests bring
// their own. All coordinates are picture pixels.
#pragma once
#include "region/Region.h"

namespace velara {

/// The rubber bands; the numbers are part of the vocabulary.
enum class BandShape { Rectangle = 0, Ellipse = 1, Line = 2 };

/// Mouse pointers of the display: the window's own ones, and the cursor holders by name.
enum class Pointer {
    Default,
    Cross,
    Sizing,
    Waiting,
    cBrush,
    cAirBrush,
    cFill,
    cPencil,
    cTextures,
    cGradient,
    cPicker
};

class ToolSurface {
  public:
    virtual ~ToolSurface() = default;

    /// Updates the frame's state to this document, as on activation (a click on an inactive document).
    virtual void activate() = 0;
    /// Shows the band from one corner to the other. For lines, keep leaves the line on screen and the next call draws a
    /// new one; HideShape removes all lines.
    virtual void ShowShape(BandShape shape, int x1, int y1, int x2, int y2, bool keep) = 0;
    virtual void HideShape(BandShape shape) = 0;
    virtual void setPointer(Pointer pointer) = 0;
    /// The wait pointer for the whole screen; off restores the previous one.
    virtual void setWaiting(bool on) = 0;
    /// Repaints the pixels of part immediately; part may extend beyond the picture.
    virtual void repaint(const Rect& part) = 0;
    /// The same for everything visible.
    virtual void UpdateImage() = 0;
    /// Draws the outline once where it is, without repainting the pixels below.
    virtual void UpdateRegion() = 0;
    virtual void SetAutoRedraw(bool on) = 0;
    /// The marching outline: StartTimer ticks at once and continues, StopTimer pauses it.
    virtual void StartTimer() = 0;
    virtual void StopTimer() = 0;
    /// The pipette has set Setup.ForeColor: updates the frame's displays.
    virtual void colourPicked() = 0;
};

} // namespace velara
