#include "app/menus/fIcons.h"
#include "app/menus/menus.h"
#include "seams/text.h"
#include <QApplication>
#include <QPalette>
#include <QStandardPaths>

static void initResources() { Q_INIT_RESOURCE(velara); }

namespace velara {

void useResources() { initResources(); }

void useIconTheme()
{
    const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    // Without a desktop environment Qt searches nowhere.
    QStringList paths = QIcon::themeSearchPaths();
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        if (!paths.contains(folder + "/icons")) paths << folder + "/icons";
    QIcon::setThemeSearchPaths(paths);
    QIcon::setFallbackThemeName("breeze");
    QIcon::setThemeName(dark ? "breeze-dark" : "breeze");
}

QIcon iconOf(std::string_view word)
{
    const QString name = text(pictureOf(word));
    if (name.isEmpty()) return {};
    if (name.startsWith(':')) return QIcon(":/icons/" + name.mid(1) + ".svg");
    return QIcon::fromTheme(name);
}

} // namespace velara
