#include "batch/fonts.h"
#include "batch/BatchPlatform.h"
#include <QFile>
#include <QGuiApplication>
#include <algorithm>
#include <cerrno>
#include <sys/wait.h>
#include <unistd.h>

namespace velara {

namespace {

/// Qt has things to say about a desktop that isn't needed. What ends the program is said.
void onlyWhatIsFatal(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtFatalMsg) return;
    complain(QStringLiteral("no text can be drawn: ") + text.section(u'\n', 0, 0));
    _exit(static_cast<int>(Status::OperationFailed));
}

bool drawsText(const CommandLine& line)
{
    return std::ranges::any_of(line.steps, [](const LineStep& step) { return !step.fonts.isEmpty(); });
}

void checkFontsOf(const CommandLine& line, Platform& platform)
{
    for (const LineStep& step : line.steps) {
        try {
            if (!step.fonts.isEmpty()) checkFonts(step.fonts, platform.fonts());
        } catch (const StepFault& fault) {
            throw failureOf({fault.kind, step.text + QStringLiteral(": ") + fault.text});
        }
    }
}

void drawBy(const CommandLine& line, Platform& platform)
{
    for (const LineStep& step : line.steps)
        if (step.drawBy) step.drawBy(platform.fonts());
}

/// In the fork: why there is no drawing; nothing where there are the fonts.
QByteArray faultOfFonts(const CommandLine& line, Platform& platform)
{
    const auto application = makeApplication(line);
    try {
        checkFontsOf(line, platform);
        return {};
    } catch (const Failure& failure) {
        return failure.text.toUtf8();
    }
}

} // namespace

std::unique_ptr<QCoreApplication> makeApplication(const CommandLine& line)
{
    static int argc = 1;
    static char name[] = "velara-batch";
    static char* argv[] = {name, nullptr};
    if (!drawsText(line)) return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // the fonts of the desktop's platform, without its display
    qputenv("QT_QPA_OFFSCREEN_NO_GLX", "1");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    qInstallMessageHandler(onlyWhatIsFatal);
    return std::make_unique<QGuiApplication>(argc, argv);
}

void takeFonts(const CommandLine& line, Platform& platform)
{
    checkFontsOf(line, platform);
    drawBy(line, platform);
}

void takeFontsOfForks(const CommandLine& line, Platform& platform)
{
    if (!drawsText(line)) return;
    int ends[2];
    if (pipe(ends) != 0) throw fileFault(QStringLiteral("no pipe can be made"));
    const pid_t pid = fork();
    if (pid == 0) {
        close(ends[0]);
        const QByteArray fault = faultOfFonts(line, platform);
        const bool isTold = write(ends[1], fault.constData(), std::size_t(fault.size())) == fault.size();
        _exit(isTold ? 0 : 1);
    }
    close(ends[1]);
    QFile from;
    const QByteArray fault =
        from.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) ? from.readAll() : QByteArray();
    int status = -1;
    while (pid > 0 && waitpid(pid, &status, 0) < 0 && errno == EINTR) continue;
    if (!fault.isEmpty()) throw Failure{Status::OperationFailed, QString::fromUtf8(fault)};
    if (status != 0) throw Failure{Status::OperationFailed, QStringLiteral("the system's fonts can't be used")};
    drawBy(line, platform);
}

} // namespace velara
