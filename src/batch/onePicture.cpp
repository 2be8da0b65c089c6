#include "batch/onePicture.h"
#include "batch/drawing.h"
#include "fileio/disk/OutputFile.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "fileio/savePicture.h"
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace velara {

namespace {

Failure cannotBeWritten(const QString& output, const QString& reason = {})
{
    return fileFault(output + QStringLiteral(" can't be written") +
                     (reason.isEmpty() ? reason : QStringLiteral(": ") + reason));
}

Failure cannotBeWritten(const QString& output, int error)
{
    const bool isFull = error == ENOSPC || error == EDQUOT || error == EFBIG;
    Failure failure = cannotBeWritten(output, isFull       ? QStringLiteral("the disk is full")
                                              : error != 0 ? QString::fromLocal8Bit(std::strerror(error))
                                                           : QString());
    failure.diskIsFull = isFull;
    return failure;
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

void write(Session& session, const QString& output, const SaveOrder& order)
{
    fileOf(output);
    checkWritten(session.save(output, order), output);
}

} // namespace

Bits readArgument(Platform& platform, const QString& path, bool partial)
{
    const LoadedPicture picture = platform.loadPicture(path, extensionOf(path));
    checkRead(picture.ok(), picture.reason, partial);
    return picture.bits;
}

void takeSteps(Session& session, const CommandLine& line)
{
    const int lastGoingBack = line.lastGoingBack();
    for (int i = 0; i < static_cast<int>(line.steps.size()); ++i) {
        const LineStep& step = line.steps[static_cast<std::size_t>(i)];
        if (line.verbose && !line.many) {
            std::fprintf(stderr, "%s\n", step.text.toUtf8().constData());
            session.setProgress(progressOf(step.text));
        }
        naming(step.text, [&] { step.run(session); });
        if (i == lastGoingBack) session.forgetSteps();
    }
}

void checkWritten(const SaveReport& report, const QString& output)
{
    switch (report.result) {
    case SaveResult::Written:
        return;
    case SaveResult::NotWritten:
    case SaveResult::Refused:
        throw cannotBeWritten(output, QStringLiteral("pictures are written as ") + savedExtensions());
    case SaveResult::Failed:
    case SaveResult::FailedAndTold:
    case SaveResult::Stopped:
        throw cannotBeWritten(output, report.error);
    }
}

QString fileOf(const QString& output)
{
    const QString file = behindLinks(saveTargetOf(output).file);
    if (file.isEmpty()) throw cannotBeWritten(output, QStringLiteral("it is a link in a circle, or somebody else's"));
    if (output.endsWith(u'/') || isFolder(file)) throw cannotBeWritten(output, QStringLiteral("it is a folder"));
    return file;
}

QString writePictureOf(Session& session, const CommandLine& line, const QString& output)
{
    if (line.web)
        return writeWeb(session.picture(), *line.web, session.webCamera(line.camera.value_or(CameraKept::None)),
                        output);
    if (line.icon)
        writeIcon(session.picture(), *line.icon, output);
    else
        write(session, output, {line.camera.value_or(CameraKept::All), line.quality, !line.many});
    return {};
}

void makeTargetFolder(const QString& folder)
{
    if (!makeFolders(folder))
        throw fileFault(
            QStringLiteral("%1 can't be made: %2").arg(folder, QString::fromLocal8Bit(std::strerror(errno))));
}

QString savedExtensions()
{
    QStringList saved;
    for (const Format& format : kFormats)
        if (format.saved()) saved << QLatin1String(format.extension);
    return saved.join(QStringLiteral(", "));
}

} // namespace velara
