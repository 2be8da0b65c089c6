// What programs that died have left is offered at the start: in a dialog, and on the start page.
#include "app/frame/frameTest.h"
#include "app/start/Recovery.h"
#include "app/start/fRecovery.h"
#include "document/Workspace.h"
#include "support/files.h"
#include "ui/compose/fLayers.h"

namespace velara {

namespace {

struct RecoveryFrame : FrameTest {
    std::vector<Bits> pictures;

    /// A document with two changes, of a program that died.
    void leave(int number, const Layers::State& texts = {})
    {
        UndoStore store(path("Temp"), number);
        DocumentFacts about{.isUnsaved = true, .texts = texts};
        about.file.path = path(QString("picture %1.bmp").arg(number));
        store.willDescribe(about);
        for (int i = 0; i < 3; ++i)
            store.save(pictures.emplace_back(randomBits(30 + number, 20, unsigned(number + i))), "Blur");
        ASSERT_TRUE(store.stands());
        const auto now = QDateTime::currentMSecsSinceEpoch();
        while (QDateTime::currentMSecsSinceEpoch() == now) continue; // the next one is later
    }
    fRecovery* dialog() { return frame->findChild<fRecovery*>(); }
    QListWidget* page() { return controlOf<QListWidget>(*frame, "lstRecoverable"); }
    void look()
    {
        frame->recovery().look();
        ASSERT_TRUE(comes([&] { return std::ranges::all_of(frame->recovery().offers(), &Offer::isRead) && dialog(); }));
    }
    void press(const char* button) { controlOf<QPushButton>(*dialog(), button)->click(); }
    bool opens(int count)
    {
        return comes([&] { return frame->documents().size() == count; });
    }
};

} // namespace

TEST_F(RecoveryFrame, OffersEachAndAllWithThumbnailsNamesAndTimes)
{
    for (const int number : {4, 5, 6}) leave(number);
    look();
    EXPECT_EQ(page()->count(), 3);
    EXPECT_TRUE(page()->isVisible());
    EXPECT_EQ(controlOf<QLabel>(*dialog(), "lblName_0")->text(), "picture 6.bmp") << "the last one first";
    EXPECT_TRUE(controlOf<QLabel>(*dialog(), "lblFacts_0")->text().endsWith(", 2 steps"));
    EXPECT_FALSE(controlOf<QLabel>(*dialog(), "lblPicture_0")->pixmap().isNull());
    EXPECT_EQ(frame->recovery().offers()[0].thumbnail.size(), QSize(36, 20));

    press("cmdLater_1");
    EXPECT_EQ(page()->count(), 3) << "it stays on the page";
    press("cmdRecoverAll");
    ASSERT_TRUE(opens(2));
    EXPECT_TRUE(comes([&] { return !dialog(); })) << "nothing is left in it";
    const fImage* image = frame->documents()[0];
    EXPECT_EQ(image->document().file.caption(), "picture 6.bmp");
    EXPECT_TRUE(sameBits(pictures[8], image->document().bits()));
    EXPECT_TRUE(image->isWindowModified());
    EXPECT_EQ(image->document().undo.undoName(), "Blur");

    frame->run("@RECOVER");
    ASSERT_TRUE(dialog());
    press("cmdDiscardAll");
    EXPECT_EQ(page()->count(), 1) << "the question was cancelled";
    platform.answers = {"&Discard"};
    press("cmdDiscardAll");
    EXPECT_EQ(page()->count(), 0);
    EXPECT_TRUE(comes([&] { return QDir(path("Temp")).entryList({"b0005*"}).isEmpty(); }));
    frame->run("@RECOVER");
    EXPECT_EQ(last(), "message: Velara Studio: There is nothing to recover.");
}

TEST_F(RecoveryFrame, APictureOfTheStartPageOpensByAClick)
{
    leave(4);
    look();
    press("cmdLater");
    EXPECT_TRUE(comes([&] { return !dialog(); }));
    emit page()->itemClicked(page()->item(0));
    ASSERT_TRUE(opens(1));
    EXPECT_TRUE(sameBits(pictures[2], frame->GetActiveImage()->document().bits()));
}

TEST_F(RecoveryFrame, TextsThatWereNotMergedWaitAgain)
{
    const Layer layer{"Hello", {"Serif", 15}, 255, {2, 2, 28, 18}};
    leave(4, {{2, {layer, true}}});
    leave(5, {{3, {layer, true}}});
    look();
    press("cmdRecoverAll");
    ASSERT_TRUE(opens(2));
    auto* texts = frame->findChild<fLayers*>();
    ASSERT_TRUE(texts && texts->hasTexts());
    const QList<fImage*> images = frame->documents();
    const DocumentHandle first = images[0]->document().handle(), second = images[1]->document().handle();
    EXPECT_EQ(texts->document(), first) << "the window has room for one";
    EXPECT_FALSE(first->waitingTexts.empty() || second->waitingTexts.empty());
    const Bits before = second->bits();
    ASSERT_TRUE(second->waitingWork && second->waitingWork()) << "as saving does";
    EXPECT_FALSE(before == second->bits());
    EXPECT_TRUE(second->waitingTexts.empty() && !second->waitingWork);
    platform.answers = {"no"};
    texts->close();
    EXPECT_TRUE(first->waitingTexts.empty() && !first->waitingWork);
}

TEST_F(RecoveryFrame, WhatCanNotBeReadIsToldAndStaysUntilItIsDiscarded)
{
    leave(4);
    for (int i = 0; i < 3; ++i) QFile::remove(path(QString("Temp/b00040%1.dat").arg(i)));
    look();
    press("cmdRecover_0");
    ASSERT_TRUE(comes([&] { return last().find("can't be read") != std::string::npos; }));
    EXPECT_EQ(page()->count(), 1);
    EXPECT_TRUE(QFile::exists(path("Temp/b0004.rec")));
}

} // namespace velara
