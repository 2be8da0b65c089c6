#include "batch/drawing.h"
#include "batch/BatchPlatform.h"
#include "batch/Failure.h"
#include "fileio/writers/iconFile.h"
#include "platform/QtFonts.h"
#include <QGuiApplication>
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

} // namespace

void becomeWhatDraws(char**) {}

std::unique_ptr<QCoreApplication> makeApplication(bool withFonts)
{
    static int argc = 1;
    static char name[] = "velara-batch";
    static char* argv[] = {name, nullptr};
    if (!withFonts) return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // the fonts of the desktop's platform, without its display
    qputenv("QT_QPA_OFFSCREEN_NO_GLX", "1");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    qInstallMessageHandler(onlyWhatIsFatal);
    return std::make_unique<QGuiApplication>(argc, argv);
}

std::unique_ptr<Fonts> systemFonts() { return std::make_unique<QtFonts>(); }

void writeIcon(const Bits& picture, const IconOrder& order, const QString& output)
{
    if (!writeIcon(iconBytes(iconOf(picture, order.size, order.mask)), output))
        throw fileFault(output + QStringLiteral(" can't be written"));
}

} // namespace velara
