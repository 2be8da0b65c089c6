#include "support/RecordingFrame.h"
#include "pixels/RuntimeError.h"

namespace velara {

void RecordingFrame::note(const std::string& line)
{
    log.push_back(line);
    if (onCall) onCall(line);
}

std::vector<DocumentHandle> RecordingFrame::openDocuments()
{
    return document ? std::vector{document->handle()} : std::vector<DocumentHandle>();
}

DocumentHandle RecordingFrame::adopt(const Bits&, const QString& path, Arrival)
{
    note("adopted: " + path.toStdString());
    return {};
}

Outcome RecordingFrame::change(const DocumentHandle& document, const Job& job, After after)
{
    const DocumentHandle handle = document; // whoever holds that one may be gone after a yield
    if (!handle) return {Outcome::Gone};
    Draft draft(*handle, handle->bits(), filter_, after);
    draft.filter().Progress = [&](int percent) {
        progress.push_back(percent);
        platform_.yield();
        if (!draft.wanted()) throw Cancelled();
    };
    const Outcome outcome = draft.attempt(job);
    progress.push_back(0);
    if (!handle) return {Outcome::Gone};
    if (!draft.wanted()) return {Outcome::Dropped, "dropped"};
    if (!outcome) return outcome;
    draft.take();
    draft.handTo(filter_, engineHolds(*handle));
    ++snapshots;
    note("step");
    return outcome;
}

void RecordingFrame::finish(const DocumentHandle& handle)
{
    if (!handle) return;
    handle->commit();
    ++snapshots;
    note("step");
}

void RecordingFrame::report(const QString& what, const Outcome& outcome)
{
    if (!outcome.reason.isEmpty()) note("report: " + (what + ": " + outcome.reason).toStdString());
}

void RecordingFrame::handOver(const Document& given)
{
    given.handTo(filter_);
    held_ = given.handle();
    note("handed");
}

} // namespace velara
