// Screen capture through the portal, played by a mock on a private bus.
#include "PrivateBus.h"
#include "platform/desktop/screen/QtScreen.h"
#include "support/RecordingPlatform.h"
#include "support/files.h"
#include "support/pictures.h"
#include <QtWidgets>

namespace velara {

namespace {

/// In a session of Wayland.
struct Portal {
    Portal() { qputenv("XDG_SESSION_TYPE", "wayland"); }
    ~Portal() { qunsetenv("XDG_SESSION_TYPE"); }
    QTemporaryDir folder;
    PrivateBus bus;
    QString shot = folder.filePath("shot.png"), log = folder.filePath("log");

    bool start(int answer, QRgb ground = qRgb(1, 2, 3))
    {
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(ground);
        if (qGray(ground)) picture.setPixel(7, 5, qRgb(200, 100, 50));
        EXPECT_TRUE(picture.save(shot));
        return bus.serve("org.freedesktop.portal.Desktop", "portal.py",
                         {{"answer", answer}, {"uri", QUrl::fromLocalFile(shot).toString()}, {"log", log}});
    }
    QByteArray calls() const { return fileBytes(log); }
};

} // namespace

TEST(QtScreen, ThePortalsPictureComesAndItsFileGoes)
{
    Portal portal;
    ASSERT_TRUE(portal.start(0));
    RecordingPlatform platform;
    QtScreen screen(platform, portal.bus.connection());
    std::optional<ScreenPicture> got;
    screen.grab([&](const ScreenPicture& picture) { got = picture; });
    EXPECT_FALSE(got) << "nothing may wait for the portal";
    ASSERT_TRUE(comes([&] { return got.has_value(); }));
    ASSERT_EQ(got->bits.width(), 40);
    EXPECT_EQ(got->bits.at(7, 5).c[2], 200);
    ASSERT_EQ(got->parts.size(), 1u); // the one screen is the whole picture
    EXPECT_EQ(got->parts[0].device, QRect(0, 0, 40, 30));
    EXPECT_FALSE(QFile::exists(portal.shot));
}

TEST(QtScreen, ARefusalAndAMissingPortalGiveNoPicture)
{
    RecordingPlatform platform;
    for (const char* there : {"portal", "bus", ""}) {
        Portal portal;
        ASSERT_TRUE(QByteArray(there) != "portal" || portal.start(1));
        QtScreen screen(platform, *there ? portal.bus.connection() : QDBusConnection("none"));
        const auto got = answerTo<ScreenPicture>([&](auto done) { screen.grab(done); });
        EXPECT_TRUE(got.bits.isNull());
        EXPECT_EQ(got.reason.contains("org.freedesktop.portal.Screenshot"), QByteArray(there) != "portal")
            << there << ": the missing one is named";
    }
}

// Even if the windows use X: a capture by X is black there.
TEST(QtScreen, ThePortalIsAskedInASessionOfWaylandAloneAndBlackIsTold)
{
    RecordingPlatform platform;
    for (const char* name : {"XDG_SESSION_TYPE", "WAYLAND_DISPLAY", ""}) {
        Portal portal;
        ASSERT_TRUE(portal.start(0, qRgb(0, 0, 0)));
        qunsetenv("XDG_SESSION_TYPE");
        if (*name) qputenv(name, "wayland");
        QtScreen screen(platform, portal.bus.connection());
        const auto got = answerTo<ScreenPicture>([&](auto done) { screen.grab(done); });
        if (*name) qunsetenv(name);
        EXPECT_EQ(portal.calls(), *name ? "Screenshot\n" : "") << name;
        EXPECT_TRUE(got.reason == "The picture of the screen is all black." || !*name) << name;
    }
}

TEST(QtScreen, APortalThatNeverAnswersIsTakenBackItsQuestion)
{
    Portal portal;
    ASSERT_TRUE(portal.start(-1));
    RecordingPlatform platform;
    QtScreen screen(platform, portal.bus.connection());
    bool answered = false;
    screen.grab([&](const ScreenPicture&) { answered = true; });
    ASSERT_TRUE(comes([&] { return portal.calls() == "Screenshot\n"; }));
    screen.cancel();
    EXPECT_TRUE(comes([&] { return portal.calls() == "Screenshot\nClose\n"; }));
    EXPECT_FALSE(answered);
}

TEST(QtScreen, TheFileOfAGrabThatIsGivenUpIsNotTheAnswerToTheNext)
{
    Portal portal;
    ASSERT_TRUE(portal.start(0));
    RecordingPlatform platform;
    QtScreen screen(platform, portal.bus.connection());
    QSemaphore reads, goesOn;
    platform.onLoad = [&](const GoOn&) {
        reads.release();
        goesOn.acquire();
    };
    bool first = false;
    screen.grab([&](const ScreenPicture&) { first = true; });
    ASSERT_TRUE(comes([&] { return reads.tryAcquire(); }));
    qunsetenv("XDG_SESSION_TYPE"); // the next one is X's, of another size
    std::optional<ScreenPicture> second;
    screen.grab([&](const ScreenPicture& picture) { second = picture; });
    goesOn.release();
    ASSERT_TRUE(comes([&] { return second.has_value(); }));
    EXPECT_NE(second->bits.width(), 40);
    EXPECT_FALSE(first);
    EXPECT_FALSE(QFile::exists(portal.shot));
}

TEST(QtScreen, ThePlacesOfTheScreensFollowTheScaleOfThePicture)
{
    // Two screens of 100 by 80 and 60 by 40, side by side, in a picture of twice the size.
    const ScreenPicture picture = wholeDesktop(Bits(320, 160), {{-100, 0, 100, 80}, {0, 20, 60, 40}});
    EXPECT_EQ(picture.parts[0].device, QRect(0, 0, 200, 160));
    EXPECT_EQ(picture.parts[1].device, QRect(200, 40, 120, 80));
    EXPECT_TRUE(wholeDesktop({}, {{0, 0, 10, 10}}).bits.isNull());
}

} // namespace velara
