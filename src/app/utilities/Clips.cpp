#include "app/utilities/Clips.h"
#include "app/frame/fMain.h"
#include "commands/recipe/stepText.h"
#include "document/Workspace.h"
#include "document/resizing.h"
#include "pixels/RuntimeError.h"
#include "seams/Clipboard.h"
#include "seams/Platform.h"
#include "tools/Tools.h"
#include <algorithm>

namespace velara {

Clips::Clips(fMain& frame) : frame_(frame), box_(new fPaste(frame, &frame))
{
    QObject::connect(box_, &fPaste::chosen, box_, [this] { seen_ = frame_.platform().clipboard().changesByOthers(); });
}

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
    frame_.workspace().change(document, {job, After::Step, fMain::tr("Cut"), QStringLiteral("BitsBlack")},
                              [this, part](const Outcome& outcome) {
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
    Clipboard& clipboard = frame_.platform().clipboard();
    clipboard.setPart(part.bits);
    seen_ = clipboard.changesByOthers();
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
    letGo(); // of a paste that still waits
    const LoadedPicture foreign = fetched();
    if (!image) return; // closed while waiting for the clipboard's owner
    ToolStores& stores = frame_.toolStores();
    if (foreign.ok()) box_->add({foreign.bits, {}});
    const bool isThere = (foreign.ok() || foreign.reason.isEmpty()) && !stores.paste.isNull() && image->PictureExists();
    if (!isThere)
        return frame_.report(
            "PASTE",
            {Outcome::Failed, foreign.reason.isEmpty() ? QObject::tr("nothing was cut or copied") : foreign.reason});
    if (!needsRoom(image->document())) return hover();
    const DocumentHandle document = image->document().handle();
    switch (frame_.platform().choose(QObject::tr("Paste"), QObject::tr("What is pasted is larger than the picture."),
                                     {QObject::tr("&Enlarge the picture"), QObject::tr("&Keep its size")})) {
    case 0:
        return makeRoom(document);
    case 1:
        if (document && frame_.active() == document) hover(); // it may have been closed while the question was open
    }
}

/// What another program has put on the clipboard since our last clip. Its owner is asked only once.
LoadedPicture Clips::fetched()
{
    Clipboard& clipboard = frame_.platform().clipboard();
    const int changes = clipboard.changesByOthers();
    if (!box_->isEmpty() && changes == seen_) return {};
    seen_ = changes;
    return clipboard.bitmap();
}

bool Clips::needsRoom(const Document& document) const
{
    const Bits& part = frame_.toolStores().paste;
    return part.width() > document.PictureWidth() || part.height() > document.PictureHeight();
}

/// A step of its own, before the paste.
void Clips::makeRoom(const DocumentHandle& document)
{
    if (!document) return; // it may have been closed while the question was open
    const QSize part(frame_.toolStores().paste.width(), frame_.toolStores().paste.height());
    const auto job = [part](Document& draft, cBitFilter& filter) {
        resizeCanvas(draft, filter, std::max(part.width(), draft.PictureWidth()),
                     std::max(part.height(), draft.PictureHeight()), 0, 0);
    };
    const QString words = callText("CanvasSize", {std::max(part.width(), document->PictureWidth()),
                                                  std::max(part.height(), document->PictureHeight()), 0, 0});
    frame_.workspace().change(document, {job, After::Step, fMain::tr("Canvas Size"), words},
                              [this, document](const Outcome& outcome) {
                                  frame_.report("PASTE", outcome);
                                  if (outcome && document && frame_.active() == document) hover();
                              });
}

void Clips::hover()
{
    fImage* image = frame_.GetActiveImage();
    frame_.setup().PasteMode = PasteMode::Waiting;
    frame_.takeNoTool();
    image->StopTimer();
    frame_.toolStores().pastePending = true;
    image->showPaste();
}

void Clips::letGo()
{
    if (!frame_.toolStores().pastePending) return;
    if (fImage* image = frame_.GetActiveImage()) image->dropGesture();
}

} // namespace velara
