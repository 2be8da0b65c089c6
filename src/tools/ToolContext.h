// The state that a mouse tool works on, and the interface of a tool.
#pragma once
#include "document/Workspace.h"
#include "document/road/Frame.h"
#include "seams/Setup.h"
#include "seams/text.h"
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
    Point hot;   // ToolHot: the point of a stamp, text or moved content at which it is held
    bool moving = false, moved = false, down = false;
    bool connect = false;                   // the stroke has placed its first dab
    bool corner = false;                    // Space has set a corner during this drag
    const char* name = "";                  // of the tool in use, for the user
    bool polygon = false;                   // a polygon selection is unfinished, with or without the button down
    int computed = Workspace::kAll;         // the change begun by the last release, while it isn't done
    std::vector<std::int32_t> points{0, 0}; // ToolPoints: the corners of a polygon selection, x0, y0, x1, y1, ...
    Region before, wiped;                   // the selection before the gesture, and after its press
    std::int32_t colourBefore = 0;          // the colour before the pipette

    std::shared_ptr<int> life =
        std::make_shared<int>(0); // expires with this object: what a tool calls may close the view

    Setup& setup() const { return frame.setup(); }
    ToolStores& stores() const { return frame.toolStores(); }
    Workspace& workspace() const { return frame.workspace(); }
    cBitFilter& filter() const { return workspace().engine(); }
    /// The engine holds the document's committed picture; else it has that of another one.
    bool hasEngine() const { return workspace().engineHolds(document); }
    Painter& paint() const { return document.paint; }
    /// Repaints what was restored and painted since the last call.
    void repaint()
    {
        const Rect changed = preview.takeRestored().united(document.paint.takeTouched());
        if (!changed.isEmpty()) surface.repaint(changed);
    }
    /// Makes the document's picture the committed one, with one undo step; without one where no pixel has changed.
    void commit()
    {
        if (hasEngine()) {
            if (!preview.hasChanges()) return;
            preview.commit();
        }
        workspace().finish(document.handle(), shown("Tools", name));
    }
};

/// The pixels that a tool would change at a position, relative to it; None for tools without a size.
struct Footprint {
    enum Kind { None, Disc, Box } kind = None;
    Rect box; // of a disc: symmetric, with the pixel itself in the middle
    friend bool operator==(const Footprint&, const Footprint&) = default;
};

/// Tools are stateless: one object of each serves all documents. Each file of tools ends with one function per class
/// that returns its object; toolRows.cpp calls them.
class Tool {
  public:
    virtual ~Tool() = default;
    /// False: the press is refused, and the drag belongs to no tool.
    virtual bool press(ToolContext&) const { return true; }
    virtual void drag(ToolContext&) const {}
    virtual void release(ToolContext&) const {}
    /// A move without a button.
    virtual void hover(ToolContext&) const {}
    /// The right button was released or Esc pressed: removes temporary displays and undoes what else the gesture
    /// changed. The committed picture is restored afterwards.
    virtual void cancel(ToolContext&) const {}
    virtual void space(ToolContext&) const {}
    virtual void ctrlReleased(ToolContext&) const {}
    /// The gesture continues after the release.
    virtual bool unfinished(const ToolContext&) const { return false; }
    /// Enter ends a gesture that only the user can end. False: there is none, the key is not used.
    virtual bool finish(ToolContext&) const { return false; }
    /// The second press of a double click. False: treat it as a normal press.
    virtual bool doubleClick(ToolContext&) const { return false; }
    /// The keys that work during the gesture, for the status bar.
    virtual const char* hint(const ToolContext&) const
    {
        return QT_TRANSLATE_NOOP("Tools", "Esc or right button: drop");
    }
    virtual Footprint footprint(const ToolContext&) const { return {}; }

  protected:
    /// The Space key of the tools that place pixels: commits them where they are and continues the placing.
    void fix(ToolContext& c) const;
    static constexpr const char* kFixHint = QT_TRANSLATE_NOOP("Tools", "Space: fix and go on · Esc: drop");
};

} // namespace velara
