#include "platform/desktop/SaneScanner.h"
#include <QFile>
#include <QProcess>
#include <QTimer>
#include <QVariant>
#include <algorithm>
#include <cmath>
#include <memory>

namespace velara {

namespace {

constexpr int kGrace = 3000;              // ms for a scan to end cleanly
constexpr const char* kTarget = "target"; // a property of the child: the file that it writes

void describeLine(ScanRange& range, const QStringList& words)
{
    const QString& key = words.front();
    const auto number = [&words](int i) { return int(std::lround(words.value(i).toDouble())); };
    if (key == "choice") {
        if (words.value(4) == "1") range.current = int(range.choices.size());
        range.choices << ScanChoice{words.value(1), words.value(2), words.value(3) == "1"};
    }
    if (range.choices.isEmpty()) return;
    ScanChoice& choice = range.choices.last();
    if (key == "resolution") choice.resolution = number(1);
    if (key == "bed") choice.bed = {words.value(1).toDouble(), words.value(2).toDouble()};
    if (key == "range") {
        choice.resolutions = {std::max(1, number(1)), std::max(1, number(2))};
        choice.step = std::max(1, number(3));
    }
    if (key != "resolutions") return;
    for (int i = 1; i < words.size(); ++i) choice.resolutions << number(i);
    std::ranges::sort(choice.resolutions);
}

/// Two devices of one model are told apart by their names.
void tellApart(QList<ScanSource>& sources)
{
    QStringList titles;
    for (const ScanSource& source : sources) titles << source.title;
    for (ScanSource& source : sources)
        if (titles.count(source.title) > 1) source.title += " [" + source.device + "]";
}

/// Removes what a scan leaves; the helper can't remove it inside its cage.
void removeRest(const QProcess* child)
{
    if (const QString rest = child->property(kTarget).toString(); !rest.isEmpty()) QFile::remove(rest);
}

} // namespace

SaneScanner::SaneScanner(const QString& helper) : helper_(helper) {}

SaneScanner::~SaneScanner()
{
    if (!child_) return;
    child_->disconnect();
    child_->kill();
    removeRest(child_);
    delete child_; // waits for its end
}

void SaneScanner::start(const QStringList& arguments, const Line& line, std::function<void(const QString&)> done)
{
    cancel();
    auto* child = new QProcess(this);
    child_ = child;
    const auto reason = std::make_shared<QString>();
    const auto readLines = [child, line, reason] {
        while (child->canReadLine()) {
            const QStringList words = QString::fromUtf8(child->readLine()).chopped(1).split('\t');
            if (words.front() == "failed")
                *reason = words.value(1);
            else
                line(words);
        }
    };
    const auto finish = [this, child, done, reason] {
        child->disconnect();
        child->deleteLater();
        child_ = nullptr;
        removeRest(child);
        done(*reason);
    };
    connect(child, &QProcess::readyReadStandardOutput, this, readLines);
    connect(child, &QProcess::errorOccurred, this, [reason, finish](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart) return;
        *reason = tr("The program velara-scan is missing.");
        finish();
    });
    connect(child, &QProcess::finished, this, [readLines, reason, finish](int code, QProcess::ExitStatus status) {
        readLines();
        if (reason->isEmpty() && (status != QProcess::NormalExit || code != 0))
            *reason = tr("The scanner's driver has failed.");
        finish();
    });
    child->setProcessChannelMode(QProcess::SeparateChannels);
    child->setStandardErrorFile(QProcess::nullDevice()); // drivers print messages
    child->start(helper_, arguments);
}

void SaneScanner::cancel()
{
    QProcess* const child = child_;
    if (!child) return;
    child_ = nullptr;
    child->disconnect();
    removeRest(child); // at once: later the name may be the next scan's
    connect(child, &QProcess::finished, child, &QObject::deleteLater);
    child->closeWriteChannel(); // it may wait for next()
    child->terminate();
    QTimer::singleShot(kGrace, child, &QProcess::kill);
}

void SaneScanner::list(std::function<void(const QList<ScanSource>&, const QString&)> done)
{
    const auto sources = std::make_shared<QList<ScanSource>>();
    start(
        {"list"},
        [sources](const QStringList& words) {
            if (words.front() == "source") *sources << ScanSource{words.value(1), words.value(2)};
        },
        [sources, done](const QString& reason) {
            tellApart(*sources);
            done(*sources, reason);
        });
}

void SaneScanner::describe(const QString& device, std::function<void(const ScanRange&, const QString&)> done)
{
    const auto range = std::make_shared<ScanRange>();
    start(
        {"describe", device}, [range](const QStringList& words) { describeLine(*range, words); },
        [range, done](const QString& reason) { done(*range, reason); });
}

void SaneScanner::acquire(const ScanJob& job, const QString& path, ScanCalls calls)
{
    constexpr const char* kWhat[] = {"page", "pages", "preview"};
    QStringList arguments{"acquire", job.device, job.feed, job.mode, QString::number(job.resolution)};
    for (const double edge : {job.area.left(), job.area.top(), job.area.right(), job.area.bottom()})
        arguments << QString::number(edge);
    const auto line = [calls](const QStringList& words) {
        if (words.front() == "percent") calls.progress(words.value(1).toInt());
        if (words.front() == "page") calls.page();
    };
    start(arguments << kWhat[job.what] << path, line, calls.done);
    if (child_) child_->setProperty(kTarget, path);
}

void SaneScanner::next()
{
    if (child_) child_->write("next\n");
}

} // namespace velara
