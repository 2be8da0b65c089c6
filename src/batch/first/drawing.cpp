#include "batch/drawing.h"
#include "batch/Failure.h"
#include "fileio/load/PictureLoader.h"
#include "platform/NoFonts.h"
#include <QFile>
#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace velara {

namespace {

[[noreturn]] void cantDraw(const QString& why)
{
    throw Failure{Status::OperationFailed,
                  QStringLiteral("velara-batch-all, which draws texts and icons, can't be started: ") + why};
}

} // namespace

void becomeWhatDraws(char** argv)
{
    const QString able = findHelper(QStringLiteral("velara-batch-all"));
    if (able.isEmpty()) cantDraw(QStringLiteral("it was not found"));
    execv(QFile::encodeName(able).constData(), argv);
    cantDraw(QString::fromLocal8Bit(std::strerror(errno)));
}

std::unique_ptr<QCoreApplication> makeApplication(bool)
{
    static int argc = 1;
    static char name[] = "velara-batch";
    static char* argv[] = {name, nullptr};
    return std::make_unique<QCoreApplication>(argc, argv);
}

std::unique_ptr<Fonts> systemFonts() { return std::make_unique<NoFonts>(); }

void writeIcon(const Bits&, const IconOrder&, const QString&) { cantDraw(QStringLiteral("it was not asked for")); }

} // namespace velara
