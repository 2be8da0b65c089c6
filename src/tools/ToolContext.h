// What a mouse tool works on, and what a tool is.
#pragma once
#include "document/Document.h"
#include "seams/Frame.h"
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

    std::shared_ptr<int> life = std::make_shared<int>(0); // expires with this object: a yield may close the document

    Setup& setup() const { return frame.setup(); }
    ToolStores& stores() const { return frame.toolStores(); }
    cBitFilter& filter() const { return frame.filter(); }
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
        if (frame.engineHolds(document)) preview.commit();
        frame.finish(document.handle());
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
    /// A move without a button.
    virtual void hover(ToolContext&) const {}
    /// The right button went up: what hangs on the screen goes away. The committed picture is restored after it.
    virtual void cancel(ToolContext&) const {}
    virtual void space(ToolContext&) const {}
    virtual void ctrlReleased(ToolContext&) const {}

  protected:
    /// The Space key of the tools that place pixels: what stands is committed, and the same move goes on from there.
    void fixAndGoOn(ToolContext& c) const;
};

// By family, one file each.
const Tool& selectTool();
const Tool& selectionMoveTool();
const Tool& brushTool();
const Tool& airbrushTool();
const Tool& pencilTool();
const Tool& shapeTool();
const Tool& fillTool();
const Tool& gradientTool();
const Tool& getColorTool();
const Tool& stampTool();
const Tool& textTool();
/// Not of the strip: holds the mouse while a paste is pending.
const Tool& pasteTool();

} // namespace velara
