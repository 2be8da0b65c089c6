// Document: everything of an open picture that needs no window: pixels, selection, undo series, changed mark. fImage is
// a view of it; the batch program uses it alone.
#pragma once
#include "document/road/DocumentHandle.h"
#include "document/road/FileFacts.h"
#include "document/undo/UndoStore.h"
#include "paint/Painter.h"
#include "pixels/Bits.h"
#include "region/cBitRegion.h"
#include <functional>

namespace velara {

class cBitFilter;

class Document {
  public:
    /// number: an int, or a callable that returns candidates until one is free, as for UndoStore.
    template <class Number> Document(const QString& tempFolder, Number number) : undo(tempFolder, number) {}
    /// Of a dead program; the picture is to be given.
    explicit Document(UndoStore::Inherited inherited) : undo(std::move(inherited)) {}
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    int DocNumber() const { return undo.number(); }
    bool PictureExists() const { return !bits_.isNull(); }
    int PictureWidth() const { return bits_.width(); }
    int PictureHeight() const { return bits_.height(); }
    const Bits& bits() const { return bits_; }
    /// The picture itself, for the paint primitives. Never to be held over a call that runs events.
    Bits& edit() { return bits_; }
    /// Ignored without a picture; an empty buffer is ignored, too.
    void setBits(const Bits& bits);
    /// Takes the buffer as the picture, also where there was none, and clears the selection.
    void takePicture(const Bits& bits);
    void Clear();
    /// Takes the engine's picture; a change of size clears the selection.
    void takeFrom(const cBitFilter& filter);

    /// Names this document until it is closed.
    DocumentHandle handle() const { return DocumentHandle(life_); }
    /// The document is closed: no handle finds it any more.
    void retire() { life_.reset(); }

    /// Gives the engine this document's picture and working region.
    void handTo(cBitFilter& filter) const;

    /// Snapshot of the present picture, written in the background. name: of the change, for the user.
    void SaveUndoBits(const QString& name = {}) { SaveUndoBits(StepNote{.name = name}); }
    /// The same with all that is known of the change; the small picture is made here.
    void SaveUndoBits(StepNote note);
    /// For whoever changes what a record of recovery says without a snapshot or a step: names, marks, waiting texts.
    void describe() { undo.describe(facts()); }
    /// The end of a change: a snapshot, the changed mark, and a run of sizing words is over.
    void commit(const QString& name = {}) { commit(StepNote{.name = name}); }
    void commit(StepNote note);
    /// Closing it now would lose something; decides the marks of windows and the question at closing.
    bool wouldBeLost() const
    {
        return PictureExists() && (waitingWork || file.isBrought || (Changed && undo.mayHaveChanged()));
    }
    /// The picture has been saved in its file.
    void saved()
    {
        Changed = file.isBrought = file.isCutOff = false;
        file.isFile = true;
    }
    QString Tag() const { return file.Tag(); }
    /// Rises with each snapshot and step: while it is unchanged, so is the committed picture.
    int commits() const { return commits_; }
    /// Step back or forward: the picture goes to the engine and to the document; a change of size clears the selection.
    /// Ends a run of sizing words. False, with nothing changed, when there is no such step.
    bool UndoBits(cBitFilter& filter) { return step(true, filter); }
    bool RedoBits(cBitFilter& filter) { return step(false, filter); }
    /// The same, of a step that was found by another thread.
    void moveTo(const UndoStore::Found& found);

    cBitRegion Region;
    TouchedTiles touched; // what was painted since the last commit, for PreviewBuffer
    /// What PreviewBuffer knows of the picture and the committed one, the same for all views.
    struct {
        bool whole = false;                                   // nothing is known of how the two differ
        std::weak_ptr<const std::uint8_t[]> shown, committed; // the two blocks when they were last known to be in step
    } preview;
    Painter paint{bits_, Region, touched};
    UndoStore undo;
    FileFacts file;
    bool Changed = false;
    bool Zoomed = false; // the last change was a sizing word
    int views = 0;       // windows that show it; the last one to close asks, and closes it
    /// Set while a window holds work on this picture that is not in it yet, such as texts. Puts it in; false when that
    /// failed, and then the window still has it.
    std::function<bool()> waitingWork;
    Layers::State waitingTexts; // of a window that holds them, or of one that was lost with a dead program

  private:
    DocumentFacts facts() const;
    bool step(bool back, cBitFilter& filter);

    Bits bits_;
    int commits_ = 0;
    std::shared_ptr<Document> life_{std::make_shared<char>(), this}; // owns nothing; handles refer to it
};

} // namespace velara
