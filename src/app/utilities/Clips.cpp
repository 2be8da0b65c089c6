#include "app/utilities/Clips.h"
#include "app/frame/fMain.h"
#include "document/Workspace.h"
#include "pixels/RuntimeError.h"
#include "seams/Clipboard.h"
#include "seams/Platform.h"
#include "tools/Tools.h"

namespace velara {

Clips::Clips(fMain& frame) : frame_(frame), box_(new fPaste(frame, &frame)) {}

/// The part is taken by the thread that blackens it.
void Clips::cut()
{
    const DocumentHandle document = frame_.active();
    frame_.GetActiveImage()->idst_KeyUp(Tools::Ctrl, 0);
    const fPaste::Take taken = document ? box_->CutBits(*document) : fPaste::Take();
    if (!taken) return;
    const auto part = std::make_shared<fPaste::Part>();
    const auto job = [part, taken](Document& draft, cBitFilter& filter) {
        *part = taken(draft);
        if (part->bits.isNull()) throw Cancelled(); // nothing is selected any more
        filter.BitsBlack();
        draft.takeFrom(filter);
    };
    beingCut_ = document;
    frame_.workspace().change(document, {job, After::Step, fMain::tr("Cut")}, [this, part](const Outcome& outcome) {
        frame_.report("CUT", outcome);
        if (outcome) add(*part);
    });
}

void Clips::copy()
{
    const DocumentHandle document = frame_.active();
    frame_.GetActiveImage()->idst_KeyUp(Tools::Ctrl, 0);
    const fPaste::Take taken = document ? box_->CopyBits(*document) : fPaste::Take();
    if (taken) add(taken(*document));
}

void Clips::add(const fPaste::Part& part)
{
    if (box_) box_->add(part);
    frame_.platform().clipboard().setPart(part.bits);
}

/// After the cut that it may be meant for.
void Clips::paste()
{
    if (beingCut_ && frame_.workspace().isBusy(beingCut_))
        frame_.workspace().inTurn(beingCut_, [this] { layDown(); });
    else
        layDown();
}

void Clips::layDown()
{
    const QPointer<fImage> image = frame_.GetActiveImage();
    if (!image) return;
    image->idst_KeyUp(Tools::Ctrl, 0);
    ToolStores& stores = frame_.toolStores();
    QString reason;
    if (box_->isEmpty()) {
        const LoadedPicture picture = frame_.platform().clipboard().bitmap();
        stores.paste = picture.bits;
        reason = picture.reason;
    }
    if (!image) return; // closed while waiting for the clipboard's owner
    if (stores.paste.isNull() || !image->PictureExists())
        return frame_.report("PASTE",
                             {Outcome::Failed, reason.isEmpty() ? QObject::tr("nothing was cut or copied") : reason});
    frame_.setup().PasteMode = PasteMode::Waiting;
    frame_.takeNoTool();
    image->StopTimer();
    stores.pastePending = true;
    image->showPaste();
}

void Clips::letGo()
{
    if (!frame_.toolStores().pastePending) return;
    if (fImage* image = frame_.GetActiveImage()) image->dropGesture();
}

} // namespace velara
