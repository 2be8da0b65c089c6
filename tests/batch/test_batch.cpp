// The real program on real files: its output, its messages and its exit status.
#include "batch/BatchTest.h"
#include "fileio/writers/pictureFiles.h"
#include "region/Region.h"
#include "support/exif.h"
#include "support/pictures.h"
#include "support/seed.h"
#include "support/twoFrames.h"
#include <QColorSpace>
#include <QDataStream>
#include <QImageWriter>
#include <random>

namespace velara {
namespace {

// What the camera wrote, where it is asked for; the profile of colours that stay as stored, whatever is asked for.
TEST_F(BatchTest, WhatAFileCarriesGoesWhereItIsAskedFor)
{
    const Bits bits = flatBits(20, 16, 50, 100, 200);
    OutputFile file(path("photo.jpg"));
    ASSERT_TRUE(writeJpeg(bits, 100, file,
                          {.exif = exifOfCamera(true), .profile = QColorSpace(QColorSpace::DisplayP3).iccProfile()}) &&
                file.commit());
    const QByteArray second = ExifMaker(true).number(12345, 4); // of the place
    const struct {
        const char* arguments;
        bool make, place, profile;
    } cases[] = {
        {"photo.jpg out.jpg", true, true, false},
        {"photo.jpg --metadata no-place out.jpg", true, false, false},
        {"photo.jpg --metadata none out.jpg", false, false, false},
        {"photo.jpg --web JPEG out.jpg", false, false, false},
        {"photo.jpg --web JPEG --metadata keep out.jpg", true, true, false},
        {"photo.jpg --web JPEG --metadata no-place --max-bytes 5000 out.jpg", true, false, false},
        {"photo.jpg --colours stored INVERT out.jpg", true, true, true},
        {"photo.jpg --colours stored --metadata none out.jpg", false, false, true},
        {"photo.jpg --colours stored --web JPEG out.jpg", false, false, true},
    };
    for (const auto& c : cases) {
        EXPECT_TRUE(ends(0, c.arguments));
        const QByteArray written = content("out.jpg");
        EXPECT_EQ(written.contains("Maker"), c.make) << c.arguments;
        EXPECT_EQ(written.contains(second), c.place) << c.arguments;
        EXPECT_EQ(written.contains("ICC_PROFILE"), c.profile) << c.arguments;
    }
}

TEST_F(BatchTest, BadInputIsNamedAndNothingIsWritten)
{
    put("zip.png", "PK\x03\x04" + QByteArray(400, 'z'));
    put("short.ppm", content("in.ppm").chopped(100));
    put("in.xyz", "neither by its name nor by its mark");
    put("out.png", "precious");
    put("out.ppm", "precious");
    QDir(folder.path()).mkdir("folder.png");
    QFile::link("/dev/full", path("full.png"));
    QFile::link("loop2.png", path("loop.png"));
    QFile::link("loop.png", path("loop2.png"));
    const std::tuple<const char*, int, const char*> kCases[] = {
        // arguments, status, what the message names
        {"missing.png out.png", 1, "missing.png"},
        {"zip.png out.png", 1, "zip.png"},
        {"short.ppm out.ppm", 1, "its end is missing; --partial takes what is there"},
        {"a\x1b[31m\u202e.png out.png", 1, "a\\x1b[31m\\x202e.png can't be read"},
        {"folder.png out.png", 1, "folder.png"},
        {"in.xyz out.png", 1, "in.xyz"},
        {"in.ppm out.xyz", 1, "out.xyz"},
        {"in.ppm out.ico", 1, "turned Off"},
        {"in.ppm nowhere/out.png", 1, "nowhere/out.png"},
        {"in.ppm folder.png", 1, "folder.png can't be written: it is a folder"},
        {"in.ppm loop.png", 1, "loop.png can't be written: it is a link in a circle"},
        {"in.ppm full.png", 1, "full.png"},
        {"in.ppm TileMask(zip.png,0,0,false,0,-1) out.png", 1, "zip.png"},
        {"", 2, "INPUT"},
        {"in.ppm", 2, "OUTPUT"},
        {"in.ppm INVERT --select", 2, "--select"},
        {"in.ppm --quiet out.png", 2, "--quiet"},
        {"in.ppm INVRET out.png", 2, "did you mean INVERT"},
        {"in.ppm Embos(10) out.png", 2, "did you mean EMBOSS"},
        {"in.ppm wxyzwxyz out.png", 2, "wxyzwxyz"},
        {"in.ppm SAVEAS out.png", 2, "SAVEAS"},
        {"in.ppm INVERT(3) out.png", 2, "INVERT"},
        {"in.ppm EMBOSS out.png", 2, "EMBOSS(Weight) takes 1 argument,"},
        {"in.ppm ApplyTexture(8) out.png", 2, "takes 2 to 3 arguments, not 1"},
        {"in.ppm ApplyTexture(34,50) out.png", 2, "Index"},
        {"in.ppm ApplyTexture(17,0) out.png", 3, "ivision by zero"},
        {"in.ppm ApplyTexture(1,50,in.xyz) out.png", 1, "in.xyz"},
        {"in.ppm EMBOSS(ten) out.png", 2, "Weight"},
        {"in.ppm EMBOSS(1.5) out.png", 2, "Weight"},
        {"in.ppm EMBOSS() out.png", 2, "EMBOSS()"},
        {"in.ppm EMBOSS(4294967296) out.png", 2, "Weight"},
        {"in.ppm CONTOUR(1,0x1FFFFFFFF) out.png", 2, "Background"},
        {"in.ppm EMBOSS(10 out.png", 2, "bracket"},
        {"in.ppm MaskFilter(1/2,1,0,0,0,true) out.png", 2, "Mask is unusable"},
        {"in.ppm Flip(yes,no) out.png", 2, "Horizontal"},
        {"in.ppm --icon out.png", 2, "\"out.png\" is no icon; it has to be WIDTHxHEIGHT, each from 1 to 256"},
        {"in.ppm --icon 0x0 out.png", 2, "\"0x0\" is no icon"},
        {"in.ppm --icon 16x257 out.png", 2, "32x32,mask:0x00BBGGRR"},
        {"in.ppm --icon 99999999999x16 out.png", 2, "is no icon"},
        {"in.ppm --icon 16x16,mask: out.png", 2, "is no icon"},
        {"in.ppm --icon 16x16,mask:red out.png", 2, "is no icon"},
        {"in.ppm --icon 16x16,mask:0x1000000 out.png", 2, "is no icon"},
        {"in.ppm out.png --icon", 2, "--icon: a size has to follow"},
        {"in.ppm out.png --colours", 2, "--colours: one of srgb, stored has to follow"},
        {"in.ppm out.png --page", 2, "--page: a number from 1 to 1048576 has to follow"},
        {"in.ppm --page 0 out.png", 2, "--page: a number from 1 to 1048576 has to follow"},
        {"in.ppm --page 2 out.png", 1, "in.ppm can't be read: it has only one page"},
        {"in.ppm --metadata some out.png", 2, "--metadata: one of keep, no-place, none has to follow"},
        {"in.ppm --icon 16x16 --web Optimal out.png", 2, "--web, --icon: OUTPUT can be one"},
        {"in.ppm --icon 16x16 none/out.ico", 1, "none/out.ico can't be written"},
        {"in.ppm --select rect:1,2,3 INVERT out.png", 2, "rect:1,2,3"},
        {"in.ppm --select rect:1,2,3,x INVERT out.png", 2, "rect:1,2,3,x"},
        {"in.ppm --select elipse:1,2,3,4 INVERT out.png", 2, "did you mean ellipse"},
        {"in.ppm --select polygon:1,2,3,4 INVERT out.png", 2, "polygon:1,2,3,4"},
        {"in.ppm --select +invert INVERT out.png", 2, "+invert"},
        {"in.ppm --select rect:3,3,3,9 INVERT out.png", 2, "rect:3,3,3,9"},
        {"in.ppm x2 --select rect:6,0,9,4 INVERT out.png", 2, "6 by 4"},
        {"in.ppm LENS(nan,0.5,0.5,50) out.png", 2, "CenterX has to be a number, not \"nan\""},
        {"in.ppm LENS(0.5,inf,0.5,50) out.png", 2, "CenterY"},
        {"in.ppm BitsResize(0,5) out.png", 3, "BitsResize(0,5): the picture would have no pixels"},
        {"in.ppm BitsResize(30000,30000) out.png", 3, "859 megapixels (30000 x 30000 pixels); at most 256"},
        {"in.ppm INVERT CROP out.ppm", 3, "CROP: Nothing selected"},
        {"in.ppm --select rect:1,1,2,9 CROP out.ppm", 3, "Minimum size: 2 x 2"},
    };
    const QStringList before = files();
    for (const auto& [arguments, status, named] : kCases) {
        EXPECT_TRUE(ends(status, arguments, named));
        EXPECT_EQ(before, files()) << arguments;
    }
    EXPECT_EQ("precious", content("out.png"));
    EXPECT_EQ("precious", content("out.ppm"));
}

TEST_F(BatchTest, LimitsOfUserAndSystemHold)
{
    QDir(folder.path()).mkpath("own/velara-studio");
    QDir(folder.path()).mkpath("system/velara-studio");
    const struct {
        const char *own, *system;
        int status;
        const char* said;
    } kCases[] = {
        {"formats-off = png PBM .ppm", "", 1, "in.ppm can't be read: limits.conf has turned .ppm files off"},
        {"# pixels = 1\n\nPixels=1k # enough\nseconds = 2\nmemory = 2G", "pixels = 2000", 0, ""},
        {"pixels = 107", "", 1, "it has more than the 107 pixels that limits.conf allows"},
        {"pixels = 1G", "pixels = 107", 1, "it has more than the 107 pixels"},
        {"pixels = 107", "pixels = 1G", 1, "it has more than the 107 pixels"},
        {"seconds = 2\npixels = none", "", 0, "limits.conf:2: \"pixels = none\" is no limit"},
    };
    const QString there = "export XDG_CONFIG_HOME=$PWD/own XDG_CONFIG_DIRS=/none:$PWD/system";
    for (const auto& row : kCases) {
        put("own/velara-studio/limits.conf", row.own);
        put("system/velara-studio/limits.conf", row.system);
        EXPECT_TRUE(ends(row.status, "in.ppm out.png", row.said, there)) << row.own;
    }
#ifndef __SANITIZE_ADDRESS__ // it runs without this limit
    QImage large(2000, 1500, QImage::Format_RGB32);
    large.fill(Qt::red);
    QImageWriter writer(path("large.jpg"));
    writer.setProgressiveScanWrite(true); // all of it has to be in memory
    ASSERT_TRUE(writer.write(large));
    put("own/velara-studio/limits.conf", "memory = 2M");
    EXPECT_TRUE(ends(1, "large.jpg out.png", "large.jpg can't be read", there));
#endif
}

TEST_F(BatchTest, ACutOffPictureIsTakenWhenAskedFor)
{
    put("short.ppm", content("in.ppm").chopped(100));
    EXPECT_TRUE(ends(0, "--partial short.ppm out.ppm"));
    EXPECT_EQ(content("in.ppm").left(200), content("out.ppm").left(200));
}

std::uint32_t crcOf(const QByteArray& bytes)
{
    std::uint32_t crc = ~0U;
    for (const char c : bytes) {
        crc ^= static_cast<unsigned char>(c);
        for (int i = 0; i < 8; ++i) crc = crc >> 1 ^ (crc & 1 ? 0xedb88320U : 0);
    }
    return ~crc;
}

QByteArray chunk(const QByteArray& name, const QByteArray& bytes)
{
    QByteArray all;
    QDataStream(&all, QIODevice::WriteOnly) << quint32(bytes.size());
    all += name + bytes;
    QDataStream(&all, QIODevice::Append) << crcOf(name + bytes);
    return all;
}

/// All checksums are right, but the rows end in the middle.
QByteArray brokenPng(int width, int height)
{
    QByteArray head;
    QDataStream(&head, QIODevice::WriteOnly)
        << qint32(width) << qint32(height) << quint8(8) << quint8(0) << quint8(0) << quint8(0) << quint8(0);
    QByteArray rows = qCompress(QByteArray((width + 1) * height, '\0'), 0).mid(4); // in blocks with their lengths
    const int block = int(rows.size()) / 2 / 65540 * 65540 + 2;
    rows.replace(block + 1, 4, "\1\1\1\1");
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR", head) + chunk("IDAT", rows) + chunk("IEND", {});
}

// The file is written while the picture is read.
TEST_F(BatchTest, AConversionOfWhatIsNotWholeChangesNothing)
{
    put("broken.png", brokenPng(1500, 1000));
    put("short.ppm", content("in.ppm").chopped(100));
    for (const QString out : {"out.ppm", "out.jpg", "out.png", "out.tif", "out.bmp"}) {
        put(out, "precious");
        const QStringList before = files();
        EXPECT_TRUE(ends(1, "broken.png EMBOSS(10) " + out, "damaged between its first row and its last"));
        EXPECT_TRUE(ends(1, "broken.png " + out, "damaged between its first row and its last"));
        EXPECT_TRUE(ends(1, "short.ppm " + out, "--partial takes what is there"));
        EXPECT_EQ("precious", content(out));
        EXPECT_EQ(before, files());
    }
}

// Told of its progress, a line takes each step on the whole picture; otherwise on bands of rows, while it is read.
TEST_F(BatchTest, StepsTakenWhileThePictureIsReadGiveTheSame)
{
    QImage large(900, 1777, QImage::Format_RGB32);
    std::mt19937 random(seedOf(5));
    for (int y = 0; y < large.height(); ++y)
        for (int x = 0; x < large.width(); ++x) large.setPixel(x, y, random());
    ASSERT_TRUE(large.save(path("large.ppm")));
    for (const QString steps :
         {"Invert", "EMBOSS(12)", "Blurs(2) SHARPEN(40) Blurs(2) RELIEF", "GreyScale SKETCH(60,true,0) DILATE"})
        for (const QString out : {"ppm", "jpg", "bmp", "tif"}) {
            EXPECT_TRUE(ends(0, "large.ppm " + steps + " bands." + out));
            EXPECT_TRUE(ends(0, "large.ppm " + steps + " --verbose whole." + out));
            EXPECT_EQ(content("bands." + out), content("whole." + out)) << steps.toStdString() << out.toStdString();
        }
    EXPECT_EQ(result("Blurs(2) EMBOSS(10)"), [&] {
        EXPECT_TRUE(ends(0, "in.ppm Blurs(2) EMBOSS(10) --verbose small.ppm"));
        return QImage(path("small.ppm"));
    }());
}

TEST_F(BatchTest, APageIsReadAndAnotherKindIsToldWhenAskedFor)
{
    put("two.webp", kTwoFrames);
    EXPECT_EQ(result("--page 2", {16, 16}, "two.webp").pixel(8, 8), qRgb(10, 40, 200));
    EXPECT_EQ(result("", {16, 16}, "two.webp").pixel(8, 8), qRgb(200, 40, 10));
    EXPECT_TRUE(ends(1, "two.webp --page 3 out.png", "two.webp can't be read: it has only 2 pages"));

    ASSERT_TRUE(input().save(path("in.jpg"), "png"));
    const BatchRun told = run("in.jpg --verbose out.png"), silent = run("in.jpg out.png");
    EXPECT_EQ(told.errors, "in.jpg is a PNG picture\n");
    EXPECT_EQ(told.output + silent.output + silent.errors, "");
}

TEST_F(BatchTest, ReadingMakesNoFolder)
{
    const QString sample = corpusPath("emf");
    if (!QFile::exists(sample)) GTEST_SKIP();
    const QString runtime = "/tmp/runtime-" + qEnvironmentVariable("USER", "root");
    const auto leavesNone = [&] {
        const bool stood = QFile::exists(runtime) && !QDir().rmdir(runtime);
        for (const QString& name : QDir(sample).entryList({"*.emf"})) run(sample + u'/' + name + " out.png");
        return stood == QFile::exists(runtime);
    };
    EXPECT_TRUE(leavesNone() || leavesNone() || leavesNone()) << "another program may make it at any time";
    EXPECT_TRUE(QDir(temporary.path()).isEmpty());
}

TEST_F(BatchTest, AFullDiskLeavesTheOldOutputAndALinkStaysOne)
{
    put("out.ppm", "precious");
    QFile::link("later.bmp", path("link.bmp"));
    const QStringList before = files();
    for (const QString out : {"out.ppm", "link.bmp"})
        EXPECT_TRUE(ends(1, "in.ppm BitsResize(3000,2900) " + out, out + " can't be written", kFullDisk));
    EXPECT_EQ("precious", content("out.ppm"));
    EXPECT_EQ(before, files());
    EXPECT_TRUE(ends(0, "in.ppm link.bmp"));
    EXPECT_TRUE(QFileInfo(path("link.bmp")).isSymLink());
}

TEST_F(BatchTest, AnIconHasThePixelsOfTheMaskTransparent)
{
    ASSERT_TRUE(ends(0, "in.ppm INVERT INVERT --icon 12x9,mask:0x1D6605 icon.ico")); // the pixel at 5, 2
    QImage wanted = input();
    wanted.setPixel(5, 2, qRgb(255, 255, 255));
    EXPECT_EQ(wanted, result("", wanted.size(), "icon.ico"));
    ASSERT_TRUE(ends(0, "in.ppm --icon 256x16,mask:0 icon.ppm")); // whatever its name
    EXPECT_EQ(QByteArray("\0\0\1\0\1\0\0\x10", 8), content("icon.ppm").left(8));
}

// Nothing is read twice on the way to the program that draws, not even what can't be.
TEST_F(BatchTest, TheProgramThatDrawsTakesOverBeforeAnythingIsRead)
{
    const QString recipe = "mkfifo r && (printf 'velara recipe 1\\nINVERT\\n' >r &)";
    EXPECT_TRUE(ends(0, "- --input-format ppm --recipe r --icon 12x9 icon.ico", {}, recipe + " && exec <in.ppm"));
    EXPECT_EQ(result("INVERT"), result("", {kWidth, kHeight}, "icon.ico"));
    ASSERT_TRUE(QFile::copy(builtPath("velara-batch"), path("alone")));
    QProcess alone;
    alone.start(path("alone"), {path("in.ppm"), "--icon", "12x9", path("other.ico")});
    ASSERT_TRUE(alone.waitForFinished());
    EXPECT_EQ(3, alone.exitCode());
    EXPECT_TRUE(alone.readAllStandardError().contains("velara-batch-all"));
    EXPECT_FALSE(QFile::exists(path("other.ico")));
    QProcess libraries;
    libraries.start("ldd", {builtPath("velara-batch")});
    ASSERT_TRUE(libraries.waitForFinished());
    const QByteArray linked = libraries.readAll();
    EXPECT_TRUE(linked.contains("libQt6Core"));
    EXPECT_FALSE(linked.contains("libQt6Gui"));
}

TEST_F(BatchTest, AnAnymapHasTrueColourWhateverItsExtensionSays)
{
    ASSERT_TRUE(ends(0, "in.ppm grey.pgm"));
    EXPECT_EQ(input(), QImage(path("grey.ppm")).convertToFormat(QImage::Format_RGB32));
    EXPECT_FALSE(QFile::exists(path("grey.pgm")));
}

TEST_F(BatchTest, SelectionsLimitTheStepsAfterThem)
{
    const Region ellipse = Region::ellipse(1, 1, 11, 8), triangle = Region::polygon(std::array{0, 0, 11, 0, 0, 8});
    const auto rect = [](int l, int t, int r, int b) {
        return [=](int x, int y) { return x >= l && x < r && y >= t && y < b; };
    };
    const auto a = rect(2, 1, 8, 6), b = rect(5, 3, 12, 9);
    const std::pair<const char*, std::function<bool(int, int)>> kCases[] = {
        // steps, the pixels they invert
        {"INVERT", [](int, int) { return true; }},
        {"--select rect:2,1,8,6 INVERT", a},
        {"--select=rect:2,1,8,6 INVERT", a},
        {"--select rect:8,6,2,1 INVERT", a},
        {"--select rect:0,0,3,3 --select rect:2,1,8,6 INVERT", a},
        {"--select rect:-5,-5,3,3 INVERT", rect(0, 0, 3, 3)},
        {"--select ellipse:1,1,11,8 INVERT", [&](int x, int y) { return ellipse.contains(x, y); }},
        {"--select polygon:0,0,11,0,0,8 INVERT", [&](int x, int y) { return triangle.contains(x, y); }},
        {"--select rect:2,1,8,6 --select +rect:5,3,12,9 INVERT", [&](int x, int y) { return a(x, y) || b(x, y); }},
        {"--select rect:2,1,8,6 --select -rect:5,3,12,9 INVERT", [&](int x, int y) { return a(x, y) && !b(x, y); }},
        {"--select rect:2,1,8,6 --select &rect:5,3,12,9 INVERT", [&](int x, int y) { return a(x, y) && b(x, y); }},
        {"--select rect:2,1,8,6 --select ^rect:5,3,12,9 INVERT", [&](int x, int y) { return a(x, y) != b(x, y); }},
        {"--select &rect:2,1,8,6 INVERT", a},
        {"--select rect:2,1,8,6 --select invert INVERT", [&](int x, int y) { return !a(x, y); }},
        {"--select rect:2,1,8,6 INVERT --select none INVERT", [&](int x, int y) { return !a(x, y); }},
    };
    for (const auto& [steps, inverted] : kCases) EXPECT_EQ(input(inverted), result(steps)) << steps;
}

TEST_F(BatchTest, StepsWorkOnTheResultOfTheOneBefore)
{
    const QImage original = input(), inverted = input([](int, int) { return true; });
    EXPECT_EQ(original, result(""));
    EXPECT_EQ(original, result("INVERT Invert"));
    EXPECT_EQ(inverted, result("FLIPH INVERT Flip(true,false) 200 MOSAIC"));
    EXPECT_EQ(original, result("INVERT UNDO"));
    EXPECT_EQ(inverted, result("INVERT FLIPH UNDO UNDO REDO"));
    EXPECT_EQ(original, result("UNDO REDO"));
    EXPECT_EQ(inverted, result("FLIPH UNDO INVERT"));
    EXPECT_EQ(original, result("2x ORIGINAL"));
    result("50 50", {6, 4}); // a run of sizing words starts from the picture before the first
    result("20", {2, 2});
    EXPECT_EQ(result("BitsResize(6,4) INVERT BitsResize(3,2)", {3, 2}), result("50 INVERT 50", {3, 2}));
    const std::pair<const char*, QSize> kReduced[] = {{"50", {63, 42}}, {"33", {42, 28}}, {"25", {32, 21}},
                                                      {"20", {25, 17}}, {"15", {18, 12}}, {"10", {14, 9}}};
    for (const auto& [word, size] : kReduced) result(QString("BitsResize(126,84) ") + word, size);
    result("x3 2x", {24, 18});
    result("A90", {9, 12});
    result("--select rect:2,1,8,6 CROP", {6, 5});
    result("BitsResample(30,20)", {30, 20});
    EXPECT_TRUE(QDir(temporary.path()).isEmpty()) << "the undo steps are gone";
}

TEST_F(BatchTest, EveryWordOfTheListRuns)
{
    put("large.ppm", "P6 60 50 255\n" + QByteArray(3 * 60 * 50, '7'));
    const QString list = run("--list").output.section("\nOperations", 0, 0);
    QStringList words; // one with its meaning per line, then those that do nothing, several per line
    for (const QString& line : list.split(u'\n').mid(1))
        if (line.startsWith("    "))
            words << line.split(u' ', Qt::SkipEmptyParts);
        else if (!line.endsWith(u':'))
            words << line.simplified().section(u' ', 0, 0);
    words.removeAll("CROP"); // it needs a selection, which sizing words clear
    ASSERT_GT(words.size(), 130);
    for (qsizetype i = 0; i < words.size(); i += 12) {
        const QString steps = words.mid(i, 12).join(u' ');
        EXPECT_TRUE(ends(0, "large.ppm --select rect:9,9,30,30 " + steps + " out.png"));
    }
}

TEST_F(BatchTest, UndoStepsAreWrittenOnlyWhereAStepGoesBack)
{
    const auto gone = "export TMPDIR=/proc/none";
    EXPECT_TRUE(ends(0, "in.ppm INVERT x2 FLIPH out.png", {}, gone));
    EXPECT_TRUE(ends(1, "in.ppm INVERT UNDO out.png", {}, gone));
}

TEST_F(BatchTest, ArgumentsTakePicturesAndColours)
{
    put("dots,2.ppm", "P6 2 1 255\n" + QByteArray("\x10\x20\x30\x01\x02\x03", 6));
    QImage wanted = input();
    wanted.setPixel(3, 1, qRgb(1, 2, 3)); // the dot before it has the key's colour
    EXPECT_EQ(wanted, result("TileMask(\"dots,2.ppm\",2,1,false,0,0x00302010)"));
    EXPECT_EQ(wanted, result("TileMask(\"dots,2.ppm\",2,1,false,0,3153936)"));
}

TEST_F(BatchTest, EffectsAreStepsByTheirNumber)
{
    put("grain.ppm", "P6 2 2 255\n" + QByteArray(3 * 4, '\x40'));
    EXPECT_EQ(result("EMBOSS(20)"), result("ApplyTexture(8,20)"));
    EXPECT_EQ(result("SKETCH(20,false,0x00ffffff)"), result("ApplyTexture(28,20)"));
    EXPECT_EQ(result("Texturize(grain.ppm)"), result("ApplyTexture(8,20,grain.ppm)"));
    EXPECT_NE(input(), result("Texturize(grain.ppm)"));
}

TEST_F(BatchTest, HelpAndListNameEverything)
{
    const BatchRun help = run("--help"), list = run("in.ppm --list");
    for (const char* word : {"--select", "--list", "--verbose", "polygon:", "Exit status"})
        EXPECT_TRUE(help.output.contains(word)) << word;
    for (const char* line : {"LIGHTEMBOSS EMBOSS(10)", " UNDO ", " x5 ",
                             "EMBOSS(Weight) Weight 0..50 (10) tenths of the difference; 0 is flat grey ENGRAVE(",
                             "Vertical true|false top and bottom exchanged", "Texture? file laid over in place"})
        EXPECT_TRUE(list.output.simplified().contains(line)) << line;
    EXPECT_EQ(0, help.status);
    EXPECT_EQ(0, list.status);
    EXPECT_TRUE(ends(0, "in.ppm --verbose INVERT out.png", "INVERT: 100 %"));
}

} // namespace
} // namespace velara
