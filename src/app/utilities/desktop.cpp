#include "app/utilities/desktop.h"
#include "app/frame/fMain.h"
#include "fileio/cameraData.h"
#include "fileio/disk/userFolders.h"
#include "fileio/readInBackground.h"
#include "seams/Platform.h"
#include "ui/printing/fPrint.h"
#include "ui/printing/fPrinterSetup.h"
#include "ui/utilities/fAcquire.h"
#include "ui/utilities/fSource.h"
#include "ui/view/fProperties.h"
#include <QPointer>

namespace velara {

void setAsWallpaper(fMain& frame, WallpaperMode mode)
{
    Platform& platform = frame.platform();
    const QString path = platform.wallpaper().folder() + "/ClearPane_Wallpaper.bmp";
    const fImage* image = frame.GetActiveImage();
    if (!image->PictureExists()) return;
    const auto tell = [&platform](WallpaperResult result) {
        if (result == WallpaperResult::CantRead)
            platform.tell(fMain::tr("Error getting subkey value."), Icon::Exclamation);
        if (result == WallpaperResult::CantWrite)
            platform.tell(fMain::tr("Error Setting subkey value."), Icon::Exclamation);
    };
    frame.workspace().write(image->bits(), path, [&platform, path, mode, tell](const SaveReport& report) {
        report.tell(platform);
        if (report.result == SaveResult::Written) platform.wallpaper().set(path, mode, tell);
    });
}

void selectSource(fMain& frame)
{
    auto* dialog = new fSource(frame.platform(), rememberedSource(frame.platform()).device, &frame);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &fSource::chosen, &frame,
                     [&frame](const ScanSource& source) { rememberSource(frame.platform(), source); });
    dialog->open();
}

void print(fMain& frame)
{
    const QPointer<fImage> image = frame.GetActiveImage();
    if (!image->PictureExists()) return;
    const auto toClipboard = [image] {
        if (image) image->BitsCopyToClipboard();
    };
    auto* dialog = new fPrint(frame.platform(), image->bits(), image->Caption(), toClipboard, &frame);
    const CameraData& camera = image->document().file.camera;
    dialog->showResolution(resolutionText(camera.dotsAcross, camera.dotsDown));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void showProperties(fMain& frame)
{
    const fImage* image = frame.GetActiveImage();
    auto* dialog = new fProperties(propertiesOf(image->document()), &frame);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void setUpPrinter(fMain& frame)
{
    auto* dialog = new fPrinterSetup(frame.platform().printers(), &frame);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void acquire(fMain& frame)
{
    const QString path = userFolder(frame.platform().programFolder(), UserFolder::Cache) + "/temp.bmp";
    auto* dialog = new fAcquire(frame.platform(), path, &frame);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const auto take = [&frame, path, dialog = QPointer(dialog)] {
        readInBackground(frame.platform(), &frame, path, [&frame, dialog](const LoadedPicture& scan) {
            if (scan.ok())
                frame.adopt(scan.bits, "Scan.bmp");
            else
                showScannerFailure(frame.platform());
            if (dialog) dialog->pageTaken();
        });
    };
    QObject::connect(dialog, &fAcquire::acquired, &frame, take);
    dialog->open();
}

} // namespace velara
