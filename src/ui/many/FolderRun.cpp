#include "ui/many/FolderRun.h"
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>
#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace velara {

QStringList argumentsOf(const FolderOrder& order)
{
    QStringList arguments = order.inputs; // full paths, which can't be taken for steps or options
    arguments << QStringLiteral("--report") << QStringLiteral("-") << QStringLiteral("--recipe") << order.recipe;
    const auto add = [&](const char* option, const QString& value) {
        if (!value.isEmpty()) arguments << QLatin1String(option) << value;
    };
    if (order.below) arguments << QStringLiteral("--recursive");
    if (order.overOriginals) {
        arguments << QStringLiteral("--in-place") << QStringLiteral("--yes");
    } else {
        add("--into", order.into);
        add("--name", order.name);
        add("--existing", order.existing);
        add("--format", order.format);
        if (order.quality > 0) add("--quality", QString::number(order.quality));
    }
    return arguments;
}

FolderRun::FolderRun(QObject* parent) : QObject(parent), process_(new QProcess(this))
{
    process_->setChildProcessModifier([] { // a group of its own, which ends with the editor
        setpgid(0, 0);
        prctl(PR_SET_PDEATHSIG, SIGTERM);
    });
    process_->setStandardInputFile(QProcess::nullDevice());
    connect(process_, &QProcess::readyReadStandardOutput, this, &FolderRun::readReport);
    connect(process_, &QProcess::readyReadStandardError, this, &FolderRun::readErrors);
    connect(process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) emit ended(false, process_->errorString());
    });
    connect(process_, &QProcess::finished, this, [this](int, QProcess::ExitStatus status) {
        readReport();
        readErrors();
        if (status == QProcess::CrashExit && !cancelled_) said_ += tr("\nIt ended before its time.");
        paused_ = false;
        log_.close();
        emit ended(true, said_.trimmed());
    });
}

/// Nobody waits for the program: it goes on by itself until it has ended the pictures at hand. If it doesn't, it is
/// killed, at the latest with the editor.
FolderRun::~FolderRun()
{
    process_->disconnect(this);
    const auto group = static_cast<pid_t>(process_->processId());
    if (!isRunning() || group <= 0) return;
    constexpr int kPatience = 3000; // milliseconds
    signalAll(SIGCONT);
    process_->terminate();
    QProcess* left = process_;
    left->setParent(qApp);
    connect(left, &QProcess::finished, left, &QObject::deleteLater);
    QTimer::singleShot(kPatience, left, [group] { ::kill(-group, SIGKILL); });
}

void FolderRun::start(const QString& program, const QStringList& arguments, const QString& log)
{
    said_.clear();
    paused_ = cancelled_ = false;
    log_.setFileName(log);
    if (!log.isEmpty() && QDir().mkpath(QFileInfo(log).path())) log_.open(QIODevice::WriteOnly);
    keep("# " + (QStringList(program) + arguments).join(u' ').toUtf8() + '\n');
    process_->start(program, arguments);
}

void FolderRun::signalAll(int signal) const
{
    if (const auto first = static_cast<pid_t>(process_->processId())) ::kill(-first, signal);
}

void FolderRun::pause(bool paused)
{
    if (!isRunning()) return;
    paused_ = paused;
    signalAll(paused ? SIGSTOP : SIGCONT);
}

void FolderRun::cancel()
{
    if (!isRunning()) return;
    pause(false);
    process_->terminate(); // the coordinator alone: it ends its own
    if (std::exchange(cancelled_, true)) signalAll(SIGKILL);
}

void FolderRun::keep(const QByteArray& line)
{
    if (log_.isOpen()) log_.write(line);
}

/// Whole lines; the rest comes later.
void FolderRun::readReport()
{
    process_->setReadChannel(QProcess::StandardOutput);
    while (process_->canReadLine()) {
        const QByteArray line = process_->readLine();
        keep(line);
        const QJsonObject said = QJsonDocument::fromJson(line).object();
        if (said.isEmpty()) continue;
        const QString result = said[QStringLiteral("result")].toString();
        PictureResult became{said[QStringLiteral("input")].toString(), said[QStringLiteral("output")].toString(),
                             said[QStringLiteral("reason")].toString()};
        became.kind = result == QStringLiteral("done")      ? PictureResult::Done
                      : result == QStringLiteral("skipped") ? PictureResult::Skipped
                                                            : PictureResult::Failed;
        emit pictureDone(became);
    }
}

/// The last lines are what counts.
void FolderRun::readErrors()
{
    constexpr qsizetype kMostKept = 2000;
    const QByteArray text = process_->readAllStandardError();
    keep(text);
    said_ = (said_ + QString::fromUtf8(text)).right(kMostKept);
}

} // namespace velara
