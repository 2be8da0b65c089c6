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
}

TEST_F(Window, ZoomIsLimited)
{
    fImage& w = open(randomBits(10, 10, 1));
    w.setZoomFactor(99);
    EXPECT_EQ(w.ZoomFactor(), 15);
    w.setZoomFactor(-4);
    EXPECT_EQ(w.ZoomFactor(), 1);

    w.setZoomFactor(15);
    take(Bits(2185, 3));
    EXPECT_EQ(w.ZoomFactor(), 1) << "2185 times 15 is too wide";
    w.setZoomFactor(14);
    EXPECT_EQ(w.ZoomFactor(), 14);
    w.setZoomFactor(15);
    EXPECT_EQ(w.ZoomFactor(), 1);
    EXPECT_EQ(w.findChild<fDisplay*>()->selection().ZoomFactor(), 1);
    EXPECT_TRUE(iDst()->isVisible());
}

TEST_F(Window, BarsAreAtLeastThirteenWide)
{
    fImage& w = open(randomBits(9, 9, 1));
    for (const auto& [asked, got] : {std::pair(13, 13), {5, 13}, {-1, 13}, {14, 14}, {30, 30}}) {
        w.setBarsWidth(asked);
        EXPECT_EQ(w.minimumWidth(), 2 * got);
    }
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

TEST_F(Window, AStepIsShown)
{
    const DocumentHandle document = open(randomBits(20, 10, 1)).document().handle();
    take(Bits(30, 15));
    const auto step = [&](bool back) {
        Outcome became;
        frame.workspace_.step(document, back, [&](const Outcome& outcome) { became = outcome; });
        frame.settle();
        return became.kind;
    };
    EXPECT_EQ(step(true), Outcome::Done);
    EXPECT_EQ(iDst()->size(), QSize(20, 10));
    EXPECT_TRUE(frame.filter_.bits() == document->bits());
    EXPECT_EQ(step(false), Outcome::Done);
    EXPECT_EQ(iDst()->size(), QSize(30, 15));
    EXPECT_EQ(step(false), Outcome::Failed);
}

TEST_F(Window, AsksBeforeAChangedDocumentCloses)
{
    const struct {
        const char* what;
        bool option, changed, secondStep, brought;
        const char* answer; // null: no question is expected
        bool closes, saves;
    } rows[] = {
        // clang-format off
        {"unchanged",                true,  false, true,  false, nullptr, true,  false},
        {"nothing committed",        true,  true,  false, false, nullptr, true,  false},
        {"the user wants no question", false, true, true, true,  nullptr, true,  false},
        {"brought, and nowhere else", true, false, false, true,  "no",    true,  false},
        {"no",                       true,  true,  true,  false, "no",    true,  false},
        {"yes",                      true,  true,  true,  false, "yes",   true,  true},
        {"yes, not saved after all", true,  true,  true,  false, "yes",   false, true},
        {"cancel",                   true,  true,  true,  false, "",      false, false},
        // clang-format on
    };
    for (const auto& row : rows) {
        frame.onCall = nullptr;
        fImage& w = open(randomBits(5, 5, 1));
        w.document().file.path = "/pictures/x.png";
        frame.setup_.AskToSave = row.option;
        w.document().Changed = row.changed;
        w.document().file.isBrought = row.brought;
        if (row.secondStep) w.document().SaveUndoBits();
        frame.onCall = [&](const std::string& line) {
            if (line == "word: SAVE" && row.closes) w.document().saved();
        };
        frame.platform_.log.clear();
        frame.platform_.answers.clear();
        if (row.answer && *row.answer) frame.platform_.answers = {QString(row.answer)};
        frame.log.clear();
        EXPECT_EQ(w.close(), row.closes) << row.what;
        EXPECT_EQ(frame.platform_.logged(
                      "ask: Velara Studio: /pictures/x.png\nThis image has changed.\nDo you want to save it ?"),
                  row.answer != nullptr)
            << row.what;
        EXPECT_EQ(frame.logged("word: SAVE"), row.saves) << row.what;
        const QDir temp(frame.platform_.folder.path() + "/Temp");
        EXPECT_EQ(temp.entryList(QDir::Files).isEmpty(), row.closes) << row.what << ": undo files";
        image.reset();
        frame.onCall = nullptr;
    }
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
        frame.platform_.answers = {QString("yes")};
        if (beforeTheAnswer) frame.platform_.onAsk = [&] { image.reset(); };
        frame.onCall = [&](const std::string&) { image.reset(); };
        w.close();
        EXPECT_EQ(image, nullptr);
        EXPECT_EQ(frame.logged("word: SAVE"), 1);
    }
}

TEST_F(Window, InTheFramesAreaTheOutlineRestsWithTheDocument)
{
    QMdiArea area;
    area.resize(600, 400);
    auto* a = new fImage(frame, frame.workspace_.add(randomBits(40, 30, 1)));
    auto* b = new fImage(frame, frame.workspace_.add(randomBits(40, 30, 1)));
    for (fImage* w : {a, b}) {
        w->document().Region.CreateRect(5, 5, 20, 20, Combine::Or, true);
        area.addSubWindow(w);
    }
    area.show();
    for (QMdiSubWindow* window : area.subWindowList()) window->show();
    area.setActiveSubWindow(area.subWindowList()[0]);
    a->activate();
    EXPECT_TRUE(a->findChild<QTimer*>("tmrSelection")->isActive());
    area.setActiveSubWindow(area.subWindowList()[1]);
    EXPECT_FALSE(a->findChild<QTimer*>("tmrSelection")->isActive());
    a->setCaption("renamed");
    EXPECT_EQ(a->parentWidget()->windowTitle(), "renamed");
}

} // namespace velara
