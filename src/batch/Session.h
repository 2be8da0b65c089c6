// Session: the one picture that a run of velara-batch works on, with its selection and its undo series.
#pragma once
#include "batch/Failure.h"
#include "commands/jobs.h"
#include "document/Document.h"
#include "seams/Machine.h"
#include <QTemporaryDir>
#include <optional>

namespace velara {

/// Whether a step needs the pictures before; sizing words in a row go back to the one before the first of them.
enum class GoesBack { Never, WhenRepeated, Always };

class Session {
  public:
    explicit Session(Machine& machine) : machine_(machine) {}

    /// Takes the picture; with keepSteps every change is kept in a private folder so that it can be undone.
    void open(const Bits& bits, bool keepSteps);
    /// No step to come goes back.
    void forgetSteps() { folder_.reset(); }
    const Bits& picture() const { return document_->bits(); }

    // Each throws Failure and leaves the picture as it was.
    void change(const Job& job, After after = After::Step);
    void crop();
    void undo() { document_->UndoBits(filter_); }
    void redo() { document_->RedoBits(filter_); }
    /// change works on the selection; what it leaves is the working region of the steps to come.
    template <class Change> void select(Change change)
    {
        change(document_->Region);
        document_->handTo(filter_);
    }

    /// Percent of the step that runs.
    void setProgress(std::function<void(int)> progress)
    {
        filter_.Progress = std::move(progress);
        filter_.clock = [this] { return machine_.milliseconds(); };
    }

  private:
    void checkSteps();

    Machine& machine_;
    cBitFilter filter_;
    std::optional<QTemporaryDir> folder_; // of the undo series
    std::optional<Document> document_;
};

} // namespace velara
