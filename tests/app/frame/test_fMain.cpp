// The frame: the command language, the questions and messages of each command, and its results.
#include "app/frame/fStatus.h"
#include "app/frame/frameTest.h"
#include "app/menus/menus.h"
#include "commands/vocabulary.h"
#include "pixels/RuntimeError.h"
#include "seams/text.h"
#include "tools/toolRows.h"
#include <QtTest>
#include <QtWidgets>
#include <set>

namespace velara {

TEST_F(FrameTest, AWordIsInOneTableAloneAndHasOneSpelling)
{
    std::set<std::string_view> met;
    for (const CommandWord& command : vocabulary())
        EXPECT_TRUE(met.insert(command.word).second) << command.word << " is in two tables";
    for (const char* word : {"new", "2X", "HALFTONE", ""}) EXPECT_FALSE(findCommandWord(word)) << word;
}

TEST_F(FrameTest, WithoutADocumentOnlyTheFreeCommandsDoAnything)
{
    std::vector<std::string> words;
    for (const CommandWord& command : vocabulary())
        if (command.stage == Stage::NeedsImage) words.emplace_back(command.word);
    words.emplace_back("CREATEFROMCLIPBOARD"); // finds nothing there
    for (const std::string& word : words) command(QString::fromStdString(word));
    EXPECT_TRUE(platform.log.empty()) << last();
    EXPECT_TRUE(frame->documents().isEmpty());

    command("OPEN");
    EXPECT_EQ(last(), "open: Open file");
    platform.recordingClipboard.bits = randomBits(5, 4, 1);
    command("CREATEFROMCLIPBOARD");
    ASSERT_EQ(frame->documents().size(), 1);
    EXPECT_EQ(frame->documents()[0]->PictureWidth(), 5);
    EXPECT_EQ(frame->documents()[0]->Caption(), "New.bmp");
}

TEST_F(FrameTest, EveryItemAndButtonGivesAKnownWordAndIsEnabledWhenItIsThere)
{
    QSet<QString> names;
    const auto check = [&](const QString& name, std::string_view word) {
        EXPECT_TRUE(findCommandWord(word)) << name.toStdString();
        EXPECT_FALSE(names.contains(name)) << "twice: " << name.toStdString();
        names << name;
        const QAction* action = frame->action(name);
        ASSERT_NE(action, nullptr) << name.toStdString();
        // By their own state:
        const bool follows = word == "UNDO" || word == "REDO" || name.startsWith("RF_") || name.startsWith("PAGE_");
        EXPECT_TRUE(follows || action->isEnabled() == fMain::available(word)) << name.toStdString();
    };
    int items = 0;
    for (const MenuRow& row : menuRows())
        if (row.kind == MenuKind::Item) {
            check(text(row.array) + "_" + QString::number(row.index), row.word);
            ++items;
        }
    EXPECT_GT(items, 170);
    for (const ButtonRow& row : buttonRows()) check(text(row.bar) + "_" + QString::number(row.number), row.word);
    for (const DropRow& row : dropRows())
        check(text(row.bar) + "_" + QString::number(row.button) + "_" + QString::number(row.item), row.word);
}

TEST_F(FrameTest, NoMenuHasAnAccessKeyTwiceAndItemsGoWithoutOnlyWhenNoneIsLeft)
{
    for (const QMenu* menu : frame->findChildren<QMenu*>()) {
        if (menu->objectName() == "mnuRecent") continue;
        QSet<QChar> taken;
        QString without;
        for (const QAction* item : menu->actions()) {
            if (item->isSeparator()) continue;
            const QString caption = QString(item->text()).replace("&&", "");
            const qsizetype at = caption.indexOf('&');
            if (at < 0) {
                without += caption;
                continue;
            }
            const QChar key = caption[at + 1].toUpper();
            EXPECT_FALSE(taken.contains(key)) << menu->objectName().toStdString() << ": " << caption.toStdString();
            taken << key;
        }
        for (const QChar letter : without)
            EXPECT_TRUE(!letter.isLetterOrNumber() || taken.contains(letter.toUpper()))
                << menu->objectName().toStdString() << ": " << without.toStdString();
    }
}

TEST_F(FrameTest, UndoAndRedoAreGreyOrNameTheirStep)
{
    const auto texts = [&] {
        QStringList all;
        for (const char* name : {"EDIT_0", "EDIT_1"})
            all << frame->action(name)->text() + (frame->action(name)->isEnabled() ? "" : " (grey)");
        return all.join(", ").toStdString();
    };
    EXPECT_EQ(texts(), "&Undo (grey), &Redo (grey)");
    fImage* image = open(randomBits(60, 50, 4));
    EXPECT_EQ(texts(), "&Undo (grey), &Redo (grey)");
    frame->Mmenu("LIGHTEMBOSS");
    EXPECT_TRUE(comes([&] { return texts() == "&Undo Emboss: Light, &Redo (grey)"; }));
    frame->workspace().wait();
    EXPECT_EQ(frame->action("tb_0_7")->toolTip(), "Undo Emboss: Light (Ctrl+Z)");
    click("Pencil");
    drag(image, {10, 10}, {30, 25});
    EXPECT_EQ(texts(), "&Undo Pencil, &Redo (grey)");
    frame->action("EDIT_0")->trigger();
    frame->workspace().wait();
    EXPECT_EQ(texts(), "&Undo Emboss: Light, &Redo Pencil");
}

TEST_F(FrameTest, ACommandIsFoundByWhatItIsFor)
{
    const auto found = [&](const QString& typed, int row = 0, Qt::Key key = Qt::Key_Return) {
        frame->run("@SEARCH");
        const QPointer<QDialog> window = frame->findChild<QDialog*>("fSearch");
        auto* field = window->findChild<QLineEdit*>("txtSearch");
        field->setText(typed);
        const auto* list = window->findChild<QTreeWidget*>("lstFound");
        const QString line = list->topLevelItem(row)->text(0) + '|' + list->topLevelItem(row)->text(1) + '|' +
                             list->topLevelItem(row)->text(2);
        for (int i = 0; i < row; ++i) QTest::keyClick(field, Qt::Key_Down);
        QTest::keyClick(field, key);
        EXPECT_TRUE(comes([&] { return !window; }));
        QCoreApplication::processEvents();
        frame->workspace().wait();
        return line.toStdString();
    };
    fImage* image = open(randomBits(9, 9, 4));
    EXPECT_EQ(found("flip vert"), "Flip Vertical|Image|");
    EXPECT_EQ(image->document().undo.UndoStep(), 2) << "it was run";
    EXPECT_EQ(found("brush"), "Brush|Tool|B");
    EXPECT_EQ(setup.CurrentTool, "Brush");
    frame->action("COLORS_1")->trigger();
    EXPECT_EQ(found("", 1), "Flip Vertical|Image · used lately|") << "the one before the last used";
    frame->saveState();
    EXPECT_EQ(platform.settings["VeStu/LastUsed"], "FLIPV OLDPHOTO");
    frame->toolClicked("Pencil");
    EXPECT_EQ(found("size ctrl", 0, Qt::Key_Escape), "Nothing has this name.||");
    platform.answers = {std::nullopt};
    EXPECT_EQ(found("load file"), "Open|File|Ctrl+O");
    EXPECT_EQ(last(), "open: Open file");
    EXPECT_EQ(found("hide a face", 0, Qt::Key_Escape), "Pixelize|Effects|");
}

TEST_F(FrameTest, TheFullScreenIsLeftAsItWasEntered)
{
    frame->resize(700, 500);
    frame->run("@FULLSCREEN");
    QCoreApplication::processEvents();
    EXPECT_TRUE(frame->isFullScreen() && frame->action("VIEWS_10")->isChecked());
    EXPECT_EQ(setup.FrameWidth, 700 * 15);
    EXPECT_FALSE(setup.FrameMaximized);
    QTest::keyClick(frame.get(), Qt::Key_Escape);
    EXPECT_FALSE(frame->isFullScreen() || frame->action("VIEWS_10")->isChecked());
}

TEST_F(FrameTest, HoverTextsAndHelpTellTheKeys)
{
    EXPECT_EQ(frame->action("tb_0_11")->toolTip(), "Copy (Ctrl+C)");
    EXPECT_TRUE(frame->action("BLUR_1")->toolTip().contains("two pixels"));
    frame->run("@KEYS");
    const auto* list = frame->findChild<QTreeWidget*>("lstKeys");
    QSet<QString> keys;
    for (const QAction* action : frame->findChildren<QAction*>())
        for (const QKeySequence& key : action->shortcuts()) {
            EXPECT_FALSE(keys.contains(key.toString())) << "does nothing: " << key.toString().toStdString();
            keys << key.toString();
        }
    for (const char* key : {"Ctrl+Shift+P", "Ctrl+Alt+I", "F11", "K"})
        EXPECT_EQ(list->findItems(key, Qt::MatchExactly | Qt::MatchRecursive, 1).size(), 1) << key;
}

TEST_F(FrameTest, WordsInTheStatusBarGiveWayAndTheNameHasRoom)
{
    frame->resize(640, 480);
    open(randomBits(20, 20, 5), "a rather long name of a picture that nobody can read whole here, at all.bmp");
    auto* name = frame->findChild<QLabel*>("sbInfo_Name");
    EXPECT_GT(name->width(), 160);
    EXPECT_EQ(name->toolTip(), frame->GetActiveImage()->Tag());
    frame->status().say("words");
    frame->setStatus(Panel::Pos, "X:1 Y:1");
    EXPECT_EQ(frame->status().currentMessage(), "words");
    command("FLIPH");
    EXPECT_EQ(frame->status().currentMessage(), "");
    frame->status().say("words");
    frame->setStatus(Panel::Hint, "Esc: drop");
    EXPECT_EQ(frame->status().currentMessage(), "");
}

TEST_F(FrameTest, ViewZoomLeavesThePixels)
{
    fImage* image = open(randomBits(9, 9, 4));
    command("700");
    EXPECT_EQ(image->ZoomFactor(), 7);
    EXPECT_EQ(image->PictureWidth(), 9);
    EXPECT_EQ(frame->status().panel(Panel::Zoom), "7 : 1");
    frame->toolClicked("ZoomOut");
    EXPECT_EQ(frame->status().panel(Panel::Zoom), "6 : 1");
}

TEST_F(FrameTest, OneLetterChoosesATool)
{
    open(randomBits(9, 9, 4));
    frame->activateWindow();
    const auto* strip = frame->findChild<QWidget*>("tb_tools");
    int number = 0;
    for (const ToolRow& tool : toolRows()) {
        QTest::keyClick(frame.get(), tool.key);
        EXPECT_EQ(setup.CurrentTool, tool.name);
        const auto* button = strip->findChild<QToolButton*>("tb_tools_" + QString::number(++number));
        ASSERT_TRUE(button) << tool.name;
        EXPECT_TRUE(button->isChecked()) << tool.name;
        EXPECT_TRUE(button->toolTip().endsWith(QString("(%1)").arg(QLatin1Char(tool.key)))) << tool.name;
    }
    auto* field = new QLineEdit(frame->centralWidget());
    field->show();
    field->setFocus();
    QTest::keyClick(field, 'b');
    EXPECT_EQ(field->text(), "b");
    EXPECT_EQ(setup.CurrentTool, "Pencil");
}

TEST_F(FrameTest, AFailedFilterLeavesEverythingAsItWas)
{
    fImage* image = open(randomBits(30, 20, 5));
    const Bits before = image->bits();
    for (const int failure : {0, 1, 2}) {
        const Outcome outcome = change(frame->active(), [&](Document& draft, cBitFilter& filter) {
            draft.takePicture(flatBits(3, 2, 1, 2, 3));
            filter.setBits(draft.bits());
            filter.setBitsRegion({});
            if (failure == 0) throw RuntimeError(Fault::Overflow);
            if (failure == 1) throw std::bad_alloc();
            throw Cancelled();
        });
        EXPECT_EQ(outcome.kind, failure == 2 ? Outcome::Cancelled : Outcome::Failed);
        EXPECT_EQ(outcome.reason.isEmpty(), failure == 2);
        EXPECT_TRUE(sameBits(before, image->bits()));
        EXPECT_TRUE(sameBits(before, frame->workspace().engine().bits()));
        EXPECT_TRUE(frame->workspace().engine().BitsRegion().contains(29, 19));
        EXPECT_EQ(image->document().undo.UndoStep(), 1);
        EXPECT_FALSE(image->document().Changed);
    }
}

TEST_F(FrameTest, CropSaysWhyItCannot)
{
    fImage* image = open(randomBits(20, 20, 5));
    command("CROP");
    EXPECT_EQ(last(), "message: Crop: Nothing selected");
    EXPECT_EQ(platform.lastIcon, Icon::Information);
    image->document().Region.CreateRect(3, 3, 4, 9, Combine::Or, true);
    command("CROP");
    EXPECT_EQ(last(), "message: Crop: Minimum size: 2 x 2");
    EXPECT_EQ(image->PictureWidth(), 20);
}

TEST_F(FrameTest, TheBarShowsHowFarTheActiveDocumentsChangeIs)
{
    open(randomBits(20, 20, 5), "other.bmp");
    const DocumentHandle other = frame->active();
    open(randomBits(20, 20, 6));
    auto* bar = frame->findChild<QProgressBar*>("cFilterProgress");
    const auto report = [&](const DocumentHandle& document, int percent) {
        emit frame->workspace().progress(document, percent);
        return std::pair(bar->value(), bar->isVisible());
    };
    EXPECT_EQ(report(frame->active(), 40), std::pair(40, true));
    EXPECT_EQ(report(frame->active(), -1), std::pair(40, true));
    EXPECT_EQ(report(other, 70), std::pair(40, true));
    emit frame->workspace().idle(frame->active());
    EXPECT_FALSE(bar->isVisible());
    EXPECT_FALSE(report(frame->active(), 100).second) << "done is at rest";
}

TEST_F(FrameTest, BarsFollowTheConfiguration)
{
    auto* effects = frame->findChild<QToolBar*>("tb_1");
    frame->action("BAR_1")->trigger();
    EXPECT_FALSE(setup.BarVisible[1]);
    EXPECT_TRUE(effects->isHidden());
    EXPECT_FALSE(frame->action("BAR_1")->isChecked());
    frame->bars().saveLayout();
    frame->action("BAR_1")->trigger();
    frame->bars().loadLayout(); // the stored layout had it hidden; the configuration decides
    EXPECT_FALSE(effects->isHidden());
    frame->action("VIEWS_8")->trigger();
    EXPECT_FALSE(setup.StatusBarVisible);
    EXPECT_TRUE(frame->status().isHidden());
    frame->action("VIEWS_9")->trigger();
    EXPECT_TRUE(setup.SideBarHidden);
    EXPECT_TRUE(frame->toolPane().isHidden());
}

TEST_F(FrameTest, TheFirstResizeStoresALayoutOnceForTheUser)
{
    EXPECT_EQ(platform.settings["VeStu/RunOnce"], "1");
    EXPECT_FALSE(platform.settings["VeStu/Layout"].isEmpty());
    frame->resize(700, 500);
    EXPECT_EQ(setup.FrameWidth, 700 * 15);
    EXPECT_EQ(setup.FrameHeight, 500 * 15);
    frame->showMaximized();
    QCoreApplication::processEvents();
    EXPECT_GT(frame->width(), 700);
    EXPECT_TRUE(setup.FrameMaximized);
    EXPECT_EQ(setup.FrameWidth, 700 * 15) << "the size to come back to";
}

TEST_F(FrameTest, TheSidePaneComesOutAtTheLeftEdgeAndHidesAgain)
{
    frame->action("VIEWS_9")->trigger();
    const auto moveTo = [&](QPoint at, Qt::MouseButtons held = Qt::NoButton) {
        QWidget* under = frame->area().viewport();
        sendMouse(under, QEvent::MouseMove, under->mapFrom(frame->centralWidget(), at), Qt::NoButton, held);
    };
    moveTo({2, 100}, Qt::LeftButton);
    EXPECT_FALSE(frame->toolPane().isVisible()) << "a stroke goes on";
    moveTo({2, 100});
    EXPECT_TRUE(frame->toolPane().isVisible());
    moveTo({frame->toolPane().width() - 2, 100});
    EXPECT_TRUE(frame->toolPane().isVisible());
    moveTo({frame->toolPane().width() + 20, 100});
    EXPECT_FALSE(frame->toolPane().isVisible());
    frame->action("VIEWS_9")->trigger();
    EXPECT_TRUE(frame->toolPane().isVisible());
}

TEST_F(FrameTest, IconsFollowThePalette)
{
    const auto shade = [&] { // the range of lightness of an icon drawn without colours
        const QImage image = frame->action("FILE_1")->icon().pixmap(22).toImage();
        int sum = 0, count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qAlpha(image.pixel(x, y)) > 200) sum += qGray(image.pixel(x, y)), ++count;
        return count ? sum / count : -1;
    };
    EXPECT_LT(shade(), 100);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 44, 48)));
    QCoreApplication::processEvents();
    EXPECT_GT(shade(), 150);
    QApplication::setPalette(before);
    QCoreApplication::processEvents();
    EXPECT_LT(shade(), 100);
}

TEST_F(FrameTest, WindowsTileOneBelowTheOtherOrSideBySide)
{
    open(randomBits(20, 20, 5), "a.bmp");
    open(randomBits(20, 20, 6), "b.bmp");
    command("TILEHORIZONTALLY");
    auto windows = frame->area().subWindowList();
    EXPECT_EQ(windows[0]->width(), frame->area().viewport()->width());
    EXPECT_NE(windows[0]->y(), windows[1]->y());
    command("TILEVERTICALLY");
    EXPECT_EQ(windows[0]->height(), frame->area().viewport()->height());
    EXPECT_NE(windows[0]->x(), windows[1]->x());
}

} // namespace velara
