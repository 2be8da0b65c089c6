// What a mouse tool works on, and what a tool is.
#pragma once
#include "document/Workspace.h"
#include "document/road/Frame.h"
#include "seams/Setup.h"
#include "tools/PreviewBuffer.h"
#include "tools/ToolSurface.h"
#include <memory>
#include <vector>

namespace velara {

struct Point {
    int x = 0, y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

/// The tool state of one view and the ways to the rest. Positions are picture pixels.
struct ToolContext {
    ToolContext(Document& document, Frame& frame, ToolSurface& surface)
        : document(document), frame(frame), surface(surface), preview(document, frame.workspace().engine())
    {
    }

    Document& document;
    Frame& frame;
    ToolSurface& surface;
    PreviewBuffer preview;

    Point at;    // of this event
    Point start; // ToolStart: the last left press, or the last corner of a polygon
    Point press; // ToolPress: the last press of any button
    Point last;  // ToolLast: the last position seen
    Point hot;   // ToolHot: the held spot within a stamp, text or moved content
    bool moving = false, moved = false, down = false;
    bool connect = false;                   // the stroke has placed its first dab
    bool corner = false;                    // Space has set a corner in this drag
    bool polygon = false;                   // a polygon selection is half made, under the button or not
    int computed = Workspace::kAll;         // the change that the last release began and that is not done yet
    std::vector<std::int32_t> points{0, 0}; // ToolPoints: the corners of a polygon selection, x0, y0, x1, y1, ...
    Region before, wiped;                   // the selection as a gesture found it, and as its press left it
    std::int32_t colourBefore = 0;          // the colour that the pipette found

    std::shared_ptr<int> life =
        std::make_shared<int>(0); // expires with this object: what a tool calls may close the view

    Setup& setup() const { return frame.setup(); }
    ToolStores& stores() const { return frame.toolStores(); }
    Workspace& workspace() const { return frame.workspace(); }
    cBitFilter& filter() const { return workspace().engine(); }
    Painter& paint() const { return document.paint; }
    /// Shows what was restored and painted since the last call.
    void repaint()
    {
        const Rect changed = preview.takeRestored().united(document.paint.takeTouched());
        if (!changed.isEmpty()) surface.repaint(changed);
    }
    /// The document's picture becomes the committed one, with one undo step.
    void commit()
    {
        if (workspace().engineHolds(document)) preview.commit();
        workspace().finish(document.handle());
    }
};

/// What a tool changes when it is held at a pixel, in pixels from there; None for tools without a size.
struct Footprint {
    enum Kind { None, Disc, Box } kind = None;
    Rect box; // of a disc: as far to the right and down as to the left and up, the pixel itself between
    friend bool operator==(const Footprint&, const Footprint&) = default;
};

/// The tools have no state of their own: one object of each serves all documents. Each file of tools ends with a
/// function for each class that gives its object; toolRows.cpp calls them.
class Tool {
  public:
    virtual ~Tool() = default;
    /// False: the press is refused, and the drag is nobody's.
    virtual bool press(ToolContext&) const { return true; }
    virtual void drag(ToolContext&) const {}
    virtual void release(ToolContext&) const {}
    /// A move without a button.
    virtual void hover(ToolContext&) const {}
    /// The right button went up, or Esc down: what hangs on the screen goes away, and what else the gesture changed
    /// comes back. The committed picture is restored after it.
    virtual void cancel(ToolContext&) const {}
    virtual void space(ToolContext&) const {}
    virtual void ctrlReleased(ToolContext&) const {}
    /// The gesture goes on after the release.
    virtual bool unfinished(const ToolContext&) const { return false; }
    /// Enter ends a gesture that only its user can end. False: there is none, the key is somebody else's.
    virtual bool finish(ToolContext&) const { return false; }
    /// The second press of a double click. False: a press like any other.
    virtual bool doubleClick(ToolContext&) const { return false; }
    /// Which keys do what while the gesture is on, for the status bar.
    virtual const char* hint(const ToolContext&) const { return "Esc or right button: drop"; }
    virtual Footprint footprint(const ToolContext&) const { return {}; }

  protected:
    /// The Space key of the tools that place pixels: what stands is committed; what is held goes on from there.
    void fix(ToolContext& c) const;
    static constexpr const char* kFixHint = "Space: fix and go on · Esc: drop";
};

} // namespace velara
