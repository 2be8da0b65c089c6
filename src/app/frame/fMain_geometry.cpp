// The dialogs that make or reshape a picture, or lay a texture or another picture over it.
#include "app/frame/fMain.h"
#include "fileio/cameraData.h"
#include "pixels/memory/MemoryBudget.h"
#include "seams/Platform.h"
#include "seams/text.h"
#include "ui/geometry/fCanvas.h"
#include "ui/geometry/fNew.h"
#include "ui/geometry/fOrientation.h"
#include "ui/geometry/fResolution.h"
#include "ui/geometry/fRotate.h"
#include "ui/geometry/fSize.h"
#include "ui/merge/fOverlay.h"
#include "ui/merge/fTexturize.h"

namespace velara {

void fMain::newPicture()
{
    fNew dialog(platform_, this);
    if (dialog.exec() != QDialog::Accepted) return;
    const auto made = [&] {
        const MemoryBudget budget;
        return Bits(dialog.widthValue(), dialog.heightValue());
    };
    adopt(made(), "New.bmp", Arrival::Made);
}

template <class Dialog> void fMain::askAndReshape(std::string_view word)
{
    const DocumentHandle document = active();
    if (!document || !document->PictureExists()) return;
    Job job;
    QString words;
    const auto ask = [&](fGeometry&& dialog) {
        if (dialog.exec() != QDialog::Accepted) return;
        job = dialog.job();
        words = dialog.words();
    };
    if constexpr (std::is_constructible_v<Dialog, Platform&, const Bits&, QWidget*>)
        ask(Dialog(platform_, document->bits(), this));
    else
        ask(Dialog(platform_, this));
    if (job) change(word, document, job, words);
}

void fMain::imageSize() { askAndReshape<fSize>("IMAGESIZE"); }
void fMain::canvasSize() { askAndReshape<fCanvas>("CANVASSIZE"); }
void fMain::imageOrientation() { askAndReshape<fOrientation>("IMAGEORIENTATION"); }
void fMain::imageRotate() { askAndReshape<fRotate>("IMAGEROTATE"); }

void fMain::imageResolution()
{
    const DocumentHandle document = active();
    if (!document || !document->PictureExists()) return;
    const CameraData& camera = document->file.camera;
    fResolution dialog(platform_, resolutionText(camera.dotsAcross, camera.dotsDown), this);
    if (dialog.exec() == QDialog::Accepted) change("IMAGERESOLUTION", document, dialog.job(), dialog.words());
}

void fMain::imageTextures()
{
    const DocumentHandle document = active();
    if (!document || !document->PictureExists()) return;
    Texturing texturing;
    QString words;
    {
        fTexturize dialog(platform_, document->bits(), document->Region.working(), this);
        if (dialog.exec() != QDialog::Accepted) return;
        texturing = dialog.texturing();
        words = dialog.words();
    }
    change(
        "IMAGETEXTURES", document,
        [texturing](Document& draft, cBitFilter& filter) { draft.setBits(texturized(filter, texturing)); }, words);
}

/// Called again, it moves the open dialog to the picture that is active now.
void fMain::imageMerging()
{
    const DocumentHandle document = active();
    if (!document || !document->PictureExists()) return;
    auto* window = findChild<fOverlay*>();
    if (window && window->isVisible())
        window->setBelow(document);
    else
        window = new fOverlay(*this, document, this);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace velara
