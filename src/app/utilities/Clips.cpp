#include "app/utilities/Clips.h"
#include "app/frame/fMain.h"
#include "commands/jobs.h"
#include "seams/Clipboard.h"
#include "seams/Platform.h"
#include "tools/Tools.h"

namespace velara {

Clips::Clips(fMain& frame) : frame_(frame), box_(new fPaste(frame, &frame)) {}

void Clips::cut()
{
    const DocumentHandle document = frame_.active();
    frame_.GetActiveImage()->idst_KeyUp(Tools::Ctrl, 0);
    const Bits part = document ? box_->CutBits(*document) : Bits();
    if (part.isNull()) return;
    frame_.platform().clipboard().setPart(part);
    frame_.workspace().change(document, {engineJob([](cBitFilter& filter) { filter.BitsBlack(); })},
                              [this](const Outcome& outcome) { frame_.report("CUT", outcome); });
}

void Clips::copy()
{
    const DocumentHandle document = frame_.active();
    frame_.GetActiveImage()->idst_KeyUp(Tools::Ctrl, 0);
    const Bits part = document ? box_->CopyBits(*document) : Bits();
    if (!part.isNull()) frame_.platform().clipboard().setPart(part);
}

void Clips::paste()
{
    const QPointer<fImage> image = frame_.GetActiveImage();
    image->idst_KeyUp(Tools::Ctrl, 0);
    ToolStores& stores = frame_.toolStores();
    QString reason;
    if (box_->isEmpty()) {
        const LoadedPicture picture = frame_.platform().clipboard().bitmap();
        stores.paste = picture.bits;
        reason = picture.reason;
    }
    if (!image) return; // closed while the clipboard's owner was waited for
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
