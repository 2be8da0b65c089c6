// Opening, saving, the recent list, files dropped on the frame, and new documents by way of the clipboard.
#include "app/frame/fMain.h"
#include "app/frame/fStatus.h"
#include "fileio/SetupStore.h"
#include "fileio/formats.h"
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

/// The part after the last separator, right-trimmed.
QString FileNameOf(const QString& path)
{
    QString name = path.mid(path.lastIndexOf('/') + 1);
    while (name.endsWith(' ')) name.chop(1);
    return name;
}

bool isDropped(const QString& path)
{
    return std::ranges::any_of(kFormats, [&](const Format& f) {
        return f.has(Dropped) && path.endsWith(text(f.extension), Qt::CaseInsensitive);
    });
}

/// Two windows of one file tell themselves apart by the mark in front of the second one's name.
void showName(fImage& image, const QString& path)
{
    image.setCaption(image.Tag().chopped(path.size()) + FileNameOf(path));
}

} // namespace

QString fMain::inDialogFolder(const QString& name) const
{
    return name.contains('/') ? name : dialogFolder_ + (dialogFolder_.endsWith('/') ? "" : "/") + name;
}

DocumentHandle fMain::adopt(const Bits& bits, const QString& name, Arrival arrival)
{
    if (closing_) return {};
    const QString path = inDialogFolder(name);
    const DocumentHandle document = workspace_.add(bits, path, arrival);
    auto image = std::make_unique<fImage>(*this, document);
    showName(*image, path);
    connect(image.get(), &fImage::asking, this, &fMain::asking);
    documents_->show(std::move(image), setup_.ImagesMaximized);
    refreshUndoState();
    showStartPage();
    return document;
}

void fMain::applyOpenOptions()
{
    if (setup_.OpenZoom <= 1) return;
    setZoom(setup_.OpenZoom);
    documents_->fitActive();
}

void fMain::showLoadError() { platform_.tell("Unexpected error loading image", Icon::Exclamation); }

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

/// Unless the file was opened there is no document of it, and nothing was said. A file that a reader of the platform
/// (gif, wmf, emf, ico, cur, dib) refuses fails aloud; any other that can't be read gives an empty window.
fMain::Opening fMain::openPath(const QString& path, Unreadable unreadable)
{
    if (closing_) return Opening::Done;
    if (!QFileInfo::exists(path)) return Opening::Gone;
    const QString extension = extensionOf(path);
    const Format* format = findFormat(extension.toStdString());
    LoadedPicture loaded;
    try {
        loaded = platform_.loadPicture(path, extension);
    } catch (const std::exception&) { // a picture too large for this machine's memory
        return Opening::Failed;
    }
    if (closing_) return Opening::Done;
    const bool aloud = unreadable == Unreadable::Refused || (format && format->has(FailsAloud));
    if (!loaded.ok() && aloud) return Opening::Failed;
    if (!loaded.ok()) status_->say(FileNameOf(path) + tr(" can't be read as a picture."));
    // What has lost its end doesn't replace its file without a question.
    adopt(loaded.bits, path, loaded.ok() && loaded.reason.isEmpty() ? Arrival::File : Arrival::Made);
    if (loaded.ok() && !loaded.reason.isEmpty()) status_->say(loaded.reason);
    return Opening::Done;
}

/// Opens it or says why not; false then.
bool fMain::openOrTell(const QString& path, Unreadable unreadable)
{
    const Opening opening = openPath(path, unreadable);
    if (opening == Opening::Gone) showGone({path});
    if (opening == Opening::Failed) showLoadError();
    return opening == Opening::Done;
}

bool fMain::openPicture(const QString& path, Unreadable unreadable)
{
    if (!openOrTell(path, unreadable)) return false;
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
    if (const auto path = platform_.openFileName({"Open file", openFilter(), dialogFolder_, "*.bmp"}))
        openPicture(*path);
}

void fMain::openRecent(int index)
{
    const QString path = setup_.Recent[std::size_t(index)].trimmed();
    if (path.isEmpty()) return;
    if (!openOrTell(path, Unreadable::OpensEmpty)) return FillRecent();
    applyOpenOptions();
}

void fMain::FillRecent()
{
    for (int i = 0; i < int(setup_.Recent.size()); ++i) {
        QString& entry = setup_.Recent[std::size_t(i)];
        while (entry.endsWith(' ')) entry.chop(1);
        QAction* item = bars_->item("@RECENT", i);
        const bool found = !entry.isEmpty() && QFileInfo::exists(entry);
        item->setText(found ? platform_.compactPath(printable(entry), 400).replace('&', "&&") : i == 0 ? "Empty" : "");
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

void fMain::saveNow(fImage& image)
{
    const Format* format = formatOf(image.Caption());
    // A new document, a second window of the same file and any other format get their name by asking.
    const bool own = image.document().hasFile && image.Tag().startsWith('/');
    if (!own || !format || format->saving != Saving::Directly) return saveAs(image);
    saveTo(image, image.Tag());
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
    const Format* own = formatOf(image->Caption());
    const QString usual = own && own->saved() ? extensionOf(image->Caption()) : QStringLiteral("png");
    FileDialog dialog{"Save as", saveFilter(), dialogFolder_};
    dialog.extension = usual;
    dialog.writtenAs = [usual](const QString& name) { return saveTargetOf(withExtension(name, usual)).file; };
    const auto path = platform_.saveFileName(dialog);
    if (!path || !image) return;
    if (setup_.PreserveLastFolder) dialogFolder_ = path->left(path->lastIndexOf('/') + 1);
    saveTo(*image, withExtension(*path, usual));
}

void fMain::saveTo(fImage& image, const QString& name)
{
    const SaveTarget target = saveTargetOf(name);
    const QPointer<fImage> watched = &image;
    const int commits = image.document().commits();
    SaveResult result = SaveResult::Failed;
    try {
        result = image.Save(target.name, target.extension);
    } catch (const std::exception&) {
    }
    if (result != SaveResult::Written) { // the document stays as it was, unsaved
        const bool told = result == SaveResult::FailedAndTold || result == SaveResult::Refused;
        if (!told) platform_.tell("Unexpected error saving image", Icon::Exclamation);
        return;
    }
    if (!watched) return; // closed while a notice of the save stood open
    const bool changedMeanwhile = image.document().commits() != commits;
    image.document().saved();
    image.document().Changed = changedMeanwhile;
    if (image.Tag() != name) {
        workspace_.rename(image.document().handle(), name);
        showName(image, name);
    }
    image.showChanged();
    setStatus(Panel::Name, image.Caption());
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
    const DocumentHandle copy = adopt(picture, from->Tag, Arrival::Brought);
    if (!copy || selection.isEmpty()) return;
    copy->Region.setRegion(selection);
    workspace_.handOver(*copy);
    documents_->of(copy)->UpdateImage();
}

void fMain::fromClipboard()
{
    const MemoryBudget budget;
    const Bits picture = clipboardPicture();
    if (!picture.isNull()) adopt(picture, setup_.ImagesPath.trimmed() + "New.bmp", Arrival::Brought);
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
    // After the drop has ended: the source program is waiting for us until then.
    QTimer::singleShot(0, this, [this, paths] { dropFiles(paths); });
}

void fMain::dropFiles(const QStringList& paths)
{
    bool failed = false;
    QStringList gone;
    for (const QString& dropped : paths) {
        const QString path = dropped.trimmed();
        const Opening opening = isDropped(path) ? openPath(path, Unreadable::OpensEmpty) : Opening::Done;
        failed |= opening == Opening::Failed;
        if (opening == Opening::Gone) gone << path;
    }
    if (failed && !closing_) showLoadError(); // once, however many
    if (!gone.isEmpty() && !closing_) showGone(gone);
}

} // namespace velara
