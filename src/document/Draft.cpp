#include "document/Draft.h"
#include "pixels/RuntimeError.h"
#include "pixels/memory/MemoryBudget.h"

namespace velara {

Draft::Draft(Document& document, const Bits& committed, const cBitFilter& like, After after)
    : document_(document.handle()), draft_({}, document.DocNumber()), filter_(like), room_(document.undo.roomLater()),
      commits_(document.commits()), after_(after), sizing_(after == After::Sizing)
{
    if (isStep(after)) step_ = document.undo.stepLater(after == After::Back);
    draft_.takePicture(committed);
    draft_.Region = document.Region;
    if (sizing_ && document.Zoomed) before_ = document.undo.previousLater();
}

/// Sets up the picture that the job starts from; reading the one before a sizing run may take time.
void Draft::prepare()
{
    if (const auto before = before_ ? before_() : std::nullopt) {
        fromBefore_ = true;
        if (before->width() == draft_.PictureWidth() && before->height() == draft_.PictureHeight())
            draft_.setBits(*before);
        else
            draft_.takePicture(*before);
    }
    if (sizing_) start_ = draft_.bits();
    draft_.handTo(filter_);
    limit_ = draft_.Region.RegionMain();
    selection_ = draft_.Region.Region();
}

/// Without a budget: what was shown once can be shown again.
Outcome Draft::found()
{
    found_ = step_();
    return {found_ ? Outcome::Done : Outcome::Failed};
}

Outcome Draft::attempt(const Job& job)
{
    try {
        if (isStep(after_)) return found();
        const MemoryBudget budget;
        prepare();
        job(draft_, filter_);
        room_();
        return {};
    } catch (const Cancelled&) {
        return {Outcome::Cancelled};
    } catch (const std::exception& failure) {
        return {Outcome::Failed, QString::fromUtf8(failure.what()), std::current_exception()};
    }
}

bool Draft::wanted() const { return document_ && document_->commits() == commits_; }

void Draft::take(StepNote note)
{
    Document& document = *document_;
    if (found_) return document.moveTo(*found_);
    note.selection = selection_;
    if (sizing_ && !fromBefore_ && draft_.bits().sharesWith(start_)) return;
    const bool sameSize =
        draft_.PictureWidth() == document.PictureWidth() && draft_.PictureHeight() == document.PictureHeight();
    const bool sameRegion = draft_.Region.RegionMain() == limit_ && draft_.Region.Region() == selection_;
    if (sameSize && sameRegion) { // keep what the user selected meanwhile
        document.setBits(draft_.bits());
    } else {
        document.takePicture(draft_.bits());
        if (!draft_.Region.IsEmptyRegion()) document.Region.setRegion(draft_.Region.Region());
    }
    if (fromBefore_) document.undo.stepBack();
    if (!sizing_) return document.commit(std::move(note));
    document.Changed = document.Zoomed = true;
    document.SaveUndoBits(std::move(note));
}

void Draft::handTo(cBitFilter& engine, bool holds) const
{
    if (!isStep(after_)) engine.setRandomSeed(filter_.randomSeed());
    if (holds && document_) document_->handTo(engine);
}

} // namespace velara
