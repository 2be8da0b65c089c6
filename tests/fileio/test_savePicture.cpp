// Saving: what comes back from the files, what the user is told, and what becomes of the old file when it fails.
#include "fileio/ModFreeImage.h"
#include "fileio/load/PictureLoader.h"
#include "fileio/savePicture.h"
#include "support/RecordingPlatform.h"
#include "support/files.h"
#include "support/fullDisk.h"
#include "support/pictures.h"
#include "support/places.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velara {

namespace {

const std::string kFailure = "message: Internal Error: There was an error while saving! Please Restart Velara's Studio";
const std::string kAnymapNotice = "message: Collection of ASCII based bitmap: PBM, PGM and PPM: If the bitmap has a "
                                  "bit depth of 1, the file is saved "
                                  "as a PBM file. If the bitmap has a bit depth of 8, the file is saved as a PGM file. "
                                  "If the bitmap has a bit depth of "
                                  "24, the file is saved as a PPM file. Other bit depths are not supported. The file "
                                  "you requested is saved as 24-bit "
                                  "True Color (.ppm) format.";

/// What a load gives back of a picture: no margin, no fourth byte.
Bits plain(const Bits& bits)
{
    Bits result(bits.width(), bits.height());
    for (int y = 0; y < bits.height(); ++y)
        for (int x = 0; x < bits.width(); ++x) {
            result.at(x, y) = bits.at(x, y);
            result.at(x, y).c[3] = 0;
        }
    return result;
}

/// Random pixels in at most so many colours.
Bits fewColours(int width, int height, int colours)
{
    const Bits palette = randomBits(colours, 1, 5), pick = randomBits(width, height, 6);
    Bits bits(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) bits.at(x, y) = palette.at(pick.at(x, y).c[0] % colours, 0);
    return bits;
}

class SavePicture : public ::testing::Test {
  protected:
    QString path(const QString& name) const { return QDir(folder.path()).filePath(name); }
    QString write(const QString& name, const QByteArray& contents)
    {
        putFile(path(name), contents);
        return path(name);
    }
    static QByteArray contentsOf(const QString& name) { return fileBytes(name, "(none)"); }
    static LoadedPicture load(const QString& name)
    {
        return loadThroughDecoder(name, QFileInfo(name).suffix(), builtPath("velara-decode"));
    }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }

    QTemporaryDir folder;
    RecordingPlatform platform;
};

} // namespace

TEST_F(SavePicture, ComesBackAsItWas)
{
    const struct {
        int width, height;
    } kSizes[] = {{1, 1}, {2, 1}, {3, 2}, {5, 7}, {64, 3}, {255, 9}, {1030, 300}};
    for (const auto [width, height] : kSizes)
        for (const char* extension : {"png", "bmp", "tif", "tga", "pcx", "PNG", "gif"}) {
            const bool isGif = std::string_view(extension) == "gif";
            const Bits bits = isGif ? fewColours(width, height, 256) : randomBits(width, height, 7);
            const QString name = path(QString("%1x%2.%3").arg(width).arg(height).arg(extension));
            ASSERT_EQ(savePicture(platform, bits, name, extension), SaveResult::Written) << qPrintable(name);
            const LoadedPicture back = load(name);
            ASSERT_TRUE(back.ok()) << qPrintable(back.reason);
            EXPECT_TRUE(sameBits(plain(bits), back.bits)) << qPrintable(name);
        }
    EXPECT_TRUE(platform.log.empty());
}

TEST_F(SavePicture, JpegIsOfTheBestQuality)
{
    Bits bits(65, 33);
    for (int y = 0; y < 33; ++y)
        for (int x = 0; x < 65; ++x)
            bits.at(x, y) = {{std::uint8_t(3 * x), std::uint8_t(128 + y), std::uint8_t(200 - 2 * x), 9}};
    ASSERT_EQ(savePicture(platform, bits, path("a.jpg"), "jpg"), SaveResult::Written);
    const LoadedPicture back = load(path("a.jpg"));
    ASSERT_TRUE(back.ok());
    ASSERT_EQ(back.bits.width(), 65);
    ASSERT_EQ(back.bits.height(), 33);
    for (int y = 0; y < 33; ++y)
        for (int x = 0; x < 65; ++x)
            for (int c = 0; c < 3; ++c) ASSERT_NEAR(back.bits.at(x, y).c[c], bits.at(x, y).c[c], 10) << x << ',' << y;
    // The first quantisation table of quality 100 is all ones.
    const QByteArray file = contentsOf(path("a.jpg"));
    const qsizetype table = file.indexOf("\xff\xdb");
    ASSERT_GE(table, 0);
    EXPECT_EQ(file.mid(table + 5, 64), QByteArray(64, 1));
}

TEST_F(SavePicture, GifOfManyColoursIsNear)
{
    Bits bits(200, 150);
    for (int y = 0; y < 150; ++y)
        for (int x = 0; x < 200; ++x) bits.at(x, y) = {{std::uint8_t(x), std::uint8_t(y), 128, 0}};
    ASSERT_EQ(savePicture(platform, bits, path("a.gif"), "gif"), SaveResult::Written);
    const LoadedPicture back = load(path("a.gif"));
    ASSERT_TRUE(back.ok());
    double error = 0;
    for (int y = 0; y < 150; ++y)
        for (int x = 0; x < 200; ++x)
            for (int c = 0; c < 3; ++c) error += std::abs(back.bits.at(x, y).c[c] - bits.at(x, y).c[c]);
    EXPECT_LT(error / (200 * 150 * 3), 4);
}

TEST_F(SavePicture, AnymapGetsItsExtensionAndANotice)
{
    const Bits bits = flatBits(2, 1, 1, 2, 3);
    EXPECT_EQ(savePicture(platform, bits, path("a."), "PNM"), SaveResult::Written);
    EXPECT_EQ(contentsOf(path("a.ppm")), QByteArray("P6\n2 1\n255\n\3\2\1\3\2\1"));
    EXPECT_EQ(platform.log, std::vector<std::string>{kAnymapNotice});
    EXPECT_EQ(platform.lastIcon, Icon::Information);
    EXPECT_EQ(savePicture(platform, bits, path("none/a."), "pnm"), SaveResult::Failed);
    EXPECT_EQ(platform.log.size(), 1U); // a failure is silent
}

TEST_F(SavePicture, WritesNothingWithoutAPictureOrAWriter)
{
    const Bits bits = flatBits(2, 2, 1, 2, 3);
    EXPECT_EQ(savePicture(platform, Bits(), path("a.png"), "png"), SaveResult::NotWritten);
    for (const char* extension : {"jpeg", "tiff", "ppm", "", "xyz"})
        EXPECT_EQ(savePicture(platform, bits, path("a"), extension), SaveResult::NotWritten);
    EXPECT_TRUE(platform.log.empty());
    EXPECT_EQ(savePicture(platform, bits, path("a.ico"), "ico"), SaveResult::Refused);
    EXPECT_EQ(platform.log, std::vector<std::string>{"message: Velara Studio: This facility is currently turned Off!"});
    EXPECT_EQ(platform.lastIcon, Icon::Information);
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(SavePicture, AFullDiskCostsNothing)
{
    const Bits bits = randomBits(300, 300, 3); // far more than the disk takes in any format
    for (const char* extension : {"png", "bmp", "tif", "tga", "jpg", "pcx", "gif"}) {
        const bool tells = std::string_view(extension) != "pcx" && std::string_view(extension) != "gif";
        for (const bool old : {true, false}) {
            platform.log.clear();
            const QString name = path(QString("a.") + extension);
            if (old) write(QFileInfo(name).fileName(), "the old file");
            {
                const FullDisk disk(5000);
                EXPECT_EQ(savePicture(platform, bits, name, extension),
                          tells ? SaveResult::FailedAndTold : SaveResult::Failed)
                    << extension;
            }
            EXPECT_EQ(platform.log, tells ? std::vector{kFailure} : std::vector<std::string>{}) << extension;
            const bool remains = std::string_view(extension) == "jpg"; // the part that was written
            if (old)
                EXPECT_EQ(contentsOf(name), "the old file") << extension;
            else
                EXPECT_EQ(QFile::exists(name), remains) << extension;
            QFile::remove(name);
            EXPECT_TRUE(files().isEmpty()) << qPrintable(files().join(' '));
        }
    }
    EXPECT_EQ(platform.lastIcon, Icon::Critical);
}

// What fits the disk but for the bytes that wait in a buffer is no success either.
TEST_F(SavePicture, ADeviceThatIsFullIsAFailure)
{
    for (const char* extension : {"png", "bmp", "tif", "tga", "jpg"})
        EXPECT_EQ(savePicture(platform, flatBits(3, 3, 1, 2, 3), "/dev/full", extension), SaveResult::FailedAndTold);
    EXPECT_EQ(platform.log.size(), 5U);
    EXPECT_TRUE(QFileInfo::exists("/dev/full"));
}

TEST_F(SavePicture, RespectsLinksPermissionsAndProtection)
{
    const Bits bits = flatBits(3, 3, 1, 2, 3);
    const QString target = write("target.png", "old");
    chmod(QFile::encodeName(target).constData(), 0646);
    QFile::link(target, path("link.png"));
    QFile::link("later.png", path("dangling.png"));
    EXPECT_EQ(savePicture(platform, bits, path("link.png"), "png"), SaveResult::Written);
    EXPECT_TRUE(QFileInfo(path("link.png")).isSymLink());
    EXPECT_TRUE(load(target).ok());
    struct stat status;
    stat(QFile::encodeName(target).constData(), &status);
    EXPECT_EQ(status.st_mode & 07777, 0646U);
    EXPECT_EQ(savePicture(platform, bits, path("dangling.png"), "png"), SaveResult::Written);
    EXPECT_TRUE(load(path("later.png")).ok());
    EXPECT_TRUE(QFileInfo(path("dangling.png")).isSymLink());
    EXPECT_TRUE(platform.log.empty());
    EXPECT_EQ(files(), (QStringList{"dangling.png", "later.png", "link.png", "target.png"}));

    const QString locked = write("locked.png", "old");
    chmod(QFile::encodeName(locked).constData(), 0444);
    EXPECT_EQ(savePicture(platform, bits, locked, "png"), SaveResult::FailedAndTold);
    EXPECT_EQ(contentsOf(locked), "old");
    EXPECT_EQ(savePicture(platform, bits, folder.path(), "png"), SaveResult::FailedAndTold); // a folder
    EXPECT_EQ(savePicture(platform, bits, path("none/a.png"), "png"), SaveResult::FailedAndTold);
    mkfifo(QFile::encodeName(path("pipe.png")).constData(), 0600); // with no one who reads
    EXPECT_EQ(savePicture(platform, bits, path("pipe.png"), "png"), SaveResult::FailedAndTold);
    EXPECT_EQ(platform.log, (std::vector<std::string>(4, kFailure)));
}

TEST_F(SavePicture, AWorkFileIsTheUsersAloneAndFollowsNoLink)
{
    const QString victim = write("victim.bmp", "old"), work = path("work.bmp");
    QFile::link(victim, work);
    EXPECT_EQ(savePicture(platform, flatBits(3, 3, 1, 2, 3), work, "bmp", OutputFile::Links::Replace),
              SaveResult::Written);
    EXPECT_EQ(contentsOf(victim), "old");
    EXPECT_FALSE(QFileInfo(work).isSymLink());
    EXPECT_EQ(QFile::permissions(work) & ~(QFile::ReadUser | QFile::WriteUser), QFile::ReadOwner | QFile::WriteOwner);
}

TEST_F(SavePicture, StraysOfDeadProgramsGo)
{
    const Bits bits = flatBits(3, 3, 1, 2, 3);
    write(".velara-dead.part", "half a picture");
    write(".velara-a.png", "the user's own");
    write("film.velara-1.part", "the user's own");
    QFile::link(path("film.velara-1.part"), path(".velara-link.part"));
    const int alive = open(QFile::encodeName(write(".velara-alive.part", "half")).constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(0, flock(alive, LOCK_EX));
    ASSERT_EQ(savePicture(platform, bits, path("a.png"), "png"), SaveResult::Written);
    close(alive);
    EXPECT_EQ(files(),
              (QStringList{".velara-a.png", ".velara-alive.part", ".velara-link.part", "a.png", "film.velara-1.part"}));
}

TEST_F(SavePicture, LinksThatLeadNowhereOrAreSomebodyElsesAreRefused)
{
    const Bits bits = flatBits(3, 3, 1, 2, 3);
    QFile::link("b.png", path("a.png"));
    QFile::link("a.png", path("b.png"));
    EXPECT_EQ(savePicture(platform, bits, path("a.png"), "png"), SaveResult::FailedAndTold);
    EXPECT_TRUE(QFileInfo(path("a.png")).isSymLink());
    if (geteuid() != 0) GTEST_SKIP() << "only the administrator can make links of others";
    const QString victim = write("victim.png", "old"), link = path("shared/a.png");
    QDir(folder.path()).mkdir("shared");
    chmod(QFile::encodeName(path("shared")).constData(), 01777);
    QFile::link(victim, link);
    ASSERT_EQ(0, lchown(QFile::encodeName(link).constData(), 12345, 12345));
    EXPECT_EQ(savePicture(platform, bits, link, "png"), SaveResult::FailedAndTold);
    EXPECT_EQ(contentsOf(victim), "old");
}

TEST_F(SavePicture, APcxKeepsTheTailAndTheModeOfALongerFile)
{
    const Bits bits = flatBits(3, 3, 1, 2, 3);
    const QString name = write("a.pcx", QByteArray(5000, 'x'));
    chmod(QFile::encodeName(name).constData(), 0640);
    ASSERT_EQ(savePicture(platform, bits, name, "pcx"), SaveResult::Written);
    EXPECT_EQ(contentsOf(name).size(), 5000);
    EXPECT_TRUE(load(name).ok());
    struct stat status;
    stat(QFile::encodeName(name).constData(), &status);
    EXPECT_EQ(status.st_mode & 07777, 0640U);
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
