// velara-batch: the engine without a window, for scripts, tests and timing.
#include "batch/BatchPlatform.h"
#include "batch/CommandLine.h"
#include "fileio/disk/OutputFile.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "fileio/load/PictureLoader.h"
#include "fileio/savePicture.h"
#include "pixels/threads/parallelFor.h"
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

namespace velara {

namespace {

Bits read(Platform& platform, const QString& path, bool partial)
{
    const LoadedPicture picture = platform.loadPicture(path, extensionOf(path));
    checkRead(picture.ok(), picture.reason, partial);
    return picture.bits;
}

Failure cannotBeWritten(const QString& output, const QString& reason = {})
{
    return fileFault(output + QStringLiteral(" can't be written") +
                     (reason.isEmpty() ? reason : QStringLiteral(": ") + reason));
}

/// The file that a target stands for, with links resolved. A name that can't become a picture is refused before any
/// work.
QString fileOf(const QString& output)
{
    const QString file = behindLinks(saveTargetOf(output).file);
    if (file.isEmpty()) throw cannotBeWritten(output, QStringLiteral("it is a link in a circle, or somebody else's"));
    if (output.endsWith(u'/') || isFolder(file)) throw cannotBeWritten(output, QStringLiteral("it is a folder"));
    return file;
}

QString savedExtensions()
{
    QStringList saved;
    for (const Format& format : kFormats)
        if (format.saved()) saved << QLatin1String(format.extension);
    return saved.join(QStringLiteral(", "));
}

void write(Session& session, const QString& output, CameraKept kept)
{
    const QString file = fileOf(output);
    const bool isNew = !isThere(file);
    switch (session.save(output, kept)) {
    case SaveResult::Written:
        return;
    case SaveResult::NotWritten:
    case SaveResult::Refused:
        throw cannotBeWritten(output, QStringLiteral("pictures are written as ") + savedExtensions());
    case SaveResult::Failed:
    case SaveResult::FailedAndTold:
    case SaveResult::Stopped:           // nobody does
        if (isNew) QFile::remove(file); // an incomplete JPEG
        throw cannotBeWritten(output);
    }
}

/// Reports every ten percent of a step.
std::function<void(int)> progressOf(const QString& step)
{
    return [step, told = -1](int percent) mutable {
        if (percent / 10 == told / 10 && told >= 0) return;
        told = percent;
        std::fprintf(stderr, "%s: %d %%\n", step.toUtf8().constData(), percent);
    };
}

void takeSteps(Session& session, const CommandLine& line)
{
    const int lastGoingBack = line.lastGoingBack();
    for (int i = 0; i < static_cast<int>(line.steps.size()); ++i) {
        const LineStep& step = line.steps[static_cast<std::size_t>(i)];
        if (line.verbose) {
            std::fprintf(stderr, "%s\n", step.text.toUtf8().constData());
            session.setProgress(progressOf(step.text));
        }
        naming(step.text, [&] { step.run(session); });
        if (i == lastGoingBack) session.forgetSteps();
    }
}

void run(const QStringList& arguments)
{
    const CommandLine line = CommandLine::parse(arguments);
    if (line.help || line.list) {
        std::fputs((line.help ? helpText() : listText()).toUtf8().constData(), stdout);
        return;
    }
    if (line.threads) setThreadCount(*line.threads);
    readInSrgb(!line.stored);
    BatchPlatform platform;
    fileOf(line.output);
    const auto readPicture = [&](const QString& path) { return read(platform, path, line.partial); };
    Session session(platform);
    session.open(line.input, line.partial, line.lastGoingBack() >= 0, line.page);
    if (const QString kind = session.otherKind(); line.verbose && !kind.isEmpty())
        std::fprintf(stderr, "%s\n", kind.toUtf8().constData());
    for (const LineStep& step : line.steps)
        if (step.prepare) step.prepare(readPicture);
    takeSteps(session, line);
    if (line.web)
        std::printf("%s\n", writeWeb(session.picture(), *line.web,
                                     session.webCamera(line.camera.value_or(CameraKept::None)), line.output)
                                .toUtf8()
                                .constData());
    else if (line.icon)
        writeIcon(session.picture(), *line.icon, line.output);
    else
        write(session, line.output, line.camera.value_or(CameraKept::All));
}

/// Allocating more than the machine has then fails and is reported, instead of the system killing the program. The
/// sanitizers reserve far more than that for themselves.
void limitMemory()
{
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    const rlim_t bytes = static_cast<rlim_t>(sysconf(_SC_PHYS_PAGES)) * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
    rlimit limit{};
    if (getrlimit(RLIMIT_DATA, &limit) != 0) return;
    limit.rlim_cur = std::min(bytes, limit.rlim_max);
    setrlimit(RLIMIT_DATA, &limit);
#endif
}

} // namespace

} // namespace velara

int main(int argc, char** argv)
{
    using namespace velara;
    QCoreApplication application(argc, argv);
    limitMemory();
    try {
        QStringList arguments;
        for (int i = 1; i < argc; ++i) arguments << nameFrom(argv[i]);
        run(arguments);
        return 0;
    } catch (const Failure& failure) {
        complain(failure.text);
        return static_cast<int>(failure.status);
    } catch (const std::bad_alloc&) {
        complain(QStringLiteral("there is not enough memory"));
        return static_cast<int>(Status::OperationFailed);
    }
}
