// A document window as used by a user.
#include "ui/view/ImageFixture.h"
#include "ui/view/fDisplay.h"
#include <QtWidgets>

namespace velara {

using Window = ImageFixture;

TEST_F(Window, LaysOutAndScrolls)
{
    fImage& w = open(randomBits(300, 50, 1), 200, 150);
    EXPECT_TRUE(control("hSB")->isVisible());
    EXPECT_FALSE(control("vSB")->isVisible());
    EXPECT_EQ(iDst()->geometry(), QRect(0, 40, 200, 50));
    EXPECT_EQ(w.GetSBV(), QPoint(50, 0)) << "first shown in the middle";
    w.Scroll(20, 0);
    w.setZoomFactor(2);
    EXPECT_EQ(w.findChild<QScrollBar*>("hSB")->maximum(), 400);
    EXPECT_EQ(w.GetSBV().x(), 80);
    w.setZoomFactor(1);
    EXPECT_EQ(w.GetSBV().x(), 20) << "back again";
    w.resize(400, 300);
    EXPECT_EQ(iDst()->geometry(), QRect(50, 125, 300, 50));
    w.resize(10, 10);
    EXPECT_EQ(w.size(), QSize(40, 40)) << "room for its bars";
    w.setBarsWidth(5);
    EXPECT_EQ(w.minimumWidth(), 2 * 13) << "the least for the mouse";
}

TEST_F(Window, ZoomIsLimited)
{
    fImage& w = open(randomBits(10, 10, 1));
    w.setZoomFactor(99);
    EXPECT_EQ(w.ZoomFactor(), 15);
    w.setZoomFactor(-4);
    EXPECT_EQ(w.ZoomFactor(), 1);

    w.setZoomFactor(15);
    take(Bits(3, 2184));
    EXPECT_EQ(w.ZoomFactor(), 15);
    take(Bits(3, 2185));
    EXPECT_EQ(w.ZoomFactor(), 1) << "2185 times 15 is too high";
    take(Bits(2185, 3));
    w.setZoomFactor(14);
    EXPECT_EQ(w.ZoomFactor(), 14);
    w.setZoomFactor(15);
    EXPECT_EQ(w.ZoomFactor(), 1);
    EXPECT_EQ(w.findChild<fDisplay*>()->selection().ZoomFactor(), 1);
    EXPECT_TRUE(iDst()->isVisible());
}

TEST_F(Window, ActivationHandsThePictureToTheEngineOnce)
{
    fImage& a = open(randomBits(20, 10, 1));
    fImage b(frame, frame.workspace_.add(randomBits(12, 11, 2)));
    b.activate();
    EXPECT_TRUE(frame.filter_.bits() == b.bits());
    const Bits committed = randomBits(12, 11, 3);
    frame.filter_.setBits(committed);
    b.activate();
    EXPECT_TRUE(frame.filter_.bits() == committed) << "the same document again leaves the engine alone";
    a.activate();
    EXPECT_TRUE(frame.filter_.bits() == a.bits());
}

TEST_F(Window, TheLastDocumentEmptiesTheStatusBar)
{
    fImage& a = open(randomBits(5, 5, 1));
    auto b = std::make_unique<fImage>(frame, frame.workspace_.add({}));
    frame.setStatus(Panel::Name, "a");
    frame.setStatus(Panel::Zoom, "1 : 1");
    frame.document = &b->document();
    a.close();
    EXPECT_EQ(frame.status[Panel::Name], "a");
    b->close();
    EXPECT_EQ(frame.status[Panel::Name], "");
    EXPECT_EQ(frame.status[Panel::Zoom], "");
}

TEST_F(Window, MayBeDestroyedWhileItAsks)
{
    for (const bool beforeTheAnswer : {false, true}) {
        fImage& w = open(randomBits(5, 5, 1));
        frame.setup_.AskToSave = true;
        w.document().file.isBrought = true;
        w.document().file.path = "/pictures/x.png";
        frame.platform_.answers = {QString("yes")};
        if (beforeTheAnswer) frame.platform_.onAsk = [&] { image.reset(); };
        frame.onCall = [&](const std::string&) { image.reset(); };
        w.close();
        EXPECT_EQ(image, nullptr);
        EXPECT_EQ(frame.platform_.log.back(),
                  "ask: Velara Studio: /pictures/x.png\nThis image has changed.\nDo you want to save it ?");
        EXPECT_EQ(frame.logged("word: SAVE"), 1);
    }
}

} // namespace velara
