#include "ui/widgets/ScreenColours.h"
#include "fileio/load/PictureLoader.h"
#include "fileio/readInBackground.h"
#include <QApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <sys/mman.h>

namespace velara {

namespace {

/// By velara-decode: a profile isn't parsed here.
std::shared_ptr<const ColourTable> tableOf(const QByteArray& profile, const GoOn& goOn)
{
    const Descriptor file(memfd_create("velara-profile", MFD_CLOEXEC));
    if (!file.isOpen() || write(file.get(), profile.constData(), std::size_t(profile.size())) != profile.size())
        return {};
    return ColourTable::of(loadColourTable(file, findDecoder(), goOn).bits);
}

} // namespace

ScreenColours* ScreenColours::theOne_ = nullptr;

ScreenColours::ScreenColours(Platform& platform, std::optional<QDBusConnection> bus)
    : platform_(platform), profiles_(std::move(bus))
{
    theOne_ = this;
    connect(&profiles_, &ScreenProfiles::changed, this, &ScreenColours::refresh);
    for (const auto signal :
         {&QGuiApplication::screenAdded, &QGuiApplication::screenRemoved, &QGuiApplication::primaryScreenChanged})
        connect(qGuiApp, signal, this, &ScreenColours::refresh);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &ScreenColours::follow);
    for (QWindow* window : QGuiApplication::topLevelWindows()) follow(window);
    refresh();
}

/// A window that goes to another screen is shown by that one's table.
void ScreenColours::follow(QWindow* window)
{
    if (window) connect(window, &QWindow::screenChanged, this, &ScreenColours::repaintAll, Qt::UniqueConnection);
}

void ScreenColours::repaintAll()
{
    for (QWidget* widget : QApplication::allWidgets()) widget->update(); // a window's update leaves out its pictures
}

ScreenColours::~ScreenColours()
{
    theOne_ = nullptr;
    repaintAll();
}

const ColourTable* ScreenColours::tableOf(const QWidget& widget) const
{
    const auto known = screens_.find(widget.screen()->name());
    return known == screens_.end() ? nullptr : known->second.table.get();
}

void ScreenColours::refresh()
{
    int number = 0;
    for (const QScreen* screen : QGuiApplication::screens())
        profiles_.find(number++, screen->name(),
                       [this, name = screen->name()](const QByteArray& profile) { found(name, profile); });
}

/// Until the table of another profile is made, the one before it is used.
void ScreenColours::found(const QString& screen, const QByteArray& profile)
{
    Known& known = screens_[screen];
    if (std::exchange(known.profile, profile) == profile) return;
    if (profile.isEmpty()) {
        known.table.reset();
        return repaintAll();
    }
    const auto made = std::make_shared<std::shared_ptr<const ColourTable>>();
    inBackground(
        platform_, this, [made, profile](const GoOn& goOn) { *made = velara::tableOf(profile, goOn); },
        [this, made, screen, profile] {
            if (screens_[screen].profile != profile) return;
            screens_[screen].table = *made;
            repaintAll();
        });
}

} // namespace velara
