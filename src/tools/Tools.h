// Tools: the mouse and key events of a view's display, handed to the tool that Setup.CurrentTool names. The tools
// themselves are small classes in tools_*.cpp and rows of toolRows.cpp.
//
// A preview is made on the document and undone by restoring it from the engine's committed picture; a commit is the way
// back and one undo step. A drag belongs to the tool that it began with, whatever is chosen meanwhile. Failures of the
// arithmetic end the event and nothing else. A call that leaves a tool may destroy this object.
#pragma once
#include "tools/ToolContext.h"
#include "tools/toolRows.h"

namespace velara {

class Tools {
  public:
    enum Button { NoButton = 0, Left = 1, Right = 2 };
    enum class Selecting { All, None, Inverted };
    enum Key {
        Enter = 13,
        Ctrl = 17,
        Escape = 27,
        Space = 32,
        ArrowLeft = 37,
        ArrowUp = 38,
        ArrowRight = 39,
        ArrowDown = 40
    };

    /// All three must outlive this object.
    Tools(Document& document, Frame& frame, ToolSurface& surface);

    /// x, y in picture pixels, as converted by the display; they may lie outside of the picture. The caller drops moves
    /// within one picture pixel and those of hand scrolling. button is the one pressed, held or released.
    void press(int button, int x, int y);
    void move(int button, int x, int y);
    void release(int button, int x, int y);
    /// The second press of a double click; if this is false the caller passes it to press().
    bool doubleClick(int x, int y);
    /// Codes as in Key. False: the key is not used.
    bool keyDown(int key);
    bool keyUp(int key);
    /// Drops a drag, an unfinished polygon or a pending paste without a trace. False: there was none.
    bool drop();
    /// Another tool, or another setting of one, was chosen: drops what the previous tool has begun, except a drag.
    void toolChosen();
    /// The picture's size has changed: the corners of an unfinished polygon are invalid.
    void pictureReplaced();
    /// Another view of the document is used from now on, or this one closes while the document stays: nothing of what
    /// it has begun remains. A pending paste goes on.
    void giveWay();
    /// Changes the selection by command; drops a gesture under way.
    void select(Selecting what);
    /// Shows in the status bar which keys end the current gesture; nothing without one.
    void showHint();
    /// Another document is about to become active, and to use the engine: a drag ends without a commit, and a pending
    /// paste is removed from the picture.
    void deactivated();
    /// Shows the pointer of the chosen tool.
    void showPointer();

    /// Of the tool that holds the drag, else of the chosen one. None while the document is being worked on.
    Footprint footprint() const;

    bool ToolDown() const { return context_.down; }
    bool ToolMoving() const { return context_.moving; }
    const std::vector<std::int32_t>& ToolPoints() const { return context_.points; }

  private:
    const ToolRow* chosen() const; // null for none
    /// The tool that holds the drag, else the chosen one.
    const Tool* tool() const;
    /// The tool with a gesture under way; null for none.
    const Tool* underWay() const;
    bool isWaiting() const;
    template <class Action> bool guarded(Action action);
    void showPosition(int button);
    void cancel();
    bool end(bool (Tool::*how)(ToolContext&) const);
    void endRelease();

    ToolContext context_;
    const Tool* active_ = nullptr; // from a left press to its release
    const Tool* open_ = nullptr;   // its gesture continues after the release; the chosen one
};

} // namespace velara
