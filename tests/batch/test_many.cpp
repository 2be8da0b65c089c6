// Many pictures at once, by the real program.
#include "batch/BatchTest.h"
#include <QDirIterator>
#include <QJsonDocument>
#include <QJsonObject>

namespace velara {
namespace {

struct ManyTest : BatchTest {
    void SetUp() override
    {
        BatchTest::SetUp();
        QDir(folder.path()).mkpath("in/b");
        for (const char* name : {"in/1.ppm", "in/2.ppm", "in/b/3.ppm"}) ASSERT_TRUE(input().save(path(name)));
    }
    QStringList filesIn(const QString& name) const
    {
        QStringList names;
        QDirIterator all(path(name), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext()) names << all.next().mid(path(name).size() + 1);
        names.sort();
        return names;
    }
    /// A member of the lines of the report, by the input's name.
    QMap<QString, QString> reported(const QString& member) const
    {
        QMap<QString, QString> told;
        for (const QByteArray& line : content("r.json").split('\n'))
            if (!line.isEmpty()) {
                const QJsonObject object = QJsonDocument::fromJson(line).object();
                told[object["input"].toString()] = object[member].toVariant().toString();
            }
        return told;
    }
};

TEST_F(ManyTest, EachPictureIsWhatTheSingleWayMakes)
{
    put("in/bad.ppm", "P6 9 9 255\nxx");
    EXPECT_TRUE(
        ends(1, "in gone.ppm in.ppm --recursive INVERT 2x --into out/new --name {dir}/{name}-2.{ext} --report r.json",
             "4 done, 2 failed"));
    EXPECT_EQ((QStringList{"1-2.ppm", "2-2.ppm", "b/3-2.ppm", "in-2.ppm"}), filesIn("out/new"));
    result("INVERT 2x", {2 * kWidth, 2 * kHeight}, "in/b/3.ppm");
    EXPECT_EQ(content("out.ppm"), content("out/new/b/3-2.ppm"));
    EXPECT_EQ((QStringList{"failed", "done", "done", "done", "failed", "done"}),
              (QStringList{reported("result").value("gone.ppm"), reported("result").value("in/1.ppm"),
                           reported("result").value("in/2.ppm"), reported("result").value("in/b/3.ppm"),
                           reported("result").value("in/bad.ppm"), reported("result").value("in.ppm")}));
    EXPECT_TRUE(reported("reason")["in/bad.ppm"].contains("its end is missing"));
    EXPECT_EQ(QString::number(content("out/new/1-2.ppm").size()), reported("bytes")["in/1.ppm"]);
    // Again: what is there is left alone.
    put("out/new/1-2.ppm", "mine");
    QFile::remove(path("in/bad.ppm"));
    EXPECT_TRUE(ends(0, "in INVERT --into out/new --name {name}-2", "2 skipped"));
    EXPECT_EQ("mine", content("out/new/1-2.ppm"));
    EXPECT_TRUE(ends(0, "in INVERT --into out/new --name {name}-2 --existing replace", "2 done"));
    EXPECT_NE("mine", content("out/new/1-2.ppm"));
}

TEST_F(ManyTest, NamesThatHaveTheSizeOfTheResultAreGivenOnce)
{
    const QString into = " --report r.json --into out --name ";
    EXPECT_TRUE(
        ends(2, "in INVERT" + into + "{width}x{height}", "in/1.ppm and in/2.ppm may both become out/{width}x{height}"));
    EXPECT_TRUE(ends(0, "in --recursive 2x" + into + "{width}/{name}-{width}x{height:03} --jobs 2", "3 done"));
    EXPECT_EQ((QStringList{"24/1-24x018.ppm", "24/2-24x018.ppm", "24/3-24x018.ppm"}), filesIn("out"));
    EXPECT_EQ("out/24/3-24x018.ppm", reported("output")["in/b/3.ppm"]);
    EXPECT_EQ(QString::number(content("out/24/1-24x018.ppm").size()), reported("bytes")["in/1.ppm"]);
    put("out/24/1-24x018.ppm", "mine");
    EXPECT_TRUE(ends(0, "in 2x" + into + "{width}/{name}-{width}x{height:03}", "2 skipped"));
    EXPECT_TRUE(ends(0, "in 2x" + into + "{width}/{name}-{width}x{height:03} --existing newer", "2 skipped"));
    EXPECT_TRUE(ends(0, "in 2x" + into + "{width}/{name}-{width}x{height:03} --existing number", "2 done"));
    EXPECT_TRUE(filesIn("out").contains("24/1-24x018-2.ppm"));
    EXPECT_EQ("mine", content("out/24/1-24x018.ppm"));
    // "a1" and "2", or "a" and "12": known only when the second is done.
    QDir(folder.path()).mkdir("two");
    ASSERT_TRUE(input().save(path("two/a.ppm")));
    ASSERT_TRUE(input().scaled(2, 9).save(path("two/a1.ppm")));
    EXPECT_TRUE(
        ends(1, "two INVERT" + into + "x/{name}{width} --jobs 1", "two/a.ppm has become out/x/a12.ppm already"));
    EXPECT_EQ(12, QImage(path("out/x/a12.ppm")).width());
    EXPECT_TRUE(ends(0, "two INVERT" + into + "x/{name}{width} --existing number", "2 done"));
    EXPECT_EQ((QStringList{"x/a12-2.ppm", "x/a12-3.ppm", "x/a12.ppm"}), filesIn("out").filter("x/"));
    ASSERT_TRUE(input().save(path("two/a12.ppm")));
    EXPECT_TRUE(ends(1, "two/a12.ppm two/a.ppm INVERT --existing replace --into two --name {name}{width}",
                     "two/a12.ppm is an input"));
    EXPECT_EQ(input(), QImage(path("two/a12.ppm")).convertToFormat(QImage::Format_RGB32));
}

TEST_F(ManyTest, WordsThatAreFilesAreRefusedWhereTheyStandForSteps)
{
    QDir(folder.path()).mkdir("50");
    ASSERT_TRUE(input().save(path("50/x.ppm")));
    EXPECT_TRUE(ends(2, "in 50 --into out", "write ./50 for the file, or --do before the steps"));
    EXPECT_TRUE(ends(0, "in ./50 --do 50 --into out", "3 done"));
    EXPECT_TRUE(ends(0, "in 50 --into out2 --do 50", "3 done"));
    EXPECT_EQ(QSize(6, 4), QImage(path("out2/x.ppm")).size());
}

TEST_F(ManyTest, UnusableArgumentsWriteNothing)
{
    QDir(folder.path()).mkdir("same");
    ASSERT_TRUE(input().save(path("same/1.ppm")));
    const QStringList before = files();
    const std::tuple<const char*, int, const char*> kCases[] = {
        {"in INVRET --into out", 2, "there is no file INVRET, and as a step: \"INVRET\" is neither"},
        {"in EMBOSS(x) --into out", 2, "Weight"},
        {"in INVERT in.ppm --into out", 2, "in.ppm"},
        {"in INVERT --do --into out", 2, "there is no file INVERT"},
        {"INVERT --into out", 2, "INPUT is missing"},
        {"- INVERT --into out", 2, "-"},
        {"in INVERT --into", 2, "--into: a folder has to follow"},
        {"in INVERT --into in.ppm", 2, "in.ppm is no folder"},
        {"in INVERT --into out --name {x}", 2, "there is no field {x}"},
        {"in INVERT --into out --existing maybe", 2, "skip, replace, number, newer"},
        {"in INVERT --into out --jobs 0", 2, "--jobs"},
        {"in INVERT --into out --shard 3/2", 2, "--shard"},
        {"in INVERT --into out --shard 1/2 --existing number", 2, "shards can't agree"},
        {"in INVERT --into out --format psd", 2, "--format: one of bmp, gif, jpg"},
        {"in INVERT --into out --format png --quality 50", 2, "--quality"},
        {"in INVERT --in-place", 2, "--yes"},
        {"in INVERT --in-place --yes --into out", 2, "one place"},
        {"in INVERT --into in", 1, "no pictures"},
        {"in same INVERT --into out", 2, "in/1.ppm and same/1.ppm would both become out/1.ppm"},
        {"in/1.ppm INVERT --into in", 2, "--in-place --yes"},
        {"in INVERT --into out --report in/1.ppm", 2, "--report: in/1.ppm is one of the pictures"},
        {"in INVERT --into out --report none/r", 1, "none/r can't be written"},
        {"in INVERT --into in.ppm/x", 1, "can't be made"},
        {"in Texturize(gone.ppm) --into out", 1, "gone.ppm"},
        {"in.ppm INVERT --jobs 2 out.ppm", 2, "--jobs: this goes with --into"},
        {"in.ppm INVERT --format png out.ppm", 2, "--format"},
        {"in.ppm INVERT -", 2, "--format has to say"},
        {"in.ppm --recipe gone.txt out.ppm", 2, "gone.txt"},
    };
    for (const auto& [arguments, status, said] : kCases) {
        EXPECT_TRUE(ends(status, arguments, said));
        QStringList after = files();
        EXPECT_TRUE(!after.contains("out") || filesIn("out").isEmpty()) << arguments;
        after.removeAll("out");
        EXPECT_EQ(before, after) << arguments;
        QDir(path("out")).removeRecursively();
    }
    EXPECT_EQ(content("in.ppm"), content("in/1.ppm"));
}

TEST_F(ManyTest, OriginalsAreChangedWhenItIsSaidTwice)
{
    EXPECT_TRUE(ends(0, "in --recursive INVERT --in-place --yes", "3 done"));
    EXPECT_EQ(input([](int, int) { return true; }), QImage(path("in/b/3.ppm")));
}

TEST_F(ManyTest, AFailureEndsItWhereThatIsWanted)
{
    put("in/0.ppm", "no picture");
    EXPECT_TRUE(ends(1, "in INVERT --into out --jobs 1 --stop-at-first", "1 failed, 2 not begun"));
    EXPECT_TRUE(filesIn("out").isEmpty());
    EXPECT_TRUE(ends(1, "in --into out BitsResize(30000,30000)", "at most 256"));
}

TEST_F(ManyTest, RecipesFormatsAndTheWeb)
{
    put("recipe", "velara recipe 1\n# half of it\nINVERT\n50\n");
    EXPECT_TRUE(ends(0, "in --recipe recipe FLIPH --into out --format jpg --quality 20"));
    EXPECT_TRUE(ends(0, "--recipe recipe --into fine --format jpg --quality 95 -- in FLIPH")) << "as the editor does";
    EXPECT_EQ(QSize(6, 4), QImage(path("out/1.jpg")).size());
    EXPECT_LT(content("out/1.jpg").size(), content("fine/1.jpg").size());
    put("recipe", "velara recipe 1\nINVRET\n");
    EXPECT_TRUE(ends(2, "in --recipe recipe --into out", "2"));
    EXPECT_TRUE(ends(0, "in --into out --icon 8x8"));
    EXPECT_EQ((QStringList{"1.ico", "1.jpg", "2.ico", "2.jpg"}), filesIn("out"));
}

TEST_F(ManyTest, OnePictureGoesThroughAPipe)
{
    const QString piped = QString("\"$0\" \"$@\" <in.ppm >out.png; exit $?; true");
    EXPECT_TRUE(ends(0, "- INVERT - --format png", {}, piped));
    EXPECT_EQ(input([](int, int) { return true; }), QImage(path("out.png")).convertToFormat(QImage::Format_RGB32));
    EXPECT_TRUE(ends(1, "- INVERT - --format png", "standard input is empty", "\"$0\" \"$@\" </dev/null; exit $?"));
    EXPECT_TRUE(ends(1, "in.ppm INVERT - --format png", "standard output can't be written",
                     "\"$0\" \"$@\" >/dev/full; exit $?"));
}

} // namespace
} // namespace velara
