// Scanners through the helper, with the library's own test device.
#include "PrivateBus.h"
#include "platform/desktop/SaneScanner.h"
#include "platform/scan/Cage.h"
#include "support/childProcess.h"
#include "support/files.h"
#include "support/places.h"
#include <QtWidgets>
#include <arpa/inet.h>
#include <fcntl.h>
#include <sys/ptrace.h>

namespace velara {

namespace {

struct SaneScannerTest : FolderTest {
    SaneScanner scanner{builtPath("velara-scan")};
    QList<int> percents;
    bool others = false;

    SaneScannerTest() { qputenv("SANE_CONFIG_DIR", folder.path().toUtf8()); }
    ~SaneScannerTest() override { qunsetenv("SANE_CONFIG_DIR"); }

    void configure(const QByteArray& device)
    {
        put("dll.conf", "test\n");
        put("test.conf", "number_of_devices 1\ntest-picture \"Color pattern\"\nmode Color\nresolution 50\n" + device);
    }
    /// The pages of a scan, and why it ends.
    QList<QImage> scan(const ScanJob& job, QString* reason = nullptr)
    {
        QList<QImage> pages;
        const auto take = [&] {
            others = others || QFile::permissions(path("scan.bmp")) & (QFile::ReadGroup | QFile::ReadOther);
            pages << QImage(path("scan.bmp"));
            scanner.next();
        };
        const QString why = answerTo<QString>([&](auto done) {
            scanner.acquire(job, path("scan.bmp"), {[this](int percent) { percents << percent; }, take, done});
        });
        if (reason) *reason = why;
        EXPECT_FALSE(QFile::exists(path("scan.bmp")));
        return pages;
    }
    /// The picture of a scan; null, with reason, when it fails.
    QImage scan(const QString& mode, QString* reason = nullptr, const QString& device = "test:0")
    {
        return scan({device, "", mode, 50, {10, 20, 60, 40}}, reason).value(0);
    }
};

} // namespace

TEST_F(SaneScannerTest, AScanIsTheUsersAloneAndFollowsNoLink)
{
    configure("");
    put("precious", "mine");
    QFile::link(path("precious"), path("scan.bmp"));
    EXPECT_FALSE(scan("Gray").isNull());
    EXPECT_EQ(QFileInfo(path("precious")).size(), 4);
    EXPECT_FALSE(others) << "may read it";
}

TEST_F(SaneScannerTest, SourcesAndWhatTheyCanDo)
{
    configure("number_of_devices 2\n");
    const auto sources = answerTo<QList<ScanSource>>([&](auto done) {
        scanner.list([done](const QList<ScanSource>& found, const QString& reason) {
            EXPECT_EQ(reason, "");
            done(found);
        });
    });
    ASSERT_EQ(sources.size(), 2);
    EXPECT_EQ(sources[1].device, "test:1");
    EXPECT_EQ(sources[1].title, "Noname frontend-tester (virtual device) [test:1]") << "alike";

    const auto range = answerTo<ScanRange>([&](auto done) {
        scanner.describe("test:0", [done](const ScanRange& found, const QString&) { done(found); });
    });
    QStringList choices;
    for (const ScanChoice& each : range.choices) choices << each.feed + ' ' + each.mode + (each.isFeeder ? "!" : "");
    EXPECT_EQ(choices, QStringList({"Flatbed Gray", "Flatbed Color", "Automatic Document Feeder Gray!",
                                    "Automatic Document Feeder Color!"}));
    ASSERT_EQ(range.current, 1);
    const ScanChoice& usual = range.choices[1];
    EXPECT_EQ(usual.resolutions, QList<int>({1, 1200}));
    EXPECT_EQ(std::pair(usual.step, usual.resolution), std::pair(1, 50));
    EXPECT_EQ(usual.bed, QSizeF(200, 200));
}

TEST_F(SaneScannerTest, AFeederIsEmptiedPageByPage)
{
    configure("depth 8\n");
    QString reason = "none";
    const ScanJob job{"test:0", "Automatic Document Feeder", "Gray", 25, {0, 0, 50, 50}, ScanJob::Pages};
    EXPECT_EQ(scan(job, &reason).size(), 10) << "as many as the device pretends to have";
    EXPECT_EQ(reason, "");
    for (const auto what : {ScanJob::Page, ScanJob::Preview}) {
        ScanJob one = job;
        one.what = what;
        EXPECT_EQ(scan(one).size(), 1);
    }
    configure("read-status-code \"SANE_STATUS_NO_DOCS\"\n");
    EXPECT_TRUE(scan(job, &reason).isEmpty());
    EXPECT_EQ(reason, "Document feeder out of documents") << "an empty one is an error";
}

TEST_F(SaneScannerTest, TheWaysInWhichDevicesSendGiveTheSamePicture)
{
    configure("depth 8\n");
    const QImage colour = scan("Color");
    ASSERT_EQ(colour.size(), QSize(118, 78)); // 60 by 40 mm at 50 dpi
    ASSERT_FALSE(colour.isGrayscale());
    EXPECT_EQ(percents.last(), 100);
    configure("depth 8\nthree-pass true\nthree-pass-order BRG\n");
    EXPECT_EQ(scan("Color"), colour);
    configure("depth 8\nread-limit true\nread-limit-size 7\n"); // pieces that end inside a pixel
    EXPECT_EQ(scan("Color"), colour);
    configure("depth 8\nhand-scanner true\n"); // its height is not known in advance
    percents.clear();
    const QImage byHand = scan("Color");
    ASSERT_GT(byHand.height(), 78);
    EXPECT_TRUE(percents.isEmpty());

    configure("depth 16\ntest-picture \"Solid white\"\n");
    const QImage white = scan("Gray");
    EXPECT_EQ(white.pixel(50, 50), qRgb(255, 255, 255));
    configure("depth 1\ntest-picture \"Solid black\"\n");
    const QImage black = scan("Gray");
    EXPECT_EQ(black.pixel(50, 50), qRgb(0, 0, 0));
}

TEST_F(SaneScannerTest, WhatFailsSaysWhyAndLeavesNoFile)
{
    QString reason;
    configure("read-status-code \"SANE_STATUS_COVER_OPEN\"\n");
    EXPECT_TRUE(scan("Color", &reason).isNull());
    EXPECT_EQ(reason, "Scanner cover is open");
    EXPECT_TRUE(scan("Color", &reason, "test:7").isNull());
    EXPECT_EQ(reason, "Invalid argument");

    SaneScanner none(path("nothing"));
    const auto why = answerTo<QString>(
        [&](auto done) { none.list([done](const QList<ScanSource>&, const QString& r) { done(r); }); });
    EXPECT_NE(why, "");
}

TEST_F(SaneScannerTest, AScannerThatHangsIsLeft)
{
    put("hanging", "#!/bin/sh\ntrap '' TERM\nprintf 'percent\\t1\\n'\nexec sleep 60\n");
    QFile::setPermissions(path("hanging"), QFile::ReadOwner | QFile::ExeOwner);
    bool answered = false;
    QElapsedTimer timer;
    timer.start();
    {
        SaneScanner hanging(path("hanging"));
        hanging.acquire({"test:0", "", "", 0}, path("scan.bmp"),
                        {[&](int p) { percents << p; }, [] {}, [&](const QString&) { answered = true; }});
        ASSERT_TRUE(comes([&] { return !percents.isEmpty(); }));
        hanging.cancel();
        QCoreApplication::processEvents();
    }
    EXPECT_LT(timer.elapsed(), 15000);
    EXPECT_FALSE(answered);
}

// A compromised driver: what it can still do, and what not.
TEST_F(SaneScannerTest, TheHelpersCageKeepsTheDeviceAndTheNet)
{
    qputenv("SANE_CONFIG_DIR", path("config").toUtf8());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/none");
    QDir(folder.path()).mkdir("config");
    const QByteArray victim = put("precious", "mine").toUtf8(), beside = path("new").toUtf8();
    const QByteArray config = put("config/dll.conf", "test").toUtf8();
    const int picture = open(put("scan.bmp", "").toUtf8().constData(), O_WRONLY | O_CLOEXEC);
    const auto opened = [](const QByteArray& name, int flags) { return open(name.constData(), flags, 0600) >= 0; };
    inAChild("in the cage", [&] {
        ASSERT_TRUE(enterScanCage());
        signal(SIGXFSZ, SIG_IGN); // stops a helper that writes endlessly
        const int line = socket(AF_INET, SOCK_STREAM, 0);
        const sockaddr_in port{AF_INET, htons(9), {htonl(INADDR_LOOPBACK)}, {}};
        const struct {
            const char* what;
            bool works, wanted;
        } kRows[] = {
            {"the picture", write(picture, "x", 1) == 1, true},
            {"a picture without end", ftruncate(picture, 3LL << 30) == 0, false},
            {"the configuration", opened(config, O_RDONLY), true},
            {"a library", opened("/usr/lib/os-release", O_RDONLY), true},
            {"a device", opened("/dev/null", O_RDWR), true},
            {"the net",
             connect(line, reinterpret_cast<const sockaddr*>(&port), sizeof port) == 0 || errno == ECONNREFUSED, true},
            {"a file without a name", std::tmpfile() != nullptr, true},
            {"the user's file", opened(victim, O_RDONLY), false},
            {"over the user's file", opened(victim, O_WRONLY), false},
            {"a new file", opened(beside, O_WRONLY | O_CREAT), false},
            {"a program", execl("/bin/true", "true", nullptr) == 0, false},
            {"another process", ptrace(PTRACE_ATTACH, getppid(), nullptr, nullptr) == 0, false},
            {"the session", qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS"), false},
        };
        for (const auto& row : kRows) EXPECT_EQ(row.works, row.wanted) << row.what;
    });
    close(picture);
    EXPECT_EQ(content("precious"), "mine");
}

} // namespace velara
