// The desktop's shared thumbnail cache.
#include "fileio/load/PictureLoader.h"
#include "fileio/thumbnails/SharedThumbnail.h"
#include "support/files.h"
#include "support/places.h"

namespace velara {

namespace {

struct SharedThumbnails : FolderTest {
    const QString picture = path("a b.png"), decoder = builtPath("velara-decode");
    QByteArray before = qgetenv("XDG_CACHE_HOME");

    void SetUp() override
    {
        qputenv("XDG_CACHE_HOME", path("cache").toLocal8Bit());
        touch(QDateTime::fromSecsSinceEpoch(1'700'000'000));
    }
    void TearDown() override { qputenv("XDG_CACHE_HOME", before); }
    void touch(const QDateTime& when) const { touchFile(picture, when); }
    static QImage red()
    {
        QImage image(128, 64, QImage::Format_RGB32);
        image.fill(0xFFCC2211);
        return image;
    }
};

} // namespace

TEST_F(SharedThumbnails, NamesAreThoseOfTheDesktop)
{
    EXPECT_TRUE(SharedThumbnail("/home/jens/photos/me.png").failure().endsWith("c6ee772d9e49320e97ec29a7eb5b1697.png"));
    EXPECT_EQ(fileUri("/a b/ä(1)[2]#;%'~.png"), "file:///a%20b/%C3%A4(1)%5B2%5D%23%3B%25'~.png");
}

// Entries written here are read back by the child, including their origin.
TEST_F(SharedThumbnails, AnEntryHoldsUntilThePictureChanges)
{
    EXPECT_EQ(SharedThumbnail(picture).entries(), QStringList());
    SharedThumbnail(picture).write(red(), {4000, 2000});
    const SharedThumbnail shared(picture);
    ASSERT_EQ(shared.entries().size(), 1);
    EXPECT_EQ(QFile::permissions(shared.entries()[0]) & 0x0077, 0) << "nobody else's affair";
    const SmallPicture small = loadSmall(shared.entries()[0], "png", decoder, {128, 128});
    EXPECT_EQ(small.image, red());
    EXPECT_EQ(QSize(small.origin.width, small.origin.height), QSize(4000, 2000));
    EXPECT_TRUE(shared.isMadeOf(small.origin));
    touch(QDateTime::fromSecsSinceEpoch(1'700'000'001));
    EXPECT_FALSE(SharedThumbnail(picture).isMadeOf(small.origin));
    EXPECT_FALSE(shared.isMadeOf({})) << "an entry without a word";

    SharedThumbnail(picture).writeFailure();
    const SmallPicture failed = loadSmall(shared.failure(), "png", decoder, {128, 128});
    EXPECT_EQ(failed.origin.modified, 1'700'000'001);
}

TEST_F(SharedThumbnails, NothingIsWrittenForFilesInTheMakingEntriesAndLockedCaches)
{
    touch(QDateTime::currentDateTime());
    SharedThumbnail(picture).write(red(), {4000, 2000});
    EXPECT_EQ(SharedThumbnail(picture).entries(), QStringList());
    touch(QDateTime::fromSecsSinceEpoch(1'700'000'000));
    put("cache", {}); // where the folder should be
    SharedThumbnail(picture).write(red(), {4000, 2000});
    EXPECT_EQ(SharedThumbnail(picture).entries(), QStringList());
    QFile::remove(path("cache"));
    SharedThumbnail(picture).write(red(), {4000, 2000});
    const QString entry = SharedThumbnail(picture).entries().value(0);
    touchFile(entry, QDateTime::fromSecsSinceEpoch(1'700'000'000));
    SharedThumbnail(entry).write(red(), {128, 64});
    EXPECT_EQ(SharedThumbnail(entry).entries(), QStringList());
    EXPECT_EQ(QDir(path("cache/thumbnails/large")).entryList(QDir::Files).size(), 1) << "no strays";
}

} // namespace velara
