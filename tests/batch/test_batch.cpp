// The real program on real files: what it writes, what it says and how it ends.
#include "region/Region.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/places.h"
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>

namespace velara {
namespace {

struct Outcome {
    int status; // -1: it crashed or hung
    std::string errors, output;
};

/// A picture of three bytes a pixel, red first.
using Picture = std::vector<std::array<int, 3>>;

constexpr int kWidth = 12, kHeight = 9;

struct BatchTest : ::testing::Test {
    QTemporaryDir folder, temporary;

    void SetUp() override { put("in.ppm", anymap(kWidth, kHeight)); }

    QString path(const std::string& name) const { return folder.filePath(QString::fromStdString(name)); }
    void put(const std::string& name, const QByteArray& bytes) const { putFile(path(name), bytes); }
    QByteArray content(const std::string& name) const { return fileBytes(path(name), "missing"); }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

    /// Runs it in the folder; arguments are split at blanks. before is shell text that runs first.
    Outcome run(const std::string& arguments, const char* before = "true") const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), temporary.path());
        environment.remove(QStringLiteral("DISPLAY"));
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        QStringList list{QStringLiteral("-c"), QString::fromLatin1(before) + QStringLiteral(" && exec \"$0\" \"$@\""),
                         builtPath("velara-batch")};
        list += QString::fromStdString(arguments).split(u' ', Qt::SkipEmptyParts);
        process.start(QStringLiteral("/bin/sh"), list);
        const bool ended = process.waitForFinished(20000) && process.exitStatus() == QProcess::NormalExit;
        return {ended ? process.exitCode() : -1, process.readAllStandardError().toStdString(),
                process.readAllStandardOutput().toStdString()};
    }
    /// The pixels that steps make of the input.
    Picture result(const std::string& steps, int width = kWidth, int height = kHeight) const
    {
        const Outcome outcome = run("in.ppm " + steps + " out.ppm");
        EXPECT_EQ(0, outcome.status) << steps << ": " << outcome.errors;
        const QByteArray bytes = content("out.ppm");
        const QByteArray size = QByteArray::number(width) + ' ' + QByteArray::number(height);
        EXPECT_TRUE(bytes.left(20).simplified().contains(size)) << steps << ": " << bytes.left(20).toStdString();
        Picture picture;
        for (auto at = bytes.size() - 3 * width * height; at >= 0 && at < bytes.size(); at += 3)
            picture.push_back({std::uint8_t(bytes[at]), std::uint8_t(bytes[at + 1]), std::uint8_t(bytes[at + 2])});
        return picture;
    }

    static std::array<int, 3> inputPixel(int i) { return {i % kWidth, 100 + i / kWidth, i}; }
    static Picture input(const std::function<bool(int x, int y)>& inverted = [](int, int) { return false; })
    {
        Picture picture;
        for (int i = 0; i < kWidth * kHeight; ++i) {
            picture.push_back(inputPixel(i));
            if (inverted(i % kWidth, i / kWidth))
                for (int& c : picture.back()) c = 255 - c;
        }
        return picture;
    }
    static QByteArray anymap(int width, int height)
    {
        QByteArray bytes = "P6\n" + QByteArray::number(width) + ' ' + QByteArray::number(height) + "\n255\n";
        for (int i = 0; i < width * height; ++i)
            for (const int c : inputPixel(i)) bytes += static_cast<char>(c);
        return bytes;
    }
};

TEST_F(BatchTest, BadInputIsNamedAndNothingIsWritten)
{
    ASSERT_EQ(0, run("in.ppm good.png").status);
    ASSERT_EQ(0, run("in.ppm good.jpg").status);
    put("empty.png", {});
    put("short.png", content("good.png").left(60));
    put("short.jpg", content("good.jpg").left(200));
    put("header.bmp", QByteArray::fromHex("424d 3600 0000 0000 0000 3600 0000 2800 0000"));
    put("huge.bmp", QByteArray::fromHex("424d 3600 0000 0000 0000 3600 0000 2800 0000 60ea 0000 60ea 0000 0100 1800"
                                        "0000 0000 0000 0000 0000 0000 0000 0000 0000 0000 0000 0000"));
    put("huge.ppm", "P6\n60000 60000\n255\nabc");
    put("zip.png", "PK\x03\x04" + QByteArray(400, 'z'));
    put("garbage.tif", QByteArray("\x01\xfe\x37\x00", 4).repeated(500));
    put("in.xyz", content("in.ppm"));
    put("out.png", "precious");
    put("out.ppm", "precious");
    QDir(folder.path()).mkdir(QStringLiteral("folder.png"));
    QFile::link(QStringLiteral("/dev/full"), path("full.png"));
    QFile::link(QStringLiteral("loop2.png"), path("loop.png"));
    QFile::link(QStringLiteral("loop.png"), path("loop2.png"));
    const struct {
        const char* arguments;
        int status;
        const char* named; // in the message
    } kCases[] = {
        {"missing.png out.png", 1, "missing.png"},
        {"empty.png out.png", 1, "empty.png"},
        {"short.png out.png", 1, "short.png"},
        {"short.jpg out.png", 1, "short.jpg"},
        {"header.bmp out.png", 1, "header.bmp"},
        {"huge.bmp out.png", 1, "huge.bmp"},
        {"huge.ppm out.png", 1, "huge.ppm"},
        {"zip.png out.png", 1, "zip.png"},
        {"garbage.tif out.png", 1, "garbage.tif"},
        {"folder.png out.png", 1, "folder.png"},
        {"in.xyz out.png", 1, "in.xyz"},
        {"in.ppm out.xyz", 1, "out.xyz"},
        {"in.ppm out", 1, "out"},
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
        {"in.ppm LIGHTEMBOS out.png", 2, "did you mean LIGHTEMBOSS"},
        {"in.ppm Embos(10) out.png", 2, "did you mean EMBOSS"},
        {"in.ppm wxyzwxyz out.png", 2, "wxyzwxyz"},
        {"in.ppm SAVEAS out.png", 2, "SAVEAS"},
        {"in.ppm INVERT(3) out.png", 2, "INVERT"},
        {"in.ppm EMBOSS out.png", 2, "EMBOSS(Weight) takes 1 argument,"},
        {"in.ppm ApplyTexture(8) out.png", 2, "takes 2 to 3 arguments, not 1"},
        {"in.ppm ApplyTexture(34,50) out.png", 2, "Index"},
        {"in.ppm ApplyTexture(17,0) out.png", 3, "ivision by zero"},
        {"in.ppm ApplyTexture(1,50,in.xyz) out.png", 1, "in.xyz"},
        {"in.ppm EMBOSS(1,2) out.png", 2, "not 2"},
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
        {"in.ppm --icon 20000x20000 out.png", 2, "\"20000x20000\" is no icon"},
        {"in.ppm --icon 16x257 out.png", 2, "32x32,mask:0x00BBGGRR"},
        {"in.ppm --icon 99999999999x16 out.png", 2, "is no icon"},
        {"in.ppm --icon 16x16,mask: out.png", 2, "is no icon"},
        {"in.ppm --icon 16x16,mask:red out.png", 2, "is no icon"},
        {"in.ppm --icon 16x16,mask:0x1000000 out.png", 2, "is no icon"},
        {"in.ppm out.png --icon", 2, "--icon: a size has to follow"},
        {"in.ppm --icon 16x16 --web Optimal out.png", 2, "--web, --icon: OUTPUT can be one"},
        {"in.ppm --icon 16x16 none/out.ico", 1, "none/out.ico can't be written"},
        {"in.ppm --select rect:1,2,3 INVERT out.png", 2, "rect:1,2,3"},
        {"in.ppm --select rect:1,2,3,x INVERT out.png", 2, "rect:1,2,3,x"},
        {"in.ppm --select elipse:1,2,3,4 INVERT out.png", 2, "did you mean ellipse"},
        {"in.ppm --select polygon:1,2,3,4 INVERT out.png", 2, "polygon:1,2,3,4"},
        {"in.ppm --select +invert INVERT out.png", 2, "+invert"},
        {"in.ppm --select rect:3,3,3,9 INVERT out.png", 2, "rect:3,3,3,9"},
        {"in.ppm --select rect:12,0,20,5 INVERT out.png", 2, "12 by 9"},
        {"in.ppm x2 --select rect:6,0,9,4 INVERT out.png", 2, "6 by 4"},
        {"in.ppm BitsResize(0,5) out.png", 3, "BitsResize(0,5): Subscript out of range"},
        {"in.ppm BitsResize(2147483647,2147483647) out.png", 3, "BitsResize"},
        {"in.ppm INVERT CROP out.ppm", 3, "CROP: Nothing selected"},
        {"in.ppm --select rect:1,1,2,9 CROP out.ppm", 3, "Minimum size: 2 x 2"},
    };
    const QStringList before = files();
    for (const auto& c : kCases) {
        const Outcome outcome = run(c.arguments);
        EXPECT_EQ(c.status, outcome.status) << c.arguments << "\n" << outcome.errors;
        EXPECT_NE(std::string::npos, outcome.errors.find(c.named)) << c.arguments << "\n" << outcome.errors;
        EXPECT_EQ(before, files()) << c.arguments;
    }
    EXPECT_EQ("precious", content("out.png"));
    EXPECT_EQ("precious", content("out.ppm"));
}

TEST_F(BatchTest, ACutOffPictureIsTakenOnlyWhenAskedFor)
{
    put("short.ppm", content("in.ppm").chopped(100));
    const Outcome refused = run("short.ppm out.ppm");
    EXPECT_EQ(1, refused.status);
    EXPECT_NE(std::string::npos, refused.errors.find("its end is missing; --partial takes what is there"))
        << refused.errors;
    EXPECT_FALSE(QFile::exists(path("out.ppm")));
    EXPECT_EQ(0, run("--partial short.ppm out.ppm").status);
    EXPECT_EQ(content("in.ppm").left(200), content("out.ppm").left(200));
    put("a\x1b[31m.png", "nothing");
    EXPECT_NE(std::string::npos, run("a\x1b[31m.png out.png").errors.find("a\\x1b[31m.png can't be read"));
}

TEST_F(BatchTest, ReadingMakesNoFolder)
{
    const QString sample = corpusPath("emf");
    if (!QFile::exists(sample)) GTEST_SKIP();
    const QString runtime = QStringLiteral("/tmp/runtime-") + qEnvironmentVariable("USER", QStringLiteral("root"));
    const bool stood = QFile::exists(runtime) && !QDir().rmdir(runtime);
    for (const QString& name : QDir(sample).entryList({QStringLiteral("*.emf")}))
        run((sample + u'/' + name + QStringLiteral(" out.png")).toStdString());
    EXPECT_TRUE(QDir(temporary.path()).isEmpty());
    EXPECT_EQ(stood, QFile::exists(runtime));
}

TEST_F(BatchTest, OneRowHasNoProgressToTell)
{
    put("row.ppm", anymap(30, 1));
    EXPECT_EQ(0, run("row.ppm EMBOSS(10) FLIPH INVERT out.ppm").status);
    EXPECT_EQ(3, run("row.ppm --verbose EMBOSS(10) out.ppm").status);
}

TEST_F(BatchTest, ALinkAsOutputStaysOneAndIsNotRemoved)
{
    QFile::link(QStringLiteral("later.bmp"), path("link.bmp"));
    EXPECT_EQ(0, run("in.ppm link.bmp").status);
    EXPECT_TRUE(QFileInfo(path("link.bmp")).isSymLink());
    QFile::remove(path("later.bmp"));
    EXPECT_EQ(1, run("in.ppm BitsResize(3000,2900) link.bmp", "trap '' XFSZ && ulimit -f 40000").status);
    EXPECT_TRUE(QFileInfo(path("link.bmp")).isSymLink());
}

TEST_F(BatchTest, AFullDiskLeavesTheOldOutputWhole)
{
    const char* full = "trap '' XFSZ && ulimit -f 40000"; // 20 MB: room for the child that reads
    for (const char* name : {"bmp", "tga", "ppm"}) {
        const std::string out = std::string("out.") + name, arguments = "in.ppm BitsResize(3000,2900) " + out;
        put(out, "precious");
        const QStringList before = files();
        const Outcome outcome = run(arguments, full);
        EXPECT_EQ(1, outcome.status) << name << outcome.errors;
        EXPECT_NE(std::string::npos, outcome.errors.find(out + " can't be written")) << outcome.errors;
        EXPECT_EQ("precious", content(out)) << name;
        EXPECT_EQ(before, files());
        QFile::remove(path(out));
        EXPECT_EQ(1, run(arguments, full).status);
        EXPECT_FALSE(QFile::exists(path(out))) << name;
    }
}

TEST_F(BatchTest, AnIconHasThePixelsOfTheMaskTransparent)
{
    const std::string size = std::to_string(kWidth) + 'x' + std::to_string(kHeight);
    ASSERT_EQ(0, run("in.ppm INVERT INVERT --icon " + size + ",mask:0x1D6605 icon.ico").status); // the pixel at 5, 2
    ASSERT_EQ(0, run("icon.ico out.ppm").status);
    QByteArray wanted = content("in.ppm");
    wanted.replace(wanted.size() - 3 * (kWidth * kHeight - 2 * kWidth - 5), 3, "\xff\xff\xff");
    EXPECT_EQ(wanted.right(3 * kWidth * kHeight), content("out.ppm").right(3 * kWidth * kHeight));
    ASSERT_EQ(0, run("in.ppm --icon 256x16,mask:0 icon.ppm").status); // whatever its name
    EXPECT_EQ(QByteArray("\0\0\1\0\1\0\0\x10", 8), content("icon.ppm").left(8));
}

TEST_F(BatchTest, EveryWriterIsReadBack)
{
    for (const char* name : {"png", "bmp", "tif", "tga", "pcx", "ppm"}) {
        const std::string file = std::string("copy.") + name;
        ASSERT_EQ(0, run("in.ppm " + file).status) << name;
        ASSERT_EQ(0, run(file + " INVERT INVERT out.ppm").status) << name;
        EXPECT_EQ(content("in.ppm").right(3 * kWidth * kHeight), content("out.ppm").right(3 * kWidth * kHeight))
            << name;
    }
    ASSERT_EQ(0, run("in.ppm grey.pgm").status);
    EXPECT_EQ(content("out.ppm"), content("grey.ppm")) << "true colour, whatever the extension said";
    EXPECT_FALSE(QFile::exists(path("grey.pgm")));
}

TEST_F(BatchTest, SelectionsLimitTheStepsAfterThem)
{
    const Region ellipse = Region::ellipse(1, 1, 11, 8), triangle = Region::polygon(std::array{0, 0, 11, 0, 0, 8});
    const auto rect = [](int l, int t, int r, int b) {
        return [=](int x, int y) { return x >= l && x < r && y >= t && y < b; };
    };
    const auto a = rect(2, 1, 8, 6), b = rect(5, 3, 12, 9);
    const struct {
        const char* steps;
        std::function<bool(int, int)> inverted;
    } kCases[] = {
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
        {"--select rect:2,1,8,6 --select none INVERT", [](int, int) { return true; }},
        {"--select rect:2,1,8,6 INVERT --select none INVERT", [&](int x, int y) { return !a(x, y); }},
    };
    for (const auto& c : kCases) EXPECT_EQ(input(c.inverted), result(c.steps)) << c.steps;
}

TEST_F(BatchTest, StepsWorkOnTheResultOfTheOneBefore)
{
    const Picture original = input(), inverted = input([](int, int) { return true; });
    EXPECT_EQ(original, result(""));
    EXPECT_EQ(original, result("INVERT Invert"));
    EXPECT_EQ(inverted, result("FLIPH INVERT Flip(true,false) 200 MOSAIC"));
    EXPECT_EQ(original, result("INVERT UNDO"));
    EXPECT_EQ(inverted, result("INVERT FLIPH UNDO UNDO REDO"));
    EXPECT_EQ(original, result("UNDO REDO"));
    EXPECT_EQ(original, result("2x ORIGINAL"));
    result("50 50", 6, 4); // a run of sizings starts from its beginning
    result("20", 2, 2);
    EXPECT_EQ(result("BitsResize(6,4) INVERT BitsResize(3,2)", 3, 2), result("50 INVERT 50", 3, 2));
    const std::tuple<const char*, int, int> kReduced[] = {{"50", 63, 42}, {"33", 42, 28}, {"25", 32, 21},
                                                          {"20", 25, 17}, {"15", 18, 12}, {"10", 14, 9}};
    for (const auto& [word, width, height] : kReduced) result("BitsResize(126,84) " + std::string(word), width, height);
    result("x3 2x", 24, 18);
    result("A90", 9, 12);
    result("--select rect:2,1,8,6 CROP", 6, 5);
    result("BitsResample(30,20)", 30, 20);
    EXPECT_TRUE(QDir(temporary.path()).isEmpty()) << "the undo steps are gone";
}

TEST_F(BatchTest, EveryWordOfTheListRuns)
{
    put("large.ppm", "P6 60 50 255\n" + QByteArray(3 * 60 * 50, '7'));
    const QString list = QString::fromStdString(run("--list").output).section(QStringLiteral("\nOperations"), 0, 0);
    QStringList words; // one with its meaning a line, then those that do nothing, several a line
    for (const QString& line : list.split(u'\n').mid(1))
        if (line.startsWith(QStringLiteral("    ")))
            words << line.split(u' ', Qt::SkipEmptyParts);
        else if (!line.endsWith(u':'))
            words << line.simplified().section(u' ', 0, 0);
    words.removeAll("CROP"); // it needs a selection, which sizing words wipe
    ASSERT_GT(words.size(), 130);
    for (qsizetype i = 0; i < words.size(); i += 12) {
        const std::string steps = words.mid(i, 12).join(u' ').toStdString();
        const Outcome outcome = run("large.ppm --select rect:9,9,30,30 " + steps + " out.png");
        EXPECT_EQ(0, outcome.status) << outcome.errors;
    }
}

TEST_F(BatchTest, UndoStepsAreWrittenOnlyWhereAStepGoesBack)
{
    const auto gone = "export TMPDIR=/proc/none";
    EXPECT_EQ(0, run("in.ppm INVERT x2 FLIPH out.png", gone).status);
    EXPECT_EQ(1, run("in.ppm INVERT UNDO out.png", gone).status);
}

TEST_F(BatchTest, ArgumentsTakePicturesAndColours)
{
    put("dots,2.ppm", "P6 2 1 255\n" + QByteArray("\x10\x20\x30\x01\x02\x03", 6));
    Picture wanted = input();
    wanted[kWidth + 3] = {0x01, 0x02, 0x03}; // the dot before it has the key's colour
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
    const Outcome help = run("--help"), list = run("in.ppm --list"), verbose = run("in.ppm --verbose INVERT out.png");
    for (const char* word : {"--select", "--list", "--verbose", "polygon:", "Exit status"})
        EXPECT_NE(std::string::npos, help.output.find(word)) << word;
    for (const char* line : {"LIGHTEMBOSS          EMBOSS(10)", "  UNDO ", "  x5 ", "EMBOSS(Weight:0..50:10)",
                             "Flip(Horizontal:true|false,Vertical:true|false)",
                             "ApplyTexture(Index:1..33:8,Value:1..100:50,Texture:file?)"})
        EXPECT_NE(std::string::npos, list.output.find(line)) << line;
    EXPECT_EQ(0, help.status);
    EXPECT_EQ(0, list.status);
    EXPECT_NE(std::string::npos, verbose.errors.find("INVERT: 100 %")) << verbose.errors;
}

} // namespace
} // namespace velara
