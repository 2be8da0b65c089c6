#include "support/RecordingFrame.h"
#include <QCoreApplication>
#include <QDir>

namespace velara {

namespace {

/// Test programs without windows have no event loop of their own, which a workspace's callbacks need.
void bringEvents()
{
    static int count = 1;
    static char name[] = "test";
    static char* words[] = {name, nullptr};
    if (!QCoreApplication::instance()) new QCoreApplication(count, words); // kept until the end of the program
}

} // namespace

RecordingFrame::RecordingFrame()
{
    bringEvents();
    QDir(platform_.folder.path()).mkpath("Temp");
    QObject::connect(&workspace_, &Workspace::changed, [this] {
        ++snapshots;
        note("step");
    });
    QObject::connect(&workspace_, &Workspace::progress,
                     [this](const DocumentHandle&, int percent) { progress.push_back(percent); });
    QObject::connect(&workspace_, &Workspace::idle, [this] { progress.push_back(0); });
}

void RecordingFrame::note(const std::string& line)
{
    log.push_back(line);
    if (onCall) onCall(line);
}

Document& RecordingFrame::open(const Bits& picture)
{
    document = workspace_.add(picture).get();
    workspace_.handOver(*document);
    return *document;
}

DocumentHandle RecordingFrame::adopt(const Bits&, const QString& path, Arrival)
{
    note("adopted: " + path.toStdString());
    return {};
}

void RecordingFrame::report(const QString& what, const Outcome& outcome)
{
    if (!outcome.reason.isEmpty()) note("report: " + (what + ": " + outcome.reason).toStdString());
}

} // namespace velara
