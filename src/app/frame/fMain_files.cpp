// Opening, saving, closing, the recent list, files dropped on the frame, and new documents by way of the clipboard.
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "app/settings/pictureSettings.h"
#include "fileio/SetupStore.h"
#include "fileio/cameraData.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "fileio/load/PictureLoader.h"
#include "pixels/memory/MemoryBudget.h"
#include "seams/Clipboard.h"
#include "seams/Platform.h"
#include "seams/printable.h"
#include "seams/text.h"
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

namespace velara {

namespace {

QString FileNameOf(const QString& path) { return FileFacts{.path = path}.caption(); }

/// A folder may be typed with or without its last separator.
QString inFolder(const QString& folder, const QString& name)
{
    return folder + (folder.isEmpty() || folder.endsWith('/') ? "" : "/") + name;
}

/// The files of a drag, in its order.
QStringList pathsOf(const QMimeData& data)
{
    QStringList paths;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            paths << nameFrom(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()));
    return paths;
}

bool isRead(const QString& path) { return formatOf(path.trimmed()) != nullptr; }

/// The name that is proposed for a picture: "scan-2.tif" for the second page of scan.tif.
QString nameOfPage(const FileFacts& file)
{
    QString name = FileNameOf(file.path);
    const qsizetype dot = name.lastIndexOf('.');
    if (file.page > 1) name.insert(dot > 0 ? dot : name.size(), "-" + QString::number(file.page));
    return name;
}

/// Why a save that wrote nothing, and told nothing, didn't; a line of its own, or nothing.
QString whyNotWritten(bool hasPicture, const QString& path)
{
    if (!hasPicture) return fMain::tr("\nThere is no picture in it.");
    const Format* format = formatOf(path);
    if (format && format->saving != Saving::No) return {};
    return fMain::tr("\n\".%1\" is no format that is written.").arg(printable(extensionOf(path)));
}

} // namespace

QString fMain::inDialogFolder(const QString& name) const
{
    return name.contains('/') ? name : inFolder(dialogFolder_, name);
}

DocumentHandle fMain::adopt(const Bits& bits, const QString& name, Arrival arrival)
{
    if (closing_) return {};
    const DocumentHandle document = workspace_.add(bits, inDialogFolder(name), arrival);
    arrival == Arrival::Made ? showView(document, false) : showArrival(document);
    return document;
}

void fMain::showView(const DocumentHandle& document, bool maximized)
{
    auto image = std::make_unique<fImage>(*this, document);
    image->setCaption(document->file.caption());
    connect(image.get(), &fImage::asking, this, &fMain::asking);
    documents_->show(std::move(image), maximized);
    refreshUndoState();
    showStartPage();
}

/// The options are for all pictures that come from somewhere, and not for new ones.
void fMain::showArrival(const DocumentHandle& document)
{
    showView(document, setup_.ImagesMaximized);
    if (setup_.OpenZoom <= 1 || !document->PictureExists()) return;
    setZoom(setup_.OpenZoom);
    documents_->fitActive();
}

/// After a save: the name may have changed, and the changed mark is gone.
void fMain::showName(const DocumentHandle& document)
{
    for (fImage* view : documents_->viewsOf(document)) view->setCaption(document->file.caption());
    if (fImage* image = GetActiveImage(); image && document == active()) setStatus(Panel::Name, image->Caption());
    showPage();
    showTitle();
}

void fMain::showLoadError()
{
    platform_.tell(findDecoder().isEmpty() ? tr("The program that reads pictures (velara-decode) was not found. Is the "
                                                "package being removed? What is open can be changed and saved.")
                                           : tr("Unexpected error loading image"),
                   Icon::Exclamation);
}

/// One message for all; the recent list omits them from now on.
void fMain::showGone(const QStringList& paths)
{
    constexpr qsizetype kMostShown = 10;
    QStringList shown;
    for (const QString& path : paths.mid(0, kMostShown)) shown << printable(platform_.compactPath(path, 400));
    if (paths.size() > kMostShown) shown << "...";
    FillRecent();
    platform_.tell(
        (paths.size() == 1 ? tr("This file is not there any more:\n") : tr("These files are not there any more:\n")) +
            shown.join('\n'),
        Icon::Exclamation);
}

/// A box, as a text in the status bar would be overlooked while a large file is read.
void fMain::showReading(const QString& path)
{
    if (path.isEmpty()) {
        delete readingBox_;
        return tellUnopened();
    }
    if (!readingBox_) {
        readingBox_ = new QProgressDialog(QString(), tr("Cancel"), 0, 0, this);
        readingBox_->setObjectName("readingBox");
        readingBox_->setWindowTitle(kProgramName);
        readingBox_->setAttribute(Qt::WA_ShowWithoutActivating);
        readingBox_->setMinimumDuration(500);
        readingBox_->setValue(0); // from now on
        connect(readingBox_, &QProgressDialog::canceled, &workspace_, &Workspace::cancelOpening);
    }
    readingBox_->setLabelText(tr("Reading %1 ...").arg(printable(FileNameOf(path))));
}

/// then is not called while the frame closes.
void fMain::openPath(const QString& path, Unreadable unreadable, std::function<void(const Opened&)> then, int page)
{
    const auto arrived = [this, path, then = std::move(then)](const Opened& opened) {
        if (closing_) return;
        if (opened.document) {
            showArrival(opened.document);
            const QString kind = otherKind(FileNameOf(path), opened.document->file.format);
            const QString remarks = (kind + (kind.isEmpty() ? "" : ". ") + opened.reason).trimmed();
            if (!opened.document->PictureExists())
                status_->say(FileNameOf(path) + tr(" can't be read as a picture."));
            else if (!remarks.isEmpty())
                status_->say(remarks);
        }
        then(opened);
    };
    workspace_.open(path, unreadable, arrived, page);
}

/// Told once all files are read, instead of one box on top of the other.
void fMain::noteUnopened(const QString& path, const Opened& opened)
{
    if (opened.kind == Opened::Gone) gone_ << path;
    refused_ |= opened.kind == Opened::Refused;
}

/// One message for all that can't be loaded, and one for all that are gone; what fails meanwhile is told next.
void fMain::tellUnopened()
{
    if (closing_ || std::exchange(tells_, true)) return;
    const QPointer<fMain> stands = this;
    while (stands && !closing_ && (refused_ || !gone_.isEmpty()))
        std::exchange(refused_, false) ? showLoadError() : showGone(std::exchange(gone_, {}));
    if (stands) tells_ = false;
}

void fMain::openPicture(const QString& path, Unreadable unreadable)
{
    openPath(path, unreadable, [this, path](const Opened& opened) {
        if (!opened.document) return noteUnopened(path, opened);
        AddRecent(setup_, path);
        FillRecent();
        if (!setup_.PreserveLastFolder) return;
        dialogFolder_ = path.left(path.lastIndexOf('/') + 1);
        setup_.ImagesPath = dialogFolder_;
    });
}

void fMain::openFiles(const QStringList& paths, std::function<void(const QStringList& reasons)> done)
{
    if (paths.isEmpty()) return done({});
    const auto reasons = std::make_shared<QStringList>(paths.size());
    const auto opened = [this, paths, reasons, done = std::move(done)](qsizetype at, const Opened& file) {
        if (file.document)
            AddRecent(setup_, paths[at]);
        else
            (*reasons)[at] =
                file.reason.isEmpty() ? printable(FileNameOf(paths[at])) + tr(" was not read") : file.reason;
        if (at + 1 < paths.size()) return;
        FillRecent();
        done(*reasons);
    };
    for (qsizetype at = 0; at < paths.size(); ++at)
        openPath(paths[at], Unreadable::Refused, [opened, at](const Opened& file) { opened(at, file); });
}

void fMain::open()
{
    if (const auto path = platform_.openFileName({tr("Open file"), openFilter(), dialogFolder_, "*.bmp"}))
        openPicture(*path);
}

void fMain::openRecent(int index)
{
    const QString path = setup_.Recent[std::size_t(index)].trimmed();
    if (path.isEmpty()) return;
    openPath(path, Unreadable::OpensEmpty, [this, path](const Opened& opened) {
        if (opened.document) return;
        noteUnopened(path, opened);
        FillRecent();
    });
}

void fMain::FillRecent()
{
    for (int i = 0; i < int(setup_.Recent.size()); ++i) {
        QString& entry = setup_.Recent[std::size_t(i)];
        while (entry.endsWith(' ')) entry.chop(1);
        QAction* item = bars_->item("@RECENT", i);
        const bool found = !entry.isEmpty() && isThere(entry);
        item->setText(found    ? platform_.compactPath(printable(entry), 400).replace('&', "&&")
                      : i == 0 ? tr("Empty")
                               : "");
        item->setData(found);
        item->setEnabled(found || i == 0);
        item->setVisible(found || i == 0); // a lost file stays in the list, but has no line in the menu
    }
    showStartPage();
}

void fMain::save()
{
    workspace_.inTurn(active(), [this, document = active()] {
        if (fImage* image = documents_->of(document)) saveNow(*image);
    });
}

void fMain::saveNow(fImage& asked)
{
    const QPointer<fImage> image = &asked;
    const FileFacts file = image->document().file;
    const Over over = savesDirectly(file) ? askOver(file) : Over::AsksForName;
    if (!image || over == Over::SavesNot) return;
    over == Over::Overwrites ? saveTo(*image, file.path) : saveAs(*image);
}

/// A new document, a second one of the same file and any other format ask for a name.
bool fMain::savesDirectly(const FileFacts& file) const
{
    const Format* format = formatOf(file.path);
    return file.isOwn() && format && format->saving == Saving::Directly;
}

void fMain::saveAll()
{
    constexpr qsizetype kMostShown = 12;
    std::vector<DocumentHandle> changed;
    QStringList own, unnamed;
    for (const DocumentHandle& document : workspace_.documents()) {
        if (!document->wouldBeLost()) continue;
        changed.push_back(document);
        (savesDirectly(document->file) ? own : unnamed) << printable(document->file.caption());
    }
    if (changed.empty()) return status_->say(tr("No picture has changed."));
    const auto listed = [](const QStringList& names) {
        return names.mid(0, kMostShown).join('\n') + (names.size() > kMostShown ? "\n..." : "");
    };
    QString question = own.isEmpty() ? QString() : tr("These are written to their own files:\n") + listed(own);
    if (!unnamed.isEmpty())
        question +=
            (own.isEmpty() ? "" : "\n\n") + tr("These need a name, for which you are asked:\n") + listed(unnamed);
    const QPointer<fMain> stands = this;
    if (platform_.choose(tr("Save All"), question, {tr("&Save")}) != 0) return;
    for (const DocumentHandle& document : changed) {
        if (!stands || closing_) return; // a question for a name was open
        workspace_.inTurn(document, [this, document] {
            if (fImage* image = documents_->of(document)) saveNow(*image);
        });
    }
}

void fMain::saveAs()
{
    workspace_.inTurn(active(), [this, document = active()] {
        if (fImage* image = documents_->of(document)) saveAs(*image);
    });
}

void fMain::saveAs(fImage& asked)
{
    const QPointer<fImage> image = &asked;
    const FileFacts file = image->document().file;
    const Format* own = formatOf(file.path);
    const Format* has = findFormat(file.format.toStdString());
    const bool isOther = has && has->saved() && !otherKind(file.name(), file.format).isEmpty();
    const QString usual = isOther ? file.format : own && own->saved() ? extensionOf(file.path) : QStringLiteral("png");
    FileDialog dialog{tr("Save as"), saveFilter(), dialogFolder_};
    dialog.extension = usual;
    dialog.name = withEnding(nameOfPage(file), usual);
    dialog.writtenAs = [usual](const QString& name) { return saveTargetOf(withExtension(name, usual)).file; };
    bool keep = pictureSetting(platform_, PictureSetting::KeepCameraData);
    bool leaveOut = pictureSetting(platform_, PictureSetting::LeaveOutPlace);
    const bool hasCamera = !isEmpty(file.camera);
    if (hasCamera)
        dialog.choices = {{"chkKeepCamera", tr("&Keep camera data"), &keep},
                          {"chkWithoutPlace", tr("without the &place"), &leaveOut, &keep}};
    const auto path = platform_.saveFileName(dialog);
    if (!path || !image || !mayLosePages(file, withExtension(*path, usual)) || !image) return;
    if (hasCamera) {
        setPictureSetting(platform_, PictureSetting::KeepCameraData, keep);
        setPictureSetting(platform_, PictureSetting::LeaveOutPlace, leaveOut);
        image->document().file.kept = !keep ? CameraKept::None : leaveOut ? CameraKept::NoPlace : CameraKept::All;
    }
    if (setup_.PreserveLastFolder) dialogFolder_ = path->left(path->lastIndexOf('/') + 1);
    saveTo(*image, withExtension(*path, usual));
}

/// The document stays unsaved when that fails or is given up.
void fMain::saveTo(fImage& image, const QString& path)
{
    const QString name = FileNameOf(path), saving = tr("Saving %1 ... Esc ends it").arg(name);
    status_->say(saving);
    const Format* format = formatOf(path);
    const bool slow = format && format->has(SavesSlowly);
    if (slow) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const bool hasPicture = image.PictureExists();
    workspace_.save(image.document().handle(), path,
                    [this, slow, hasPicture, path, name, saving](const SaveReport& report) {
                        if (slow) QGuiApplication::restoreOverrideCursor();
                        if (status_->currentMessage() == printable(saving)) status_->clearMessage();
                        if (report.result == SaveResult::Stopped) return status_->say(tr("%1 is not saved.").arg(name));
                        report.tell(platform_);
                        if (report.result != SaveResult::Written && report.text.isEmpty())
                            platform_.tell(tr("Unexpected error saving image") + whyNotWritten(hasPicture, path),
                                           Icon::Exclamation);
                    });
}

void fMain::closeActive()
{
    if (fImage* image = GetActiveImage()) image->parentWidget()->close();
}

/// Reports why what is there can't be used; null then.
Bits fMain::clipboardPicture()
{
    const LoadedPicture picture = platform_.clipboard().bitmap();
    if (!picture.ok() && !picture.reason.isEmpty()) platform_.tell(picture.reason, Icon::Exclamation);
    return picture.ok() ? picture.bits : Bits();
}

void fMain::copyToNew()
{
    const DocumentHandle from = active();
    if (!from || !from->PictureExists()) return;
    const MemoryBudget budget;
    platform_.clipboard().setBitmap(from->bits());
    const Bits picture = clipboardPicture();
    platform_.clipboard().clear();
    if (!from || picture.isNull()) return;
    const Region selection = from->Region.Region();
    const DocumentHandle copy = adopt(picture, from->file.path, Arrival::Brought);
    if (!copy) return;
    copy->file.camera = from->file.camera;
    copy->file.kept = from->file.kept;
    copy->file.properties = from->file.properties;
    copy->describe();
    if (selection.isEmpty()) return;
    copy->Region.setRegion(selection);
    workspace_.handOver(*copy);
    documents_->of(copy)->UpdateImage();
}

void fMain::fromClipboard()
{
    const MemoryBudget budget;
    const Bits picture = clipboardPicture();
    if (!picture.isNull()) adopt(picture, inFolder(setup_.ImagesPath.trimmed(), "New.bmp"), Arrival::Brought);
}

/// What can't be opened is refused before it is dropped: the pointer says so.
void fMain::dragEnterEvent(QDragEnterEvent* event)
{
    const QMimeData& data = *event->mimeData();
    const bool isSlow = data.hasUrls() && data.urls().isEmpty(); // the other program has not given them in time
    event->setAccepted(isSlow || std::ranges::any_of(pathsOf(data), isRead));
    if (event->isAccepted()) event->acceptProposedAction();
}

void fMain::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    // After the drop has ended: the source program is waiting for us until then.
    QTimer::singleShot(0, this, [this, paths = pathsOf(*event->mimeData())] { dropFiles(paths); });
}

void fMain::dropFiles(const QStringList& paths)
{
    QStringList others;
    for (const QString& path : paths) {
        const QString picture = path.trimmed();
        if (!isRead(picture))
            others << printable(FileNameOf(picture));
        else
            openPath(picture, Unreadable::OpensEmpty,
                     [this, picture](const Opened& opened) { noteUnopened(picture, opened); });
    }
    if (!others.isEmpty()) status_->say(tr("Of a kind that is not read: %1").arg(others.join(", ")));
}

} // namespace velara
