// The windows of the documents: size, name, mark, focus, and what is shown without documents.
#include "app/frame/fStatus.h"
#include "app/frame/frameTest.h"
#include "app/menus/Boxes.h"
#include "app/start/fStartPage.h"
#include "ui/view/fDisplay.h"
#include <QtTest>
#include <QtWidgets>

namespace velara {

struct FrameDocuments : FrameTest {
    QMdiSubWindow* windowOf(fImage* image) { return qobject_cast<QMdiSubWindow*>(image->parentWidget()); }
    static bool scrolls(fImage* image)
    {
        const auto most = [&](const char* bar) { return image->findChild<QScrollBar*>(bar)->maximum(); };
        return most("hSB") > 0 || most("vSB") > 0;
    }
    QRect areaRect() { return frame->area().viewport()->rect(); }
    /// The list after the last fixed item of Views, with the active one checked.
    QStringList listed()
    {
        auto* views = frame->findChild<QMenu*>("mnuViews");
        emit views->aboutToShow();
        QStringList names;
        for (const QAction* item : views->actions())
            if (item->objectName().startsWith("DOCUMENT_") && !item->isSeparator())
                names << (item->isChecked() ? ">" : "") + item->text();
        return names;
    }
};

TEST_F(FrameDocuments, TheFrameClosesTheLastOpenedFirst)
{
    for (const char* name : {"a.bmp", "b.bmp", "c.bmp"}) {
        open(randomBits(8, 8, 1), name);
        command("INVERT");
    }
    platform.answers = {"no", "no"}; // then an empty queue cancels
    frame->close();
    ASSERT_EQ(frame->documents().size(), 1);
    EXPECT_EQ(frame->documents()[0]->Caption(), "a.bmp");
}

TEST_F(FrameDocuments, OthersMayCloseAndOpenWhileTheFrameAsks)
{
    fImage* first = open(randomBits(8, 8, 1), "a.bmp");
    open(randomBits(8, 8, 2), "b.bmp");
    command("INVERT");
    platform.answers = {"no"};
    platform.onAsk = [&] {
        delete windowOf(first);
        frame->adopt(randomBits(8, 8, 3), "c.bmp", Arrival::Made);
    };
    EXPECT_TRUE(frame->close());
    EXPECT_TRUE(frame->documents().isEmpty());
}

TEST_F(FrameDocuments, AWindowShowsThePictureWholeOrTakesTheArea)
{
    frame->resize(1000, 800);
    QCoreApplication::processEvents();
    const QRect area = areaRect();
    for (const QSize size : {QSize(40, 30), QSize(300, 200), QSize(area.width() * 19 / 20, area.height() * 9 / 10)}) {
        fImage* image = open(randomBits(size.width(), size.height(), 1));
        EXPECT_FALSE(scrolls(image)) << size.width();
        EXPECT_TRUE(area.contains(windowOf(image)->geometry())) << size.width();
    }
    fImage* large = open(randomBits(area.width() + 1, 20, 1));
    EXPECT_EQ(windowOf(large)->geometry(), area);
    setup.OpenZoom = 3;
    openFile(file("zoomed.png", 120, 90));
    fImage* zoomed = frame->GetActiveImage();
    EXPECT_EQ(zoomed->ZoomFactor(), 3);
    EXPECT_FALSE(scrolls(zoomed)) << "as it is shown, at three to one";
    EXPECT_TRUE(area.contains(windowOf(zoomed)->geometry()));
}

TEST_F(FrameDocuments, NamesTellTwoWindowsApartAndAChangeIsMarked)
{
    const QString path = file("a[*].png");
    openFile(path);
    openFile(path);
    fImage *first = frame->documents()[0], *second = frame->documents()[1];
    EXPECT_EQ(first->Caption(), "a[*].png");
    EXPECT_EQ(second->Caption(), "[1]a[*].png");
    EXPECT_EQ(windowOf(second)->windowTitle(), "[1]a[*][*].png") << "the file's own characters are no mark";

    const auto marks = [&] { return windowOf(first)->isWindowModified() * 10 + windowOf(second)->isWindowModified(); };
    EXPECT_EQ(marks(), 0);
    command("INVERT");
    EXPECT_EQ(marks(), 1);
    command("UNDO");
    EXPECT_EQ(marks(), 0) << "nothing to lose: closing asks nothing";
    command("REDO");
    EXPECT_EQ(marks(), 1);
    activate(first);
    command("FLIPH");
    EXPECT_EQ(marks(), 11);
    command("SAVE");
    EXPECT_EQ(marks(), 1);
    EXPECT_FALSE(platform.logged("save: Save as"));
    activate(second);
    command("SAVE");
    EXPECT_EQ(last(), "save: Save as") << "its own name is the first one's";
    EXPECT_EQ(marks(), 1) << "cancelled";
}

TEST_F(FrameDocuments, MarksThatTurnTheTextAreShownByTheirNumbers)
{
    const QString path = file(QString("a\u202egpj.png")), shown = "a\\x202egpj.png";
    setup.Recent[0] = path;
    frame->FillRecent();
    EXPECT_EQ(frame->findChild<QListWidget*>("lstRecent")->item(0)->text(), shown);
    EXPECT_TRUE(frame->action("RF_0")->text().endsWith(shown));
    frame->action("RF_0")->trigger();
    frame->workspace().wait();
    EXPECT_EQ(windowOf(frame->GetActiveImage())->windowTitle(), shown);
    EXPECT_EQ(frame->status().panel(Panel::Name), shown);
    EXPECT_EQ(listed(), QStringList({">&1 " + shown}));
    command("INVERT");
    frame->close();
    EXPECT_TRUE(QString::fromStdString(last()).contains(shown + "\nThis image has changed."));
}

TEST_F(FrameDocuments, TheOpenOnesStandAtTheEndOfViews)
{
    EXPECT_EQ(listed(), QStringList());
    open(randomBits(9, 9, 1), "one & two.bmp");
    fImage* other = open(randomBits(9, 9, 1), "b.bmp");
    command("INVERT");
    EXPECT_EQ(listed(), QStringList({"&1 one && two.bmp", ">&2 b.bmp*"}));
    windowOf(frame->documents()[0])->showMinimized();
    listed();
    frame->findChild<QAction*>("DOCUMENT_1")->trigger();
    EXPECT_EQ(frame->GetActiveImage()->Caption(), "one & two.bmp");
    EXPECT_FALSE(windowOf(frame->GetActiveImage())->isMinimized());
    setup.AskToSave = false;
    windowOf(other)->close();
    EXPECT_EQ(listed(), QStringList({">&1 one && two.bmp"}));
}

TEST_F(FrameDocuments, AfterAClosedOneComesTheOneUsedBefore)
{
    open(randomBits(9, 9, 1), "1.bmp");
    fImage* second = open(randomBits(9, 9, 2), "2.bmp");
    open(randomBits(9, 9, 3), "3.bmp");
    fImage* fourth = open(randomBits(9, 9, 4), "4.bmp");
    activate(second);
    activate(fourth);
    command("CLOSE");
    EXPECT_EQ(frame->GetActiveImage()->Caption(), "2.bmp");
}

TEST_F(FrameDocuments, AnEmptyOneShowsNothingOfAnotherAndKeepsTheKeys)
{
    fImage* picture = open(randomBits(20, 10, 1));
    frame->setStatus(Panel::Pos, "X:3 Y:4");
    fImage* empty = open(Bits(), "broken.bmp");
    EXPECT_EQ(frame->status().panel(Panel::Pos), "");
    EXPECT_EQ(frame->status().panel(Panel::Size), "");
    EXPECT_EQ(frame->status().panel(Panel::Name), "broken.bmp");
    ASSERT_TRUE(empty->isAncestorOf(QApplication::focusWidget()) || QApplication::focusWidget() == empty);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Control);
    EXPECT_EQ(frame->GetActiveImage(), picture);
    command("2x");
    EXPECT_EQ(frame->findChild<QProgressBar*>("cFilterProgress")->value(), 0);
}

TEST_F(FrameDocuments, TabReachesTheToolsAndArrowsWalkThem)
{
    frame->initToolPanes();
    fImage* image = open(randomBits(20, 10, 1));
    frame->toolClicked("Select");
    QWidget* display = image->findChild<QWidget*>("iDst");
    display->setFocus();
    const auto focused = [] { return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : ""; };
    const auto keys = [](std::initializer_list<Qt::Key> list) {
        for (const Qt::Key key : list) QTest::keyClick(QApplication::focusWidget(), key);
    };
    keys({Qt::Key_Tab});
    EXPECT_EQ(focused(), "tb_tools_3") << "the chosen tool";
    keys({Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up});
    EXPECT_EQ(focused(), "tb_tools_3");
    keys({Qt::Key_Down});
    EXPECT_EQ(setup.CurrentTool, "Select") << "walking chooses nothing";
    keys({Qt::Key_Return});
    EXPECT_EQ(setup.CurrentTool, "Stamp");
    keys({Qt::Key_Up, Qt::Key_Space});
    EXPECT_EQ(setup.CurrentTool, "Select");
    keys({Qt::Key_Tab});
    EXPECT_EQ(focused(), "cbSelectionMode") << "the strip is one stop";
    for (int i = 0; i < 20 && focused() != "iDst"; ++i) keys({Qt::Key_Tab});
    EXPECT_EQ(focused(), "iDst") << "and round";
    QTest::keyClick(display, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "lblColB") << "the last of the pane";
    display->setFocus();
    keys({Qt::Key_Tab, Qt::Key_Escape});
    EXPECT_EQ(focused(), "iDst");
}

TEST_F(FrameDocuments, TheSelectionHasItsCommands)
{
    fImage* image = open(randomBits(20, 10, 1));
    frame->activateWindow();
    const auto& selection = [&]() -> const Region& { return image->document().Region.Region(); };
    const auto key = [&](Qt::Key k, Qt::KeyboardModifiers m) { QTest::keyClick(frame.get(), k, m); };
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(selection().bounds(), (Rect{0, 0, 20, 10}));
    EXPECT_EQ(frame->workspace().engine().BitsRegion(), selection());
    key(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(selection().isEmpty());
    EXPECT_EQ(frame->workspace().engine().BitsRegion(), image->document().Region.RegionMain());
    image->document().Region.setRegion(Region::rectangle(0, 0, 20, 4));
    key(Qt::Key_I, Qt::ControlModifier);
    EXPECT_EQ(selection().bounds(), (Rect{0, 4, 20, 10}));
    EXPECT_FALSE(image->document().Changed);
    command("INVERT");
    command("UNDO");
    const Bits before = image->bits();
    key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    frame->workspace().wait();
    EXPECT_FALSE(image->bits() == before) << "the other key of redo";
}

TEST_F(FrameDocuments, BoxesAreDockedBehindTabsAndComeBackWhereTheyWereLeft)
{
    frame->resize(900, 600);
    frame->boxes().showAll();
    QDockWidget *colours = frame->boxes().dock(Boxes::Colours), *textures = frame->boxes().dock(Boxes::Textures);
    EXPECT_EQ(frame->tabifiedDockWidgets(colours).size(), 3);
    EXPECT_EQ(frame->dockWidgetArea(colours), Qt::RightDockWidgetArea);
    EXPECT_FALSE(colours->visibleRegion().isEmpty());
    EXPECT_TRUE(textures->visibleRegion().isEmpty());
    EXPECT_TRUE(frame->boxes().places().empty());
    frame->boxes().bring(Boxes::Textures);
    EXPECT_TRUE(comes([&] { return !textures->visibleRegion().isEmpty() && colours->visibleRegion().isEmpty(); }));

    textures->setFloating(true);
    textures->setGeometry(120, 130, 400, 430);
    EXPECT_EQ(frame->boxes().places(), std::vector{textures->frameGeometry()});
    frame->addDockWidget(Qt::LeftDockWidgetArea, colours);
    frame->bars().saveLayout();
    fMain again(platform, setup);
    again.resize(900, 600);
    ASSERT_TRUE(again.bars().loadLayout());
    again.boxes().showAll();
    EXPECT_EQ(again.boxes().dock(Boxes::Textures)->geometry(), QRect(120, 130, 400, 430));
    EXPECT_TRUE(again.boxes().dock(Boxes::Textures)->isFloating());
    again.boxes().moveAside();
    EXPECT_TRUE(QRect(140, 150, 80, 80).contains(again.boxes().dock(Boxes::Textures)->pos()));
    EXPECT_EQ(again.dockWidgetArea(again.boxes().dock(Boxes::Colours)), Qt::LeftDockWidgetArea);
}

TEST_F(FrameDocuments, WithoutAnyTheAreaSaysHowToStart)
{
    const QString a = file("a.png", 300, 200);
    setup.Recent = {path("lost.png"), a};
    frame->FillRecent();
    auto* page = frame->findChild<QWidget*>("fStartPage");
    auto* list = frame->findChild<QListWidget*>("lstRecent");
    EXPECT_TRUE(page->isVisible());
    const auto first = [&] { return frame->findChild<QWidget*>("cmdStartNew")->mapTo(page, QPoint()); };
    const QPoint alone = first();
    static_cast<fStartPage*>(page)->taken = [&] {
        return std::vector{QRect(page->mapToGlobal(QPoint(-9, -9)), QSize(59, 2000))};
    };
    frame->resize(900, 700);
    EXPECT_EQ(first(), alone + QPoint(50, 0)) << "beside a box that stands over it";
    ASSERT_EQ(list->count(), 1) << "the lost one is left out";
    EXPECT_EQ(list->item(0)->text(), "a.png");
    const auto iconMiddle = [&] { return list->item(0)->icon().pixmap(128).toImage().pixelColor(64, 64); };
    EXPECT_EQ(iconMiddle().alpha(), 0);
    QImage thumbnail(128, 85, QImage::Format_RGB32);
    thumbnail.fill(Qt::red);
    EXPECT_TRUE(platform.previews().answer("thumbnail " + a, {thumbnail, {300, 200}, {}}));
    EXPECT_EQ(iconMiddle(), QColor(Qt::red));

    frame->findChild<QPushButton*>("cmdStartOpen")->click();
    EXPECT_EQ(last(), "open: Open file");
    command("INVERT");
    EXPECT_TRUE(frame->status().currentMessage().startsWith("There is no picture"));
    frame->run("@SELECTALL");

    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
    frame->workspace().wait();
    ASSERT_EQ(frame->documents().size(), 1);
    EXPECT_EQ(frame->GetActiveImage()->Caption(), "a.png");
    EXPECT_FALSE(page->isVisible());
    command("CLOSE");
    EXPECT_TRUE(page->isVisible());
    EXPECT_EQ(page->size(), areaRect().size());
}

/// Where the display of a view was painted since.
struct Painted : QObject {
    QRegion region;
    explicit Painted(QWidget* display) { display->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};

struct FrameViews : FrameDocuments {
    const Bits start = randomBits(40, 30, 1);
    fImage *first = nullptr, *second = nullptr; // the second is the active one, twice as large

    void openTwo()
    {
        setup.ForeColor = 0xFFFFFF;
        first = open(start, "a.bmp");
        frame->run("@NEWVIEW");
        second = frame->GetActiveImage();
        frame->setZoom(2);
        click("Pencil");
        QCoreApplication::processEvents();
    }
};

TEST_F(FrameViews, OneShowsWhatIsDoneInAnother)
{
    openTwo();
    ASSERT_EQ(&first->document(), &second->document());
    EXPECT_EQ(std::pair(first->ZoomFactor(), second->ZoomFactor()), std::pair(1, 2));
    struct Row {
        const char* what;
        std::function<void()> act;
        QRect changed; // of the picture, as it is then
    };
    const QRect all(0, 0, 40, 30);
    const Row rows[] = {
        {"a stroke under way",
         [&] {
             mouse(second, QEvent::MouseButtonPress, {20, 20}, Qt::LeftButton);
             mouse(second, QEvent::MouseMove, {40, 20}, Qt::LeftButton);
         },
         {10, 10, 10, 1}},
        {"is dropped", [&] { QTest::keyClick(display(second), Qt::Key_Escape); }, {10, 10, 10, 1}},
        {"a stroke",
         [&] {
             drag(second, {20, 20}, {40, 20});
         },
         {10, 10, 10, 1}},
        {"a filter", [&] { command("INVERT"); }, all},
        {"a selection", [&] { frame->run("@SELECTALL"); }, all},
        {"another size", [&] { command("x2"); }, {0, 0, 20, 15}},
        {"a step back", [&] { command("UNDO"); }, all},
    };
    for (const Row& row : rows) {
        Painted painted(display(first));
        row.act();
        EXPECT_TRUE(comes([&] { return (QRegion(row.changed) - painted.region).isEmpty(); })) << row.what;
        EXPECT_EQ(display(first)->size(), QSize(first->PictureWidth(), first->PictureHeight())) << row.what;
    }
    const auto outlines = [&] {
        return first->findChild<fDisplay*>()->outlineShown() + second->findChild<fDisplay*>()->outlineShown();
    };
    frame->run("@SELECTALL");
    EXPECT_EQ(outlines(), 2);
    activate(second);
    EXPECT_EQ(outlines(), 2) << "whichever is the active one";
    ASSERT_TRUE(comes([&] { return !first->findChild<QTimer*>("tmrFollow")->isActive(); }));
    QCoreApplication::processEvents();
    Painted painted(display(first));
    second->StopTimer();
    second->findChild<fDisplay*>()->setOutlineShown(false); // as where a paste came before it was shown
    static_cast<ToolSurface*>(second)->repaint(Rect{0, 0, 1, 1});
    EXPECT_TRUE(comes([&] { return (QRegion(display(first)->rect()) - painted.region).isEmpty(); }))
        << "the outline is painted over";
    EXPECT_EQ(outlines(), 0);
    open(randomBits(5, 5, 1), "b.bmp");
    EXPECT_EQ(outlines(), 0);
}

TEST_F(FrameViews, AGestureEndsWhereAnotherViewIsUsedOrItsOwnCloses)
{
    openTwo();
    const auto& selection = [&]() -> const Region& { return first->document().Region.Region(); };
    mouse(second, QEvent::MouseButtonPress, {20, 20}, Qt::LeftButton);
    mouse(second, QEvent::MouseMove, {40, 20}, Qt::LeftButton);
    activate(first);
    EXPECT_EQ(frame->status().panel(Panel::Zoom), "1 : 1");
    mouse(second, QEvent::MouseButtonRelease, {40, 20}, Qt::NoButton);
    EXPECT_TRUE(sameBits(start, first->bits())) << "nothing is committed";

    click("Select");
    setup.SelectionShape = SelectionShape::Polygon;
    for (const QPoint at : {QPoint(4, 4), QPoint(30, 4)}) drag(first, at, at);
    activate(second);
    frame->run("@SELECTALL");
    activate(first);
    QTest::keyClick(display(first), Qt::Key_Escape);
    EXPECT_EQ(selection().bounds(), (Rect{0, 0, 40, 30})) << "what a half-made polygon found is forgotten";

    click("Pencil");
    mouse(first, QEvent::MouseButtonPress, {20, 20}, Qt::LeftButton);
    mouse(first, QEvent::MouseMove, {25, 20}, Qt::LeftButton);
    command("CLOSE");
    EXPECT_EQ(frame->documents(), QList{second});
    EXPECT_TRUE(sameBits(start, second->bits()));
    activate(second);
    command("INVERT");
    EXPECT_FALSE(sameBits(start, second->bits())) << "no stroke holds it up";
}

TEST_F(FrameViews, TheLastOneAsksAndClosesThePicture)
{
    openTwo();
    command("INVERT");
    EXPECT_EQ(listed(), QStringList({"&1 a.bmp:1*", ">&2 a.bmp:2*"}));
    EXPECT_EQ(windowOf(first)->windowTitle(), "a.bmp:1[*]");
    EXPECT_EQ(frame->status().panel(Panel::Name), "a.bmp");
    platform.answers = {path("b.png")};
    command("SAVEAS");
    EXPECT_EQ(listed(), QStringList({"&1 b.png:1", ">&2 b.png:2"}));
    EXPECT_EQ(first->Caption(), "b.png");
    command("INVERT");
    platform.log.clear();
    windowOf(first)->close();
    EXPECT_TRUE(platform.log.empty()) << "the picture stays";
    EXPECT_EQ(listed(), QStringList({">&1 b.png*"}));
    frame->close(); // the question is cancelled
    ASSERT_EQ(frame->documents(), QList{second});
    EXPECT_EQ(frame->workspace().documents().size(), 1u);
    frame->run("@NEWVIEW");
    platform.answers = {"no"};
    frame->close();
    EXPECT_EQ(std::ranges::count_if(platform.log, [](auto& line) { return line.starts_with("ask:"); }), 2);
    EXPECT_TRUE(frame->workspace().documents().empty());
}

TEST_F(FrameDocuments, TheLineRoundABrushGoesWhileItsPictureIsWorkedOn)
{
    fImage* image = open(flatBits(200, 150, 64, 64, 64));
    click("Brush");
    setup.BrushSize = 50;
    display(image)->setAttribute(Qt::WA_UnderMouse);
    mouse(image, QEvent::MouseMove, {100, 75}, Qt::NoButton);
    const auto hasLine = [&] {
        const QImage seen = display(image)->grab().toImage(); // in one colour, but for the line
        return seen.copy(100, 0, 1, 150) != seen.copy(0, 0, 1, 150);
    };
    EXPECT_TRUE(hasLine());
    QSemaphore end;
    frame->workspace().change(image->document().handle(), {[&](Document&, cBitFilter&) { end.acquire(); }});
    EXPECT_TRUE(comes([&] { return !hasLine() && display(image)->cursor().shape() == Qt::BusyCursor; }));
    mouse(image, QEvent::MouseMove, {101, 75}, Qt::NoButton);
    EXPECT_FALSE(hasLine());
    end.release();
    frame->workspace().wait();
    EXPECT_TRUE(hasLine());
    EXPECT_NE(display(image)->cursor().shape(), Qt::BusyCursor);
}

} // namespace velara
