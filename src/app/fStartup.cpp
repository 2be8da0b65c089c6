#include "app/fStartup.h"
#include "app/menus/fIcons.h"
#include "app/menus/fMenuStyle.h"
#include "app/start/defaultPictures.h"
#include "app/start/fSplash.h"
#include "fileio/SetupStore.h"
#include <QApplication>
#include <QDir>
#include <QPointer>
#include <QScreen>
#include <algorithm>

namespace velara {

bool makeFolders(Platform& platform)
{
    const QDir program(platform.programFolder());
    bool made = true;
    if (!program.exists("Stamps")) {
        made &= program.mkpath("Stamps");
        int n = 1;
        for (const QImage& stamp : defaultStamps())
            made &= stamp.save(program.filePath(QString("Stamps/Velara%1.bmp").arg(n++)), "BMP");
    }
    made &= program.mkpath("Temp");
    if (!program.exists("Images")) {
        made &= program.mkpath("Images");
        made &= defaultImage().save(program.filePath("Images/Velara.bmp"), "BMP");
    }
    return made && QFileInfo(program.filePath("Temp")).isWritable();
}

void placeFrame(QWidget& frame, const Setup& setup)
{
    constexpr int kTwips = 15;
    constexpr QSize kSmallest(400, 300); // smaller ones come from a damaged configuration only
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize wanted = QSize(setup.FrameWidth / kTwips, setup.FrameHeight / kTwips).expandedTo(kSmallest);
    frame.resize(wanted.boundedTo(screen.size()));
    if (setup.FrameMaximized) frame.setWindowState(frame.windowState() | Qt::WindowMaximized);
}

std::unique_ptr<fMain> startEditor(Platform& platform, Setup& setup)
{
    useResources();
    useIconTheme();
    const QPointer<fSplash> splash = new fSplash(platform);
    splash->show();
    platform.yield();

    setup = LoadSetup(platform);
    auto frame = std::make_unique<fMain>(platform, setup);
    setup.CurrentTool.clear();
    if (platform.previousInstance())
        platform.message("Velara Studio", "Velara Studio is already running!", Icon::Information);
    placeFrame(*frame, setup);
    if (!makeFolders(platform))
        platform.message(
            "Velara Studio",
            "The folder \"" + platform.programFolder() +
                "\" can't be written to.\nChanges of pictures can't be undone, and settings will not be kept.",
            Icon::Exclamation);
    frame->setDialogFolder(setup.ImagesPath.trimmed());
    frame->FillRecent();
    frame->loadLayout();
    frame->initToolPanes();
    frame->show();
    frame->showBoxes();
    delete splash;
    return frame;
}

} // namespace velara
