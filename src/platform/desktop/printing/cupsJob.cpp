#include "platform/desktop/printing/cupsServer.h"
#include <QFile>
#include <optional>
#include <thread>

namespace velara {

namespace {

using namespace std::chrono_literals;

constexpr qint64 kSlowest = 100; // bytes of a job per millisecond
constexpr auto kCancelling = 2s; // for the server to take it
constexpr auto kFollowing = 3s;  // a job that isn't refused by then is taken
constexpr auto kBetweenLooks = 100ms;

/// On a connection of its own: the job's may have failed.
void cancelJob(int job)
{
    const Patience patience(kCancelling);
    const Server server(patience);
    if (server.get()) cups().cupsCancelJob2(server.get(), nullptr, job, 0);
}

struct SentJob {
    int number;     // 0: it isn't sent
    QString reason; // why not
};

SentJob sendJob(const Server& server, const char* queue, const QString& pdf, const QString& title,
                const JobOptions& options)
{
    QFile file(pdf);
    if (!file.open(QIODevice::ReadOnly)) return {0, "the page can't be read"};
    cups_option_t* list = nullptr;
    int count = 0;
    for (const auto& [name, value] : options)
        count = cups().cupsAddOption(name.constData(), value.constData(), count, &list);
    const QByteArray name = title.toUtf8();
    const int job = cups().cupsCreateJob(server.get(), queue, name.constData(), count, list);
    cups().cupsFreeOptions(count, list);
    if (!job) return {0, QString::fromUtf8(cups().cupsLastErrorString())};
    http_status_t status = cups().cupsStartDocument(server.get(), queue, job, name.constData(), CUPS_FORMAT_PDF, 1);
    while (status == HTTP_STATUS_CONTINUE && !file.atEnd()) {
        const QByteArray piece = file.read(1 << 16);
        status = piece.isEmpty()
                     ? HTTP_STATUS_ERROR
                     : cups().cupsWriteRequestData(server.get(), piece.constData(), std::size_t(piece.size()));
    }
    if (status == HTTP_STATUS_CONTINUE &&
        cups().cupsFinishDocument(server.get(), queue) < IPP_STATUS_REDIRECTION_OTHER_SITE)
        return {job, {}};
    const SentJob failed{0, QString::fromUtf8(cups().cupsLastErrorString())};
    cancelJob(job);
    return failed;
}

struct JobLook {
    ipp_jstate_t state;
    QString message; // the printer's about the job
};

/// Nothing when the server doesn't answer or has already forgotten the job.
std::optional<JobLook> lookAt(const Server& server, int job)
{
    ipp_t* question = cups().ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const QByteArray uri = "ipp://localhost/jobs/" + QByteArray::number(job);
    cups().ippAddString(question, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.constData());
    cups().ippAddString(question, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cups().cupsUser());
    const std::unique_ptr<ipp_t, decltype(&ippDelete)> answer(cups().cupsDoRequest(server.get(), question, "/"),
                                                              cups().ippDelete);
    ipp_attribute_t* state = cups().ippFindAttribute(answer.get(), "job-state", IPP_TAG_ENUM);
    if (!state) return {};
    ipp_attribute_t* message = cups().ippFindAttribute(answer.get(), "job-printer-state-message", IPP_TAG_TEXT);
    return JobLook{ipp_jstate_t(cups().ippGetInteger(state, 0)),
                   QString::fromUtf8(cups().ippGetString(message, 0, nullptr))};
}

bool isPaused(const Queue& queue)
{
    const char* state = cups().cupsGetOption("printer-state", queue.get()->num_options, queue.get()->options);
    return state && std::atoi(state) == IPP_PSTATE_STOPPED;
}

/// Waits until the job prints, waits in its queue or is refused.
PrintResult follow(const QString& queue, bool paused, int job, const Patience& wanted)
{
    const Patience enough(kFollowing, &wanted);
    const Patience patience(kFollowing + kServerPatience, &wanted);
    const Server server(patience);
    while (server.get()) {
        const auto seen = lookAt(server, job);
        if (!seen || seen->state == IPP_JSTATE_COMPLETED) return {};
        if (seen->state == IPP_JSTATE_STOPPED || seen->state == IPP_JSTATE_CANCELED ||
            seen->state == IPP_JSTATE_ABORTED) {
            cancelJob(job); // a stopped one could be printed later
            return {seen->message.isEmpty() ? queue + " refused the page" : seen->message};
        }
        if (paused && seen->state == IPP_JSTATE_PENDING)
            return {{}, "The printer " + queue + " is paused. The page waits in its queue."};
        if (!enough.lasts() && seen->state == IPP_JSTATE_HELD)
            return {{}, "The page is held in the queue of the printer " + queue + "."};
        if (!enough.lasts()) return {};
        std::this_thread::sleep_for(kBetweenLooks);
    }
    return {};
}

} // namespace

PrintResult cupsPrint(const QString& queue, const QString& pdf, const QString& title, const JobOptions& options,
                      Patience& patience)
{
    const Server server(patience);
    if (!server.get()) return {"the print server does not answer"};
    const Queue dest(server, queue);
    if (!dest.get()) return {"there is no printer " + queue + " any more"};
    patience.startAnew(kServerPatience + std::chrono::milliseconds(QFile(pdf).size() / kSlowest));
    const auto [job, reason] = sendJob(server, dest.get()->name, pdf, title, options);
    if (!job) return {reason.isEmpty() ? "the print server has not taken the page" : reason};
    patience.startAnew(2 * (kFollowing + kServerPatience)); // it is sent: no silence is a failure any more
    const PrintResult result = follow(queue, isPaused(dest), job, patience);
    if (!patience.lasts()) cancelJob(job); // given up meanwhile
    return result;
}

} // namespace velara
