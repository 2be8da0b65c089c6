// The browser and the list of formats as commands of the frame.
#include "app/frame/frameTest.h"
#include "app/menus/Boxes.h"
#include "support/files.h"
#include "ui/browse/fAssociation.h"
#include "ui/browse/fBrowse.h"
#include "ui/compose/fToolTextures.h"
#include "ui/widgets/fFolderTree.h"
#include <QtTest>

namespace velara {

namespace {

struct BrowseTest : FrameTest {
    static fBrowse* browser()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (QWidget* top : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<fBrowse*>(top); found && found->isVisible()) return found;
        return nullptr;
    }
    void choose(const QString& path)
    {
        ASSERT_NE(browser(), nullptr);
        browser()->findChild<fFolderTree*>("BF")->select(path);
        browser()->findChild<QPushButton*>("CmdOpen")->click();
        frame->workspace().wait();
        EXPECT_EQ(browser(), nullptr);
    }
};

} // namespace

TEST_F(BrowseTest, OpensAsOpenDoesAndComesBackToThePlace)
{
    frame->run("@BROWSE");
    choose(file("Green.PNG"));
    ASSERT_NE(frame->GetActiveImage(), nullptr);
    EXPECT_EQ(frame->GetActiveImage()->Caption(), "Green.PNG");
    EXPECT_EQ(frame->GetActiveImage()->document().bits().width(), 12);
    EXPECT_EQ(setup.Recent[0].trimmed(), path("Green.PNG"));
    frame->run("@BROWSE");
    EXPECT_EQ(browser()->findChild<fFolderTree*>("BF")->path(), path("Green.PNG"));
}

TEST_F(BrowseTest, WhatCantBeReadIsToldOnceAndNothingStaysOpen)
{
    for (const char* name : {"broken.png", "broken.gif", "odd.jpeg"}) {
        putFile(path(name), "no picture");
        platform.log.clear();
        frame->run("@BROWSE");
        choose(path(name));
        EXPECT_EQ(std::ranges::count(platform.log, "message: Velara Studio: Unexpected error loading image"), 1)
            << name;
        EXPECT_EQ(platform.lastIcon, Icon::Exclamation);
        EXPECT_TRUE(frame->workspace().documents().empty());
        EXPECT_EQ(setup.Recent[0].trimmed(), "");
    }
}

TEST_F(BrowseTest, TheTexturesBoxTakesAFolder)
{
    QDir(platform.folder.path()).mkdir("Cloth");
    file("Cloth/linen.bmp");
    frame->boxes().show(Boxes::Textures);
    auto* box = frame->findChild<fToolTextures*>();
    box->findChild<QPushButton*>("cmdfile")->click();
    browser()->reject();
    box->findChild<QPushButton*>("cmdfile")->click();
    choose(path("Cloth"));
    const auto* files = box->findChild<QListWidget*>("ListFile");
    ASSERT_EQ(files->count(), 1);
    EXPECT_EQ(files->item(0)->text(), "linen.bmp");
    EXPECT_EQ(box->textureFolder(), path("Cloth"));
}

TEST_F(BrowseTest, TheListOfFormatsStandsOnce)
{
    command("FILEASSOCIATION");
    frame->run("@ASSOCIATION");
    EXPECT_EQ(frame->findChildren<fAssociation*>().size(), 1);
    EXPECT_TRUE(frame->findChild<fAssociation*>()->isVisible());
    EXPECT_FALSE(frame->findChild<fAssociation*>()->isModal());
}

} // namespace velara
