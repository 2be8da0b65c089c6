#include "app/fStartup.h"
#include "app/menus/fIcons.h"
#include "app/menus/fMenuStyle.h"
#include "app/settings/pictureSettings.h"
#include "app/start/Recovery.h"
#include "app/start/defaultPictures.h"
#include "app/start/fSplash.h"
#include "document/undo/UndoMark.h"
#include "fileio/SetupStore.h"
#include "fileio/disk/OutputFile.h"
#include "fileio/disk/userFolders.h"
#include "fileio/load/PictureLoader.h"
#include "pixels/twips.h"
#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QIcon>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <algorithm>
#include <functional>

namespace velara {

namespace {

constexpr QSize kSmallest(400, 300); // smaller frames come only from a damaged configuration

/// Written completely, or not at all.
bool writeBmp(const QImage& picture, const QString& path)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    OutputFile file(path);
    return picture.save(&buffer, "BMP") && file.write(bytes.constData(), static_cast<std::size_t>(bytes.size())) &&
           file.commit();
}

/// Fills a missing folder, and replaces pictures that a full disk left empty; missing ones were deleted on purpose. A
/// folder that can't be filled is removed again, so that the next start retries.
bool makePictures(const QDir& folder, const std::function<QString(int)>& nameOf, QList<QImage> (*draw)())
{
    const bool isNew = !folder.exists();
    const auto isWanted = [&](int n) {
        const QFileInfo file(folder.filePath(nameOf(n)));
        return isNew || (file.exists() && file.size() == 0);
    };
    const auto count = folder.entryList(QDir::Files).size();
    bool anyWanted = isNew;
    for (int n = 1; n <= count; ++n) anyWanted |= isWanted(n);
    if (!anyWanted) return true;
    bool made = QDir().mkpath(folder.path());
    int n = 0;
    for (const QImage& picture : draw())
        if (isWanted(++n)) made &= writeBmp(picture, folder.filePath(nameOf(n)));
    if (!made && isNew) QDir(folder).removeRecursively();
    return made;
}

/// Off the place where another instance's frame is likely to stand, so that its title bar can be reached: to the lower
/// right as far as the screen goes, or where that leaves too little, to the screen's other corner.
void moveAside(QWidget& frame, const QRect& screen)
{
    const int step = 2 * frame.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QRect aside = frame.geometry().translated(step, step) & screen;
    const bool fits = aside.size().expandedTo(kSmallest) == aside.size();
    frame.setGeometry(fits ? aside : QRect(screen.topLeft(), frame.size()));
}

} // namespace

bool makeFolders(Platform& platform)
{
    const QDir program(platform.programFolder());
    const QString temp = tempFolder(platform.programFolder());
    bool made = makePictures(
        program.filePath("Stamps"), [](int n) { return QString("Velara%1.bmp").arg(n); }, defaultStamps);
    made &= makePrivateFolder(temp);
    made &= makePictures(
        program.filePath("Images"), [](int) { return QString("Velara.bmp"); }, [] { return QList{defaultImage()}; });
    return made && QFileInfo(temp).isWritable();
}

void placeFrame(QWidget& frame, const Setup& setup, const QByteArray& place, bool beside)
{
    constexpr int kMostTwips = 32767;
    const bool known = !place.isEmpty() && frame.restoreGeometry(place);
    const QRect normal = frame.normalGeometry();
    frame.setWindowState(frame.windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized));
    if (known && normal.isValid()) frame.setGeometry(normal);
    const QScreen* stoodOn = known ? QGuiApplication::screenAt(frame.geometry().center()) : nullptr;
    const QRect screen = (stoodOn ? stoodOn : QGuiApplication::primaryScreen())->availableGeometry();
    const Setup none;
    const bool isFirst = !known && setup.FrameWidth == none.FrameWidth && setup.FrameHeight == none.FrameHeight;
    const QSize wanted = isFirst ? screen.size() * 3 / 4
                                 : QSize(setup.FrameWidth / kTwips, setup.FrameHeight / kTwips).expandedTo(kSmallest);
    // The configuration determines the size, within the range of its fields.
    const QSize size(known && setup.FrameWidth == kMostTwips ? frame.width() : wanted.width(),
                     known && setup.FrameHeight == kMostTwips ? frame.height() : wanted.height());
    frame.resize(size.boundedTo(screen.size()));
    if (!known) frame.move(screen.center() - frame.rect().center());
    if (beside) moveAside(frame, screen);
    // A window that has grown over the edge moves inside; on a screen that is gone it doesn't stay.
    const QRect at = frame.geometry();
    const QPoint inside(std::max(screen.x(), std::min(at.x(), screen.x() + screen.width() - at.width())),
                        std::max(screen.y(), std::min(at.y(), screen.y() + screen.height() - at.height())));
    if (known && inside != at.topLeft()) frame.setGeometry({inside, at.size()});
    if (setup.FrameMaximized && !beside) frame.setWindowState(frame.windowState() | Qt::WindowMaximized);
}

Startup::Startup(Platform& platform, Setup& setup) : platform_(platform), setup_(setup)
{
    useResources();
    useIconTheme();
    QGuiApplication::setWindowIcon(QIcon(":/velara.svg")); // also of boxes that come before the frame
    splash_ = new fSplash(platform);
    splash_->show();
    QTimer::singleShot(0, this, &Startup::step);
}

Startup::~Startup() { delete splash_; }

void Startup::step()
try {
    static constexpr void (*kSteps[])(Startup&) = {
        [](Startup& s) { s.makeFrame(); }, [](Startup& s) { s.placeFrameOnScreen(); },
        [](Startup& s) { s.fillFrame(); }, [](Startup& s) { s.showFrame(); }};
    kSteps[next_](*this);
    if (++next_ == std::size(kSteps)) return emit done();
    QTimer::singleShot(0, this, &Startup::step);
} catch (...) {
    QCoreApplication::exit(EXIT_FAILURE);
    throw;
}

void Startup::makeFrame()
{
    takeOver(platform_.programFolder(), QCoreApplication::applicationDirPath());
    setup_ = LoadSetup(platform_);
    readInSrgb(pictureSetting(platform_, PictureSetting::ConvertToSrgb));
    frame_ = std::make_unique<fMain>(platform_, setup_);
    setup_.CurrentTool.clear();
    second_ = platform_.previousInstance();
    if (second_) platform_.tell(tr("Velara Studio is already running!"));
}

void Startup::placeFrameOnScreen()
{
    placeFrame(*frame_, setup_, QByteArray::fromBase64(platform_.setting("VeStu", "Place", "").toLatin1()), second_);
    if (!makeFolders(platform_))
        platform_.tell(tr("The folder \"%1\" can't be written to.\n"
                          "Steps back stay in memory, as many as fit, and settings will not be kept.")
                           .arg(platform_.programFolder()),
                       Icon::Exclamation);
}

void Startup::fillFrame()
{
    frame_->setDialogFolder(setup_.ImagesPath.trimmed());
    frame_->FillRecent();
    if (!frame_->bars().loadLayout()) frame_->boxes().dockAll();
    if (second_) frame_->boxes().moveAside();
    frame_->applyBars();
    frame_->initToolPanes();
}

void Startup::showFrame()
{
    frame_->show();
    frame_->boxes().showAll();
    frame_->recovery().look();
    delete splash_;
}

} // namespace velara
