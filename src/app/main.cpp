// velara-studio: the editor. Reads no command line.
#include "app/fStartup.h"
#include "app/menus/fMenuStyle.h"
#include "app/start/SessionEnd.h"
#include "app/start/formatPlugins.h"
#include "platform/desktop/QtPlatform.h"
#include <QApplication>
#include <QLoggingCategory>
#include <optional>

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

} // namespace

int main(int argc, char** argv)
{
    velara::leaveFormatPluginsOut();
    Application application(argc, argv);
    // Each move of a stroke counts. The platform plug-in switches this on when it starts.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    application.setQuitOnLastWindowClosed(false); // the frame decides, whatever boxes are still open
    application.setStyle(new velara::fMenuStyle);
    velara::QtPlatform platform;
    velara::Setup setup;
    velara::Startup startup(platform, setup);
    std::unique_ptr<velara::fMain> frame;
    std::optional<velara::SessionEnd> sessionEnd;
    QObject::connect(&startup, &velara::Startup::done, &application, [&] {
        frame = startup.takeFrame();
        sessionEnd.emplace(*frame);
        QObject::connect(frame.get(), &velara::fMain::closed, &application, &QCoreApplication::quit,
                         Qt::QueuedConnection);
    });
    return application.exec();
}
