// Which pictures there are, and what becomes of each.
#include "batch/Failure.h"
#include "batch/many/Plan.h"
#include "fileio/disk/nativeName.h"
#include "support/files.h"
#include <fcntl.h>
#include <set>
#include <unistd.h>

namespace velara {
namespace {

struct PlanTest : FolderTest {
    ManyOrder order;

    void SetUp() override { order.into = path("out"); }
    void make(const QStringList& names) const
    {
        for (const QString& name : names) {
            QDir(folder.path()).mkpath(QFileInfo(name).path());
            put(name, "x");
        }
    }
    /// The names below the folder.
    QStringList below(const QStringList& paths) const
    {
        QStringList names;
        for (const QString& each : paths) names << each.mid(folder.path().size() + 1);
        return names;
    }
    InputList list(const QStringList& inputs, bool recursive = true) const
    {
        QStringList paths;
        for (const QString& each : inputs) paths << path(each);
        return findInputs(paths, recursive, order.into);
    }
    QStringList found(const QStringList& inputs, bool recursive = true) const
    {
        QStringList paths;
        const InputFiles files = list(inputs, recursive).files;
        for (int i = 0; i < files.size(); ++i) paths << files.path(i);
        return below(paths);
    }
    Plan plan(const QStringList& inputs) const
    {
        return planOf(order, list(inputs).files, [](const QString& ending) { return ending; });
    }
    QStringList outputs(const QStringList& inputs) const
    {
        QStringList paths;
        const Plan made = plan(inputs);
        for (int i = 0; i < made.size(); ++i)
            if (!made.isSkipped(i)) paths << made.output(i);
        return below(paths);
    }
    QString refusal(const QStringList& inputs) const
    {
        try {
            plan(inputs);
            return "none";
        } catch (const Failure& failure) {
            return failure.status == Status::BadArgument ? failure.text : "another status";
        }
    }
};

TEST_F(PlanTest, FoldersAreLookedThroughOnceInTheOrderOfNames)
{
    make({"in/p10.jpg", "in/P2.png", "in/notes.txt", "in/.hidden.jpg", "in/b/c/deep.gif", "in/b/mid.bmp", "one.jpg",
          "in/out/old.jpg"});
    order.into = path("in/out");
    QFile::link(path("in"), path("in/b/loop"));
    QFile::link(path("in/gone.jpg"), path("in/dead.jpg"));
    EXPECT_EQ((QStringList{"in/P2.png", "in/p10.jpg", "in/b/mid.bmp", "in/b/c/deep.gif", "one.jpg"}),
              found({"in", "one.jpg", "in/p10.jpg", "in"}));
    EXPECT_EQ((QStringList{"in/P2.png", "in/p10.jpg"}), found({"in"}, false));
    const QStringList notices = list({"in"}).notices;
    EXPECT_EQ(2, notices.size()) << "the loop and the target: " << notices.join(u' ').toStdString();
    EXPECT_EQ((QStringList{"missing.jpg"}), found({"missing.jpg"})) << "told when it is its turn";
}

TEST_F(PlanTest, NamesInOtherBytesStayThese)
{
    make({"in/a.jpg"});
    const QByteArray odd = QFile::encodeName(path("in/")) + "b\xe9.jpg";
    const int file = creat(odd.constData(), 0600);
    ASSERT_GE(file, 0);
    close(file);
    const Plan made = plan({"in"});
    ASSERT_EQ(2, made.size());
    EXPECT_EQ(odd, nativeName(made.input(1)));
    EXPECT_EQ(QFile::encodeName(path("out/")) + "b\xe9.jpg", nativeName(made.output(1)));
}

TEST_F(PlanTest, TheTreeBelowAFolderIsKept)
{
    make({"in/a.jpg", "in/b/c/d.pgm", "one.jpg"});
    EXPECT_EQ((QStringList{"out/a.jpg", "out/b/c/d.ppm", "out/one.jpg"}), outputs({"in", "one.jpg"}));
    order.pattern = "{n:03}-{name}.{ext}";
    EXPECT_EQ((QStringList{"out/001-a.jpg", "out/002-d.ppm", "out/003-one.jpg"}), outputs({"in", "one.jpg"}));
}

TEST_F(PlanTest, TwoInputsForOneOutputAreRefused)
{
    make({"in/a.jpg", "other/a.jpg", "in/a.pgm", "in/a.ppm"});
    EXPECT_TRUE(refusal({"in/a.jpg", "other/a.jpg"}).contains("in/a.jpg and "));
    EXPECT_TRUE(refusal({"in/a.pgm", "in/a.ppm"}).contains("out/a.ppm")) << "both become a pixmap";
    order.pattern = "{parent}/{name}.{ext}";
    EXPECT_EQ("none", refusal({"in/a.jpg", "other/a.jpg"}));
    make({"out/in/x.jpg"});
    QFile::link(path("out/in"), path("out/other"));
    EXPECT_TRUE(refusal({"in/a.jpg", "other/a.jpg"}).contains("both become")) << "by a link";
}

TEST_F(PlanTest, OriginalsAreNotWrittenOver)
{
    make({"in/a.jpg", "in/b.jpg", "out/x.jpg"});
    order.into = path("in");
    EXPECT_TRUE(refusal({"in/a.jpg"}).contains("--in-place --yes"));
    order.pattern = "b.{ext}";
    EXPECT_TRUE(refusal({"in/a.jpg", "in/b.jpg"}).contains("b.jpg"));
    order.pattern = "{name}-web.{ext}";
    EXPECT_EQ("none", refusal({"in/a.jpg"}));
    order.into = path("out");
    order.pattern = "{name}.{ext}";
    QFile::link(path("in/a.jpg"), path("out/a.jpg"));
    EXPECT_TRUE(refusal({"in/a.jpg"}).contains("is an input")) << "by a link";
    order.into.clear();
    order.inPlace = true;
    EXPECT_EQ((QStringList{"in/a.jpg"}), outputs({"in/a.jpg"}));
    EXPECT_EQ(0,
              link(QFile::encodeName(path("in/a.jpg")).constData(), QFile::encodeName(path("in/c.jpg")).constData()));
    EXPECT_TRUE(refusal({"in/a.jpg", "in/c.jpg"}).contains("both become")) << "one file by two names";
}

TEST_F(PlanTest, WhatIsThereIsLeftReplacedNumberedOrRenewed)
{
    make({"in/a.jpg", "in/b.jpg", "out/a.jpg", "out/a-2.jpg", "out/b.jpg"});
    const QDateTime noon(QDate(2026, 2, 3), QTime(12, 0));
    for (const QString name : {"in/a.jpg", "in/b.jpg", "out/b.jpg"}) touchFile(path(name), noon);
    touchFile(path("out/a.jpg"), noon.addSecs(-1));
    const std::pair<Existing, QStringList> kCases[] = {
        {Existing::Skip, {}},
        {Existing::Replace, {"out/a.jpg", "out/b.jpg"}},
        {Existing::Number, {"out/a-3.jpg", "out/b-2.jpg"}},
        {Existing::Newer, {"out/a.jpg"}},
    };
    for (const auto& [existing, wanted] : kCases) {
        order.existing = existing;
        EXPECT_EQ(wanted, outputs({"in"})) << int(existing);
    }
    make({"in/b-2.jpg"});
    order.existing = Existing::Number;
    EXPECT_TRUE(refusal({"in/b.jpg", "in/b-2.jpg"}).contains("both become")) << "one by its number";
}

TEST_F(PlanTest, ShardsShareTheWorkWhereverTheFolderIs)
{
    QStringList names;
    for (int i = 0; i < 400; ++i) names << QString("b/img%1.jpg").arg(i);
    for (const QString& name : names) make({"in/" + name, "elsewhere/pics/" + name});
    order.pattern = "{n}.{ext}";
    const QStringList all = outputs({"in"});
    std::set<QString> together;
    for (const int part : {1, 2, 3, 4}) {
        order.shard = {part, 4};
        const QStringList here = outputs({"in"}), there = outputs({"elsewhere/pics"});
        EXPECT_EQ(here, there) << "the same numbers on another machine";
        EXPECT_NEAR(100, here.size(), 30);
        together.insert(here.begin(), here.end());
    }
    EXPECT_EQ(together, std::set<QString>(all.begin(), all.end()));
}

} // namespace
} // namespace velara
