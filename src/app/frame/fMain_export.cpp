// The dialogs that reduce the colours of a picture and save it for the web.
#include "app/frame/fMain.h"
#include "commands/recipe/stepText.h"
#include "reduce/EuroDepth.h"
#include "ui/export/FWeb.h"
#include "ui/export/fColorDepth.h"
#include "ui/widgets/ActiveComposer.h"

namespace velara {

void fMain::colorDepth()
{
    if (!ActiveComposer::unload()) return;
    const QPointer<fImage> image = GetActiveImage();
    if (!image || !image->PictureExists()) return;
    const auto ok = [this, document = active()](int depth) {
        change(
            "IMAGECOLORDEPTH", document,
            [depth](Document& draft, cBitFilter&) { draft.setBits(bitsAtDepth(draft.bits(), depth)); },
            callText("SetDepth", {depth}));
    };
    const auto save = [this, image](const Bits& bits) {
        if (!closing_ && image) saveForWeb(*image, bits);
    };
    const QPointer<fColorDepth> dialog = new fColorDepth(image->bits(), {ok, save}, this);
    dialog->exec();
    delete dialog; // unless it was destroyed with the frame
}

void fMain::saveForWeb()
{
    if (!ActiveComposer::unload()) return;
    fImage* image = GetActiveImage();
    if (image && image->PictureExists()) saveForWeb(*image, image->bits());
}

void fMain::saveForWeb(fImage& image, const Bits& bits)
{
    const FileFacts& file = image.document().file;
    const QPointer<FWeb> dialog = new FWeb(platform_, bits, file.camera, image.Caption(), file.path, this);
    dialog->exec();
    delete dialog;
}

} // namespace velara
