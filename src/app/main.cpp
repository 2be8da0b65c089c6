// velara-studio: the editor. With files on its command line it is velara-open.
#include "app/fStartup.h"
#include "app/menus/fMenuStyle.h"
#include "app/settings/Appearance.h"
#include "app/settings/language.h"
#include "app/start/FrameRequests.h"
#include "app/start/SessionEnd.h"
#include "app/start/formatPlugins.h"
#include "fileio/load/PictureLoader.h"
#include "platform/desktop/QtPlatform.h"
#include "platform/opening/OpenService.h"
#include "platform/opening/places.h"
#include "ui/widgets/marks/FocusRing.h"
#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QLoggingCategory>
#include <cstdio>
#include <cstring>
#include <fontconfig/fontconfig.h>
#include <optional>
#include <thread>
#include <unistd.h>

namespace {

/// Failures that no command has caught end here: the event is dropped and the program continues.
class Application final : public QApplication {
  public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception& failure) {
            qWarning("velara-studio: %s", failure.what());
            return false;
        }
    }
};

/// Whether the command line is ours: options with one dash are Qt's, as "-platform offscreen".
bool namesFiles(int argc, char** argv)
{
    return argc > 1 && (argv[1][0] != '-' || argv[1][1] == '-' || argv[1][1] == '\0');
}

/// Does what velara-open does with the same command line.
int openInstead(char** argv)
{
    const QByteArray program = QFile::encodeName(velara::findHelper(QStringLiteral("velara-open")));
    execv(program.constData(), argv);
    std::fprintf(stderr, "velara-studio: velara-open can't be started: %s\n", std::strerror(errno));
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    if (namesFiles(argc, argv)) return openInstead(argv);
    velara::leaveFormatPluginsOut();  // before any thread: while it works no file can be opened
    const std::jthread fonts(FcInit); // reads fontconfig's files while Qt loads its own; Qt needs them after that
    Application application(argc, argv);
    // Each move of a stroke counts. The platform plug-in switches this on when it starts.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    application.setQuitOnLastWindowClosed(false); // the frame decides, whatever boxes are still open
    application.setStyle(new velara::fMenuStyle);
    QGuiApplication::setDesktopFileName(velara::kStudioService);
    velara::FrameRequests requests;
    std::optional<velara::OpenService> service(requests);
    const QDBusConnection bus = velara::sessionBus(QStringLiteral("velara-studio"));
    service->serve(bus);
    service->listen(velara::socketOf(getpid()));
    velara::QtPlatform platform;
    const QString language = velara::chosenLanguage(platform);
    velara::useLanguage(application,
                        language.isEmpty() ? velara::languageFor(QLocale::system().uiLanguages()) : language);
    velara::Appearance appearance(platform, bus);
    const velara::FocusRing focusRing;
    velara::Setup setup;
    velara::Startup startup(platform, setup);
    std::unique_ptr<velara::fMain> frame;
    std::optional<velara::SessionEnd> sessionEnd;
    QObject::connect(&startup, &velara::Startup::done, &application, [&] {
        frame = startup.takeFrame();
        sessionEnd.emplace(*frame);
        QObject::connect(frame.get(), &velara::fMain::optionsChosen, &appearance, &velara::Appearance::apply);
        QObject::connect(frame.get(), &velara::fMain::closed, &application, [&] { service.reset(); });
        QObject::connect(frame.get(), &velara::fMain::closed, &application, &QCoreApplication::quit,
                         Qt::QueuedConnection);
        requests.begin(*frame);
    });
    return application.exec();
}
