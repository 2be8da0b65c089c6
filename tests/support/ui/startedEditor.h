// The editor as it stands after its start.
#pragma once
#include "app/fStartup.h"
#include <QCoreApplication>

namespace velara {

inline std::unique_ptr<fMain> startedEditor(Platform& platform, Setup& setup)
{
    Startup startup(platform, setup);
    bool done = false;
    QObject::connect(&startup, &Startup::done, [&] { done = true; });
    while (!done) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return startup.takeFrame();
}

} // namespace velara
