// The tree of folders with real ones, used by mouse and keys.
#include "support/ui/controls.h"
#include "ui/widgets/FolderModel.h"
#include "ui/widgets/fFolderTree.h"
#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace velara {
namespace {

struct FolderTree : ::testing::Test {
    QTemporaryDir top;

    QString at(const QString& name) const { return top.path() + '/' + name; }
    void file(const QString& name) const { QFile(at(name)).open(QFile::WriteOnly); }

    void SetUp() override
    {
        for (const char* folder : {"alpha", "beta", "locked"}) QDir(top.path()).mkdir(folder);
        for (const char* name : {"alpha/anna.png", "alpha/Bert.PNG", "alpha/notes.txt"}) file(name);
        QFile::link(top.path(), at("loop"));
        QFile::setPermissions(at("locked"), {});
    }
    void TearDown() override { QFile::setPermissions(at("locked"), QFile::ReadOwner | QFile::ExeOwner); }
};

struct Shown {
    fFolderTree tree;
    QStringList selections, choices;

    explicit Shown(fFolderTree::Shows shows) : tree(shows, "BF", "Folders")
    {
        QObject::connect(&tree, &fFolderTree::selection, &tree, [this](const QString& path) { selections << path; });
        QObject::connect(&tree, &fFolderTree::chosen, &tree, [this](const QString& path) { choices << path; });
        tree.resize(320, 400);
        tree.show();
    }
    int rows(const QString& folder) const
    {
        auto* model = static_cast<FolderModel*>(tree.model());
        return model->rowCount(model->indexOf(folder));
    }
    /// Waits until the tree shows so many items in the folder.
    bool holds(const QString& folder, int count) const
    {
        return comes([&] { return rows(folder) == count; });
    }
    void doubleClick()
    {
        const QPoint at = tree.visualRect(tree.currentIndex()).center();
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, at);
    }
};

using Shows = fFolderTree::Shows;

} // namespace

TEST_F(FolderTree, ShowsFoldersAloneOrTheirFilesToo)
{
    Shown folders(Shows::Folders), all(Shows::FoldersAndFiles);
    for (Shown* shown : {&folders, &all}) shown->tree.select(at("alpha"));
    EXPECT_TRUE(all.holds(at("alpha"), 3));
    EXPECT_TRUE(folders.holds(top.path(), 4)); // including the link
    EXPECT_EQ(folders.rows(at("alpha")), 0);
    EXPECT_EQ(folders.selections, QStringList(at("alpha")));
    for (const char* name : {"p10.png", "p2.png", "P3.png", "zeta"}) file(QString("beta/") + name);
    QDir(top.path()).mkdir("beta/yard");
    all.tree.select(at("beta/p10.png"));
    QStringList names;
    for (int row = 0; row < all.rows(at("beta")); ++row)
        names << all.tree.currentIndex().siblingAtRow(row).data().toString();
    EXPECT_EQ(names, QStringList({"yard", "p2.png", "P3.png", "p10.png", "zeta"}));
}

TEST_F(FolderTree, DoubleClickAndEnterChooseWhatIsAskedFor)
{
    Shown folders(Shows::Folders), all(Shows::FoldersAndFiles);
    folders.tree.select(at("beta"));
    ASSERT_TRUE(folders.holds(top.path(), 4));
    folders.doubleClick();
    QTest::keyClick(&folders.tree, Qt::Key_Return);
    EXPECT_EQ(folders.choices, QStringList({at("beta"), at("beta")}));

    all.tree.select(at("alpha"));
    ASSERT_TRUE(all.holds(at("alpha"), 3));
    all.doubleClick(); // a folder collapses, and is not chosen
    EXPECT_FALSE(all.tree.isExpanded(all.tree.currentIndex()));
    QTest::keyClick(&all.tree, Qt::Key_Enter);
    EXPECT_TRUE(all.tree.isExpanded(all.tree.currentIndex()));
    EXPECT_EQ(all.choices, QStringList());
    QTest::keyClicks(&all.tree, "be");
    EXPECT_EQ(all.tree.path(), at("alpha/Bert.PNG"));
    all.doubleClick();
    EXPECT_EQ(all.choices, QStringList(at("alpha/Bert.PNG")));
}

TEST_F(FolderTree, TakesLoopsLocksAndWhatIsNotThere)
{
    Shown shown(Shows::FoldersAndFiles);
    shown.tree.select(at("loop/loop/loop/alpha/anna.png")); // keeps the path as given, through links
    EXPECT_EQ(shown.tree.path(), at("loop/loop/loop/alpha/anna.png"));
    EXPECT_TRUE(shown.holds(at("loop/loop/loop/alpha"), 3));
    shown.tree.select(at("locked"));
    EXPECT_EQ(shown.tree.path(), at("locked"));
    shown.tree.select(at("beta/gone/for/good.png"));
    EXPECT_EQ(shown.tree.path(), at("beta"));
    shown.tree.select(QString());
    EXPECT_NE(shown.tree.path(), QString());
}

TEST_F(FolderTree, FollowsTheDisk)
{
    Shown shown(Shows::FoldersAndFiles);
    shown.tree.select(at("alpha/anna.png"));
    ASSERT_TRUE(shown.holds(at("alpha"), 3));
    QFile::remove(at("alpha/anna.png"));
    EXPECT_TRUE(shown.holds(at("alpha"), 2));
    EXPECT_NE(shown.tree.path(), at("alpha/anna.png"));
    shown.tree.select(at("alpha/Bert.PNG"));
    EXPECT_EQ(shown.tree.currentIndex().row(), 0);
    file("beta/new.png");
    file("alpha/new.png");
    EXPECT_TRUE(shown.holds(at("alpha"), 3));
}

TEST_F(FolderTree, WhatComesAndGoesAboveMovesNothing)
{
    for (int i = 0; i < 40; ++i) file(QString("beta/%1.png").arg(i, 2, 10, QChar('0')));
    Shown shown(Shows::FoldersAndFiles);
    shown.tree.select(at("beta/20.png"));
    ASSERT_TRUE(shown.holds(at("beta"), 40));
    const auto place = [&] { return shown.tree.visualRect(shown.tree.currentIndex()); };
    shown.tree.scrollTo(shown.tree.currentIndex(), QTreeView::PositionAtCenter);
    const QRect before = place();
    ASSERT_GT(before.top(), 0);
    for (const char* name : {"beta/00b.png", "beta/01b.png", "beta/33b.png"}) file(name);
    ASSERT_TRUE(shown.holds(at("beta"), 43));
    EXPECT_EQ(place(), before);
    for (const char* name : {"beta/00b.png", "beta/01b.png", "beta/02.png", "beta/33b.png"}) QFile::remove(at(name));
    ASSERT_TRUE(shown.holds(at("beta"), 39));
    EXPECT_EQ(place(), before);
    file("a.png"); // beside the folder, after it
    QDir(top.path()).mkdir("aa");
    ASSERT_TRUE(comes([&] { return shown.rows(top.path()) == 6; }));
    EXPECT_EQ(place(), before);
}

TEST_F(FolderTree, AFolderOfThousandsComesInOnePiece)
{
    QDir(top.path()).mkdir("many");
    for (int i = 0; i < 5000; ++i) file(QString("many/picture%1.png").arg(i));
    Shown shown(Shows::FoldersAndFiles);
    const QSignalSpy pieces(shown.tree.model(), &QAbstractItemModel::rowsInserted);
    shown.tree.select(at("many/picture2500.png"));
    ASSERT_TRUE(shown.holds(at("many"), 5000));
    EXPECT_LT(pieces.size(), 100);
    EXPECT_TRUE(shown.tree.uniformRowHeights()) << "else each row is measured";
}

} // namespace velara
