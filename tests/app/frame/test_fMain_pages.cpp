// Files of several pages, and of another kind than their names say.
#include "app/frame/fStatus.h"
#include "app/frame/frameTest.h"
#include "support/files.h"
#include <QtWidgets>

namespace velara {

namespace {

struct PagesTest : FrameTest {
    void step(bool next)
    {
        frame->action(next ? "PAGE_0" : "PAGE_1")->trigger();
        frame->workspace().wait();
    }
    QString shown() { return frame->status().panel(Panel::Page); }
    bool canStep(bool next) { return frame->action(next ? "PAGE_0" : "PAGE_1")->isEnabled(); }
};

} // namespace

TEST_F(PagesTest, EachPageIsADocumentOfItsOwn)
{
    EXPECT_FALSE(canStep(true));
    platform.pages = 3;
    openFile(file("a.bmp"));
    EXPECT_EQ(shown(), "1 of 3");
    EXPECT_EQ(frame->GetActiveImage()->Caption(), "a.bmp");
    EXPECT_FALSE(canStep(false));
    frame->setStatus(Panel::Hint, "Esc: drop");
    EXPECT_TRUE(frame->status().findChild<QWidget*>("sbInfo_Page")->isVisible());
    frame->setStatus(Panel::Hint, {});

    frame->run("@NEXTPAGE");
    frame->run("@NEXTPAGE"); // the key is held down
    frame->workspace().wait();
    ASSERT_EQ(frame->documents().size(), 2);
    EXPECT_EQ(frame->GetActiveImage()->Caption(), "a.bmp [2 of 3]");
    EXPECT_EQ(frame->GetActiveImage()->document().undo.UndoStep(), 1);
    EXPECT_EQ(shown(), "2 of 3");
    step(true);
    EXPECT_EQ(frame->GetActiveImage()->Caption(), "a.bmp [3 of 3]");
    EXPECT_FALSE(canStep(true));
    step(false);
    ASSERT_EQ(frame->documents().size(), 3) << "it is open";
    EXPECT_EQ(frame->GetActiveImage(), frame->documents()[1]);
    EXPECT_EQ(shown(), "2 of 3");

    platform.pages = 1; // another program has written the file
    frame->documents()[2]->parentWidget()->close();
    activate(frame->documents()[1]);
    step(true);
    EXPECT_EQ(frame->documents().size(), 2);
    EXPECT_EQ(frame->status().currentMessage(), "it has fewer pages");
    openFile(file("b.bmp"));
    EXPECT_EQ(shown(), "");
    EXPECT_FALSE(frame->status().findChild<QWidget*>("sbInfo_Page")->isVisible());
    EXPECT_FALSE(canStep(true) || canStep(false));
}

TEST_F(PagesTest, OtherPagesAreLostAfterAQuestionOnly)
{
    platform.pages = 3;
    const QString a = file("a.bmp");
    openFile(a);
    const QByteArray whole = fileBytes(a);
    command("FLIPH");
    command("SAVE");
    EXPECT_EQ(last(), "ask: Save: " + a.toStdString() +
                          "\nIt has 3 pages; this one alone would be left of it."
                          "\nDo you want to save it under another name ?");
    platform.answers = {"Save &As ...", a, {}};
    command("SAVE");
    EXPECT_EQ(last(), "ask: Save: " + a.toStdString() + "\nIt has 3 pages; this one alone would be left of it.");

    step(true);
    command("FLIPH");
    command("SAVE");
    EXPECT_EQ(last(), "save: Save as");
    EXPECT_EQ(platform.lastDialog.name, "a-2.bmp");
    EXPECT_EQ(fileBytes(a), whole);
    platform.answers = {path("c.bmp")};
    command("SAVE");
    EXPECT_EQ(frame->GetActiveImage()->Caption(), "c.bmp");
    EXPECT_EQ(shown(), "");

    activate(frame->documents()[0]);
    step(true);
    platform.answers = {a, "&Overwrite"};
    command("SAVE");
    EXPECT_EQ(frame->GetActiveImage()->Caption(), "[1]a.bmp") << "beside the first page";
    putFile(a, whole);
    activate(frame->documents()[0]);
    platform.answers = {"&Overwrite"};
    command("SAVE");
    EXPECT_NE(fileBytes(a), whole);
    EXPECT_EQ(shown(), "");
    EXPECT_FALSE(canStep(true));
}

TEST_F(PagesTest, AFileOfAnotherKindIsNamedAndNotConvertedUnasked)
{
    platform.format = "png";
    const QString a = file("a.jpg");
    openFile(a);
    EXPECT_EQ(frame->status().currentMessage(), "a.jpg is a PNG picture.");
    const QByteArray before = fileBytes(a);
    command("FLIPH");
    platform.answers = {"Save &As ...", {}};
    command("SAVE");
    EXPECT_TRUE(platform.logged("ask: Save: " + a.toStdString() +
                                "\nIt is a PNG picture; saved under this name it would become a JPEG picture."
                                "\nDo you want to save it under another name ?"));
    EXPECT_EQ(platform.lastDialog.name, "a.png");
    EXPECT_EQ(fileBytes(a), before);
    platform.answers = {"&Overwrite"};
    command("SAVE");
    EXPECT_NE(fileBytes(a), before);
    platform.log.clear();
    command("FLIPH");
    command("SAVE");
    EXPECT_TRUE(platform.log.empty()) << "it is a JPEG now: " << last();

    platform.format = "jpg";
    openFile(file("b.jpeg"));
    EXPECT_EQ(frame->status().currentMessage(), "");
}

} // namespace velara
