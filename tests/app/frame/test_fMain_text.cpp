// Text and effects in the frame: the box and the mouse tool, the layers dialog, and their results in the document and
// its undo files.
#include "app/frame/frameTest.h"
#include "pixels/images.h"
#include "ui/compose/fLayers.h"
#include "ui/compose/fToolTextures.h"
#include <QtTest>
#include <QtWidgets>

namespace velara {

struct FrameText : FrameTest {
    template <class T = QWidget> T* find(const char* name) { return frame->findChild<T*>(name); }
};

TEST_F(FrameText, ATypedTextIsStampedInsideTheSelectionWithTheToolsOpacity)
{
    setup.ToolOpacity = 60;
    setup.ForeColor = 0x2040FF;
    const Bits before = flatBits(120, 90, 200, 180, 160);
    fImage* image = open(before);
    image->document().Region.CreateRect(30, 20, 70, 60, Combine::Or, true);
    image->document().handTo(frame->workspace().engine());
    if (!find("fToolTextures")->isVisible()) frame->action("VIEWS_5")->trigger();
    QTest::keyClicks(find<QPlainTextEdit>("txtText"), "abc");
    QTest::mouseClick(find("cmdPlace"), Qt::LeftButton);
    EXPECT_EQ("Text", setup.CurrentTool.trimmed());
    EXPECT_TRUE(frame->toolPane().button("Text")->isChecked());
    const Bits text = frame->toolStores().text;
    ASSERT_FALSE(text.isNull());

    drag(image, {20, 20}, {55, 45});
    Document twin({}, 0);
    twin.takePicture(before);
    twin.Region = image->document().Region;
    const auto held = [](int size) { return (size + 1) / 2 + 1; }; // the upper bound includes the margin
    twin.paint.BitsBWMask(55 - held(text.width()), 45 - held(text.height()), text, 0x2040FF, 60);
    EXPECT_FALSE(before == twin.bits());
    EXPECT_TRUE(sameBits(twin.bits(), image->bits()));
    command("UNDO");
    EXPECT_TRUE(sameBits(before, image->bits()));
    command("REDO");
    EXPECT_TRUE(sameBits(twin.bits(), image->bits()));
}

TEST_F(FrameText, TheTextToolWithoutATextBringsTheBox)
{
    if (setup.TexturesBoxVisible) frame->action("VIEWS_5")->trigger();
    const Bits before = flatBits(120, 90, 200, 180, 160);
    fImage* image = open(before);
    frame->toolPane().button("Text")->click();
    ASSERT_TRUE(find("fToolTextures")->isVisible());
    EXPECT_EQ(find("txtText"), find("fToolTextures")->focusWidget());
    frame->action("VIEWS_5")->trigger();
    drag(image, {20, 20}, {55, 45});
    EXPECT_TRUE(QTest::qWaitFor([&] { return find("fToolTextures")->isVisible(); })) << "a press brings it, too";
    EXPECT_TRUE(before == image->bits());
}

TEST_F(FrameText, TheBoxIsShownAndHiddenByItsMenuItem)
{
    QAction* item = frame->action("VIEWS_5");
    const bool before = setup.TexturesBoxVisible;
    item->trigger();
    EXPECT_EQ(!before, setup.TexturesBoxVisible);
    EXPECT_EQ(!before, find("fToolTextures")->isVisible());
    item->trigger();
    EXPECT_EQ(before, setup.TexturesBoxVisible);
}

TEST_F(FrameText, LayersAreMergedIntoTheirOwnDocument)
{
    command("TEXTTOOLS");
    EXPECT_FALSE(frame->findChild<fLayers*>()) << "no document";
    const Bits first = flatBits(200, 100, 9, 9, 9), second = flatBits(50, 40, 1, 2, 3);
    fImage* a = open(first, "a.bmp");
    command("TEXTTOOLS");
    const QPointer<fLayers> dialog = frame->findChild<fLayers*>();
    ASSERT_TRUE(dialog);
    command("TEXTTOOLS");
    EXPECT_EQ(1, frame->findChildren<fLayers*>().size()) << "the one that is there";
    QTest::keyClicks(dialog->findChild<QWidget*>("picImage"), "hello");
    fImage* b = open(second, "b.bmp");
    QTest::mouseClick(dialog->findChild<QWidget*>("CmdOK"), Qt::LeftButton);
    frame->workspace().wait();
    EXPECT_FALSE(first == a->bits());
    EXPECT_TRUE(a->document().Changed);
    EXPECT_TRUE(sameBits(second, b->bits()));
    EXPECT_TRUE(frame->workspace().engine().bits() == second) << "the engine holds the active one's";
    EXPECT_TRUE(!dialog || !dialog->isVisible());
}

TEST_F(FrameText, TextsThatWaitAreAskedForBeforeTheyGoWithTheirDocument)
{
    for (const bool saved : {false, true}) {
        fImage* image = open(flatBits(200, 100, 9, 9, 9), "a.bmp");
        platform.answers.clear();
        command("TEXTTOOLS");
        const QPointer<fLayers> dialog = frame->findChild<fLayers*>();
        QTest::keyClicks(dialog->findChild<QWidget*>("picImage"), "hello");
        QWidget* window = image->parentWidget();
        EXPECT_TRUE(window->isWindowModified());
        for (const char* other : {"IMAGECOLORDEPTH", "IMAGESAVEOPTIONS"}) command(other); // cancelled
        EXPECT_FALSE(frame->close() || window->close());
        ASSERT_TRUE(dialog->isVisible());
        const Bits merged = dialog->asTyped().Blend();
        platform.log.clear();
        platform.answers = {saved ? "yes" : "no", path("saved.bmp")};
        window->close();
        EXPECT_EQ("ask: Velara Studio: " + path("a.bmp").toStdString() +
                      "\nThis image has changed.\nDo you want to save it ?",
                  platform.log.front());
        EXPECT_EQ(saved ? 2 : 1, platform.log.size()) << "one question";
        EXPECT_TRUE(frame->documents().isEmpty());
        EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog || !dialog->isVisible(); }));
        const Bits written = platform.loadPicture(path("saved.bmp"), "bmp").bits;
        EXPECT_TRUE(saved ? imageOver(merged) == imageOver(written) : written.isNull());
    }
}

} // namespace velara
