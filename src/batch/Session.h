// Session: the one picture of a run of velara-batch: a workspace with one document; each step is waited for.
#pragma once
#include "batch/Failure.h"
#include "commands/jobs.h"
#include "document/Workspace.h"
#include "seams/Machine.h"
#include <QTemporaryDir>
#include <optional>

namespace velara {

/// Whether a step needs earlier pictures; consecutive sizing words go back to the one before the first of them.
enum class GoesBack { Never, WhenRepeated, Always };

class Session {
  public:
    explicit Session(Machine& machine) : machine_(machine) {}

    /// Takes the picture; with keepSteps every change is kept in a private folder so that it can be undone.
    void open(const Bits& bits, bool keepSteps);
    /// No step to come goes back.
    void forgetSteps() { folder_.reset(); }
    Bits picture() const { return document_->bits(); }

    // Each throws Failure and leaves the picture as it was.
    void change(const Job& job, After after = After::Step);
    void crop();
    void undo() { workspace_->step(document_, true); }
    void redo() { workspace_->step(document_, false); }
    /// change works on the selection; what it leaves is the working region of the steps to come.
    template <class Change> void select(Change change)
    {
        change(document_->Region);
        workspace_->handOver(*document_);
    }

    /// Called with the percentage of the current step.
    void setProgress(std::function<void(int)> progress);

  private:
    void checkSteps();

    Machine& machine_;
    std::optional<QTemporaryDir> folder_; // of the undo series
    std::optional<Workspace> workspace_;
    DocumentHandle document_;
    std::function<void(int)> progress_;
};

} // namespace velara
