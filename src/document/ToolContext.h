// What a mouse tool works on, and what a tool is.
#pragma once
#include "app/Frame.h"
#include "app/Setup.h"
#include "document/Document.h"
#include "document/PreviewBuffer.h"
#include "document/ToolSurface.h"
#include <QString>
#include <vector>

namespace velara {

struct Point {
    int x = 0, y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

/// The tool state of one document and the ways to the rest. Positions are picture pixels.
struct ToolContext {
    ToolContext(Document& document, Frame& frame, ToolSurface& surface)
        : document(document), frame(frame), surface(surface), preview(document, frame.filter())
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
    std::vector<std::int32_t> points{0, 0}; // ToolPoints: the corners of a polygon selection, x0, y0, x1, y1, ...

    Setup& setup() const { return frame.setup(); }
    ToolStores& stores() const { return frame.toolStores; }
    cBitFilter& filter() const { return frame.filter(); }
    /// The document's picture becomes the committed one, with one undo step.
    void commit()
    {
        preview.commit();
        frame.Update(false, true);
    }
};

/// The tools have no state of their own: one object of each serves all documents.
class Tool {
  public:
    virtual ~Tool() = default;
    virtual Pointer pointer() const = 0;
    /// False: the press is refused, and the drag is nobody's.
    virtual bool press(ToolContext&) const { return true; }
    virtual void drag(ToolContext&) const {}
    virtual void release(ToolContext&) const {}
    /// The right button went up: what hangs on the screen goes away.
    virtual void cancel(ToolContext&) const {}
    virtual void space(ToolContext&) const {}
    virtual void ctrlReleased(ToolContext&) const {}
};

// By family, one file each.
const Tool& selectTool();
const Tool& selectionMoveTool();

} // namespace velara
