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
    for (PlannedPicture& picture : plan.pictures) {
        const Format* format = formatOf(picture.output);
        if (!format || !format->saved())
            picture.fault = QStringLiteral("no picture is written as .%1; --format says another one of %2")
                                .arg(extensionOf(picture.output), savedExtensions());
    }
}

/// A report that would be written over a picture is refused.
void checkReport(const QString& report, const std::vector<InputFile>& inputs, const Plan& plan)
{
    const auto status = statusOf(report);
    if (report.isEmpty() || !status || !S_ISREG(status->st_mode)) return;
    const FileIdentity itself{status->st_dev, status->st_ino};
    const auto isIt = [&](const PlannedPicture& picture) {
        const auto there = statusOf(picture.output);
        return there && FileIdentity{there->st_dev, there->st_ino} == itself;
    };
    if (std::ranges::find(inputs, itself, &InputFile::identity) != inputs.end() ||
        std::ranges::any_of(plan.pictures, isIt))
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
    const auto work = std::ranges::count(plan.pictures, false, &PlannedPicture::isSkipped);
    const int wanted = order.jobs > 0 ? order.jobs : threadCount();
    return static_cast<int>(std::clamp<std::ptrdiff_t>(work, 1, wanted));
}

} // namespace

int runMany(CommandLine line)
{
    const ManyOrder& order = *line.many;
    if (!order.inPlace && isThere(order.into) && !isFolder(order.into))
        throw badArgument(QStringLiteral("--into: %1 is no folder").arg(order.into));
    const InputList list = findInputs(order.inputs, order.recursive, order.into);
    Plan plan = planOf(order, list.files, endingsOf(line));
    refuseWhatIsNotWritten(line, plan);
    checkReport(order.report, list.files, plan);
    BatchPlatform platform;
    for (const LineStep& step : line.steps)
        if (step.prepare) step.prepare([&](const QString& path) { return readArgument(platform, path, line.partial); });
    takeFontsOfForks(line, platform);
    for (const QString& notice : list.notices) complain(printable(notice));
    if (list.files.empty()) throw fileFault(QStringLiteral("there are no pictures among the INPUTs"));
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
