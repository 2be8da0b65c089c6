// Commands that change a picture: presets, filter dialogs, sizing and turning, crop, texts, steps; and its zoom.
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "commands/jobs.h"
#include "document/resizing.h"
#include "seams/Platform.h"
#include "seams/text.h"
#include "ui/compose/fLayers.h"
#include "ui/filter/fFilter.h"

namespace velara {

void fMain::changeActive(std::string_view word, const Job& job, After after, bool yields)
{
    const DocumentHandle document = active(); // this one, whatever the yield brings
    if (yields) platform_.yield();            // the menu or the dialog goes before the long work
    report(text(word), change(document, job, after));
}

void fMain::runPreset(const Preset& preset)
{
    changeActive(preset.word, presetJob(preset), After::Step, preset.yields);
}

void fMain::runSizeWord(const SizeWord& size)
{
    if (afterOf(size) == After::Sizing) setZoom(1);
    changeActive(size.word, sizeJob(size), afterOf(size));
}

void fMain::showFilter(const FilterRow& row)
{
    const DocumentHandle document = active();
    if (!document || !document->PictureExists()) return;
    const QPointer<fFilter> dialog = new fFilter(*this, row, document, this);
    dialog->exec();
    delete dialog; // unless the frame went, and it with it
}

void fMain::crop()
{
    const DocumentHandle document = active();
    if (!document->PictureExists()) return;
    switch (cropAnswer(*document)) {
    case CropAnswer::NothingSelected:
        return platform_.message("Crop", "Nothing selected", Icon::Information);
    case CropAnswer::TooSmall:
        return platform_.message("Crop", "Minimum size: 2 x 2", Icon::Information);
    case CropAnswer::Possible:
        return changeActive("CROP", cropImage, After::Step, false);
    }
}

/// Who asks again finds the texts that wait there; those of another picture are not thrown away either.
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
    fImage* image = GetActiveImage();
    const bool moved = back ? image->UndoBits() : image->RedoBits();
    refreshUndoState();
    const UndoStore& steps = image->document().undo;
    if (moved && steps.passedOver())
        status_->say(steps.canRedo() && back ? tr("A step could not be kept: this is the last one that stands.")
                                             : tr("A step that could not be kept was passed over."));
}

void fMain::setZoom(int factor)
{
    if (fImage* image = GetActiveImage()) image->setZoomFactor(factor);
}

} // namespace velara
