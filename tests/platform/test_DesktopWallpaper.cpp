// The wallpaper of each desktop: the calls to its programs and services.
#include "PrivateBus.h"
#include "platform/desktop/DesktopWallpaper.h"
#include "platform/desktop/rootPicture.h"
#include "support/RecordingPlatform.h"
#include "support/files.h"
#include "support/pictures.h"
#include <QtCore>

namespace velara {

namespace {

/// The desktop's programs are scripts that record how they are called; no other program is found.
struct Desktop {
    QTemporaryDir folder;
    QByteArray path = qgetenv("PATH");
    RecordingPlatform platform;

    explicit Desktop(const char* name)
    {
        qputenv("XDG_CURRENT_DESKTOP", name);
        qputenv("PATH", folder.path().toUtf8());
    }
    ~Desktop()
    {
        qunsetenv("XDG_CURRENT_DESKTOP");
        qputenv("PATH", path);
    }
    void program(const QString& name, const QByteArray& then = "")
    {
        const QString file = folder.filePath(name);
        putFile(file,
                "#!/bin/sh\necho \"" + name.toUtf8() + " $*\" >>" + folder.filePath("log").toUtf8() + "\n" + then);
        QFile::setPermissions(file, QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
    }
    QByteArray log() const { return fileBytes(folder.filePath("log")); }
    static WallpaperResult set(DesktopWallpaper& wallpaper, WallpaperMode mode, const QString& file = "/data/a b.bmp")
    {
        return answerTo<WallpaperResult>([&](auto done) { wallpaper.set(file, mode, done); });
    }
};

} // namespace

TEST(DesktopWallpaper, EveryDesktopIsToldInItsOwnWords)
{
    const struct {
        const char *desktop, *program;
        WallpaperMode mode;
        QByteArray calls;
    } rows[] = {
        {"ubuntu:GNOME", "gsettings", WallpaperMode::Stretch,
         "gsettings set org.gnome.desktop.background picture-options stretched\n"
         "gsettings set org.gnome.desktop.background picture-uri file:///data/a%20b.bmp\n"
         "gsettings set org.gnome.desktop.background picture-uri-dark file:///data/a%20b.bmp\n"},
        {"X-Cinnamon", "gsettings", WallpaperMode::Tile,
         "gsettings set org.cinnamon.desktop.background picture-options wallpaper\n"
         "gsettings set org.cinnamon.desktop.background picture-uri file:///data/a%20b.bmp\n"},
        {"MATE", "gsettings", WallpaperMode::Centre,
         "gsettings set org.mate.background picture-options centered\n"
         "gsettings set org.mate.background picture-filename /data/a b.bmp\n"},
        {"XFCE", "xfconf-query", WallpaperMode::Tile,
         "xfconf-query -c xfce4-desktop -l\n"
         "xfconf-query -c xfce4-desktop -p /backdrop/s0/m0/w0/image-style --create -t int -s 2\n"
         "xfconf-query -c xfce4-desktop -p /backdrop/s0/m0/w0/last-image -s \n"
         "xfconf-query -c xfce4-desktop -p /backdrop/s0/m0/w0/last-image -s /data/a b.bmp\n"},
        {"LXQt", "pcmanfm-qt", WallpaperMode::Stretch,
         "pcmanfm-qt --wallpaper-mode=none\npcmanfm-qt --set-wallpaper=/data/a b.bmp --wallpaper-mode=stretch\n"},
    };
    for (const auto& row : rows) {
        Desktop desktop(row.desktop);
        desktop.program(row.program, "[ \"$3\" = -l ] && echo /backdrop/s0/m0/w0/last-image\nexit 0");
        DesktopWallpaper wallpaper(desktop.platform);
        EXPECT_EQ(desktop.set(wallpaper, row.mode), WallpaperResult::Done) << row.desktop;
        EXPECT_EQ(desktop.log(), row.calls);
    }
}

TEST(DesktopWallpaper, WhatCantBeReadOrWrittenIsTold)
{
    const struct {
        const char *desktop, *program, *then;
        WallpaperResult result;
    } rows[] = {
        {"GNOME", "gsettings", "[ $3 != picture-options ]", WallpaperResult::CantWrite},
        {"LXQt", "another", "", WallpaperResult::CantWrite}, // the program doesn't exist
        {"XFCE", "xfconf-query", "exit 1", WallpaperResult::CantRead},
        {"XFCE", "xfconf-query", "[ \"$3\" = -l ] && echo /a/last-image || exit 1", WallpaperResult::CantWrite},
    };
    for (const auto& row : rows) {
        Desktop desktop(row.desktop);
        desktop.program(row.program, row.then);
        DesktopWallpaper wallpaper(desktop.platform);
        EXPECT_EQ(desktop.set(wallpaper, WallpaperMode::Tile), row.result) << row.desktop << row.then;
        EXPECT_TRUE(row.desktop != QByteArray("GNOME") || desktop.log().contains("picture-uri-dark"))
            << "the steps after the failed one";
    }
}

TEST(DesktopWallpaper, PlasmaGetsAScriptAndThePortalAFile)
{
    QTemporaryDir folder;
    const QString log = folder.filePath("log"), file = folder.filePath("it's.bmp");
    putFile(file, "the picture");
    {
        PrivateBus bus;
        ASSERT_TRUE(bus.serve("org.kde.plasmashell", "plasma.py", {{"log", log}}));
        Desktop desktop("KDE");
        DesktopWallpaper wallpaper(desktop.platform, bus.connection());
        EXPECT_EQ(desktop.set(wallpaper, WallpaperMode::Stretch, file), WallpaperResult::Done);
        const QByteArray address = "file://" + folder.path().toUtf8() + "/it%27s.bmp"; // no quote ends the word early
        EXPECT_TRUE(fileBytes(log).contains("d.writeConfig('Image', '" + address + "');"))
            << fileBytes(log).constData();
        EXPECT_TRUE(fileBytes(log).contains("d.writeConfig('FillMode', '0');"));
    }
    QFile::remove(log);
    PrivateBus bus;
    const QString copy = folder.filePath("copy");
    ASSERT_TRUE(bus.serve("org.freedesktop.portal.Desktop", "portal.py",
                          {{"answer", 0}, {"log", log}, {"wallpaper", copy}, {"uri", ""}}));
    Desktop desktop("sway");
    DesktopWallpaper wallpaper(desktop.platform, bus.connection());
    EXPECT_EQ(desktop.set(wallpaper, WallpaperMode::Tile, file), WallpaperResult::Done);
    EXPECT_EQ(fileBytes(log), "SetWallpaperFile background\n");
    EXPECT_EQ(fileBytes(copy), "the picture");
}

TEST(RootPicture, TilesFromTheCornerAndLaysOutTheOthersOnEachScreen)
{
    Bits picture(2, 1);
    picture.at(0, 0) = {{0, 0, 255, 0}}; // red, blue
    picture.at(1, 0) = {{255, 0, 0, 0}};
    const QList<QRect> screens{{0, 0, 4, 3}, {4, 0, 6, 3}};
    const auto rows = [](const QImage& image) {
        QString text;
        for (int y = 0; y < image.height(); ++y, text += '/')
            for (int x = 0; x < image.width(); ++x) {
                const QRgb c = image.pixel(x, y) & 0xFFFFFF;
                text += c == 0 ? '.' : c == 0xFF0000 ? 'r' : c == 0x0000FF ? 'b' : '?';
            }
        return text.toStdString();
    };
    EXPECT_EQ(rows(rootPicture(picture, WallpaperMode::Tile, {5, 2}, screens)), "rbrbr/rbrbr/");
    EXPECT_EQ(rows(rootPicture(picture, WallpaperMode::Centre, {10, 3}, screens)), "........../.rb...rb../........../");
    EXPECT_EQ(rows(rootPicture(picture, WallpaperMode::Centre, {4, 1}, {{1, 0, 3, 1}, {0, 0, 1, 1}})), "rrb./")
        << "what a screen has no room for isn't on the next one";
    const QImage stretched = rootPicture(flatBits(3, 3, 10, 20, 30), WallpaperMode::Stretch, {10, 4}, screens);
    for (int x = 0; x < 10; ++x) {
        EXPECT_EQ(stretched.pixel(x, 2), qRgb(30, 20, 10)) << x;
        EXPECT_EQ(stretched.pixel(x, 3), qRgb(0, 0, 0)) << x; // not covered by a screen
    }
}

} // namespace velara
