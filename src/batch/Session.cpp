#include "batch/Session.h"
#include "document/resizing.h"
#include "pixels/RuntimeError.h"
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

void Session::open(const Bits& bits, bool keepSteps)
{
    if (keepSteps && !folder_.emplace(temporaryFolder() + QStringLiteral("/velara-batch-XXXXXX")).isValid())
        throw stepsFault();
    document_.emplace(folder_ ? folder_->path() : QString(), 0);
    document_->takePicture(bits);
    document_->handTo(filter_);
    filter_.clock = [this] { return platform_.milliseconds(); };
    keepStep();
}

void Session::keepStep()
{
    if (folder_ && !document_->SaveUndoBits()) throw stepsFault();
}

/// The end of a change of pixels.
void Session::commit()
{
    document_->Zoomed = false;
    document_->Changed = true;
    keepStep();
}

template <class Work> void Session::guarded(Work work)
{
    const auto putBack = [&] { document_->handTo(filter_); };
    try {
        work();
    } catch (const RuntimeError& error) {
        putBack();
        throw operationFailed(QString::fromLatin1(error.what()));
    } catch (const std::invalid_argument& error) {
        putBack();
        throw badArgument(QString::fromUtf8(error.what()) + QStringLiteral(" is unusable"));
    } catch (const std::bad_alloc&) {
        putBack();
        throw operationFailed(QStringLiteral("Out of memory"));
    }
}

void Session::run(const Operation& operation, const Arguments& arguments)
{
    guarded([&] {
        operation.call(filter_, arguments);
        const Bits& result = filter_.bits();
        if (result.width() == document_->PictureWidth() && result.height() == document_->PictureHeight())
            document_->setBits(result);
        else
            document_->takePicture(result);
        document_->handTo(filter_);
    });
    commit();
}

void Session::resize(const SizeWord& word)
{
    if (word.kind == SizeWord::Rotate) {
        guarded([&] { rotateImage(*document_, filter_, word.value, word.quality); });
        commit();
        return;
    }
    // Sizing words in a row each start from the picture before the first of them, so the mark stays.
    bool kept = false;
    guarded([&] { kept = zoomImage(*document_, filter_, word.value, word.kind == SizeWord::Enlarge, word.quality); });
    if (folder_ && !kept) throw stepsFault();
}

void Session::crop()
{
    CropAnswer answer = CropAnswer::Done;
    guarded([&] { answer = cropImage(*document_, filter_); });
    if (answer == CropAnswer::NothingSelected) throw operationFailed(QStringLiteral("Nothing selected"));
    if (answer == CropAnswer::TooSmall) throw operationFailed(QStringLiteral("Minimum size: 2 x 2"));
    commit();
}

} // namespace velara
