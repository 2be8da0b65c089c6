// The dialogs that make and reshape a picture.
#include "app/frame/fMain.h"
#include "seams/Platform.h"
#include "ui/geometry/fCanvas.h"
#include "ui/geometry/fNew.h"
#include "ui/geometry/fOrientation.h"
#include "ui/geometry/fResolution.h"
#include "ui/geometry/fRotate.h"
#include "ui/geometry/fSize.h"

namespace velara {

void fMain::newPicture()
{
    fNew dialog(platform_, this);
    if (dialog.exec() != QDialog::Accepted) return;
    platform_.yield(); // the dialog goes before the new window comes
    if (closing_) return;
    auto* image = new fImage(*this);
    image->CreateBlank(dialog.widthValue(), dialog.heightValue());
    adopt(image, dialogFolder_ + (dialogFolder_.endsWith('/') ? "" : "/") + "New.bmp");
}

template <class Dialog> void fMain::askAndReshape()
{
    fImage* image = GetActiveImage();
    if (!image || !image->PictureExists()) return;
    fGeometry::Job job;
    if constexpr (std::is_constructible_v<Dialog, Platform&, const Bits&, QWidget*>) {
        Dialog dialog(platform_, image->Bits(), this);
        if (dialog.exec() == QDialog::Accepted) job = dialog.job();
    } else {
        Dialog dialog(platform_, this);
        if (dialog.exec() == QDialog::Accepted) job = dialog.job();
    }
    if (job) reshape(job);
}

void fMain::imageSize() { askAndReshape<fSize>(); }
void fMain::canvasSize() { askAndReshape<fCanvas>(); }
void fMain::imageOrientation() { askAndReshape<fOrientation>(); }
void fMain::imageRotate() { askAndReshape<fRotate>(); }
void fMain::imageResolution() { askAndReshape<fResolution>(); }

} // namespace velara
