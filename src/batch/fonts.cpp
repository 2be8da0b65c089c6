#include "batch/fonts.h"
#include "batch/drawing.h"
#include "fileio/waitFor.h"
#include <QFile>
#include <algorithm>
#include <unistd.h>

namespace velara {

namespace {

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
    const auto application = makeApplication(true);
    try {
        checkFontsOf(line, platform);
        return {};
    } catch (const Failure& failure) {
        return failure.text.toUtf8();
    }
}

} // namespace

bool drawsText(const CommandLine& line)
{
    return std::ranges::any_of(line.steps, [](const LineStep& step) { return !step.fonts.isEmpty(); });
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
    const int status = pid > 0 ? waitFor(pid) : -1;
    if (!fault.isEmpty()) throw Failure{Status::OperationFailed, QString::fromUtf8(fault)};
    if (status != 0) throw Failure{Status::OperationFailed, QStringLiteral("the system's fonts can't be used")};
    drawBy(line, platform);
}

} // namespace velara
