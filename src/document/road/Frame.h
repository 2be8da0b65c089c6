// Frame: what documents, tools and dialogs may ask of the frame around them. fMain is the real one, RecordingFrame
// (tests/support) the scripted one.
//
// Whoever changes a document's pixels does it by one road, change(). A command:
//
//     const DocumentHandle document = frame.active(); // taken as the command begins
//     const Outcome outcome = frame.change(document, job);
//     if (!outcome) frame.report(tr("Merging"), outcome); // the status bar says why
//
// A modal dialog takes frame.active() as it opens, and in OK stays open when outcome.kind is Failed. A window that is
// not modal does the same with the handle that it has held since it opened. In both, change() may yield: hold yourself
// by a QPointer. A tool that paints right into its document calls finish() at the end of the stroke instead.
#pragma once
#include "document/road/Change.h"
#include "document/road/DocumentHandle.h"
#include "seams/ToolStores.h"
#include <QString>
#include <optional>
#include <vector>

class QWidget;

namespace velara {

class Platform;
class cBitFilter;
struct Setup;

/// The panels of the status bar, by their keys. Hint takes the place of size, name and zoom while it
/// says something.
enum class Panel { Pos, Ext, Size, Name, Zoom, Hint };

/// How a new document comes in.
enum class Arrival {
    Brought, // from the screen, a scanner, the clipboard, another document: SAVE asks for a name, closing asks
    Made,    // new, or read from a file that is not all there: SAVE asks for a name, closing only after a change
    File,    // the path is its own file, which SAVE writes to
};

class Frame {
  public:
    virtual ~Frame() = default;

    virtual Platform& platform() = 0;
    virtual Setup& setup() = 0;
    /// The one engine; it always holds the active document's last committed picture and its working region.
    virtual cBitFilter& filter() = 0;
    /// What the mouse tools of all documents share.
    virtual ToolStores& toolStores() = 0;

    // --- Documents
    /// The active document; names none without one.
    virtual DocumentHandle active() = 0;
    /// All open documents, in order of opening.
    virtual std::vector<DocumentHandle> openDocuments() = 0;
    /// A new document with the picture (a null one: an empty window), whole-picture limit, first snapshot, shown and
    /// active. path becomes its Tag, unique among the open ones, and what follows the last separator its caption; a
    /// name without a folder is put into the folder of the file dialogs. Names none while the frame closes.
    virtual DocumentHandle adopt(const Bits& bits, const QString& path, Arrival arrival = Arrival::Brought) = 0;

    // --- Changes
    /// The one road from a command to a document. Runs the job on a draft of this document, whichever is active; asks
    /// whether the document is still there and still at the step that the job began with; takes the result; takes the
    /// snapshot, marks it changed, repaints. The engine then holds the picture of the document that is active now.
    ///
    /// While the job yields anything may happen. Another document may be activated, drawn on, closed: this one gets its
    /// result all the same. Where the same document is changed in between (another command, undo, a stroke under way as
    /// the job ends) that one stands, and this job is dropped. Where it or the frame is closed the job ends at its next
    /// report of progress.
    virtual Outcome change(const DocumentHandle& document, const Job& job, After after = After::Step) = 0;
    /// The end of a change that a tool painted right into the document: snapshot, changed mark, repaint.
    virtual void finish(const DocumentHandle& document) = 0;
    /// Says in the status bar why a change was not made: "what: reason". Nothing where there is nothing to say.
    virtual void report(const QString& what, const Outcome& outcome) = 0;
    /// True when the engine holds this document's picture.
    virtual bool engineHolds(const Document& document) const = 0;
    /// The engine takes this document's picture and working region; a document does so as it is activated.
    virtual void handOver(const Document& document) = 0;

    // --- Commands and displays
    /// Runs a command word. Unknown words do nothing.
    virtual void Mmenu(const QString& word) = 0;
    virtual void setStatus(Panel panel, const QString& text) = 0;
    /// A number for a new document; each call gives the next.
    virtual int nextDocumentNumber() = 0;
    /// Hand scrolling. The first activation of a document switches it on; documents take its state as they are
    /// activated.
    virtual void EnableMouseScrolling() = 0;
    virtual bool mouseScrolling() const = 0;
    /// The colour wells show the colours of Setup.
    virtual void showColors() = 0;
    /// Asks the user for a colour by the picker, over a window; what says what it is for. No value: cancelled. Anything
    /// may be closed meanwhile.
    virtual std::optional<Colour> pickColour(Colour start, const QString& what, QWidget* over) = 0;
};

} // namespace velara
