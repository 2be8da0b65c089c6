// Clips, capture, wallpaper and scanner as commands of the frame, with a desktop that records what it is asked.
#include "app/frame/fStatus.h"
#include "app/frame/frameTest.h"
#include "app/utilities/Capture.h"
#include "app/utilities/Clips.h"
#include "fileio/writers/iconFile.h"
#include "support/files.h"
#include "ui/utilities/fBed.h"
#include "ui/widgets/marks/ScreenCover.h"
#include <QtTest>

namespace velara {

namespace {

constexpr const char* kNoScanner = "message: Velara Studio: Please Verify that the system is connected to Scanner!";

struct UtilitiesTest : FrameTest {
    template <class T> T* control(const char* window, const char* name)
    {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (top->objectName() == window && top->isVisible()) return top->findChild<T*>(name);
        return nullptr;
    }
    /// A screen of 40 by 30 with a mark at 7, 5.
    void showScreen()
    {
        platform.screen().picture = {flatBits(40, 30, 1, 2, 3),
                                     {{QGuiApplication::primaryScreen()->geometry(), {0, 0, 40, 30}}}};
        platform.screen().picture.bits.at(7, 5) = {{9, 9, 9, 0}};
    }
    /// A control of a window that doesn't exist yet.
    template <class T> T* awaited(const char* window, const char* name)
    {
        EXPECT_TRUE(comes([&] { return control<T>(window, name) != nullptr; })) << window;
        return control<T>(window, name);
    }
    fImage* waitForDocument()
    {
        EXPECT_TRUE(comes([this] { return frame->GetActiveImage() != nullptr; }));
        return frame->GetActiveImage();
    }
    static void writeScan(const QString& file)
    {
        QImage picture(6, 5, QImage::Format_RGB32);
        picture.fill(qRgb(7, 8, 9));
        EXPECT_TRUE(picture.save(file));
    }
    void select(fImage* image, int left, int top, int right, int bottom)
    {
        image->document().Region.CreateRect(left, top, right, bottom, Combine::Or, true);
    }
};

} // namespace

TEST_F(UtilitiesTest, TooSmallASelectionIsToldAndNothingEntersTheList)
{
    fImage* image = open(flatBits(20, 10, 1, 2, 3));
    auto* list = frame->clips().box()->findChild<QListWidget*>("lstImages");
    command("COPY"); // nothing is selected
    EXPECT_EQ(last(), "message: Velara Studio: Minimum copy size: 2 x 2");
    select(image, 3, 2, 4, 9);
    command("CUT");
    EXPECT_EQ(last(), "message: Velara Studio: Minimum cut size: 2 x 2");
    EXPECT_EQ(platform.lastIcon, Icon::Information);
    EXPECT_EQ(list->count(), 0);
    EXPECT_FALSE(image->document().Changed);
}

TEST_F(UtilitiesTest, CutBlackensTheSelectionInOneStepAndPublishesThePart)
{
    fImage* image = open(flatBits(20, 10, 1, 2, 3));
    image->document().Region.CreateEllipse(2, 2, 10, 8, Combine::Or, true);
    command("CUT");
    EXPECT_EQ(image->document().undo.UndoStep(), 2);
    EXPECT_EQ(image->bits().at(5, 5), (Pixel{{0, 0, 0, 0}}));
    EXPECT_EQ(image->bits().at(2, 2).c[0], 1); // the corner of the bounding box is not selected
    EXPECT_TRUE(platform.logged("clipboard: part"));
    EXPECT_EQ(platform.recordingClipboard.bits.width(), image->document().Region.Region().bounds().width());
    EXPECT_EQ(platform.recordingClipboard.bits.at(0, 0).c[3], 255);
    EXPECT_EQ(platform.recordingClipboard.bits.at(3, 3), (Pixel{{1, 2, 3, 0}}));
    EXPECT_EQ(setup.PasteMode, PasteMode::Waiting);
}

TEST_F(UtilitiesTest, TheListForgetsTheOldestAndAnySlotPastes)
{
    fImage* image = open(randomBits(60, 40, 5));
    fPaste* box = frame->clips().box();
    EXPECT_EQ(box->findChild<QPushButton*>("BT_0")->text(), "    Clip 1");
    for (int i = 0; i < 11; ++i) {
        image->document().Region.CreateRect(0, 0, 60, 40, Combine::Diff, true);
        select(image, 0, 0, 10 + i, 5);
        command("COPY");
    }
    auto* list = box->findChild<QListWidget*>("lstImages");
    EXPECT_EQ(list->count(), 9);
    EXPECT_EQ(list->item(0)->text(), "Clip 3");
    EXPECT_EQ(box->findChild<QLabel*>("lblSize_8")->text(), "20 x 5");
    EXPECT_FALSE(box->findChild<QPushButton*>("BT_9")->isEnabled());
    EXPECT_EQ(box->findChild<QPushButton*>("BT_9")->text(), "    Clip 12") << "no number twice";
    box->findChild<QPushButton*>("BT_0")->click();
    EXPECT_TRUE(frame->toolStores().pastePending);
    EXPECT_EQ(frame->toolStores().paste.width(), 12);
    EXPECT_EQ(setup.CurrentTool, "");
    box->findChild<QSlider*>("BrSelectionMovePressure")->setValue(40);
    EXPECT_EQ(setup.ClipOpacity, 40);
}

TEST_F(UtilitiesTest, WhatAnotherProgramCopiedSinceIsPastedAndBecomesAClip)
{
    fImage* image = open(flatBits(40, 30, 10, 10, 10));
    const auto pasted = [&] { return frame->toolStores().paste.width(); };
    select(image, 0, 0, 5, 5);
    command("COPY");
    const int own = pasted();
    platform.recordingClipboard.others = 1;
    platform.recordingClipboard.bits = {}; // a text
    command("PASTE");
    EXPECT_EQ(pasted(), own);

    platform.recordingClipboard.others = 2;
    platform.recordingClipboard.bits = flatBits(50, 20, 200, 100, 50);
    command("PASTE"); // larger than the picture; cancelled
    EXPECT_EQ(last(), "ask: Paste: What is pasted is larger than the picture.");
    EXPECT_FALSE(frame->toolStores().pastePending);
    EXPECT_EQ(frame->clips().box()->findChild<QListWidget*>("lstImages")->count(), 2);
    platform.answers = {"&Keep its size"};
    command("PASTE");
    EXPECT_TRUE(frame->toolStores().pastePending);
    EXPECT_EQ(image->PictureWidth(), 40);
    platform.answers = {"&Enlarge the picture"};
    command("PASTE");
    ASSERT_TRUE(comes([&] { return frame->toolStores().pastePending && image->PictureWidth() == 50; }));
    EXPECT_EQ(image->PictureHeight(), 30);
    EXPECT_EQ(image->bits().at(39, 29).c[0], 10);
    EXPECT_EQ(frame->clips().box()->findChild<QListWidget*>("lstImages")->count(), 2) << "taken in once";

    platform.recordingClipboard.others = 3;
    frame->clips().box()->findChild<QPushButton*>("BT_0")->click();
    EXPECT_EQ(pasted(), own) << "the chosen one is newer";
}

TEST_F(UtilitiesTest, APendingPasteIsNoPartOfThePictureUntilItIsFixed)
{
    fImage* image = open(flatBits(40, 30, 10, 10, 10));
    click("Pencil");
    command("PASTE");
    EXPECT_FALSE(frame->toolStores().pastePending) << "there is nothing to paste";
    EXPECT_EQ(frame->status().currentMessage(), "PASTE: nothing was cut or copied");
    EXPECT_EQ(setup.CurrentTool, "Pencil");
    platform.recordingClipboard.bits = flatBits(6, 6, 200, 100, 50); // from another program
    command("PASTE");
    ASSERT_TRUE(frame->toolStores().pastePending);
    EXPECT_FALSE(sameBits(flatBits(40, 30, 10, 10, 10), image->bits())) << "it is seen at once";
    command("COPYIMAGETOCLIPBOARD"); // a command works without the pending paste
    EXPECT_TRUE(sameBits(flatBits(40, 30, 10, 10, 10), platform.recordingClipboard.bits));

    command("PASTE");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(frame->toolStores().pastePending);
    EXPECT_TRUE(sameBits(flatBits(40, 30, 10, 10, 10), image->bits()));
    EXPECT_EQ(image->document().undo.UndoStep(), 1);
}

TEST_F(UtilitiesTest, TheDesktopIsCapturedAfterItsWindowsHaveGone)
{
    showScreen();
    bool shownAtTheGrab = true;
    platform.screen().onGrab = [&] { shownAtTheGrab = frame->isVisible(); };
    command("CAPTUREDESKTOP");
    EXPECT_EQ(platform.screen().log, std::vector<std::string>{"desktop on"}) << "the grab waits";
    fImage* image = waitForDocument();
    EXPECT_EQ(platform.screen().log, (std::vector<std::string>{"desktop on", "grab", "desktop off"}));
    ASSERT_EQ(image->PictureWidth(), 40);
    EXPECT_EQ(image->bits().at(7, 5).c[1], 9);
    EXPECT_EQ(image->Caption(), "New.bmp");
    EXPECT_FALSE(QFile::exists(path("New.bmp")));
    EXPECT_TRUE(image->isWindowModified()) << "it is nowhere else";
    setup.AskToSave = false;
    image->parentWidget()->close();

    platform.screen().canShowDesktop = false; // then at least the program is hidden
    command("CAPTUREDESKTOP");
    waitForDocument()->parentWidget()->close();
    EXPECT_FALSE(shownAtTheGrab);
    EXPECT_TRUE(frame->isVisible());
}

TEST_F(UtilitiesTest, ACaptureMayHaveThePointerInIt)
{
    showScreen();
    ScreenPicture& screen = platform.screen().picture;
    QImage pointer(3, 3, QImage::Format_ARGB32_Premultiplied);
    pointer.fill(qRgba(250, 0, 0, 255));
    screen.pointer = {std::make_shared<QImage>(pointer), {38, 28}}; // half beyond the edge
    for (const bool shown : {true, false}) {
        frame->run("@CAPTURE");
        control<QCheckBox>("fCapture", "chkPointer")->setChecked(shown);
        control<QPushButton>("fCapture", "cmdCapture")->click();
        fImage* image = waitForDocument();
        EXPECT_EQ(image->bits().at(39, 29).c[2] == 250, shown);
        EXPECT_NE(image->bits().at(37, 28).c[2], 250);
        setup.AskToSave = false;
        image->parentWidget()->close();
    }
}

TEST_F(UtilitiesTest, TheFrameComesBackWhateverBecomesOfTheGrab)
{
    platform.screen().picture.reason = "no portal";
    command("CAPTUREBACKGROUND"); // the screen can't be captured
    EXPECT_FALSE(frame->isVisible());
    fImage* image = waitForDocument();
    EXPECT_TRUE(frame->isVisible());
    EXPECT_TRUE(platform.logged("message: Velara Studio: no portal"));
    EXPECT_FALSE(image->PictureExists());
    EXPECT_FALSE(QFile::exists(path("New.bmp")));

    platform.screen().silent = true; // nor does the desktop ever answer
    frame->capture().setPatience(50);
    command("CAPTUREBACKGROUND");
    QTest::keyClick(awaited<QPushButton>("fWaiting", "cmdCancel")->window(), Qt::Key_Escape);
    EXPECT_TRUE(frame->isVisible());
    EXPECT_FALSE(platform.screen().waiting());
    EXPECT_EQ(frame->documents().size(), 1);
}

TEST_F(UtilitiesTest, WhateverComesBetweenAWordAndItsGrabIsHarmless)
{
    const QPointer<fImage> image = open(flatBits(20, 10, 1, 2, 3));
    showScreen();
    platform.screen().silent = true;
    command("CAPTUREFOREGROUND");
    EXPECT_FALSE(platform.screen().waiting()) << "the menu closes first";
    command("CAPTUREFOREGROUND");
    image->parentWidget()->close();
    EXPECT_TRUE(comes([&] { return platform.screen().log.size() == 2; }));
    platform.screen().answer();
    EXPECT_EQ(waitForDocument()->PictureWidth(), 800);
    EXPECT_EQ(frame->documents().size(), 1) << "of the later word";
    command("CAPTUREFOREGROUND");
    frame.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(platform.screen().log.size(), 2u);
}

TEST_F(UtilitiesTest, IconsAreCutOutOfACapture)
{
    platform.screen().picture = {randomBits(400, 300, 8),
                                 {{QGuiApplication::primaryScreen()->geometry(), {0, 0, 400, 300}}}};
    const Bits& screen = platform.screen().picture.bits;
    frame->action("tbToolsB_9")->trigger();
    bool shownAtTheGrab = true;
    platform.screen().onGrab = [&] { shownAtTheGrab = frame->isVisible(); };
    control<QPushButton>("fIcon", "CmdGo")->click();
    EXPECT_FALSE(frame->isVisible());
    QWidget* picC = awaited<QWidget>("picC", "fIconMaker")->parentWidget();
    EXPECT_FALSE(shownAtTheGrab);
    EXPECT_EQ(platform.screen().log, (std::vector<std::string>{"desktop on", "grab", "desktop off"}));

    const double across = picC->width() / 400.0, down = picC->height() / 300.0;
    const auto at = [&](double x, double y) { return QPoint(int(x * across + across / 2), int(y * down + down / 2)); };
    const auto drag = [&](QPoint from, QPoint to) {
        QTest::mousePress(picC, Qt::LeftButton, {}, at(from.x(), from.y()));
        QTest::mouseRelease(picC, Qt::LeftButton, {}, at(to.x(), to.y()));
    };
    const auto take = [&] { control<QAbstractButton>("picC", "tb_3")->click(); };
    drag({250, 100}, {270, 130}); // the frame's middle
    take();
    drag({256, 116}, {300, 200}); // held near its corner
    QTest::keyClick(picC, Qt::Key_Left);
    QTest::keyClick(picC, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(picC, Qt::Key_Return);
    picC->findChild<QAction*>("tb_1_4")->trigger();
    EXPECT_FALSE(picC->findChild<QAction*>("tb_1_4")->isEnabled());
    EXPECT_TRUE(picC->findChild<QAction*>("tb_1_2")->isEnabled());
    drag({399, 299}, {399, 299}); // limited to the picture
    take();
    EXPECT_EQ(control<QLabel>("picC", "lblcount")->text(), "3");
    control<QAbstractButton>("picC", "tb_5")->click();

    EXPECT_TRUE(frame->isVisible());
    control<QLineEdit>("fIcon", "txtFolder")->setText(platform.folder.path());
    control<QPushButton>("fIcon", "CmdSaveCustom")->click();
    EXPECT_EQ(last(), "message: Velara Studio: 3 icon Files Saved!");
    int number = 0;
    for (const QRect& part : {QRect(270 - 16, 130 - 16, 32, 32), QRect(300 - 2 - 1, 200 - 2 + 10, 32, 32),
                              QRect(400 - 64, 300 - 64, 64, 64)})
        EXPECT_EQ(fileBytes(path(QString("%1Velara.ico").arg(++number))),
                  iconBytes(iconOf(partOf(screen, part), part.size(), {})));
}

TEST_F(UtilitiesTest, TheIconExtractorComesBackWithoutAPictureOfTheScreen)
{
    frame->action("TOOLS_8")->trigger();
    control<QComboBox>("fIcon", "cboIcon")->setCurrentIndex(2);
    control<QPushButton>("fIcon", "CmdGo")->click(); // the screen can't be captured
    EXPECT_FALSE(control<QPushButton>("fIcon", "CmdGo"));
    awaited<QPushButton>("fIcon", "CmdGo");
    EXPECT_TRUE(frame->isVisible());
    EXPECT_EQ(last(), "message: Velara Studio: The screen gave no picture.");
}

TEST_F(UtilitiesTest, TheWallpaperIsAFileOfTheUsersFolder)
{
    platform.wallpaper().place = platform.folder.path();
    command("WCENTER");
    EXPECT_TRUE(platform.wallpaper().log.empty());
    fImage* image = open(randomBits(9, 7, 3));
    command("WSTRETCH");
    ASSERT_EQ(platform.wallpaper().log.size(), 1u);
    const auto& [file, mode] = platform.wallpaper().log[0];
    EXPECT_EQ(file, path("ClearPane_Wallpaper.bmp"));
    EXPECT_EQ(mode, WallpaperMode::Stretch);
    EXPECT_EQ(QImage(file).size(), QSize(9, 7));
    EXPECT_EQ(image->Caption(), "picture.bmp");
    const std::pair<WallpaperResult, const char*> failures[] = {
        {WallpaperResult::CantRead, "message: Velara Studio: Error getting subkey value."},
        {WallpaperResult::CantWrite, "message: Velara Studio: Error Setting subkey value."}};
    for (const auto& [result, message] : failures) {
        platform.wallpaper().result = result;
        command("WTILE");
        EXPECT_EQ(last(), message);
    }
}

TEST_F(UtilitiesTest, AScanBecomesADocumentAndItsSourceIsRemembered)
{
    RecordingScanner& scanner = platform.scanner();
    scanner.sources = {{"a:0", "First"}, {"b:1", "Second"}};
    scanner.range.choices = {{"", "Gray", false, {75, 300}, 0, 75, {200, 100}},
                             {"", "Color", false, {75, 300}, 0, 75, {200, 100}}};
    scanner.write = writeScan;
    command("SELECTSOURCE");
    control<QListWidget>("fSource", "lstSources")->setCurrentRow(1);
    control<QPushButton>("fSource", "cmdSelect")->click();
    EXPECT_EQ(platform.settings["Scanner/Source"], "b:1");

    command("ACQUIRETWAIN");
    EXPECT_EQ(control<QLabel>("fAcquire", "lblSource")->text(), "Second");
    control<QComboBox>("fAcquire", "cbMode")->setCurrentText("Color");
    control<QComboBox>("fAcquire", "cbResolution")->setCurrentText("300");
    control<QPushButton>("fAcquire", "cmdScan")->click();
    ASSERT_EQ(scanner.jobs.size(), 1u);
    const auto& [device, feed, mode, resolution, area, what] = scanner.jobs[0];
    EXPECT_EQ(QString("%1 %2%3 %4").arg(device, feed, mode).arg(resolution), "b:1 Color 300");
    EXPECT_EQ(area, QRectF(0, 0, 200, 100));
    fImage* image = waitForDocument();
    EXPECT_EQ(image->bits().at(5, 4), (Pixel{{9, 8, 7, 0}}));
    EXPECT_TRUE(image->isWindowModified()) << "it is nowhere else";
    scanner.sources = {{"a:0", "First"}, {"b:2", "Second"}}; // plugged in again
    scanner.silent = true;
    command("ACQUIRETWAIN");
    scanner.reason = "Invalid argument";
    scanner.silent = false;
    EXPECT_TRUE(scanner.answer());
    EXPECT_EQ(control<QLabel>("fAcquire", "lblSource")->toolTip(), "b:2");
}

TEST_F(UtilitiesTest, OnAPreviewTheAreaIsDrawnAndAFeederGivesADocumentAPage)
{
    RecordingScanner& scanner = platform.scanner();
    scanner.sources = {{"a:0", "First"}};
    scanner.range.choices = {{"Flatbed", "Gray", false, {50, 600}, 50, 0, {200, 300}},
                             {"ADF", "Gray", true, {100, 240}, 0, 100, {210, 350}}};
    scanner.write = writeScan;
    command("ACQUIRETWAIN");
    control<QPushButton>("fAcquire", "cmdPreview")->click();
    EXPECT_EQ(std::pair(scanner.jobs[0].what, scanner.jobs[0].resolution), std::pair(ScanJob::Preview, 100));
    EXPECT_TRUE(comes([&] { return control<QLabel>("fAcquire", "lblState")->text().isEmpty(); }));
    auto* bed = control<fBed>("fAcquire", "fBed");
    EXPECT_EQ(bed->grab().toImage().pixelColor(bed->onSurface(QPointF(100, 150)).toPoint()).blue(), 9);
    const auto drag = [bed](QPointF from, QPointF to) {
        for (const auto& [type, at] : {std::pair(QEvent::MouseButtonPress, from), std::pair(QEvent::MouseMove, to),
                                       std::pair(QEvent::MouseButtonRelease, to)}) {
            const QPointF place = bed->onSurface(at);
            QMouseEvent event(type, place, bed->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, {});
            QApplication::sendEvent(bed, &event);
        }
    };
    drag({20, 30}, {120, 80});
    drag({60, 50}, {70, 400});  // inside: it moves, and stays on the bed
    drag({30, 250}, {10, 250}); // its corner
    QString area;
    for (const char* name : {"sbLeft", "sbTop", "sbWidth", "sbHeight"})
        area += control<QDoubleSpinBox>("fAcquire", name)->text();
    EXPECT_EQ(area, "10.0 mm250.0 mm120.0 mm50.0 mm");
    drag({5, 5}, {5, 5}); // a click loses nothing
    control<QComboBox>("fAcquire", "cbResolution")->setCurrentText("137");
    control<QPushButton>("fAcquire", "cmdScan")->click();
    EXPECT_EQ(std::pair(scanner.jobs[1].what, scanner.jobs[1].resolution), std::pair(ScanJob::Page, 150));
    EXPECT_EQ(scanner.jobs[1].area, QRectF(10, 250, 120, 50));
    EXPECT_TRUE(comes([&] { return frame->documents().size() == 1 && !control<QLabel>("fAcquire", "lblState"); }));

    command("ACQUIRETWAIN");
    control<QComboBox>("fAcquire", "cbFeed")->setCurrentText("ADF");
    EXPECT_EQ(control<QComboBox>("fAcquire", "cbResolution")->currentText(), "100") << "the nearest to 150";
    EXPECT_FALSE(control<QPushButton>("fAcquire", "cmdPreview")->isEnabled());
    scanner.pages = 2;
    scanner.reason = "Document feeder jammed";
    control<QPushButton>("fAcquire", "cmdScan")->click();
    EXPECT_TRUE(comes([&] { return platform.logged(kNoScanner); }));
    EXPECT_EQ(frame->documents().size(), 3) << "what came before stays";
    scanner.pages = 9;
    control<QPushButton>("fAcquire", "cmdScan")->click();
    QTest::keyClick(control<QPushButton>("fAcquire", "cmdScan")->window(), Qt::Key_Escape);
    EXPECT_TRUE(control<QLabel>("fAcquire", "lblState")) << "a page is being read";
    EXPECT_TRUE(comes([&] { return !control<QLabel>("fAcquire", "lblState"); }));
    EXPECT_EQ(frame->documents().size(), 4);
}

TEST_F(UtilitiesTest, AScannerThatFailsIsToldAndOneThatHangsIsLeft)
{
    command("ACQUIRETWAIN"); // there is no scanner
    EXPECT_EQ(last(), kNoScanner);
    EXPECT_EQ(platform.lastIcon, Icon::Critical);
    QTest::keyClick(control<QPushButton>("fAcquire", "cmdScan")->window(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    RecordingScanner& scanner = platform.scanner();
    scanner.sources = {{"a:0", "First"}};
    command("ACQUIRETWAIN");
    scanner.pages = 0;
    scanner.reason = "Scanner cover is open";
    control<QPushButton>("fAcquire", "cmdScan")->click();
    EXPECT_EQ(last(), kNoScanner);
    EXPECT_EQ(control<QLabel>("fAcquire", "lblState")->text(), "The scanner says: Scanner cover is open");
    EXPECT_TRUE(frame->documents().isEmpty());

    scanner.silent = true;
    control<QPushButton>("fAcquire", "cmdScan")->click();
    QTest::keyClick(control<QPushButton>("fAcquire", "cmdScan")->window(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(scanner.cancelled, 1);
    EXPECT_EQ(control<QPushButton>("fAcquire", "cmdScan"), nullptr);
}

} // namespace velara
