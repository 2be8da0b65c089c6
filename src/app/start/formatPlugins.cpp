#include "app/start/formatPlugins.h"
#include <QImageReader>
#include <QLibraryInfo>
#include <sys/resource.h>

namespace velara {

void leaveFormatPluginsOut()
{
    QLibraryInfo::path(QLibraryInfo::PluginsPath); // reads its configuration, once
    // The folder of the plug-ins is listed once too, the first time that one is wanted: now, while nothing can be
    // opened.
    rlimit before{};
    if (getrlimit(RLIMIT_NOFILE, &before) != 0) return;
    const rlimit none{0, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    QImageReader::supportedImageFormats();
    setrlimit(RLIMIT_NOFILE, &before);
}

} // namespace velara
