// Previews of real files, read by the real helper in the background.
#include "fileio/load/startReader.h"
#include "fileio/thumbnails/SharedThumbnail.h"
#include "platform/FilePreviews.h"
#include "support/files.h"
#include "support/ui/controls.h"
#include <QtTest>

namespace velara {

namespace {

struct FilePreviewsTest : FolderTest {
    QByteArray before = qgetenv("XDG_CACHE_HOME");
    static inline const auto real = startReader;
    static inline QString fake; // reads .koa files
    FilePreviews previews;
    std::vector<Preview> answers;
    const Previews::Done keep = [this](const Preview& preview) { answers.push_back(preview); };

    void SetUp() override { qputenv("XDG_CACHE_HOME", path("cache").toLocal8Bit()); }
    void TearDown() override
    {
        qputenv("XDG_CACHE_HOME", before);
        startReader = real;
    }
    QString file(const QString& name, const QByteArray& bytes)
    {
        touchFile(put(name, bytes), QDateTime::fromSecsSinceEpoch(1'700'000'000));
        return path(name);
    }
    void koaReader(const QByteArray& script)
    {
        fake = put("fake", "#!/usr/bin/env python3\n" + script);
        QFile::setPermissions(fake, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        startReader = [](const ReaderStart& start) {
            ReaderStart other = start;
            if (start.extension == "koa") other.decoder = fake;
            return real(other);
        };
    }
    static QByteArray ppm(int side, char value)
    {
        return "P6\n" + QByteArray::number(side) + ' ' + QByteArray::number(side) + "\n255\n" +
               QByteArray(qsizetype(side) * side * 3, value);
    }
    bool answered(std::size_t count) const
    {
        return comes([&] { return answers.size() >= count; });
    }
};

} // namespace

TEST_F(FilePreviewsTest, AnswersComeLaterAndOnlyToWhoStillWaits)
{
    const QString grey = file("grey.PPM", ppm(300, '\x80')), broken = file("broken.png", "no picture");
    auto left = previews.picture(grey, {50, 50}, keep);
    left.reset();
    const auto kept = previews.picture(grey, {100, 100}, keep);
    EXPECT_TRUE(answers.empty());
    ASSERT_TRUE(answered(1));
    EXPECT_EQ(answers[0].image.size(), QSize(100, 100));
    EXPECT_EQ(answers[0].size, QSize(300, 300));
    const auto bad = previews.picture(broken, {100, 100}, keep);
    ASSERT_TRUE(answered(2));
    EXPECT_TRUE(answers[1].image.isNull());
    EXPECT_EQ(answers[1].reason, "broken.png can't be read: it is damaged or not a PNG picture");
    QTest::qWait(100);
    EXPECT_EQ(answers.size(), 2u);
}

// A request may be released in its own answer, and with it the whole service while a reader is running.
TEST_F(FilePreviewsTest, EndsInTheMiddle)
{
    auto service = std::make_unique<FilePreviews>();
    const QString grey = file("grey.ppm", ppm(3000, '\x80'));
    Previews::Request one = service->picture(grey, {100, 100}, [&](const Preview& preview) {
        one.reset();
        keep(preview);
    });
    QElapsedTimer clock;
    clock.start();
    ASSERT_TRUE(answered(1));
    std::vector<Previews::Request> many;
    for (int i = 0; i < 20; ++i) many.push_back(service->picture(grey, {100, 100}, keep));
    const auto single = clock.restart();
    service.reset();
    EXPECT_LT(clock.elapsed(), 1000 + 4 * single) << "it doesn't wait for all";
    QTest::qWait(50);
    EXPECT_EQ(answers.size(), 1u);
}

// A picture that uses up all its time, and claims more.
TEST_F(FilePreviewsTest, ABombDoesntHoldUpTheOtherThumbnails)
{
    koaReader("import socket, struct, time\nopen('" + path("begun").toUtf8() +
              "', 'w')\ns = socket.socket(fileno=3)\n"
              "s.send(struct.pack('<Iii292s', 0x31434c56, 9000, 9000, b''))\n"
              "while time.process_time() < 3: pass\n"
              "s.send(struct.pack('<Iii292s', 0x31444c56, 0, 0, b'it had too much time'))\n");
    FilePreviews service(std::chrono::seconds(2));
    const QString bomb = file("bomb.koa", QByteArray(2 << 20, 'b')), grey = file("grey.ppm", ppm(30, '\x80'));
    const auto first = service.thumbnail(bomb, keep);
    ASSERT_TRUE(comes([&] { return QFile::exists(path("begun")); })); // the last request is served first
    const auto second = service.thumbnail(grey, keep);
    ASSERT_TRUE(answered(2));
    EXPECT_EQ(answers[0].size, QSize(30, 30));
    EXPECT_EQ(answers[1].reason, "bomb.koa can't be read: reading it took too long and was stopped");
}

TEST_F(FilePreviewsTest, APictureThatNobodyWaitsForAnyMoreIsNotNotedAsBroken)
{
    koaReader("import time\nopen('" + path("begun").toUtf8() + "', 'w')\ntime.sleep(60)\n");
    const QString slow = file("slow.koa", "a picture");
    auto service = std::make_unique<FilePreviews>();
    auto request = service->thumbnail(slow, keep);
    ASSERT_TRUE(comes([&] { return QFile::exists(path("begun")); }));
    request.reset();
    service.reset(); // waits for its threads
    EXPECT_FALSE(QFile::exists(SharedThumbnail(slow).failure()));
}

TEST_F(FilePreviewsTest, ThumbnailsComeFromTheSharedCacheAndGoThere)
{
    const QString grey = file("grey.ppm", ppm(600, '\x80')), broken = file("broken.png", "no picture");
    const auto first = previews.thumbnail(grey, keep);
    ASSERT_TRUE(answered(1));
    EXPECT_EQ(answers[0].image.size(), QSize(256, 256));
    ASSERT_EQ(SharedThumbnail(grey).entries().size(), 1);

    // Another program's entry is used if it matches the picture's present state
    QImage blue(256, 256, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    SharedThumbnail(grey).write(blue, {600, 600});
    const auto second = previews.thumbnail(grey, keep);
    ASSERT_TRUE(answered(2));
    EXPECT_EQ(answers[1].image, blue);
    EXPECT_EQ(answers[1].size, QSize(600, 600));
    touchFile(grey, QDateTime::fromSecsSinceEpoch(1'700'000'007));
    const auto third = previews.thumbnail(grey, keep);
    ASSERT_TRUE(answered(3));
    EXPECT_EQ(answers[2].image.pixel(0, 0), 0xFF808080u);

    // An unreadable picture is recorded as such, until it changes
    for (int i = 0; i < 2; ++i) {
        const auto bad = previews.thumbnail(broken, keep);
        ASSERT_TRUE(answered(std::size_t(4 + i)));
        EXPECT_TRUE(answers.back().image.isNull());
        EXPECT_TRUE(QFile::exists(SharedThumbnail(broken).failure()));
    }
    EXPECT_EQ(answers[4].reason, "broken.png can't be read") << "out of the cache";
}

} // namespace velara
