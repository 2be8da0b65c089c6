// Opening, recovering and saving: files are read and written by threads, one after the other.
#include "document/Workspace.h"
#include "document/WorkspacePlaces.h"
#include "document/recovery/Leftover.h"
#include "fileio/cameraData.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "fileio/load/PictureLoader.h"
#include "seams/PictureReader.h"
#include <QFileInfo>
#include <new>

namespace velara {

/// A file that is being read, or waits for that.
struct Workspace::FileRead {
    QString path;
    Unreadable unreadable;
    std::function<void(const Opened&)> then;
    int page;
    std::atomic<bool> cancelled{false};
    bool isThere = true;
    LoadedPicture loaded{}; // by the reading thread

    void read(PictureReader& reader);
    Opened::Kind kind() const;
};

void Workspace::FileRead::read(PictureReader& reader)
try {
    isThere = velara::isThere(path);
    loaded = reader.loadPicture(
        path, extensionOf(path), [this](auto) { return !cancelled; }, page);
    if (!loaded.ok() && findDecoder().isEmpty()) unreadable = Unreadable::Refused; // the package has been removed
} catch (const std::bad_alloc&) {
    unreadable = Unreadable::Refused;
    loaded.reason = QStringLiteral("there is not enough memory");
}

/// With gif, wmf, emf, ico, cur and dib an unreadable file is an error; any other format opens an empty document.
Opened::Kind Workspace::FileRead::kind() const
{
    if (cancelled) return Opened::Cancelled;
    if (loaded.ok()) return Opened::Open;
    if (!isThere) return Opened::Gone;
    const Format* format = findFormat(extensionOf(path).toStdString());
    return unreadable == Unreadable::Refused || (format && format->has(FailsAloud)) ? Opened::Refused : Opened::Open;
}

void Workspace::open(const QString& path, Unreadable unreadable, std::function<void(const Opened&)> then, int page)
{
    openings_.push_back(std::shared_ptr<FileRead>(new FileRead{path, unreadable, std::move(then), page}));
    if (openings_.size() == 1) readNext();
}

void Workspace::readNext()
{
    later([this] { emit reading(openings_.empty() ? QString() : openings_.front()->path); });
    if (openings_.empty()) return;
    reading_.start([this, opening = openings_.front()] {
        opening->read(reader_);
        later([this, opening] { opened(*opening); });
    });
}

void Workspace::opened(FileRead& opening)
{
    const auto keep = openings_.front();
    openings_.pop_front();
    Opened opened{opening.kind(), {}, opening.loaded.reason};
    if (opened.kind == Opened::Open) {
        const LoadedPicture& loaded = opening.loaded;
        const FileFacts file{.path = opening.path,
                             .isCutOff = loaded.ok() && !opened.reason.isEmpty(),
                             .camera = loaded.camera,
                             .properties = loaded.properties,
                             .format = loaded.format,
                             .page = opening.page,
                             .pages = loaded.pages};
        opened.document = add(loaded.bits, file, loaded.ok() ? Arrival::File : Arrival::Made);
    }
    readNext();
    if (opening.then) opening.then(opened);
}

bool Workspace::cancelOpening()
{
    if (openings_.empty()) return false;
    openings_.front()->cancelled = true;
    for (auto waiting = openings_.begin() + 1; waiting != openings_.end(); ++waiting)
        if ((*waiting)->then) later([then = (*waiting)->then] { then({Opened::Cancelled, {}, {}}); });
    openings_.resize(1);
    return true;
}

void Workspace::recover(std::shared_ptr<Leftover> leftover, std::function<void(const Opened&)> then)
{
    reading_.start([this, leftover = std::move(leftover), then = std::move(then)] {
        const Bits picture = leftover->read();
        later([this, leftover, picture, trouble = leftover->trouble(), then] {
            if (picture.isNull()) return then({Opened::Refused, {}, trouble});
            then({Opened::Open, recovered(*leftover, picture), trouble});
        });
    });
}

/// A second document of a file stays one, although the first may not be open: SAVE mustn't replace that one's file.
DocumentHandle Workspace::recovered(Leftover& leftover, const Bits& picture)
{
    DocumentFacts about = leftover.about();
    auto document = std::make_shared<Document>(leftover.inherit());
    const DocumentHandle handle = take(document);
    document->file = about.file;
    document->file.path.clear(); // it isn't a namesake of itself
    name(*document, about.file.path);
    if (about.file.mark != 0 && document->file.mark == 0) document->file.mark = ++clashes_;
    document->takePicture(picture);
    document->Changed = true;
    document->waitingTexts = std::move(about.texts);
    document->describe();
    return handle;
}

void Workspace::save(const DocumentHandle& document, const QString& path, std::function<void(const SaveReport&)> then)
{
    Place* place = placeOf(document);
    if (place && place->isBusy() && !place->inCall)
        return inTurn(document, [this, document, path, then] { save(document, path, then); });
    if (place) ++place->saves;
    const Bits bits = place ? document->bits() : Bits();
    const FileFacts facts = place ? document->file : FileFacts();
    write(
        bits, path,
        [this, document, path, commits = place ? document->commits() : 0, then](const SaveReport& report) {
            if (Place* still = placeOf(document)) {
                --still->saves;
                if (report.result == SaveResult::Written) saved(document, path, commits);
            }
            if (then) then(report);
        },
        keptFor(facts.camera, facts.kept, bits.width(), bits.height()),
        [unwanted = place ? place->unwanted : nullptr] { return !unwanted || !*unwanted; });
}

bool Workspace::cancelSaving(const DocumentHandle& document)
{
    Place* place = placeOf(document);
    if (!place || place->saves == 0) return false;
    *std::exchange(place->unwanted, std::make_shared<std::atomic<bool>>(false)) = true;
    return true;
}

void Workspace::saved(const DocumentHandle& document, const QString& path, int commits)
{
    document->saved();
    document->Changed = document->commits() != commits; // changed since
    FileFacts& file = document->file;
    const bool isRenamed = file.Tag() != path;
    file.page = file.pages = 1;
    file.format = QString::fromLatin1(usualExtension(extensionOf(path).toStdString())); // pnm: the colours decide
    if (isRenamed) name(*document, path);
    document->describe();
    emit renamed(document);
}

void Workspace::write(const Bits& picture, const QString& path, std::function<void(const SaveReport&)> then,
                      const CameraData& camera, const std::function<bool()>& goOn)
{
    ++writes_;
    writing_.start([this, picture, path, then, camera, goOn] {
        const SaveTarget target = saveTargetOf(path);
        const SaveReport report =
            writePicture(picture, target.name, target.extension, OutputFile::Links::Follow, camera, {.goOn = goOn});
        later([this, report, then] {
            --writes_;
            then(report);
        });
    });
}

} // namespace velara
