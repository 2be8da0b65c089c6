// A change, from a command to its document and what follows it there.
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "document/Draft.h"
#include "pixels/RuntimeError.h"
#include "pixels/memory/MemoryBudget.h"
#include "seams/Platform.h"

namespace velara {

Outcome fMain::change(const DocumentHandle& document, const Job& job, After after)
{
    const DocumentHandle handle = document; // whoever holds that one may be gone after a yield
    if (closing_ || !documents_->of(handle) || !handle->PictureExists()) return {Outcome::Gone};
    const Documents::Work underWay(*documents_);
    // What a tool shows for the time being is no part of the picture: the engine has that.
    const bool committed = engineHolds(*handle) && cFilter_.BitsWidth() == handle->PictureWidth() &&
                           cFilter_.BitsHeight() == handle->PictureHeight();
    Draft draft(*handle, committed ? cFilter_.bits() : handle->bits(), cFilter_, after);
    draft.filter().Progress = [&](int percent) {
        status_->setProgress(percent);
        const MemoryBudget meanwhile(MemoryBudget::Kind::Without); // what runs in the yield is no part of the job
        platform_.yield();
        if (closing_ || !draft.wanted()) throw Cancelled();
    };
    const Outcome outcome = draft.attempt(job);
    status_->setProgress(0);
    fImage* image = closing_ ? nullptr : documents_->of(handle);
    if (!image) return {Outcome::Gone};
    if (!draft.wanted() || (outcome && image->strokeUnderWay()))
        return {Outcome::Dropped, tr("the picture was changed meanwhile")};
    if (!outcome) return outcome;
    draft.take();
    draft.handTo(cFilter_, engineHolds(*handle));
    finished(*image);
    return outcome;
}

void fMain::finish(const DocumentHandle& handle)
{
    fImage* image = documents_->of(handle);
    if (!image) return;
    image->document().commit();
    finished(*image);
}

void fMain::finished(fImage& image)
{
    status_->setProgress(0);
    image.UpdateImage();
    if (engineHolds(image.document())) setStatus(Panel::Size, image.SizeText());
    refreshUndoState();
}

/// A snapshot was not written, which is known only some time after the change.
void fMain::stepLost(const QString& reason)
{
    if (closing_) return;
    status_->say(tr("This step can't be undone: %1.").arg(reason));
    refreshUndoState();
}

void fMain::report(const QString& what, const Outcome& outcome)
{
    if (!outcome.reason.isEmpty() && !closing_) status_->say(what + ": " + outcome.reason);
}

bool fMain::engineHolds(const Document& document) const { return held_ == document.handle(); }

void fMain::handOver(const Document& document)
{
    document.handTo(cFilter_);
    held_ = document.handle();
}

/// Reports of the engine itself, outside of any job.
void fMain::engineProgress(int percent)
{
    const Documents::Work underWay(*documents_);
    status_->setProgress(percent);
    platform_.yield();
    if (closing_) throw Cancelled();
}

} // namespace velara
