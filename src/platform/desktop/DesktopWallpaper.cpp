#include "platform/desktop/DesktopWallpaper.h"
#include "fileio/readInBackground.h"
#include "platform/desktop/PortalRequest.h"
#include "platform/desktop/rootPicture.h"
#include "platform/desktop/x11.h"
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>
#include <utility>

namespace velara {

namespace {

constexpr int kPatience = 10000; // ms for a program or a shell to answer

/// The desktop's own word for each mode.
struct ModeWords {
    const char *centre, *tile, *stretch;
    const char* of(WallpaperMode mode) const
    {
        return mode == WallpaperMode::Tile ? tile : mode == WallpaperMode::Stretch ? stretch : centre;
    }
};

/// Desktops whose settings are written by the program gsettings.
struct SettingsRow {
    const char *desktop, *schema; // desktop: a word of XDG_CURRENT_DESKTOP
    QStringList pictureKeys;
    const char* optionKey;
    bool isAddress; // the picture is a file: URL, else a path
    ModeWords words;
};

// clang-format off
const SettingsRow kSettings[] = {
    {"X-Cinnamon", "org.cinnamon.desktop.background", {"picture-uri"},                     "picture-options", true,  {"centered", "wallpaper", "stretched"}},
    {"MATE",       "org.mate.background",             {"picture-filename"},                "picture-options", false, {"centered", "wallpaper", "stretched"}},
    {"GNOME",      "org.gnome.desktop.background",    {"picture-uri", "picture-uri-dark"}, "picture-options", true,  {"centered", "wallpaper", "stretched"}},
    {"Unity",      "org.gnome.desktop.background",    {"picture-uri"},                     "picture-options", true,  {"centered", "wallpaper", "stretched"}},
    {"Budgie",     "org.gnome.desktop.background",    {"picture-uri", "picture-uri-dark"}, "picture-options", true,  {"centered", "wallpaper", "stretched"}},
    {"Pantheon",   "org.gnome.desktop.background",    {"picture-uri"},                     "picture-options", true,  {"centered", "wallpaper", "stretched"}},
};
constexpr ModeWords kXfce   = {"1", "2", "3"};                 // image-style
constexpr ModeWords kPlasma = {"6", "3", "0"};                 // FillMode of its picture plugin
constexpr ModeWords kLxqt   = {"center", "tile", "stretch"};
// clang-format on

QString address(const QString& path) { return QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded); }

} // namespace

DesktopWallpaper::DesktopWallpaper(Platform& platform, std::optional<QDBusConnection> bus)
    : platform_(platform), bus_(std::move(bus))
{
}

QString DesktopWallpaper::folder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/velara-studio";
    QDir().mkpath(folder);
    return folder;
}

void DesktopWallpaper::set(const QString& path, WallpaperMode mode, Done done)
{
    delete work_;
    delete request_;
    work_ = new QObject(this);
    done_ = std::move(done);
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(':', Qt::SkipEmptyParts);
    for (const SettingsRow& row : kSettings) {
        if (!desktops.contains(row.desktop, Qt::CaseInsensitive)) continue;
        Commands commands{{"gsettings", "set", row.schema, row.optionKey, row.words.of(mode)}};
        for (const QString& key : row.pictureKeys)
            commands << QStringList{"gsettings", "set", row.schema, key, row.isAddress ? address(path) : path};
        return runAll(commands);
    }
    if (desktops.contains("XFCE", Qt::CaseInsensitive)) return setByXfce(path, mode);
    if (desktops.contains("KDE", Qt::CaseInsensitive)) return setByPlasma(path, mode);
    if (desktops.contains("LXQt", Qt::CaseInsensitive))
        return runAll({{"pcmanfm-qt", "--set-wallpaper=" + path, QString("--wallpaper-mode=") + kLxqt.of(mode)}});
    setByPortal(path, mode);
}

void DesktopWallpaper::finish(WallpaperResult result)
{
    if (work_) work_->deleteLater();
    work_ = nullptr;
    if (const Done done = std::exchange(done_, nullptr)) done(result);
}

void DesktopWallpaper::run(const QStringList& command, const Answer& answer)
{
    auto* process = new QProcess(work_);
    process->setProgram(command.front());
    process->setArguments(command.mid(1));
    connect(process, &QProcess::errorOccurred, work_, [process, answer](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) answer(false, {});
    });
    connect(process, &QProcess::finished, work_, [process, answer](int code, QProcess::ExitStatus status) {
        answer(status == QProcess::NormalExit && code == 0, QString::fromUtf8(process->readAllStandardOutput()));
    });
    QTimer::singleShot(kPatience, process, &QProcess::kill);
    process->start(QIODevice::ReadOnly);
}

void DesktopWallpaper::runAll(Commands commands)
{
    if (commands.isEmpty()) return finish(WallpaperResult::Done);
    const QStringList first = commands.takeFirst();
    run(first, [this, commands](bool ok, const QString&) {
        if (ok)
            runAll(commands);
        else
            finish(WallpaperResult::CantWrite);
    });
}

/// Xfce has a picture for each screen and workspace, under names that only it knows.
void DesktopWallpaper::setByXfce(const QString& path, WallpaperMode mode)
{
    const QStringList query{"xfconf-query", "-c", "xfce4-desktop"};
    run(query + QStringList{"-l"}, [this, query, path, mode](bool ok, const QString& list) {
        const QString last = "/last-image";
        Commands commands;
        for (const QString& property : list.split('\n', Qt::SkipEmptyParts)) {
            if (!property.trimmed().endsWith(last)) continue;
            const QString place = property.trimmed().chopped(last.size());
            commands << query + QStringList{"-p", place + "/image-style", "--create", "-t", "int", "-s", kXfce.of(mode)}
                     // Setting the same name again has no effect, even if the file differs.
                     << query + QStringList{"-p", place + last, "-s", ""}
                     << query + QStringList{"-p", place + last, "-s", path};
        }
        if (!ok || commands.isEmpty()) return finish(WallpaperResult::CantRead);
        runAll(commands);
    });
}

void DesktopWallpaper::setByPlasma(const QString& path, WallpaperMode mode)
{
    const QString script = QStringLiteral("for (const d of desktops()) {"
                                          " d.wallpaperPlugin = 'org.kde.image';"
                                          " d.currentConfigGroup = ['Wallpaper', 'org.kde.image', 'General'];"
                                          " d.writeConfig('Image', '');" // the same name again has no effect
                                          " d.writeConfig('Image', '%1');"
                                          " d.writeConfig('FillMode', '%2'); }");
    const QString escaped = address(path).replace('\'', "%27");
    QDBusMessage call =
        QDBusMessage::createMethodCall("org.kde.plasmashell", "/PlasmaShell", "org.kde.PlasmaShell", "evaluateScript");
    call << script.arg(escaped, kPlasma.of(mode));
    auto* watcher = new QDBusPendingCallWatcher(bus().asyncCall(call, kPatience), work_);
    connect(watcher, &QDBusPendingCallWatcher::finished, work_, [this](QDBusPendingCallWatcher* done) {
        finish(done->isError() ? WallpaperResult::CantWrite : WallpaperResult::Done);
    });
}

/// Passes an open file instead of a URL, and has no modes. Without such a portal, draws on the root window.
void DesktopWallpaper::setByPortal(const QString& path, WallpaperMode mode)
{
    QFile file(path);
    if (!bus().isConnected() || !file.open(QIODevice::ReadOnly)) return setRoot(path, mode);
    const auto answered = [this, path, mode](PortalRequest::Code code, const QVariantMap&) {
        request_->deleteLater();
        if (code >= PortalRequest::Failed) return setRoot(path, mode);
        finish(WallpaperResult::Done); // refused: by the user, who needs no message
    };
    const QDBusUnixFileDescriptor descriptor(file.handle());
    request_ = new PortalRequest(bus(), "Wallpaper", "SetWallpaperFile", {QString(), QVariant::fromValue(descriptor)},
                                 {{"show-preview", false}, {"set-on", "background"}}, answered, this);
}

void DesktopWallpaper::setRoot(const QString& path, WallpaperMode mode)
{
    QList<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens << QRect(screen->geometry().topLeft(), screen->geometry().size() * screen->devicePixelRatio());
    const QSize root = x11RootSize();
    if (root.isEmpty()) return finish(WallpaperResult::CantWrite);
    readInBackground(platform_, work_, path, [this, mode, root, screens](const LoadedPicture& read) {
        const bool shown = read.ok() && x11SetRootPicture(rootPicture(read.bits, mode, root, screens));
        finish(shown ? WallpaperResult::Done : WallpaperResult::CantWrite);
    });
}

} // namespace velara
