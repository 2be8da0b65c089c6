// Opening, saving, the recent list, files dropped on the frame, and new documents by way of the clipboard.
#include "app/frame/fDocumentWindow.h"
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "fileio/SetupStore.h"
#include "seams/Platform.h"
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMdiArea>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

namespace velara {

namespace {

const QString kTitle = QStringLiteral("Velara Studio");

const QString kOpenFilter =
    QStringLiteral("All Supported Picture Formats|"
                   "*.bmp;*.wbmp;*.dib;*.wmf;*.emf;*.gif;*.jpg;*.png;*.pcx;*.pbm;*.pgm;"
                   "*.ppm;*.ico;*.psd;*.jng;*.mng;*.tif;*.koa;"
                   "*.pcd;*.ras;*.tga;*.cut;*.iff;*.lbm|"
                   "Bitmap Files (*.BMP;*.DIB)|*.bmp;*.dib|Meta Files (*.WMF;*.EMF)|*.wmf;*.emf|"
                   "Graphical Interface Format(*.GIF)|*.gif|"
                   "Independent JPEG Group (*.JPG)|*.jpg|"
                   "Portable Network Graphics (*.PNG)|*.png|"
                   "Zsoft Paintbrush Files (*.PCX)|*.pcx|"
                   "Wireless Bitmap (*.WBMP)|*.wbmp|"
                   "Portable Bitmap (*.PBM)|*.pbm|"
                   "Portable Graymap (*.PGM)|*.pgm|"
                   "Portable Pixelmap (*.PPM)|*.ppm|"
                   "Windows Icon (*.ICO)|*.ico|"
                   "Photoshop (*.PSD)|*.psd|"
                   "JPEG Network Graphics (*.JNG)|*.jng|"
                   "Multiple Network Graphics (*.MNG)|*.mng|"
                   "Tagged Image File Format (*.TIF)|*.tif|"
                   "Commodore 64 Koala format (*.KOA)| *.koa|"
                   "Kodak PhotoCD (*.PCD)|*.pcd|"
                   "Sun Rasterfile (*.RAS)|*.ras|"
                   "Targa files (*.TGA)|*.tga|"
                   "Dr.Halo bitmap (*.CUT)|*.cut|"
                   "Interchanged File Format (*.IFF)|*.iff|"
                   "Deluxe Paint package (*.LBM)|*.lbm");

const QString kSaveFilter =
    QStringLiteral("All Supported graphic formats |*.bmp;*.gif;*.jpg;*.png;*.tga;*.pcx;*.tif;*.pbm;*.pgm;*.ppm|"
                   "Windows Bitmap Files (*.bmp)|*.bmp|"
                   "Graphical Interface Format (*.GIF)|*.gif|"
                   "Independent JPEG Group (*.JPG)|*.jpg|"
                   "Portable Network Graphics (*.PNG)|*.png|"
                   "Targa files (*.TGA)|*.tga|"
                   "Zsoft Paintbrush (*.PCX)|*.pcx|"
                   "Tagged Image File Format (*.TIF)|*.tif|"
                   "ASCII bitmap format(*.ppm)(*.pgm)(*.pbm)|*.ppm;*.pgm;*.pbm");

const QStringList kSavedDirectly = {"bmp", "gif", "jpg", "tga", "tif", "png", "pcx"};
const QStringList kAnymaps = {"ppm", "pgm", "pbm"};
const QStringList kDropped = {"DIB", "BMP", "JPG", "GIF"};

/// What follows the last separator, right-trimmed.
QString FileNameOf(const QString& path)
{
    QString name = path.mid(path.lastIndexOf('/') + 1);
    while (name.endsWith(' ')) name.chop(1);
    return name;
}

QString extensionOf(const QString& path) { return QFileInfo(path).suffix().toLower(); }

/// A name without an extension gets the one given.
QString withExtension(const QString& path, const QString& extension)
{
    if (!extensionOf(path).isEmpty()) return path;
    return path + (path.endsWith('.') ? "" : ".") + extension;
}

/// A portable anymap of any kind becomes one of true colour.
QString writtenAs(const QString& path)
{
    const QString extension = extensionOf(path);
    return kAnymaps.contains(extension) ? path.chopped(extension.size()) + "ppm" : path;
}

void giveNames(fImage& image, const QString& path, Frame& frame)
{
    image.setTag(frame.UniqueCaption(path));
    image.setCaption(FileNameOf(image.Tag()));
}

} // namespace

QString fMain::inDialogFolder(const QString& name) const
{
    return name.contains('/') ? name : dialogFolder_ + (dialogFolder_.endsWith('/') ? "" : "/") + name;
}

DocumentHandle fMain::adopt(const Bits& bits, const QString& path, Arrival arrival)
{
    auto image = std::make_unique<fImage>(*this);
    if (!bits.isNull()) image->PPicture(bits);
    return adopt(std::move(image), path, arrival);
}

DocumentHandle fMain::adopt(std::unique_ptr<fImage> image, const QString& path, Arrival arrival)
{
    if (closing_) return {};
    Document& document = image->document();
    document.hasFile = arrival == Arrival::File;
    giveNames(*image, inDialogFolder(path), *this);
    connect(image.get(), &fImage::stepLost, this, &fMain::stepLost);
    image->SaveUndoBits();
    auto* window = new fDocumentWindow(*this, image.release());
    area_->addSubWindow(window);
    if (setup_.ImagesMaximized)
        window->showMaximized();
    else
        window->show();
    refreshUndoState();
    return document.handle();
}

void fMain::applyOpenOptions()
{
    if (setup_.OpenZoom > 1) setZoom(setup_.OpenZoom);
}

void fMain::showLoadError() { platform_.message(kTitle, "Unexpected error loading image", Icon::Exclamation); }

/// False when the file can't be loaded, after which there is no document.
bool fMain::openPath(const QString& path)
{
    platform_.yield();
    if (closing_) return true;
    auto image = std::make_unique<fImage>(*this);
    bool loaded = false;
    try {
        loaded = image->SetPicture(path, extensionOf(path));
    } catch (const std::exception&) { // a picture too large for this machine's memory
    }
    if (!loaded || closing_) return closing_;
    // A file that its reader can't make out opens as an empty document.
    const bool read = image->PictureExists();
    const QString note = image->LoadNote();
    if (!read) status_->showMessage(FileNameOf(path) + tr(" can't be read as a picture."), 8000);
    // What has lost its end doesn't replace its file without a question.
    adopt(std::move(image), path, read && note.isEmpty() ? Arrival::File : Arrival::Made);
    if (read && !note.isEmpty()) status_->showMessage(note, 8000);
    return true;
}

bool fMain::openPicture(const QString& path)
{
    if (!openPath(path)) {
        showLoadError();
        return false;
    }
    AddRecent(setup_, path);
    FillRecent();
    applyOpenOptions();
    if (setup_.PreserveLastFolder) {
        dialogFolder_ = path.left(path.lastIndexOf('/') + 1);
        setup_.ImagesPath = dialogFolder_;
    }
    return true;
}

void fMain::open()
{
    if (const auto path = platform_.openFileName({"Open file", kOpenFilter, dialogFolder_, "*.bmp"}))
        openPicture(*path);
}

void fMain::openRecent(int index)
{
    const QString path = setup_.Recent[std::size_t(index)].trimmed();
    if (path.isEmpty()) return;
    if (!openPath(path)) {
        showLoadError();
        return FillRecent();
    }
    applyOpenOptions();
}

void fMain::FillRecent()
{
    for (int i = 0; i < 8; ++i) {
        QString& entry = setup_.Recent[std::size_t(i)];
        while (entry.endsWith(' ')) entry.chop(1);
        QAction* item = items_.value("RF_" + QString::number(i));
        const bool found = !entry.isEmpty() && QFileInfo::exists(entry);
        item->setText(found ? platform_.compactPath(entry, 400).replace('&', "&&") : i == 0 ? "Empty" : "");
        item->setEnabled(found || i == 0);
        item->setVisible(found || i == 0); // an empty line would only look broken
    }
}

void fMain::save()
{
    fImage* image = GetActiveImage();
    const QString extension = extensionOf(image->Caption());
    // A new document, a second window of the same file and any other format get their name by asking.
    const bool own = image->document().hasFile && image->Tag().startsWith('/');
    if (!own || !kSavedDirectly.contains(extension)) return Mmenu("SAVEAS");
    saveTo(*image, image->Tag(), image->Tag(), extension);
}

void fMain::saveAs()
{
    const QPointer<fImage> image = GetActiveImage();
    const QString own = extensionOf(image->Caption());
    const QString usual = kSavedDirectly.contains(own) || kAnymaps.contains(own) ? own : QStringLiteral("png");
    FileDialog dialog{"Save as", kSaveFilter, dialogFolder_};
    dialog.extension = usual;
    dialog.writtenAs = writtenAs;
    const auto path = platform_.saveFileName(dialog);
    if (!path || !image) return;
    const QString name = withExtension(*path, usual), extension = extensionOf(name);
    if (kAnymaps.contains(extension)) // the colours decide which of the three it becomes
        saveTo(*image, name, name.chopped(extension.size()), "pnm");
    else
        saveTo(*image, name, name, extension);
}

void fMain::saveTo(fImage& image, const QString& name, const QString& path, const QString& extension)
{
    const QPointer<fImage> watched = &image;
    SaveResult result = SaveResult::Failed;
    try {
        result = image.Save(path, extension);
    } catch (const std::exception&) {
    }
    if (result != SaveResult::Written) { // the document stays as it was, unsaved
        const bool told = result == SaveResult::FailedAndTold || result == SaveResult::Refused;
        if (!told) platform_.message(kTitle, "Unexpected error saving image", Icon::Exclamation);
        return;
    }
    if (!watched) return; // closed while a notice of the save stood open
    image.document().Changed = false;
    image.document().hasFile = true;
    if (image.Tag() != name) giveNames(image, name, *this);
    setStatus(Panel::Name, image.Caption());
}

void fMain::closeActive()
{
    if (fImage* image = GetActiveImage()) image->parentWidget()->close();
}

void fMain::copyToNew()
{
    const DocumentHandle from = active();
    auto image = std::make_unique<fImage>(*this);
    GetActiveImage()->BitsCopyToClipboard();
    image->PasteFromClipboard();
    platform_.clearClipboard();
    if (!from || !image->PictureExists()) return;
    const Region selection = from->Region.Region();
    const DocumentHandle copy = adopt(std::move(image), from->Tag, Arrival::Made);
    if (!copy || selection.isEmpty()) return;
    copy->Region.setRegion(selection);
    handOver(*copy);
    imageOf(copy)->UpdateImage();
}

void fMain::fromClipboard()
{
    auto image = std::make_unique<fImage>(*this);
    image->PasteFromClipboard();
    if (image->PictureExists()) adopt(std::move(image), setup_.ImagesPath.trimmed() + "New.bmp", Arrival::Made);
}

void fMain::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void fMain::dropEvent(QDropEvent* event)
{
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile()) paths << url.toLocalFile();
    event->acceptProposedAction();
    // After the drop has ended: the program it came from waits for us meanwhile.
    QTimer::singleShot(0, this, [this, paths] { dropFiles(paths); });
}

void fMain::dropFiles(const QStringList& paths)
{
    bool failed = false;
    for (const QString& path : paths)
        if (!closing_ && kDropped.contains(path.trimmed().right(3).toUpper())) failed |= !openPath(path.trimmed());
    if (failed && !closing_) showLoadError(); // once, however many
}

} // namespace velara
