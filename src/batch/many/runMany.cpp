#include "batch/many/runMany.h"
#include "batch/BatchPlatform.h"
#include "batch/fonts.h"
#include "batch/many/Coordinator.h"
#include "batch/onePicture.h"
#include "fileio/disk/OutputFile.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "pixels/threads/parallelFor.h"
#include "seams/printable.h"
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ranges>
#include <sys/stat.h>

namespace velara {

namespace {

/// The ending of the outputs, given that of an input.
EndingOf endingsOf(const CommandLine& line)
{
    const QString fixed = line.web ? line.web->settings.extension() : line.icon ? QStringLiteral("ico") : line.format;
    return [fixed](const QString& ending) { return fixed.isEmpty() ? ending : fixed; };
}

void refuseWhatIsNotWritten(const CommandLine& line, Plan& plan)
{
    if (line.web || line.icon) return; // whatever their names
    for (int i = 0; i < plan.size(); ++i) {
        const QString output = plan.output(i);
        const Format* format = formatOf(output);
        if (!format || !format->saved())
            plan.faults[i] = QStringLiteral("no picture is written as .%1; --format says another one of %2")
                                 .arg(extensionOf(output), savedExtensions());
    }
}

/// A report that would be written over a picture is refused.
void checkReport(const QString& report, const Plan& plan)
{
    const auto status = statusOf(report);
    if (report.isEmpty() || !status || !S_ISREG(status->st_mode)) return;
    const FileIdentity itself{status->st_dev, status->st_ino};
    const auto isInput = [&](int at) { return plan.inputs.identity(at) == itself; };
    const auto isOutput = [&](int picture) {
        const auto there = statusOf(plan.output(picture));
        return there && FileIdentity{there->st_dev, there->st_ino} == itself;
    };
    if (std::ranges::any_of(std::views::iota(0, plan.inputs.size()), isInput) ||
        std::ranges::any_of(std::views::iota(0, plan.size()), isOutput))
        throw badArgument(QStringLiteral("--report: %1 is one of the pictures").arg(report));
}

/// The target folder is there, and what dead programs left in those that are written to is gone.
void prepareFolders(const ManyOrder& order, const Plan& plan)
{
    if (!order.inPlace) makeTargetFolder(order.into);
    for (const QString& folder : plan.folders) removeStrays(folder);
}

/// At most as many as there are pictures to work on.
int jobsFor(const ManyOrder& order, const Plan& plan)
{
    const auto work = std::ranges::count(plan.pictures, false, &Plan::Picture::isSkipped);
    const int wanted = order.jobs > 0 ? order.jobs : threadCount();
    return static_cast<int>(std::clamp<std::ptrdiff_t>(work, 1, wanted));
}

} // namespace

int runMany(CommandLine line)
{
    const ManyOrder& order = *line.many;
    if (!order.inPlace && isThere(order.into) && !isFolder(order.into))
        throw badArgument(QStringLiteral("--into: %1 is no folder").arg(order.into));
    InputList list = findInputs(order.inputs, order.recursive, order.into);
    Plan plan = planOf(order, std::exchange(list.files, {}), endingsOf(line));
    refuseWhatIsNotWritten(line, plan);
    checkReport(order.report, plan);
    BatchPlatform platform;
    for (const LineStep& step : line.steps)
        if (step.prepare) step.prepare([&](const QString& path) { return readArgument(platform, path, line.partial); });
    takeFontsOfForks(line, platform);
    for (const QString& notice : list.notices) complain(printable(notice));
    if (plan.inputs.isEmpty()) throw fileFault(QStringLiteral("there are no pictures among the INPUTs"));
    prepareFolders(order, plan);
    Report report(order.report);

    const int jobs = jobsFor(order, plan);
    setThreadCount(line.threads.value_or(std::max(1, threadCount() / jobs)));
    const Coordinator::Outcome outcome = Coordinator(line, plan, report, jobs).run();
    const Tally& tally = outcome.tally;
    complain(summaryOf(tally, outcome.seconds));
    if (outcome.signal != 0) return 128 + outcome.signal;
    return tally.failed + tally.left() == 0 && report.isWhole() ? 0 : static_cast<int>(Status::FileFault);
}

} // namespace velara
