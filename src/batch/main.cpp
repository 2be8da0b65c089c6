// velara-batch: the engine without a window, for scripts, tests and timing.
#include "batch/BatchPlatform.h"
#include "batch/CommandLine.h"
#include "batch/drawing.h"
#include "batch/fonts.h"
#include "batch/many/runMany.h"
#include "batch/onePicture.h"
#include "batch/writeWhileReading.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "fileio/load/PictureLoader.h"
#include "pixels/threads/parallelFor.h"
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

namespace velara {

namespace {

const QString kPipe = QStringLiteral("-");

void open(Session& session, BatchPlatform& platform, const CommandLine& line)
{
    const bool keepSteps = line.lastGoingBack() >= 0;
    if (line.input == kPipe)
        session.adopt(platform.fromStandardInput(line.inputFormat), line.partial, keepSteps);
    else
        session.open(line.input, line.partial, keepSteps, line.page);
    if (const QString kind = session.otherKind(); line.verbose && !kind.isEmpty())
        std::fprintf(stderr, "%s\n", kind.toUtf8().constData());
}

void copyToStandardOutput(const QString& path)
{
    constexpr qint64 kPiece = 1 << 20;
    QFile file(path), output;
    bool isWhole = file.open(QIODevice::ReadOnly) && output.open(stdout, QIODevice::WriteOnly);
    while (isWhole && !file.atEnd()) {
        const QByteArray piece = file.read(kPiece);
        isWhole = !piece.isEmpty() && output.write(piece) == piece.size();
    }
    if (!isWhole || !output.flush()) throw fileFault(QStringLiteral("standard output can't be written"));
}

/// The whole picture is made before its first byte goes out.
void writeToStandardOutput(Session& session, const CommandLine& line)
{
    const QTemporaryDir folder;
    const QString ending = line.format.isEmpty() ? QStringLiteral("out") : line.format;
    const QString path = folder.filePath(QStringLiteral("picture.") + ending);
    const QString told = writePictureOf(session, line, path);
    if (!told.isEmpty()) complain(told);
    copyToStandardOutput(line.format.isEmpty() ? path : saveTargetOf(path).file);
}

void runOne(const CommandLine& line)
{
    BatchPlatform platform;
    const bool isPiped = line.output == kPipe;
    if (!isPiped) fileOf(line.output);
    if (canBeWrittenWhileRead(line)) return writeWhileReading(platform, line);
    Session session(platform);
    open(session, platform, line);
    for (const LineStep& step : line.steps)
        if (step.prepare) step.prepare([&](const QString& path) { return readArgument(platform, path, line.partial); });
    takeFonts(line, platform);
    takeSteps(session, line);
    if (isPiped) return writeToStandardOutput(session, line);
    const QString told = writePictureOf(session, line, line.output);
    if (!told.isEmpty()) std::printf("%s\n", told.toUtf8().constData());
}

/// A recipe that comes through a pipe can be read once: by the program that takes its steps.
bool hasPipedRecipe(const QStringList& arguments)
{
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments[i - 1] != QStringLiteral("--recipe")) continue;
        const auto status = statusOf(arguments[i]);
        if (status && !S_ISREG(status->st_mode)) return true;
    }
    return false;
}

int run(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) arguments << nameFrom(argv[i]);
    if (hasPipedRecipe(arguments)) becomeWhatDraws(argv);
    const CommandLine line = CommandLine::parse(arguments);
    if (line.help || line.list) {
        std::fputs((line.help ? helpText() : listText()).toUtf8().constData(), stdout);
        return 0;
    }
    if (line.icon || drawsText(line)) becomeWhatDraws(argv);
    if (line.threads) setThreadCount(*line.threads);
    readInSrgb(!line.stored);
    if (line.many) return runMany(line);
    const auto application = makeApplication(drawsText(line));
    runOne(line);
    return 0;
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
    limitMemory();
    try {
        return run(argc, argv);
    } catch (const Failure& failure) {
        complain(failure.text);
        return static_cast<int>(failure.status);
    } catch (const std::bad_alloc&) {
        complain(QStringLiteral("there is not enough memory"));
        return static_cast<int>(Status::OperationFailed);
    }
}
