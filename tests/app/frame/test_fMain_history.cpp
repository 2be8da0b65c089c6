// The box "History", recipes in the editor, and saving all.
#include "app/frame/frameTest.h"
#include "app/utilities/Recipes.h"
#include "commands/recipe/recipeJob.h"
#include "document/Draft.h"
#include "support/files.h"
#include "ui/compose/fLayers.h"
#include "ui/history/fHistory.h"
#include "ui/merge/fOverlay.h"

namespace velara {
namespace {

struct History : FrameTest {
    fHistory* box() const { return frame->findChild<fHistory*>(); }
    QListWidget* list() const { return box()->findChild<QListWidget*>("lstHistory"); }
    /// The first line of each row, the present one in brackets.
    std::string rows() const
    {
        QStringList texts;
        for (int i = 0; i < list()->count(); ++i) {
            const QString name = list()->item(i)->text().section('\n', 0, 0);
            texts << (i == list()->currentRow() ? '[' + name + ']' : name);
        }
        return texts.join(", ").toStdString();
    }
    void clickRow(int row)
    {
        const QRect place = list()->visualItemRect(list()->item(row));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place.center());
        frame->workspace().wait();
    }
    void chooseOf(int row, const char* action)
    {
        emit list()->customContextMenuRequested(list()->visualItemRect(list()->item(row)).center());
        const QPointer<QMenu> menu = box()->findChild<QMenu*>("mnuHistory");
        QAction* chosen = menu->findChild<QAction*>(action);
        chosen->trigger();
        menu->close();
        frame->workspace().wait();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QString wordsOf(fImage* image) const
    {
        const UndoStore::Listed listed = image->document().undo.listed();
        return listed.notes.at(std::size_t(listed.shown)).words;
    }
    /// What the last step's words make of the picture that it got.
    Bits byWords(fImage* image, const Bits& before)
    {
        Document document({}, 0);
        document.takePicture(before);
        cBitFilter engine;
        document.handTo(engine);
        Draft draft(document, before, engine, After::Step);
        const QString recipe = recipeText(wordsOf(image).split('\n'));
        const Outcome outcome = draft.attempt(recipeJob(Recipe::parse(recipe, {}).steps, platform));
        EXPECT_TRUE(outcome) << outcome.reason.toStdString();
        if (outcome) draft.take();
        return document.bits();
    }
    QString recipe(const QByteArray& text)
    {
        QDir().mkpath(frame->recipes().folder());
        putFile(frame->recipes().folder() + "/Try.recipe", text);
        return frame->recipes().folder() + "/Try.recipe";
    }
    void run(const QByteArray& text)
    {
        frame->recipes().run(recipe(text));
        frame->workspace().wait();
    }
};

TEST_F(History, TheBoxFollowsTheActiveDocumentAndAClickGoesToAStep)
{
    frame->action("VIEWS_7")->trigger();
    ASSERT_TRUE(box()->isVisible());
    EXPECT_EQ(rows(), "");
    fImage* first = open(randomBits(30, 20, 1), "a.bmp");
    const Bits start = first->bits();
    EXPECT_EQ(rows(), "[At the start]");
    command("INVERT");
    const Bits inverted = first->bits();
    command("N90");
    command("FLIPH");
    EXPECT_EQ(rows(), "At the start, Invert, Quick Rotate: 90°, [Flip Horizontal]");
    EXPECT_EQ(list()->item(1)->text().section('\n', 1), "INVERT");
    const QColor middle = list()->item(1)->icon().pixmap(48, 40).toImage().pixelColor(24, 20);
    EXPECT_EQ(middle.alpha(), 255) << "the small picture";
    clickRow(1);
    EXPECT_TRUE(sameBits(inverted, first->bits()));
    EXPECT_EQ(rows(), "At the start, [Invert], Quick Rotate: 90°, Flip Horizontal");
    EXPECT_EQ(first->document().undo.UndoStep(), 2);
    clickRow(3);
    command("UNDO");
    EXPECT_EQ(rows(), "At the start, Invert, [Quick Rotate: 90°], Flip Horizontal");
    clickRow(0);
    EXPECT_TRUE(sameBits(start, first->bits()));
    EXPECT_FALSE(frame->action("EDIT_0")->isEnabled());
    fImage* second = open(randomBits(8, 8, 2), "b.bmp");
    EXPECT_EQ(rows(), "[At the start]");
    activate(first);
    command("ERODE");
    EXPECT_EQ(rows(), "At the start, [Erode]") << "what could be redone is gone";
    setup.AskToSave = false;
    first->parentWidget()->close();
    activate(second);
    EXPECT_EQ(rows(), "[At the start]");
    second->parentWidget()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(rows(), "");
    clickRow(0); // nothing is there
}

TEST_F(History, AStepThatLeftTheSeriesIsListedAndGreyAndLeadsNowhere)
{
    frame->action("VIEWS_7")->trigger();
    fImage* image = open(randomBits(6, 5, 1));
    for (int i = 0; i < 12; ++i) command("INVERT");
    ASSERT_TRUE(image->document().undo.stands());
    command("FLIPH");
    const Bits now = image->bits();
    EXPECT_EQ(list()->count(), 14);
    clickRow(1);
    EXPECT_TRUE(sameBits(now, image->bits()));
    EXPECT_EQ(list()->currentRow(), 13) << "the present one stays marked";
    EXPECT_NE(list()->item(1)->foreground(), list()->item(12)->foreground());
    EXPECT_TRUE(list()->item(1)->toolTip().contains("not kept any more"));
}

TEST_F(History, ARecipeOfItLeavesOutWhatAHandDidOnlyAfterAsking)
{
    frame->action("VIEWS_7")->trigger();
    fImage* image = open(flatBits(40, 30, 9, 99, 199), "a.bmp");
    command("N180");
    image->document().Region.CreateRect(3, 2, 17, 14, Combine::Or, true);
    frame->workspace().handOver(image->document());
    click("Pencil");
    drag(image, {4, 3}, {12, 9});
    command("INVERT");
    command("FLIPH");
    EXPECT_TRUE(list()->item(2)->text().endsWith("painted by hand"));
    const QString path = this->path("a.recipe");
    frame->action("RECIPE_1")->trigger();
    EXPECT_TRUE(last().starts_with("ask: Recipe: 1 of 4 steps were made by hand")) << last();
    EXPECT_FALSE(QFile::exists(path)) << "cancelled";
    platform.answers = {"&Leave them out", path};
    frame->action("RECIPE_1")->trigger();
    EXPECT_EQ(fileBytes(path).toStdString(), "velara recipe 1\nN180\n# made by hand, left out: Pencil\n"
                                             "--select rect:3,2,17,14\nINVERT\nFLIPH\n");
    platform.answers = {path};
    chooseOf(3, "mnuSaveRecipe");
    EXPECT_EQ(fileBytes(path).toStdString(), "velara recipe 1\n--select rect:3,2,17,14\nINVERT\nFLIPH\n");
    chooseOf(4, "mnuCopyCommand");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "velara-batch input.png --select rect:3,2,17,14 FLIPH output.png");
    platform.answers = {path + "/b.recipe"}; // a file is no folder
    chooseOf(4, "mnuSaveRecipe");
    EXPECT_TRUE(last().ends_with("a.recipe/b.recipe can't be written.")) << last();
}

TEST_F(History, WhatToolsAndBoxesComputeHasWordsToo)
{
    fImage* image = open(randomBits(40, 30, 1), "a.bmp");
    setup.ForeColor = 0x3080F0;
    const auto expectWords = [&](const char* begin, const std::function<void()>& act) {
        const Bits before = image->bits();
        act();
        frame->workspace().wait();
        EXPECT_TRUE(wordsOf(image).startsWith(begin)) << wordsOf(image).toStdString();
        EXPECT_FALSE(image->bits() == before) << begin;
        EXPECT_TRUE(sameBits(image->bits(), byWords(image, before))) << begin;
    };
    for (const std::int32_t mode : {GradientMode::Linear, GradientMode::Circular})
        expectWords(mode == GradientMode::Circular ? "GradientCircular(" : "GradientLinear(", [&] {
            setup.GradientMode = mode;
            click("Gradient");
            drag(image, {4, 3}, {30, 20});
        });
    for (const auto& [effect, words] : {std::pair("tb_8", "ApplyTexture(8,"), {"tb_28", "SKETCH("}})
        expectWords(words, [&] {
            controlOf<QAbstractButton>(*frame, effect)->click();
            controlOf<QAbstractButton>(*frame, "CmdApply")->click();
        });
    expectWords("TEXT(yellow,", [&] {
        command("TEXTTOOLS");
        auto* texts = frame->findChild<fLayers*>();
        QTest::keyClicks(texts->findChild<QWidget*>("picImage"), "yellow");
        controlOf<QAbstractButton>(*texts, "CmdOK")->click();
    });
    openFile(file("over.bmp", 12, 9));
    fImage* over = frame->GetActiveImage();
    const auto merge = [&] {
        activate(image);
        frame->Mmenu("IMAGEMERGING");
        controlOf<QAbstractButton>(*frame->findChild<fOverlay*>(), "cmdOK")->click();
        frame->workspace().wait();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    expectWords("TileMask(", merge);
    activate(over);
    command("INVERT");
    merge();
    EXPECT_EQ(wordsOf(image), "") << "it isn't the picture of the file any more";
}

/// The words of commands are run by the test of the road; a tool has some, too, or stands here with the reason.
TEST_F(History, AToolHasWordsOrPaintsByHand)
{
    const std::map<std::string_view, const char*> kByHand = {
        {"SelectionMove", "moves what a hand has selected, to where it lets go"},
        {"Brush", "follows the hand"},
        {"Fill", "begins with the color that lies under the pointer"},
        {"Shape", "is drawn from where the hand presses to where it lets go"},
        {"Airbrush", "follows the hand, and sprays at random"},
        {"Stamp", "puts a picture of the program's lists under the hand"},
        {"Pencil", "follows the hand"},
    };
    setup.ForeColor = 0x3080F0;
    setup.MoveSelection = 1;
    std::set<std::string_view> painted;
    for (const ToolRow& tool : toolRows()) {
        fImage* image = open(randomBits(40, 30, 1), "a.bmp");
        image->document().Region.CreateRect(3, 2, 17, 14, Combine::Or, true);
        frame->workspace().handOver(image->document());
        click(tool.name);
        drag(image, {6, 5}, {14, 11});
        frame->workspace().wait();
        if (image->document().undo.UndoTop() < 2) continue; // it picks, selects, or has nothing to put
        painted.insert(tool.name);
        EXPECT_EQ(wordsOf(image).isEmpty(), kByHand.contains(tool.name)) << tool.name;
        image->document().Changed = false;
        image->parentWidget()->close();
    }
    EXPECT_TRUE(painted.contains("Gradient") && painted.contains("Pencil"));
}

TEST_F(History, ItRunsOnTheOtherOpenPicturesEachWithOneUndoStep)
{
    frame->action("VIEWS_7")->trigger();
    const Bits large = randomBits(40, 30, 1), small = randomBits(10, 9, 2), other = randomBits(50, 40, 3);
    fImage *tiny = open(small, "small.bmp"), *third = open(other, "other.bmp"), *own = open(large, "own.bmp");
    command("INVERT");
    own->document().Region.CreateRect(20, 20, 30, 28, Combine::Or, true);
    frame->workspace().handOver(own->document());
    command("CROP");
    command("FLIPH");
    platform.log.clear();
    chooseOf(2, "mnuRunOnOthers");
    EXPECT_TRUE(sameBits(small, tiny->bits()));
    EXPECT_EQ(tiny->document().undo.UndoTop(), 1);
    EXPECT_TRUE(last().find("small.bmp: --select rect:20,20,30,28: it lies outside of the picture, which is 10 by 9") !=
                std::string::npos)
        << last();
    EXPECT_EQ(platform.log.size(), 1U) << "told once";
    EXPECT_EQ(third->document().undo.UndoTop(), 2);
    cBitFilter filter;
    filter.setBits(other);
    filter.BitsCrop(other, 20, 20, 30, 28);
    filter.setBitsRegion(Region::rectangle(0, 0, 10, 8));
    EXPECT_TRUE(sameBits(filter.Flip(true, false), third->bits())) << "from the second step on";
    EXPECT_EQ(own->document().undo.UndoTop(), 4) << "it has them already";
}

TEST_F(History, ARecipeIsOneUndoStepAndAFaultIsToldWithItsLine)
{
    const Bits picture = randomBits(20, 16, 1);
    fImage* image = open(picture);
    run("velara recipe 1\nINVERT\nx2\n# a remark\nN90\n");
    EXPECT_EQ(image->bits().width(), 8);
    EXPECT_EQ(image->document().undo.UndoTop(), 2);
    EXPECT_EQ(image->document().undo.undoName(), "Try");
    const Bits result = image->bits();
    for (const auto& [text, told] :
         {std::pair<const char*, const char*>{"velara recipe 1\nINVRET\n", "line 2: \"INVRET\""},
          {"velara recipe 7\n", "line 1: the recipe is of version 7"},
          {"velara recipe 1\n", "there is no step in it"},
          {"velara recipe 1\nFLIPH\nCROP\n", "CROP: Nothing selected"}}) {
        run(text);
        EXPECT_NE(last().find(told), std::string::npos) << last();
        EXPECT_TRUE(sameBits(result, image->bits()));
    }
    command("UNDO");
    EXPECT_TRUE(sameBits(picture, image->bits()));
    auto* menu = frame->findChild<QMenu*>("mnuRecipes");
    recipe("velara recipe 1\nx2\n");
    for (int i = 0; i < 2; ++i) emit menu->aboutToShow();
    ASSERT_EQ(menu->findChildren<QAction*>("recipe_Try.recipe").size(), 1);
    menu->findChild<QAction*>("recipe_Try.recipe")->trigger();
    frame->workspace().wait();
    EXPECT_EQ(image->bits().width(), 10);
}

TEST_F(History, SaveAllWritesWhatChangedAfterOneQuestion)
{
    const QStringList names{"a.bmp", "b.bmp", "c.bmp"};
    for (const QString& name : names) openFile(file(name, 20, 10));
    std::map<QString, QByteArray> before;
    for (const QString& name : names) before[name] = fileBytes(path(name));
    frame->action("FILE_9")->trigger();
    EXPECT_TRUE(platform.log.empty() || !last().starts_with("ask")) << "nothing has changed";
    for (fImage* image : frame->documents()) {
        activate(image);
        if (!image->Caption().startsWith('b')) command("INVERT");
    }
    open(randomBits(7, 7, 1), "new.bmp");
    command("INVERT");
    const auto unchanged = [&] {
        std::string all;
        for (const QString& name : names) all += fileBytes(path(name)) == before[name] ? '=' : '!';
        return all;
    };
    frame->action("FILE_9")->trigger(); // cancelled
    frame->workspace().wait();
    EXPECT_EQ(unchanged(), "===");
    platform.log.clear();
    platform.answers = {"&Save", path("named.png")};
    frame->action("FILE_9")->trigger();
    frame->workspace().wait();
    EXPECT_EQ(unchanged(), "!=!");
    EXPECT_EQ(platform.log.size(), 2U);
    EXPECT_EQ(platform.log.front(), "ask: Save All: These are written to their own files:\na.bmp\nc.bmp\n\n"
                                    "These need a name, for which you are asked:\nnew.bmp");
    EXPECT_TRUE(QFile::exists(path("named.png")));
    for (fImage* image : frame->documents()) EXPECT_FALSE(image->document().wouldBeLost());
}

} // namespace
} // namespace velara
