#include "app/start/formatPlugins.h"
#include <QImageReader>
#include <QLibraryInfo>
#include <sys/resource.h>

namespace velara {

void leaveFormatPluginsOut()
{
    QLibraryInfo::path(QLibraryInfo::PluginsPath); // makes Qt read its configuration, once
    // The plug-in folder is listed only once, too, when a plug-in is first needed: done now, while no file can be
    // opened.
    rlimit before{};
    if (getrlimit(RLIMIT_NOFILE, &before) != 0) return;
    const rlimit none{0, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    QImageReader::supportedImageFormats();
    setrlimit(RLIMIT_NOFILE, &before);
}

} // namespace velara
