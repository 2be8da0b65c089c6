// Scanners through the helper, on the library's own test device.
#include "PrivateBus.h"
#include "platform/desktop/SaneScanner.h"
#include "support/files.h"
#include "support/places.h"
#include <QtWidgets>

namespace velara {

namespace {

class SaneScannerTest : public ::testing::Test {
  protected:
    SaneScannerTest() { qputenv("SANE_CONFIG_DIR", folder.path().toUtf8()); }
    ~SaneScannerTest() override { qunsetenv("SANE_CONFIG_DIR"); }

    void configure(const QByteArray& device)
    {
        write("dll.conf", "test\n");
        write("test.conf", "number_of_devices 1\ntest-picture \"Color pattern\"\nmode Color\nresolution 50\n" + device);
    }
    void write(const QString& name, const QByteArray& text) { putFile(folder.filePath(name), text); }
    /// The picture of a scan; null and reason when it fails.
    QImage scan(const QString& mode, QString* reason = nullptr, const QString& device = "test:0")
    {
        const QString file = folder.filePath("scan.bmp");
        std::optional<QString> answer;
        scanner.acquire(
            {device, mode, 50, {10, 20, 60, 40}}, file, [this](int p) { percents << p; },
            [&](const QString& r) { answer = r; });
        EXPECT_TRUE(waitUntil([&] { return answer.has_value(); }));
        if (reason) *reason = answer.value_or("");
        return QImage(file);
    }

    QTemporaryDir folder;
    SaneScanner scanner{builtPath("velara-scan")};
    QList<int> percents;
};

} // namespace

TEST_F(SaneScannerTest, AScanIsTheUsersAloneAndFollowsNoLink)
{
    configure("");
    write("precious", "mine");
    QFile::link(folder.filePath("precious"), folder.filePath("scan.bmp"));
    EXPECT_FALSE(scan("Gray").isNull());
    EXPECT_EQ(QFileInfo(folder.filePath("precious")).size(), 4);
    EXPECT_FALSE(QFile::permissions(folder.filePath("scan.bmp")) & (QFile::ReadGroup | QFile::ReadOther));
}

TEST_F(SaneScannerTest, SourcesAndWhatTheyCanDo)
{
    configure("number_of_devices 2\n");
    std::optional<QList<ScanSource>> sources;
    scanner.list([&](const QList<ScanSource>& found, const QString& reason) {
        EXPECT_EQ(reason, "");
        sources = found;
    });
    ASSERT_TRUE(waitUntil([&] { return sources.has_value(); }));
    ASSERT_EQ(sources->size(), 2);
    EXPECT_EQ(sources->at(1).device, "test:1");
    EXPECT_EQ(sources->at(1).title, "Noname frontend-tester (virtual device)");

    std::optional<ScanRange> range;
    scanner.describe("test:0", [&](const ScanRange& found, const QString&) { range = found; });
    ASSERT_TRUE(waitUntil([&] { return range.has_value(); }));
    EXPECT_EQ(range->modes, QStringList({"Gray", "Color"}));
    EXPECT_EQ(range->mode, "Color");
    EXPECT_TRUE(range->anyBetween);
    EXPECT_EQ(range->resolutions, QList<int>({1, 1200}));
    EXPECT_EQ(range->resolution, 50);
    EXPECT_EQ(range->bed, QSizeF(200, 200));
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
    configure("depth 8\nread-limit true\nread-limit-size 7\n"); // pieces that end within a pixel
    EXPECT_EQ(scan("Color"), colour);
    configure("depth 8\nhand-scanner true\n"); // its height is not known beforehand
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
    EXPECT_FALSE(QFile::exists(folder.filePath("scan.bmp")));
    EXPECT_TRUE(scan("Color", &reason, "test:7").isNull());
    EXPECT_EQ(reason, "Invalid argument");

    SaneScanner none(folder.filePath("nothing"));
    std::optional<QString> answer;
    none.list([&](const QList<ScanSource>&, const QString& r) { answer = r; });
    ASSERT_TRUE(waitUntil([&] { return answer.has_value(); }));
    EXPECT_NE(*answer, "");
}

TEST_F(SaneScannerTest, AScannerThatHangsIsLeft)
{
    write("hanging", "#!/bin/sh\ntrap '' TERM\nprintf 'percent\\t1\\n'\nexec sleep 60\n");
    QFile::setPermissions(folder.filePath("hanging"), QFile::ReadOwner | QFile::ExeOwner);
    bool answered = false;
    QElapsedTimer timer;
    timer.start();
    {
        SaneScanner hanging(folder.filePath("hanging"));
        hanging.acquire(
            {"test:0", "", 0, {}}, folder.filePath("scan.bmp"), [&](int p) { percents << p; },
            [&](const QString&) { answered = true; });
        ASSERT_TRUE(waitUntil([&] { return !percents.isEmpty(); }));
        hanging.cancel();
        QCoreApplication::processEvents();
    }
    EXPECT_LT(timer.elapsed(), 15000);
    EXPECT_FALSE(answered);
}

} // namespace velara
