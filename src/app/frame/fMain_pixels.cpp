// Commands that change a picture: presets, filter dialogs, sizing and turning, crop, texts, steps; and how it is
// viewed: zoom, another view.
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "commands/jobs.h"
#include "document/resizing.h"
#include "seams/Platform.h"
#include "seams/text.h"
#include "ui/compose/fLayers.h"
#include "ui/filter/fFilter.h"

namespace velara {

void fMain::runPreset(const Preset& preset) { change(preset.word, active(), presetJob(preset), text(preset.word)); }

void fMain::runSizeWord(const SizeWord& size)
{
    if (afterOf(size) == After::Sizing) setZoom(1);
    change(size.word, active(), sizeJob(size), text(size.word), afterOf(size));
}

void fMain::showFilter(const FilterRow& row, const QString& name)
{
    const DocumentHandle document = active();
    if (!document || !document->PictureExists()) return;
    const QPointer<fFilter> dialog = new fFilter(*this, row, document, this);
    dialog->setStepName(name);
    dialog->exec();
    delete dialog; // unless it was destroyed with the frame
}

/// Whether cropping is possible is known only after the changes queued before it.
void fMain::crop()
{
    const DocumentHandle document = active();
    workspace_.inTurn(document, [this, document] {
        if (!document || !document->PictureExists()) return;
        switch (cropAnswer(*document)) {
        case CropAnswer::NothingSelected:
            return platform_.message(tr("Crop"), tr("Nothing selected"), Icon::Information);
        case CropAnswer::TooSmall:
            return platform_.message(tr("Crop"), tr("Minimum size: 2 x 2"), Icon::Information);
        case CropAnswer::Possible:
            return change("CROP", document, cropImage, QStringLiteral("CROP"));
        }
    });
}

/// Called again it shows the texts that wait there; those of another picture are not discarded either.
void fMain::textTools()
{
    const DocumentHandle document = active();
    if (!document || !document->PictureExists()) return;
    fLayers* window = nullptr;
    for (fLayers* open : findChildren<fLayers*>())
        if (open->isVisible() && (open->document() == document || open->hasTexts())) window = open;
    if (window && window->document() != document)
        report(tr("Apply Text"), {Outcome::Failed, tr("the texts of another picture wait for OK or Exit")});
    if (!window) {
        window = new fLayers(*this, document, this);
        connect(window, &fLayers::waitingChanged, this, &fMain::refreshUndoState);
    }
    window->show();
    window->raise();
    window->activateWindow();
}

void fMain::stepUndo(bool back)
{
    const DocumentHandle document = active();
    workspace_.step(document, back, [this, document, back](const Outcome& outcome) {
        report(back ? tr("Undo") : tr("Redo"), outcome);
        if (!outcome || !document || !document->undo.passedOver()) return;
        status_->say(document->undo.canRedo() && back
                         ? tr("A step could not be kept: this is the last one that stands.")
                         : tr("A step that could not be kept was passed over."));
    });
}

/// It begins as the view that is there.
void fMain::newView()
{
    const fImage& from = *GetActiveImage();
    const int zoom = from.ZoomFactor();
    const QPoint scroll = from.GetSBV();
    showView(active(), false);
    setZoom(zoom);
    documents_->fitActive();
    GetActiveImage()->Scroll(scroll.x(), scroll.y());
}

void fMain::setZoom(int factor)
{
    if (fImage* image = GetActiveImage()) image->setZoomFactor(factor);
}

} // namespace velara
