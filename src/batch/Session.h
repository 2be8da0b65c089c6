// Session: the one picture of a run of velara-batch: a workspace with one document; each step is waited for.
#pragma once
#include "batch/Failure.h"
#include "commands/recipe/RecipeStep.h"
#include "document/Workspace.h"
#include "seams/Platform.h"
#include <QTemporaryDir>
#include <optional>

namespace velara {

/// Throws Failure where there is no picture, or not all of it and that was not asked for; reason says why.
void checkRead(bool hasPicture, const QString& reason, bool partial);

/// Throws the Failure that what a step has thrown becomes.
void throwFailure(const std::exception_ptr& fault);

/// How a picture is saved.
struct SaveOrder {
    CameraKept kept = CameraKept::All; // as much of the camera's data
    std::optional<int> quality = {};   // 1 to 100, where the format has one
    bool tells = true;                 // notices go to the platform
};

class Session {
  public:
    explicit Session(Platform& platform) : platform_(platform) {}

    // Each throws Failure; after that of a change the picture is as it was.

    /// Reads the picture, or a page of it (from 1), one of which a part is missing only with partial. With keepSteps
    /// every change is kept in a private folder so that it can be undone.
    void open(const QString& path, bool partial, bool keepSteps, int page = 1);
    /// "photo.jpg is a PNG picture"; empty where the name of the file that was opened says so.
    QString otherKind() const;
    /// The same with a picture that is there. The one before is gone.
    void adopt(const Bits& bits, bool keepSteps);
    /// The same with one that was read: throws as open() does where it was not, or not wholly.
    void adopt(const LoadedPicture& loaded, bool partial, bool keepSteps);
    /// Writes the picture in the format of the path's extension.
    SaveReport save(const QString& path, const SaveOrder& order = {});
    /// What a web file of the picture gets beside its pixels.
    CameraData webCamera(CameraKept kept) const;
    /// No later step goes back.
    void forgetSteps();
    Bits picture() const { return document_->bits(); }

    void change(const Job& job, After after = After::Step);
    void undo() { step(true); }
    void redo() { step(false); }
    /// change modifies the selection; its result is the working region of later steps.
    template <class Change> void select(Change change)
    {
        change(document_->Region);
        workspace_->handOver(*document_);
    }

    /// Called with the percentage of the current step.
    void setProgress(std::function<void(int)> progress);

  private:
    void step(bool back);
    void begin(bool keepSteps);
    void take(const DocumentHandle& document);
    void checkSteps();

    Platform& platform_;
    std::optional<QTemporaryDir> folder_; // of the undo series
    bool keptSteps_ = false;              // the workspace was made with it
    std::optional<Workspace> workspace_;
    DocumentHandle document_;
    std::function<void(int)> progress_;
};

} // namespace velara
