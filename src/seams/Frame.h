// Frame: what documents, tools and dialogs may ask of the frame around them. fMain is the real one; tests bring their
// own.
#pragma once
#include "seams/ToolStores.h"
#include <QString>
#include <optional>

class QWidget;

namespace velara {

class Platform;
class cBitFilter;
class fImage;
struct Setup;

/// The panels of the status bar, by their keys.
enum class Panel { Pos, Ext, Size, Name, Zoom };

class Frame {
  public:
    virtual ~Frame() = default;

    virtual Platform& platform() = 0;
    virtual Setup& setup() = 0;
    /// The one engine; it always holds the active document's last committed picture and its working region.
    virtual cBitFilter& filter() = 0;

    /// Runs a command word. Unknown words do nothing.
    virtual void Mmenu(const QString& word) = 0;
    /// The common end of a pixel change: progress to 0, repaint unless regionOnly, and with save the undo snapshot and
    /// the changed mark.
    virtual void Update(bool regionOnly, bool save) = 0;
    /// The active document, or null.
    virtual fImage* GetActiveImage() = 0;

    /// Keeps the undo and redo buttons in step with the active document.
    virtual void refreshUndoState() = 0;
    virtual void setStatus(Panel panel, const QString& text) = 0;
    /// Percent into the progress bar; values below 0 are dropped.
    virtual void cFilter_Progress(int value) = 0;
    /// The text, or "[" + n + "]" + text when an open document has it as its path; n counts clashes and is never
    /// reused.
    virtual QString UniqueCaption(const QString& text) = 0;
    /// A number for a new document; each call gives the next.
    virtual int nextDocumentNumber() = 0;

    /// Hand scrolling. The first activation of a document switches it on; documents take its state as they are
    /// activated.
    virtual void EnableMouseScrolling() {}
    virtual bool mouseScrolling() const { return false; }
    virtual void CheckToolbarState(bool /*noRefresh*/) {}
    /// The colour wells show the colours of Setup.
    virtual void showColors() {}
    /// Asks the user for a colour by the picker, over a window; what says what it is for. No value: cancelled. Anything
    /// may be closed meanwhile.
    virtual std::optional<Colour> pickColour(Colour start, const QString& what, QWidget* over) = 0;

    /// DocNumber of the document whose picture the engine holds; each sets it as it is activated.
    int activeDocument = -1;
    /// What the mouse tools of all documents share.
    ToolStores toolStores;
};

} // namespace velara
