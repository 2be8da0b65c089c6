// Draft: one change of a document from start to end, without a window. The document is untouched until take(); pictures
// are shared until they are written to, so making a draft costs nothing.
#pragma once
#include "document/Document.h"
#include "document/road/Change.h"
#include "engine/cBitFilter.h"

namespace velara {

class Draft {
  public:
    /// A draft of the document's committed picture and selection; for a sizing word after another, of the picture
    /// before the first of them. like: the engine whose clock, progress callback and random state are copied. For a
    /// step back or forward nothing is drafted: its picture is read.
    Draft(Document& document, const Bits& committed, const cBitFilter& like, After after);

    /// The engine that the job gets, e.g. to set its Progress.
    cBitFilter& filter() { return filter_; }
    /// Runs the job, on any thread; exceptions are reported in the outcome. NotEnoughMemory when it needs more than
    /// half of the free memory. Waits until take() need not wait for the disk.
    Outcome attempt(const Job& job);
    /// The document still exists and is at the step at which the draft began.
    bool wanted() const;
    /// For a step back or forward: it goes to the state of this number instead. Called before attempt().
    void goTo(int state) { step_ = document_->undo.stateLater(state); }
    /// Puts the result into the document, which must be wanted(), with an undo step of that note; its selection is the
    /// one that the job got. A sizing word that left the picture unchanged makes no step.
    void take(StepNote note = {});
    /// Updates `engine` after the change: its random state and, when it holds this document, the result and its region.
    void handTo(cBitFilter& engine, bool holds) const;

  private:
    void prepare();
    Outcome found();

    DocumentHandle document_;
    Document draft_;
    cBitFilter filter_;
    std::function<std::optional<Bits>()> before_; // the picture before a run of sizing words
    std::function<std::optional<UndoStore::Found>()> step_;
    std::optional<UndoStore::Found> found_;
    std::function<void()> room_; // waits until one more snapshot can be taken
    Bits start_;                 // the picture at the start
    Region limit_, selection_;   // of the draft at the start
    int commits_;
    After after_;
    bool sizing_, fromBefore_ = false;
};

} // namespace velara
