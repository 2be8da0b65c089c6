// Saving: what comes back from the files, what the user is told, and what becomes of the old file when it fails.
#include "fileio/ModFreeImage.h"
#include "fileio/load/PictureLoader.h"
#include "fileio/savePicture.h"
#include "fileio/web/webFile.h"
#include "support/RecordingPlatform.h"
#include "support/files.h"
#include "support/fullDisk.h"
#include "support/pictures.h"
#include "support/places.h"
#include <QFileInfo>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velara {

namespace {

const std::string kFailure = "message: Internal Error: There was an error while saving! Please Restart Velara's Studio";
const std::string kAnymapNotice =
    "message: Collection of ASCII based bitmap: PBM, PGM and PPM: If the bitmap has a bit depth of 1, the file is "
    "saved as a PBM file. If the bitmap has a bit depth of 8, the file is saved as a PGM file. If the bitmap has a bit "
    "depth of 24, the file is saved as a PPM file. Other bit depths are not supported. The file you requested is saved "
    "as 24-bit True Color (.ppm) format.";

/// Random pixels in at most so many colours.
Bits fewColours(int width, int height, int colours)
{
    const Bits palette = randomBits(colours, 1, 5), pick = randomBits(width, height, 6);
    return drawnBits(width, height, [&](int x, int y) { return palette.at(pick.at(x, y).c[0] % colours, 0); });
}

struct SavePicture : FolderTest {
    RecordingPlatform platform;
    const Bits small = flatBits(3, 3, 1, 2, 3);

    static LoadedPicture load(const QString& name)
    {
        return loadThroughDecoder(name, QFileInfo(name).suffix(), builtPath("velara-decode"));
    }
    /// Saves it under the name, as its extension says.
    SaveResult save(const Bits& bits, const QString& name)
    {
        return savePicture(platform, bits, path(name), QFileInfo(name).suffix());
    }
    SaveResult save(const QString& name) { return save(small, name); }
    void setMode(const QString& name, mode_t mode) const { chmod(QFile::encodeName(path(name)).constData(), mode); }
    mode_t mode(const QString& name) const
    {
        struct stat status {};
        stat(QFile::encodeName(path(name)).constData(), &status);
        return status.st_mode & 07777;
    }
};

} // namespace

TEST_F(SavePicture, ComesBackAsItWas)
{
    for (const QSize size : {QSize(1, 1), {2, 1}, {3, 2}, {5, 7}, {64, 3}, {255, 9}, {1030, 300}})
        for (const QString name : {"a.png", "a.bmp", "a.tif", "a.tga", "a.pcx", "A.PNG", "a.gif"}) {
            const Bits bits = name == "a.gif" ? fewColours(size.width(), size.height(), 256)
                                              : randomBits(size.width(), size.height(), 7);
            ASSERT_EQ(save(bits, name), SaveResult::Written) << qPrintable(name);
            const LoadedPicture back = load(path(name));
            EXPECT_TRUE(sameBits(plain(bits), back.bits)) << qPrintable(name + back.reason);
        }
    EXPECT_TRUE(platform.log.empty());
}

TEST_F(SavePicture, JpegIsOfTheBestQuality)
{
    const Bits bits = drawnBits(65, 33, [](int x, int y) {
        return Pixel{{std::uint8_t(3 * x), std::uint8_t(128 + y), std::uint8_t(200 - 2 * x), 9}};
    });
    ASSERT_EQ(save(bits, "a.jpg"), SaveResult::Written);
    const LoadedPicture back = load(path("a.jpg"));
    ASSERT_EQ(back.bits.width(), 65);
    ASSERT_EQ(back.bits.height(), 33);
    EXPECT_GT(peakSignalToNoise(bits, back.bits), 40);
    // The first quantisation table of quality 100 is all ones.
    const QByteArray file = content("a.jpg");
    EXPECT_EQ(file.mid(file.indexOf("\xff\xdb") + 5, 64), QByteArray(64, 1));
}

TEST_F(SavePicture, GifOfManyColoursIsNear)
{
    const Bits bits = drawnBits(200, 150, [](int x, int y) {
        return Pixel{{std::uint8_t(x), std::uint8_t(y), 128, 0}};
    });
    ASSERT_EQ(save(bits, "a.gif"), SaveResult::Written);
    const LoadedPicture back = load(path("a.gif"));
    ASSERT_TRUE(back.ok());
    EXPECT_GT(peakSignalToNoise(bits, back.bits), 34);
}

TEST_F(SavePicture, AnymapGetsItsExtensionAndANotice)
{
    const Bits bits = flatBits(2, 1, 1, 2, 3);
    EXPECT_EQ(savePicture(platform, bits, path("a."), "PNM"), SaveResult::Written);
    EXPECT_EQ(content("a.ppm"), QByteArray("P6\n2 1\n255\n\3\2\1\3\2\1"));
    EXPECT_EQ(platform.log, std::vector<std::string>{kAnymapNotice});
    EXPECT_EQ(platform.lastIcon, Icon::Information);
    EXPECT_EQ(savePicture(platform, bits, path("none/a."), "pnm"), SaveResult::Failed);
    EXPECT_EQ(platform.log.size(), 1U); // a failure is silent
}

TEST_F(SavePicture, WritesNothingWithoutAPictureOrAWriter)
{
    EXPECT_EQ(save(Bits(), "a.png"), SaveResult::NotWritten);
    for (const char* name : {"a.jpeg", "a.tiff", "a.ppm", "a", "a.xyz"})
        EXPECT_EQ(save(name), SaveResult::NotWritten) << name;
    EXPECT_TRUE(platform.log.empty());
    EXPECT_EQ(save("a.ico"), SaveResult::Refused);
    EXPECT_EQ(platform.log, std::vector<std::string>{"message: Velara Studio: This facility is currently turned Off!"});
    EXPECT_EQ(platform.lastIcon, Icon::Information);
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(SavePicture, AFullDiskCostsNothing)
{
    const Bits bits = randomBits(300, 300, 3); // far more than the disk takes in any format
    for (const QString name : {"a.png", "a.bmp", "a.tif", "a.tga", "a.jpg", "a.pcx", "a.gif"})
        for (const bool old : {true, false}) {
            const bool tells = name != "a.pcx" && name != "a.gif";
            platform.log.clear();
            if (old) put(name, "the old file");
            {
                const FullDisk disk(5000);
                EXPECT_EQ(save(bits, name), tells ? SaveResult::FailedAndTold : SaveResult::Failed) << qPrintable(name);
            }
            EXPECT_EQ(platform.log, tells ? std::vector{kFailure} : std::vector<std::string>{}) << qPrintable(name);
            if (old)
                EXPECT_EQ(content(name), "the old file") << qPrintable(name);
            else
                EXPECT_EQ(QFile::exists(path(name)), name == "a.jpg") << qPrintable(name); // the part that was written
            QFile::remove(path(name));
            EXPECT_TRUE(files().isEmpty()) << qPrintable(files().join(' '));
        }
    EXPECT_EQ(platform.lastIcon, Icon::Critical);
}

// What fits the disk but for the bytes that wait in a buffer is no success either.
TEST_F(SavePicture, ADeviceThatIsFullIsAFailure)
{
    for (const char* extension : {"png", "bmp", "tif", "tga", "jpg"})
        EXPECT_EQ(savePicture(platform, small, "/dev/full", extension), SaveResult::FailedAndTold);
    EXPECT_EQ(platform.log.size(), 5U);
    EXPECT_TRUE(QFileInfo::exists("/dev/full"));
}

TEST_F(SavePicture, RespectsLinksPermissionsAndProtection)
{
    QFile::link(put("target.png", "old"), path("link.png"));
    setMode("target.png", 0646);
    QFile::link("later.png", path("dangling.png"));
    for (const auto& [link, target] : {std::pair("link.png", "target.png"), std::pair("dangling.png", "later.png")}) {
        EXPECT_EQ(save(link), SaveResult::Written);
        EXPECT_TRUE(QFileInfo(path(link)).isSymLink());
        EXPECT_TRUE(load(path(target)).ok());
    }
    EXPECT_EQ(mode("target.png"), 0646U);
    EXPECT_TRUE(platform.log.empty());
    EXPECT_EQ(files(), (QStringList{"dangling.png", "later.png", "link.png", "target.png"}));

    put("locked.png", "old");
    setMode("locked.png", 0444);
    QDir(folder.path()).mkdir("folder.png");
    mkfifo(QFile::encodeName(path("pipe.png")).constData(), 0600); // with no one who reads
    for (const char* name : {"locked.png", "folder.png", "none/a.png", "pipe.png"})
        EXPECT_EQ(save(name), SaveResult::FailedAndTold) << name;
    EXPECT_EQ(content("locked.png"), "old");
    EXPECT_EQ(platform.log, (std::vector<std::string>(4, kFailure)));
}

TEST_F(SavePicture, AWorkFileIsTheUsersAloneAndFollowsNoLink)
{
    QFile::link(put("victim.bmp", "old"), path("work.bmp"));
    EXPECT_EQ(savePicture(platform, small, path("work.bmp"), "bmp", OutputFile::Links::Replace), SaveResult::Written);
    EXPECT_EQ(content("victim.bmp"), "old");
    EXPECT_FALSE(QFileInfo(path("work.bmp")).isSymLink());
    EXPECT_EQ(mode("work.bmp"), 0600U);
}

TEST_F(SavePicture, StraysOfDeadProgramsGo)
{
    put(".velara-dead.part", "half a picture");
    put(".velara-a.png", "the user's own");
    QFile::link(put("film.velara-1.part", "the user's own"), path(".velara-link.part"));
    const int alive = open(QFile::encodeName(put(".velara-alive.part", "half")).constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(0, flock(alive, LOCK_EX));
    ASSERT_EQ(save("a.png"), SaveResult::Written);
    close(alive);
    EXPECT_EQ(files(),
              (QStringList{".velara-a.png", ".velara-alive.part", ".velara-link.part", "a.png", "film.velara-1.part"}));
}

TEST_F(SavePicture, LinksThatLeadNowhereOrAreSomebodyElsesAreRefused)
{
    QFile::link("b.png", path("a.png"));
    QFile::link("a.png", path("b.png"));
    EXPECT_EQ(save("a.png"), SaveResult::FailedAndTold);
    EXPECT_TRUE(QFileInfo(path("a.png")).isSymLink());
    if (geteuid() != 0) GTEST_SKIP() << "only the administrator can make links of others";
    const char* link = "shared/a.png";
    QDir(folder.path()).mkdir("shared");
    setMode("shared", 01777);
    QFile::link(put("victim.png", "old"), path(link));
    ASSERT_EQ(0, lchown(QFile::encodeName(path(link)).constData(), 12345, 12345));
    EXPECT_EQ(save(link), SaveResult::FailedAndTold);
    EXPECT_EQ(content("victim.png"), "old");
}

TEST_F(SavePicture, APcxKeepsTheTailAndTheModeOfALongerFile)
{
    put("a.pcx", QByteArray(5000, 'x'));
    setMode("a.pcx", 0640);
    ASSERT_EQ(save("a.pcx"), SaveResult::Written);
    EXPECT_EQ(content("a.pcx").mid(200), QByteArray(4800, 'x'));
    EXPECT_TRUE(load(path("a.pcx")).ok());
    EXPECT_EQ(mode("a.pcx"), 0640U);
}

TEST(ModFreeImage, KeepsTheFirstErrorOfAnOperation)
{
    const FreeImageStart library;
    EXPECT_EQ(FreeImageLastError(), "");
    EXPECT_EQ(Dib24(Bits()).get(), nullptr);
    FreeImageSetError("later", true);
    EXPECT_EQ(FreeImageLastError(), "[FreeImage_DIB_From_BMP] No bitmap specified to convert");
    FreeImageSetError("other", false);
    EXPECT_EQ(FreeImageLastError(), "other");
}

} // namespace velara
