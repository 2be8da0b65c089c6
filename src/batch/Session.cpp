#include "batch/Session.h"
#include "fileio/cameraData.h"
#include "fileio/formats.h"
#include "pixels/RuntimeError.h"
#include "pixels/memory/MemoryBudget.h"
#include <new>

namespace velara {

namespace {

Failure operationFailed(const QString& error) { return {Status::OperationFailed, error}; }

/// Not QDir's, which falls back to the root folder.
QString temporaryFolder() { return qEnvironmentVariable("TMPDIR", QStringLiteral("/tmp")); }

Failure stepsFault()
{
    return fileFault(QStringLiteral("the undo steps can't be written to %1").arg(temporaryFolder()));
}

} // namespace

void checkRead(bool hasPicture, const QString& reason, bool partial)
{
    if (!hasPicture) throw fileFault(reason);
    if (!reason.isEmpty() && !partial) throw fileFault(reason + QStringLiteral("; --partial takes what is there"));
}

void Session::open(const QString& path, bool partial, bool keepSteps, int page)
{
    begin(keepSteps);
    Opened opened;
    workspace_->open(
        path, Unreadable::Refused, [&](const Opened& became) { opened = became; }, page);
    workspace_->wait();
    checkRead(bool(opened.document), opened.reason, partial);
    take(opened.document);
}

QString Session::otherKind() const { return velara::otherKind(document_->file.name(), document_->file.format); }

void Session::adopt(const Bits& bits, bool keepSteps)
{
    begin(keepSteps);
    take(workspace_->add(bits));
}

void Session::adopt(const LoadedPicture& loaded, bool partial, bool keepSteps)
{
    checkRead(loaded.ok(), loaded.reason, partial);
    adopt(loaded.bits, keepSteps);
    document_->file.camera = loaded.camera;
}

void Session::begin(bool keepSteps)
{
    if (workspace_ && !keepSteps && !keptSteps_) return workspace_->close(document_); // its threads go on
    keptSteps_ = keepSteps;
    if (keepSteps && !folder_.emplace(temporaryFolder() + QStringLiteral("/velara-batch-XXXXXX")).isValid())
        throw stepsFault();
    workspace_.emplace(folder_ ? folder_->path() : QString(), platform_);
    workspace_->engine().clock = [] { return 0U; }; // no progress report ever falls due
    QObject::connect(&*workspace_, &Workspace::progress, &*workspace_, [this](const DocumentHandle&, int percent) {
        if (progress_) progress_(percent);
    });
}

void Session::take(const DocumentHandle& document)
{
    document_ = document;
    workspace_->handOver(*document);
    checkSteps();
}

SaveReport Session::save(const QString& path, const SaveOrder& order)
{
    const Bits& bits = document_->bits();
    const CameraData camera = keptFor(document_->file.camera, order.kept, bits.width(), bits.height());
    const SaveTarget target = saveTargetOf(path);
    SaveWishes wishes;
    wishes.quality = order.quality;
    wishes.keepsRemains = false; // an output is whole, or not there
    const SaveReport report =
        writePicture(bits, target.name, target.extension, OutputFile::Links::Follow, camera, wishes);
    if (order.tells) report.tell(platform_);
    return report;
}

CameraData Session::webCamera(CameraKept kept) const
{
    const Bits picture = document_->bits();
    return keptForWeb(document_->file.camera, kept, picture.width(), picture.height());
}

void Session::checkSteps()
{
    if (folder_ && !document_->undo.stands()) throw stepsFault();
}

void Session::setProgress(std::function<void(int)> progress)
{
    progress_ = std::move(progress);
    workspace_->engine().clock = [this] { return platform_.milliseconds(); };
}

void throwFailure(const std::exception_ptr& fault)
{
    try {
        std::rethrow_exception(fault);
    } catch (const StepFault& fault) {
        throw failureOf(fault);
    } catch (const RuntimeError& error) {
        throw operationFailed(QString::fromLatin1(error.what()));
    } catch (const std::invalid_argument& error) {
        throw badArgument(QString::fromUtf8(error.what()) + QStringLiteral(" is unusable"));
    } catch (const NotEnoughMemory& refusal) {
        throw operationFailed(QString::fromLatin1(refusal.what()));
    } catch (const std::bad_alloc&) {
        throw operationFailed(QStringLiteral("Out of memory"));
    }
}

void Session::change(const Job& job, After after)
{
    Outcome became;
    workspace_->change(document_, {job, after}, [&](const Outcome& outcome) { became = outcome; });
    workspace_->wait();
    if (became.fault) throwFailure(became.fault);
    checkSteps();
}

/// The series, too: what it still has to write would make its folder anew.
void Session::forgetSteps()
{
    document_->undo.stop();
    folder_.reset();
}

void Session::step(bool back)
{
    workspace_->step(document_, back);
    workspace_->wait();
}

} // namespace velara
