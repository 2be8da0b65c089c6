// Saving: reading the files back, the messages to the user, and the state of the old file when saving fails.
#include "fileio/formats.h"
#include "fileio/load/PictureLoader.h"
#include "fileio/savePicture.h"
#include "fileio/web/webFile.h"
#include "support/RecordingPlatform.h"
#include "support/childProcess.h"
#include "support/files.h"
#include "support/fullDisk.h"
#include "support/pictures.h"
#include "support/places.h"
#include <QFileInfo>
#include <QImage>
#include <QThread>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace velara {

namespace {

const std::string kFailure = "message: Internal Error: There was an error while saving! Please Restart Velara's Studio";
const std::string kAnymapNotice =
    "message: Collection of ASCII based bitmap: PBM, PGM and PPM: If the bitmap has a bit depth of 1, the file is "
    "saved as a PBM file. If the bitmap has a bit depth of 8, the file is saved as a PGM file. If the bitmap has a bit "
    "depth of 24, the file is saved as a PPM file. Other bit depths are not supported. The file you requested is saved "
    "as 24-bit True Color (.ppm) format.";

/// Random pixels in at most the given number of colours.
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
    /// Saves it under the name, with the writer of its extension.
    SaveResult save(const Bits& bits, const QString& name)
    {
        return savePicture(platform, bits, path(name), QFileInfo(name).suffix());
    }
    SaveResult save(const QString& name) { return save(small, name); }
    QByteArray at(const QString& name) const { return QFile::encodeName(path(name)); }
    struct stat statusOf(const QString& name) const
    {
        struct stat status {};
        stat(at(name).constData(), &status);
        return status;
    }
    /// Owner, group, mode and attributes for comparison.
    QString rightsOf(const QString& name) const
    {
        const struct stat status = statusOf(name);
        QString text = QString("%1:%2 %3").arg(status.st_uid).arg(status.st_gid).arg(status.st_mode & 07777, 0, 8);
        for (const char* attribute : {"system.posix_acl_access", "user.origin"}) {
            QByteArray value(200, 0);
            const ssize_t size = getxattr(at(name).constData(), attribute, value.data(), 200);
            text += ' ' + value.left(std::max<ssize_t>(size, 0)).toHex();
        }
        return text;
    }
    void setMode(const QString& name, mode_t mode) const { chmod(at(name).constData(), mode); }
    mode_t mode(const QString& name) const { return statusOf(name).st_mode & 07777; }
};

} // namespace

TEST_F(SavePicture, ComesBackAsItWas)
{
    for (const QSize size : {QSize(1, 1), {2, 1}, {3, 2}, {5, 7}, {64, 3}, {255, 9}, {1030, 300}})
        for (const QString name : {"a.png", "a.bmp", "a.tif", "a.TIFF", "a.tga", "a.pcx", "A.PNG", "a.gif"}) {
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
    for (const char* name : {"a.jpg", "a.jpeg", "a.jfif"}) {
        ASSERT_EQ(save(bits, name), SaveResult::Written);
        const LoadedPicture back = load(path(name));
        ASSERT_EQ(back.bits.width(), 65);
        ASSERT_EQ(back.bits.height(), 33);
        EXPECT_GT(peakSignalToNoise(bits, back.bits), 40);
        // The first quantisation table of quality 100 is all ones.
        const QByteArray file = content(name);
        EXPECT_EQ(file.mid(file.indexOf("\xff\xdb") + 5, 64), QByteArray(64, 1));
    }
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
    for (const char* name : {"a.ppm", "a", "a.xyz"}) EXPECT_EQ(save(name), SaveResult::NotWritten) << name;
    EXPECT_TRUE(platform.log.empty());
    EXPECT_EQ(save("a.ico"), SaveResult::Refused);
    EXPECT_EQ(platform.log, std::vector<std::string>{"message: Velara Studio: This facility is currently turned Off!"});
    EXPECT_EQ(platform.lastIcon, Icon::Information);
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(SavePicture, AFullDiskCostsNothing)
{
    const Bits bits = randomBits(300, 300, 3); // more than fits on the disk in any format
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

// A file that fits on the disk except for buffered bytes isn't a success either.
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
    mkfifo(at("pipe.png").constData(), 0600); // without a reader
    QFile::link("circle.png", path("round.png"));
    QFile::link("round.png", path("circle.png"));
    for (const char* name : {"locked.png", "folder.png", "none/a.png", "pipe.png", "circle.png"})
        EXPECT_EQ(save(name), SaveResult::FailedAndTold) << name;
    EXPECT_EQ(content("locked.png"), "old");
    EXPECT_TRUE(QFileInfo(path("circle.png")).isSymLink());
    EXPECT_EQ(platform.log, (std::vector<std::string>(5, kFailure)));
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

TEST_F(SavePicture, AFileHasNoNameUntilItIsComplete)
{
    put("old.bin", "old");
    for (const QString name : {"old.bin", "new.bin"}) {
        const QStringList before = files();
        {
            OutputFile given(path(name));
            ASSERT_TRUE(given.isOpen() && given.write("half", 4));
            EXPECT_EQ(before, files()) << "a program that dies now leaves nothing";
        }
        OutputFile file(path(name));
        ASSERT_TRUE(file.write("whole", 5) && file.commit());
        EXPECT_EQ("whole", content(name));
    }
    EXPECT_EQ((QStringList{"new.bin", "old.bin"}), files());
}

TEST_F(SavePicture, OneThatWritesManyFilesLooksForStraysOnce)
{
    put(".velara-dead.part", "half a picture");
    OutputFile::lookForStrays(false);
    EXPECT_EQ(save(small, "a.png"), SaveResult::Written);
    OutputFile::lookForStrays(true);
    EXPECT_EQ((QStringList{".velara-dead.part", "a.png"}), files());
    removeStrays(folder.path());
    EXPECT_EQ((QStringList{"a.png"}), files());
}

TEST_F(SavePicture, AQualityIsThatOfTheFormatsThatHaveOne)
{
    EXPECT_TRUE(hasQuality("JPEG") && hasQuality("webp"));
    EXPECT_FALSE(hasQuality("png") || hasQuality("xyz"));
    const auto bytes = [&](const QString& ending, int quality) {
        SaveWishes wishes;
        wishes.quality = quality;
        EXPECT_EQ(SaveResult::Written, writePicture(randomBits(60, 40, 1), path("a." + ending), ending,
                                                    OutputFile::Links::Follow, {}, wishes)
                                           .result);
        return content("a." + ending).size();
    };
    EXPECT_LT(bytes("jpg", 20), bytes("jpg", 95));
    EXPECT_LT(bytes("webp", 20), bytes("webp", 95));
}

namespace {

/// Asked whether the file is still wanted, it says no at the last look, and knows the longest work between two looks.
struct Looks {
    int left;
    double longest = 0, last = ofThisThread(); // milliseconds of this thread, so that a loaded machine counts nothing

    static double ofThisThread()
    {
        timespec time;
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
    }
    void end() { longest = std::max(longest, ofThisThread() - std::exchange(last, ofThisThread())); }
    bool operator()()
    {
        end();
        return --left > 0;
    }
};

bool hasChildren()
{
    siginfo_t info;
    return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
}

} // namespace

TEST_F(SavePicture, EachWriterLooksOftenWhetherTheFileIsWanted)
{
    const Bits bits = fewColours(6000, 4000, 256);
    for (const char* ending : {"png", "gif", "jpg", "bmp", "tif", "pcx", "pnm", "tga", "webp", "avif", "jxl"})
        for (const int last : {2, 60, 200}) {
            Looks looks{last};
            SaveWishes wishes;
            wishes.goOn = [&looks] { return looks(); };
            const SaveReport report =
                writePicture(bits, path("a."), ending, OutputFile::Links::Follow, CameraData{}, wishes);
            looks.end();
            EXPECT_LT(looks.longest, 100) << ending;
            if (looks.left > 0) continue; // it was done before
            EXPECT_EQ(report.result, SaveResult::Stopped) << ending;
            EXPECT_TRUE(files().isEmpty()) << ending << ' ' << last;
        }
    while (hasChildren()) QThread::msleep(1);
}

TEST_F(SavePicture, AnEndedEncoderIsNotWaitedFor)
{
    const Bits bits = randomBits(3000, 2000, 4);
    for (const char* ending : {"webp", "avif", "jxl"}) {
        bool isLeft = false; // one of them may have gone already where this thread had to wait for a processor
        for (int attempt = 0; attempt < 20 && !isLeft; ++attempt) {
            Looks looks{60};
            SaveWishes wishes;
            wishes.goOn = [&looks] { return looks(); };
            const QString name = path(QString("a.%1").arg(ending));
            ASSERT_EQ(writePicture(bits, name, ending, OutputFile::Links::Follow, {}, wishes).result,
                      SaveResult::Stopped);
            isLeft = hasChildren();
            while (hasChildren()) QThread::msleep(1); // in the end nothing is left of it
        }
        EXPECT_TRUE(isLeft) << ending;
    }
}

TEST_F(SavePicture, LinksOfOthersAreFollowedWhereOthersCanMakeNone)
{
    if (geteuid() != 0) GTEST_SKIP() << "only the administrator can make links of others";
    constexpr uid_t kOther = 12345, kThird = 23456;
    const struct {
        mode_t folder;
        uid_t folderOwner, linkOwner;
        bool follows;
    } kRows[] = {{01777, kThird, kOther, false},
                 {01777, kOther, kOther, true},
                 {01777, kThird, 0, true},
                 {0777, kThird, kOther, true},
                 {01775, kThird, kOther, true}};
    for (const auto& row : kRows) {
        QDir(folder.path()).mkdir("shared");
        setMode("shared", row.folder);
        ASSERT_EQ(0, chown(at("shared").constData(), row.folderOwner, 0));
        put("victim.png", "old");
        QFile::remove(path("shared/a.png"));
        QFile::link(path("victim.png"), path("shared/a.png"));
        ASSERT_EQ(0, lchown(at("shared/a.png").constData(), row.linkOwner, 0));
        EXPECT_EQ(save("shared/a.png") == SaveResult::Written, row.follows) << row.linkOwner;
        EXPECT_EQ(content("victim.png") != "old", row.follows) << row.linkOwner;
    }
}

namespace {

/// An access list in the kernel's format: another user may read and write.
const QByteArray kAccessList = QByteArray::fromHex("02000000"
                                                   "01000600ffffffff"
                                                   "0200060039300000"
                                                   "04000400ffffffff"
                                                   "10000600ffffffff"
                                                   "20000000ffffffff");

} // namespace

TEST_F(SavePicture, WhoMayDoWhatWithAFileStays)
{
    const auto set = [&](const QString& name, const char* attribute, const QByteArray& value) {
        return setxattr(at(name).constData(), attribute, value.constData(), std::size_t(value.size()), 0) == 0;
    };
    if (!set(".", "system.posix_acl_default", kAccessList)) GTEST_SKIP() << "no access lists where the tests write";
    setMode(".", 0777);
    const auto make = [&](const QString& name, uid_t owner, mode_t mode) {
        put(name, "old");
        removexattr(at(name).constData(), "system.posix_acl_access"); // inherited from the folder
        EXPECT_EQ(0, geteuid() == 0 ? chown(at(name).constData(), owner, owner) : 0);
        setMode(name, mode);
    };
    const auto savedOver = [&](const QString& name, bool inPlace, const QString& rights) {
        const ino_t before = statusOf(name).st_ino;
        EXPECT_EQ(save(name), SaveResult::Written) << qPrintable(name);
        EXPECT_FALSE(QImage(path(name)).isNull()) << qPrintable(name); // another user may not run what reads
        EXPECT_EQ(rightsOf(name), rights) << qPrintable(name);
        EXPECT_EQ(statusOf(name).st_ino == before, inPlace) << qPrintable(name);
    };
    constexpr uid_t kOther = 12345;
    make("plain.png", geteuid(), 0640);
    make("theirs.png", kOther, 0664);
    make("program.png", kOther, 06755);
    make("list.png", kOther, 0660);
    EXPECT_TRUE(set("list.png", "system.posix_acl_access", kAccessList));
    make("marked.png", geteuid(), 0600);
    EXPECT_TRUE(set("marked.png", "user.origin", "camera"));
    for (const char* name : {"plain.png", "theirs.png", "program.png", "list.png", "marked.png"})
        savedOver(name, false, geteuid() == 0 ? rightsOf(name) : rightsOf(name).replace(" 6755", " 755"));
    make("linked.png", kOther, 0664);
    ASSERT_EQ(0, link(at("linked.png").constData(), at("second.png").constData()));
    savedOver("linked.png", true, rightsOf("linked.png"));
    EXPECT_EQ(content("second.png"), content("linked.png"));

    if (geteuid() != 0) GTEST_SKIP() << "only the administrator can make files of others";
    make("shared.png", kOther, 0666); // writable, but can't be given to anybody
    make("program.png", kOther, 04777);
    asAnOrdinaryUser([&] {
        savedOver("shared.png", true, rightsOf("shared.png"));
        savedOver("program.png", true, rightsOf("program.png").replace(" 4777", " 777"));
    });
    EXPECT_TRUE(files().filter("velara").isEmpty());
}

TEST_F(SavePicture, WhatTheDiskRefusesLosesNothing)
{
    enum Where { Beside, InPlace };
    const struct {
        long call;
        unsigned error;
        Where where;
        bool written;
        QStringList left;
    } kRows[] = {{SYS_fsync, EIO, Beside, false, {"a.png"}},
                 {SYS_fsync, EINVAL, Beside, true, {"a.png"}}, // a file system without fsync
                 {SYS_fsync, EIO, InPlace, false, {"a.png", "b.png"}},
                 {SYS_rename, EBUSY, Beside, true, {"a.png"}}, // a mount point
                 {SYS_fallocate, ENOSPC, InPlace, false, {"a.png", "b.png"}},
                 {SYS_fallocate, EOPNOTSUPP, InPlace, true, {"a.png", "b.png"}},
                 {SYS_sendfile, EIO, InPlace, false, {"a.png", "a.rescued.png", "b.png"}}};
    for (const auto& row : kRows) {
        for (const QString& name : files()) QFile::remove(path(name));
        put("a.png", "old");
        ASSERT_EQ(0, row.where == InPlace ? link(at("a.png").constData(), at("b.png").constData()) : 0);
        const std::string what = std::to_string(row.call) + " with " + std::to_string(row.error);
        inAChild(what, [&] {
            refuseCall(row.call, row.error);
            EXPECT_EQ(save("a.png"), row.written ? SaveResult::Written : SaveResult::FailedAndTold) << what;
        });
        EXPECT_EQ(content(row.where == InPlace ? "b.png" : "a.png") != "old", row.written) << what;
        EXPECT_EQ(files(), row.left) << what;
    }
    EXPECT_TRUE(load(path("a.rescued.png")).ok());
}

// A picture that was to replace another one and isn't wanted any more, in each format that is written.
TEST_F(SavePicture, WhatIsGivenUpLeavesTheOldFile)
{
    const Bits bits = randomBits(700, 500, 3);
    for (const Format& format : kFormats) {
        if (format.saving != Saving::Directly) continue;
        const QString name = QString("a.") + QLatin1String(format.extension);
        put(name, "old");
        for (const int after : {0, 1, 3}) {
            int asked = 0;
            const auto goOn = [&] { return ++asked <= after; };
            const SaveReport report = writePicture(bits, path(name), QLatin1String(format.extension),
                                                   OutputFile::Links::Follow, {}, {.goOn = goOn});
            EXPECT_EQ(report.result, SaveResult::Stopped) << qPrintable(name) << " after " << after;
            EXPECT_EQ(report.text, "") << qPrintable(name);
            EXPECT_EQ(content(name), "old") << qPrintable(name);
            EXPECT_EQ(files(), QStringList{name});
        }
        QFile::remove(path(name));
        writePicture(bits, path(name), QLatin1String(format.extension), OutputFile::Links::Follow, {},
                     {.goOn = [] { return false; }});
        EXPECT_TRUE(files().isEmpty()) << qPrintable(name) << ": " << files().join(' ').toStdString();
    }
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

} // namespace velara
