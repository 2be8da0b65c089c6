// Frame: what views, tools and dialogs may ask of the frame around them. fMain is the real one, RecordingFrame
// (tests/support) the scripted one.
//
// Whoever changes a document's pixels does it by workspace().change():
//
//     frame.workspace().change(document, {job}, [&frame](const Outcome& outcome) { frame.report("MERGE", outcome); });
//
// document is the handle taken when the command began. A modal dialog takes frame.active() as it opens, shows that it
// is busy, and closes in then(...) unless outcome.kind is Failed; there it refers to itself by a QPointer. A tool that
// paints directly into its document calls workspace().finish() at the end of the stroke instead.
#pragma once
#include "document/road/Arrival.h"
#include "document/road/Change.h"
#include "document/road/DocumentHandle.h"
#include "seams/ToolStores.h"
#include <QString>
#include <optional>

class QWidget;

namespace velara {

class Platform;
class Workspace;
struct Setup;

/// The panels of the status bar, by their keys. Hint replaces size, name and zoom while it has a text; Page shows while
/// it has one.
enum class Panel { Pos, Ext, Size, Name, Zoom, Hint, Page };

class Frame {
  public:
    virtual ~Frame() = default;

    virtual Platform& platform() = 0;
    virtual Setup& setup() = 0;
    /// The documents and the way in which they change.
    virtual Workspace& workspace() = 0;
    /// What the mouse tools of all documents share.
    virtual ToolStores& toolStores() = 0;

    // --- Documents
    /// The active document; a null handle when there is none.
    virtual DocumentHandle active() = 0;
    /// A new document with the picture (null: an empty window), whole-picture limit and first snapshot, shown and
    /// active. path becomes its Tag, unique among the open ones, and the part after the last separator its caption; a
    /// name without a folder goes into the folder of the file dialogs. A null handle while the frame closes.
    virtual DocumentHandle adopt(const Bits& bits, const QString& path, Arrival arrival = Arrival::Brought) = 0;

    /// Says in the status bar why a change was not made: "what: reason". Does nothing when there is no reason to give.
    virtual void report(const QString& what, const Outcome& outcome) = 0;

    // --- Commands and displays
    /// Runs a command word. Unknown words do nothing.
    virtual void Mmenu(const QString& word) = 0;
    virtual void setStatus(Panel panel, const QString& text) = 0;
    /// Hand scrolling. The first activation of a view switches it on; views take its state as they are activated.
    /// Both are asked by views alone.
    virtual void EnableMouseScrolling() = 0;
    virtual bool mouseScrolling() const = 0;
    /// Updates the colour wells from Setup.
    virtual void showColors() = 0;
    /// Asks the user for a colour by the picker, above a window; what names the purpose. No value: cancelled. Any
    /// window may be closed meanwhile.
    virtual std::optional<Colour> pickColour(Colour start, const QString& what, QWidget* over) = 0;
};

} // namespace velara
