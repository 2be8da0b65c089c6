// Opening, saving, the recent list, drops, clipboard, and closing the frame.
#include "app/frame/fStatus.h"
#include "app/frame/frameTest.h"
#include "app/settings/Appearance.h"
#include "app/settings/fPreferences.h"
#include "app/settings/pictureSettings.h"
#include "pixels/images.h"
#include "support/files.h"
#include "support/freeMemory.h"
#include "support/fullDisk.h"
#include "support/ui/startedEditor.h"
#include <QtTest>
#include <QtWidgets>
#include <atomic>

namespace velara {

namespace {

const std::string kLoadError = "message: Velara Studio: Unexpected error loading image";
const std::string kWriterError =
    "message: Internal Error: There was an error while saving! Please Restart Velara's Studio";
const std::string kSaveError = "message: Velara Studio: Unexpected error saving image";

} // namespace

TEST_F(FrameTest, OpenGivesNamesRecentEntryAndOptions)
{
    const QString a = file("a.bmp");
    setup.OpenZoom = 3;
    platform.answers = {a};
    command("OPEN");
    ASSERT_EQ(frame->documents().size(), 1);
    fImage* image = frame->documents()[0];
    EXPECT_EQ(image->Tag(), a);
    EXPECT_EQ(image->Caption(), "a.bmp");
    EXPECT_EQ(image->PictureWidth(), 12);
    EXPECT_EQ(image->ZoomFactor(), 3);
    EXPECT_EQ(image->document().undo.UndoStep(), 1);
    EXPECT_EQ(setup.Recent[0], a);
    EXPECT_TRUE(frame->action("RF_0")->text().contains("a.bmp"));
    EXPECT_EQ(setup.ImagesPath, platform.folder.path() + "/");
    EXPECT_EQ(platform.lastDialog.title, "Open file");
    EXPECT_TRUE(platform.lastDialog.filter.startsWith("All Supported Picture Formats|*.bmp;*.wbmp;*.dib;*.wmf;"));
    EXPECT_TRUE(platform.lastDialog.filter.contains("Independent JPEG Group (*.JPG)|*.jpg;*.jpeg;*.jpe;*.jfif|"));
    EXPECT_TRUE(platform.lastDialog.filter.contains("|*.koa|"));
}

TEST_F(FrameTest, FilesAreReadInOrderWhileThePersonGoesOn)
{
    std::atomic<bool> held{true};
    platform.onLoad = [&](const GoOn& goOn) {
        while (held && goOn({})) QThread::msleep(1);
    };
    fImage* image = open(randomBits(8, 8, 1));
    const auto begin = [&] {
        frame->openPicture(file("slow.bmp"));
        frame->openPicture(file("next.png"));
        frame->Mmenu("INVERT");
        frame->workspace().wait(image->document().handle());
    };
    begin();
    EXPECT_EQ(image->document().undo.UndoStep(), 2);
    auto* box = frame->findChild<QProgressDialog*>("readingBox");
    ASSERT_TRUE(comes([&] { return box->isVisible(); }));
    EXPECT_EQ(box->labelText(), "Reading slow.bmp ...");
    EXPECT_FALSE(box->isModal());
    QTest::keyClick(display(image), Qt::Key_Escape);
    frame->workspace().wait();
    EXPECT_EQ(frame->documents().size(), 1);
    EXPECT_TRUE(platform.log.empty()) << "it was the person's wish: " << last();
    EXPECT_FALSE(frame->findChild<QProgressDialog*>("readingBox"));

    begin();
    held = false;
    frame->workspace().wait();
    ASSERT_EQ(frame->documents().size(), 3);
    EXPECT_EQ(frame->documents()[1]->Caption(), "slow.bmp");
    EXPECT_EQ(frame->documents()[2]->Caption(), "next.png");

    held = true;
    frame->openPicture(path("slow.bmp"));
    frame->close();
    frame.reset(); // waits for nobody
}

TEST_F(FrameTest, ASaveIsWrittenAsideAndHasThePictureOfItsMoment)
{
    for (const char* name : {"a.png", "b.bmp"}) {
        openFile(file(name));
        fImage* image = frame->GetActiveImage();
        command("INVERT");
        const Bits asked = image->bits();
        frame->Mmenu("SAVE");
        command("FLIPH");
        EXPECT_TRUE(sameBits(asked, bitsOf(QImage(path(name))))) << name;
        EXPECT_TRUE(image->document().Changed) << "it went on";
        frame->Mmenu("SAVE");
        platform.log.clear();
        EXPECT_TRUE(image->parentWidget()->close());
        EXPECT_TRUE(platform.log.empty()) << "closing waits for the save: " << last();
    }
    open(randomBits(8, 8, 1));
    platform.answers = {path("slow.gif")};
    frame->Mmenu("SAVEAS");
    EXPECT_TRUE(QGuiApplication::overrideCursor());
    frame->workspace().wait();
    EXPECT_FALSE(QGuiApplication::overrideCursor());
}

TEST_F(FrameTest, SaveGoesToItsFileOrAsksForAName)
{
    for (const auto& [name, asks] : {std::pair{"a.bmp", false}, {"a.png", false}, {"a.ppm", true}}) {
        platform.answers = {file(name)};
        command("OPEN");
        platform.log.clear();
        frame->documents().last()->document().Changed = true;
        command("SAVE");
        EXPECT_EQ(platform.logged("save: Save as"), asks) << name;
        EXPECT_EQ(frame->documents().last()->document().Changed, asks) << name;
    }
    // A new document has no file yet, whatever its name, and one that was read only partly must not overwrite the rest.
    const auto asksForAName = [&] {
        platform.log.clear();
        command("SAVE");
        return platform.logged("save: Save as");
    };
    open(randomBits(4, 4, 1), "New.bmp");
    EXPECT_TRUE(asksForAName());
    EXPECT_FALSE(QFile::exists(path("New.bmp")));
    platform.answers = {path("b.bmp")};
    command("SAVEAS");
    EXPECT_FALSE(asksForAName()) << "it has one now";
    platform.loadNote = "The file is cut off.";
    openFile(file("c.bmp"));
    EXPECT_EQ(frame->status().currentMessage(), platform.loadNote);
    EXPECT_TRUE(asksForAName());
}

TEST_F(FrameTest, WhateverWouldBeLostIsAskedAbout)
{
    const struct {
        const char* what;
        std::function<void()> make;
        bool asks;
    } rows[] = {
        {"a new one", [&] { open(randomBits(8, 8, 1)); }, false},
        {"a file", [&] { openFile(file("a.bmp")); }, false},
        {"a copy of it", [&] { openFile(file("b.bmp")), command("CREATENEWCOPY"); }, true},
        {"it in another size", [&] { openFile(file("c.bmp")), command("x2"); }, true},
        {"the clipboard's", [&] { command("CREATEFROMCLIPBOARD"); }, true},
        {"any other that is brought", [&] { frame->adopt(randomBits(8, 8, 1), "Scan.bmp"); }, true},
        {"a window without a picture", [&] { frame->adopt({}, "New.bmp"); }, false},
        {"a part of a file", [&] { platform.loadNote = "cut off", openFile(file("d.bmp")); }, false},
    };
    for (const auto& row : rows) {
        platform.recordingClipboard.bits = randomBits(8, 8, 1);
        row.make();
        QCoreApplication::processEvents();
        const QPointer<fImage> image = frame->GetActiveImage();
        EXPECT_EQ(image->isWindowModified(), row.asks) << row.what;
        platform.log.clear();
        EXPECT_EQ(image->parentWidget()->close(), !row.asks) << row.what;
        EXPECT_EQ(last().starts_with("ask: "), row.asks) << row.what;
        setup.AskToSave = false;
        if (row.asks) image->parentWidget()->close();
        setup.AskToSave = true;
    }
}

TEST_F(FrameTest, YesClosesWhatWasSavedAndNothingElse)
{
    const auto closes = [&](std::deque<std::optional<QString>> answers) {
        platform.log.clear();
        platform.answers = std::move(answers);
        return frame->GetActiveImage()->parentWidget()->close();
    };
    const auto files = [&] {
        frame->workspace().wait();
        return QDir(path("Temp")).entryList({"b*.dat"}, QDir::Files).size();
    };
    frame->adopt(randomBits(8, 8, 1), "Scan.bmp");
    EXPECT_FALSE(closes({"yes"})) << "no name";
    EXPECT_FALSE(closes({"yes", path("no/such/folder/b.bmp")}));
    EXPECT_TRUE(frame->GetActiveImage()->document().undo.stands());
    EXPECT_EQ(files(), 1);
    EXPECT_TRUE(closes({"yes", path("b.png")}));
    EXPECT_EQ(QImage(path("b.png")).size(), QSize(8, 8));
    EXPECT_EQ(files(), 0);

    openFile(file("a.bmp"));
    command("x2");
    EXPECT_TRUE(closes({"yes"}));
    EXPECT_FALSE(platform.logged("save: Save as"));
    EXPECT_EQ(QImage(path("a.bmp")).size(), QSize(6, 4)) << "in its own file";
}

TEST_F(FrameTest, SaveAsNamesTheDocumentAndClearsTheMark)
{
    fImage* image = open(randomBits(8, 8, 1));
    image->document().Changed = true;
    platform.answers = {path("b.png")};
    command("SAVEAS");
    EXPECT_FALSE(image->document().Changed);
    EXPECT_EQ(image->Tag(), path("b.png"));
    EXPECT_EQ(frame->status().panel(Panel::Name), "b.png");
    EXPECT_EQ(QImage(path("b.png")).size(), QSize(8, 8));

    platform.answers = {path("c.pgm")}; // the colours decide: 24 bits make a pixmap
    command("SAVEAS");
    EXPECT_TRUE(QFile::exists(path("c.ppm")));
    EXPECT_FALSE(QFile::exists(path("c.pgm")));
}

TEST_F(FrameTest, EscEndsASaveAndLosesNothing)
{
    const auto content = [this](const char* name) {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    fImage* image = open(randomBits(1400, 1400, 1));
    image->document().Changed = true;
    QFile old(path("b.avif"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    platform.answers = {path("b.avif")};
    frame->Mmenu("SAVEAS");
    EXPECT_EQ(frame->status().currentMessage(), "Saving b.avif ... Esc ends it");
    QTest::keyClick(display(image), Qt::Key_Escape);
    frame->workspace().wait();
    EXPECT_EQ(frame->status().currentMessage(), "b.avif is not saved.");
    EXPECT_FALSE(platform.logged("message: "));
    EXPECT_EQ(content("b.avif"), "old");
    EXPECT_TRUE(image->document().Changed);
    EXPECT_NE(image->Tag(), path("b.avif"));

    const Pixel before = image->bits().row(3)[3];
    platform.answers = {path("c.bmp")};
    frame->Mmenu("SAVEAS");
    command("INVERT"); // goes on meanwhile
    EXPECT_EQ(image->bits().row(3)[3].c[0], 255 - before.c[0]);
    EXPECT_EQ(frame->status().currentMessage(), "");
    EXPECT_FALSE(content("c.bmp").isEmpty());
    EXPECT_EQ(image->Tag(), path("c.bmp"));
    EXPECT_FALSE(frame->workspace().cancelSaving(image->document().handle())) << "there is none any more";
}

// What a file carries goes with the document, as far as "Save as" was told.
TEST_F(FrameTest, TheCamerasDataGoesWithTheDocument)
{
    platform.camera = {.comment = "by hand", .dotsAcross = 300, .dotsDown = 300};
    platform.properties = "Camera\tX\nDate\tnow\n";
    openFile(file("b.bmp"));
    fImage* image = frame->GetActiveImage();
    EXPECT_EQ(image->document().file.camera.comment, "by hand");
    command("INVERT");
    command("CREATENEWCOPY");
    EXPECT_EQ(frame->documents()[1]->document().file.camera.comment, "by hand");
    EXPECT_EQ(frame->documents()[1]->document().file.properties, platform.properties);
    activate(image);

    const struct {
        bool keep, leaveOut;
        CameraKept kept;
    } kCases[] = {{true, true, CameraKept::NoPlace}, {false, true, CameraKept::None}, {true, false, CameraKept::All}};
    for (const auto& c : kCases) {
        const bool before[] = {pictureSetting(platform, PictureSetting::KeepCameraData),
                               pictureSetting(platform, PictureSetting::LeaveOutPlace)};
        platform.onAsk = [&] {
            ASSERT_EQ(platform.lastDialog.choices.size(), 2U);
            EXPECT_EQ(*platform.lastDialog.choices[0].on, before[0]);
            EXPECT_EQ(*platform.lastDialog.choices[1].on, before[1]);
            *platform.lastDialog.choices[0].on = c.keep;
            *platform.lastDialog.choices[1].on = c.leaveOut;
        };
        platform.answers = {path("kept.png")};
        command("SAVEAS");
        EXPECT_EQ(image->document().file.kept, c.kept);
        EXPECT_EQ(pictureSetting(platform, PictureSetting::KeepCameraData), c.keep);
        EXPECT_EQ(pictureSetting(platform, PictureSetting::LeaveOutPlace), c.leaveOut);
    }
    platform.onAsk = nullptr;

    frame->action("mnuProperties_0")->trigger();
    auto* dialog = frame->findChild<QDialog*>("fProperties");
    ASSERT_TRUE(dialog);
    auto* list = dialog->findChild<QTreeWidget*>("lstProperties");
    dialog->findChild<QPushButton*>("cmdCopy")->click();
    const QStringList all = QGuiApplication::clipboard()->text().split('\n');
    EXPECT_EQ(all[0], "File: " + path("kept.png"));
    EXPECT_EQ(all.mid(4), QStringList({"Camera: X", "Date: now"}));
    list->topLevelItem(4)->setSelected(true);
    dialog->findChild<QPushButton*>("cmdCopy")->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Camera: X");
    dialog->close();

    platform.camera = {};
    openFile(file("none.bmp"));
    platform.answers = {path("none.png")};
    command("SAVEAS");
    EXPECT_TRUE(platform.lastDialog.choices.empty()) << "there is nothing to keep";
}

TEST_F(FrameTest, ANameWithoutAnExtensionGetsOne)
{
    const struct {
        const char *caption, *answer, *written;
    } kCases[] = {{"a.bmp", "one", "one.bmp"},
                  {"a.JPG", "two.", "two.jpg"},
                  {"a.psd", "three", "three.png"},
                  {"New.bmp", "four.tga", "four.tga"}};
    for (const auto& c : kCases) {
        open(randomBits(8, 8, 1), c.caption);
        platform.answers = {path(c.answer)};
        command("SAVEAS");
        EXPECT_TRUE(QFile::exists(path(c.written))) << c.written;
        EXPECT_FALSE(platform.logged(kSaveError));
    }
    EXPECT_EQ(platform.lastDialog.writtenAs("/a/x.PGM"), "/a/x.ppm");
    EXPECT_EQ(platform.lastDialog.writtenAs("/a/x.png"), "/a/x.png");
    EXPECT_EQ(platform.lastDialog.writtenAs("/a/x."), "/a/x.bmp");
}

TEST_F(FrameTest, ALostSnapshotIsToldAndCountsAsAChange)
{
    QDir(path("Temp")).removeRecursively();
    fImage* image = open(randomBits(40, 40, 1));
    ASSERT_TRUE(image->document().undo.stands()) << "opening makes the folder anew";
    const Bits before = image->bits();
    {
        const FullDisk full(1000);
        const FreeMemory none(0); // for undo steps
        command("INVERT");
        EXPECT_FALSE(image->document().undo.stands());
        QCoreApplication::processEvents();
        EXPECT_EQ(frame->status().currentMessage(), "") << "it can be undone";
        command("FLIPH");
        EXPECT_FALSE(image->document().undo.stands());
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(frame->status().currentMessage(), "This step can't be undone: no room in the Temp folder.");
    frame->close(); // an empty queue cancels
    EXPECT_TRUE(frame->isVisible());
    EXPECT_TRUE(last().starts_with("ask: ")) << last();
    const Bits after = image->bits();
    command("UNDO");
    EXPECT_TRUE(sameBits(before, image->bits()));
    EXPECT_TRUE(frame->status().currentMessage().contains("last one that stands"));
    command("REDO");
    EXPECT_TRUE(sameBits(after, image->bits()));
}

TEST_F(FrameTest, TwoFramesInOneFolderKeepTheirStepsApart)
{
    velara::Setup otherSetup;
    fMain other(platform, otherSetup); // a lock belongs to the open file, so this acts like another program
    const Bits mine = randomBits(20, 20, 1);
    fImage* image = open(mine);
    const DocumentHandle theirs = other.adopt(randomBits(30, 30, 2), path("b.bmp"), Arrival::Made);
    ASSERT_NE(theirs->DocNumber(), image->document().DocNumber());
    command("INVERT");
    command("UNDO");
    EXPECT_TRUE(sameBits(mine, image->bits()));
    other.close();
    command("REDO");
    command("UNDO");
    EXPECT_TRUE(sameBits(mine, image->bits()));
}

TEST_F(FrameTest, AClipboardPictureThatCannotBeReadIsTold)
{
    platform.recordingClipboard.fault = "The picture on the clipboard can't be read: it is too large";
    command("CREATEFROMCLIPBOARD");
    EXPECT_EQ(last(), "message: Velara Studio: The picture on the clipboard can't be read: it is too large");
    EXPECT_TRUE(frame->documents().isEmpty());
}

TEST_F(FrameTest, ASaveThatFailsSaysSoAndLeavesTheDocument)
{
    fImage* image = open(randomBits(8, 8, 1));
    image->document().Changed = true;
    platform.answers = {path("no/such/folder/b.bmp")};
    command("SAVEAS");
    EXPECT_TRUE(platform.logged(kWriterError));
    EXPECT_FALSE(platform.logged(kSaveError)) << "one box is enough";
    for (const QString ending : {"xyz", "psd"}) {
        platform.answers = {path("b." + ending)};
        command("SAVEAS");
        EXPECT_EQ(last(), kSaveError + "\n\"." + ending.toStdString() + "\" is no format that is written.");
    }
    platform.log.clear();
    fImage* empty = open({}, "empty.bmp");
    ASSERT_EQ(empty, frame->GetActiveImage());
    platform.answers = {path("e.bmp")};
    command("SAVEAS");
    EXPECT_EQ(last(), kSaveError + "\nThere is no picture in it.");
    empty->parentWidget()->close();
    QCoreApplication::processEvents();
    EXPECT_TRUE(image->document().Changed);
    EXPECT_EQ(image->Caption(), "picture.bmp");
}

TEST_F(FrameTest, RecentItemsFollowTheFiles)
{
    const QString a = file("a.bmp"), b = file("b & c.bmp");
    setup.Recent[0] = a + "   ";
    setup.Recent[2] = b;
    frame->FillRecent();
    EXPECT_EQ(frame->action("RF_0")->text(), a);
    EXPECT_EQ(setup.Recent[0], a);
    EXPECT_FALSE(frame->action("RF_1")->isVisible()) << "never used";
    EXPECT_TRUE(frame->action("RF_2")->text().endsWith("b && c.bmp"));

    frame->action("RF_2")->trigger();
    frame->workspace().wait();
    ASSERT_EQ(frame->documents().size(), 1);
    EXPECT_EQ(frame->documents()[0]->Caption(), "b & c.bmp");

    QFile::remove(a);
    frame->action("RF_0")->trigger(); // deleted since the list was filled
    frame->workspace().wait();
    EXPECT_EQ(last(), "message: Velara Studio: This file is not there any more:\n" + a.toStdString());
    EXPECT_EQ(frame->documents().size(), 1);
    EXPECT_EQ(frame->action("RF_0")->text(), "Empty");
    EXPECT_TRUE(frame->action("RF_0")->isEnabled());
    EXPECT_EQ(setup.Recent[0], a); // it keeps its position
    QFile::remove(b);
    file("a.bmp");
    emit frame->findChild<QMenu*>("mnuRecent")->aboutToShow(); // the files are checked whenever the menu opens
    EXPECT_EQ(frame->action("RF_0")->text(), a);
    const QAction* lost = frame->action("RF_2");
    EXPECT_EQ(lost->text(), "");
    EXPECT_FALSE(lost->isVisible() || lost->isEnabled()) << "an empty line";
}

TEST_F(FrameTest, ADragShowsWhetherItCanBeDropped)
{
    for (const auto& [url, taken] : {std::pair("file:///p/a.png", true),
                                     {"file:///p/a.PSD", true},
                                     {"file:///p/a.txt", false},
                                     {"http://x/a.png", false},
                                     {"file:///p", false}}) {
        QMimeData data;
        data.setUrls({QUrl("file:///p/notes"), QUrl(url)});
        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(frame.get(), &enter);
        EXPECT_EQ(enter.isAccepted(), taken) << url;
    }
}

TEST_F(FrameTest, WhatComesFromOutsideOpensAsTheOptionsSayAndNewPicturesDoNot)
{
    setup.OpenZoom = 3;
    setup.ImagesMaximized = true;
    setup.PreserveLastFolder = setup.AskToSave = false;
    setup.ImagesPath = "/home/images"; // typed without its last separator
    frame->setDialogFolder("/home/pictures");
    const QString a = file("a.bmp"), b = file("b.png");
    const auto shown = [&] {
        frame->workspace().wait();
        const fImage* image = frame->GetActiveImage();
        const auto* window = qobject_cast<QMdiSubWindow*>(image->parentWidget());
        const auto result = std::tuple(image->Tag(), image->ZoomFactor(), window->isMaximized());
        image->parentWidget()->close();
        QCoreApplication::processEvents();
        return result;
    };
    frame->openPicture(a);
    EXPECT_EQ(shown(), std::tuple(a, 3, true));
    frame->action("RF_0")->trigger();
    EXPECT_EQ(shown(), std::tuple(a, 3, true));
    frame->dropFiles({b});
    EXPECT_EQ(shown(), std::tuple(b, 3, true));
    platform.recordingClipboard.bits = randomBits(5, 4, 1);
    command("CREATEFROMCLIPBOARD");
    EXPECT_EQ(shown(), std::tuple(QString("/home/images/New.bmp"), 3, true));
    frame->adopt(randomBits(5, 4, 1), "New.bmp", Arrival::Made);
    EXPECT_EQ(frame->windowTitle(), "Velara Studio - [New.bmp]");
    command("CREATEFROMCLIPBOARD");
    EXPECT_EQ(frame->windowTitle(), "Velara Studio - [[1]New.bmp[*]]") << "one name for two";
    EXPECT_TRUE(frame->isWindowModified());
    shown();
    EXPECT_EQ(shown(), std::tuple(QString("/home/pictures/New.bmp"), 1, false));
    EXPECT_EQ(frame->windowTitle(), "Velara Studio");
}

TEST_F(FrameTest, ADropTakesAllKindsInOrderAndComplainsOnce)
{
    putFile(path("bad.gif"), "nothing");
    const QString gone[] = {path("gone.bmp"), path("gone.gif")};
    frame->dropFiles({file("a.bmp"), file("b.png"), path("bad.gif"), gone[0], file("c.JPG"), path("bad.gif"),
                      path("d.txt"), gone[1]});
    frame->workspace().wait();
    ASSERT_EQ(frame->documents().size(), 3);
    EXPECT_EQ(frame->documents()[0]->Caption(), "a.bmp");
    EXPECT_EQ(frame->documents()[1]->Caption(), "b.png");
    EXPECT_EQ(frame->documents()[2]->Caption(), "c.JPG");
    EXPECT_EQ(frame->status().currentMessage(), "Of a kind that is not read: d.txt");
    EXPECT_EQ(std::count(platform.log.begin(), platform.log.end(), kLoadError), 1);
    EXPECT_EQ(
        last(),
        ("message: Velara Studio: These files are not there any more:\n" + gone[0] + "\n" + gone[1]).toStdString());
    EXPECT_TRUE(setup.Recent[0].isEmpty());
}

TEST_F(FrameTest, WhatIsReadWhenTheFrameClosesIsNotOpened)
{
    frame->openPicture(file("a.bmp"));
    frame->openPicture(path("gone.bmp"));
    EXPECT_TRUE(frame->close());
    frame->workspace().wait();
    EXPECT_TRUE(frame->workspace().documents().empty());
    EXPECT_TRUE(QDir(path("Temp")).entryList({"b*.dat"}, QDir::Files).isEmpty());
    EXPECT_EQ(std::ranges::count_if(platform.log, [](const auto& line) { return line.starts_with("message"); }), 0);
}

TEST_F(FrameTest, ACopyGoesThroughTheClipboardAndLeavesItEmpty)
{
    fImage* image = open(randomBits(9, 7, 2));
    image->document().Region.CreateRect(1, 1, 4, 4, Combine::Or, true);
    command("CREATENEWCOPY");
    ASSERT_EQ(frame->documents().size(), 2);
    fImage* copy = frame->documents()[1];
    EXPECT_EQ(copy->bits().at(3, 3), image->bits().at(3, 3));
    EXPECT_TRUE(copy->document().Region.Region() == image->document().Region.Region());
    EXPECT_EQ(copy->Tag(), "[1]" + image->Tag());
    EXPECT_TRUE(platform.clipboard().bits.isNull());
}

TEST_F(FrameTest, OptionsTakeEffectOnOkAlone)
{
    for (const bool ok : {false, true}) {
        setup.AskToSave = true;
        setup.ImagesPath = "/pictures/   ";
        fPreferences dialog(platform, setup, nullptr);
        EXPECT_EQ(dialog.windowTitle(), "Velara Studio: Options");
        EXPECT_EQ(dialog.findChild<QLineEdit*>("txtImagesPath")->text(), "/pictures/");
        auto* box = dialog.findChild<QCheckBox*>("chkAskToSave");
        EXPECT_EQ(QString(box->text()).remove('&'), "Ask to save on Close/Exit");
        dialog.show();
        ASSERT_TRUE(comes([&] { return dialog.isActiveWindow(); }));
        QTest::keyClick(&dialog, Qt::Key_A, Qt::AltModifier);
        EXPECT_TRUE(comes([&] { return !box->isChecked(); }));
        platform.answers = {"/elsewhere"};
        dialog.findChild<QPushButton*>("cmdBrowsePath")->click();
        EXPECT_EQ(last(), "folder: Select Images default folder");
        EXPECT_TRUE(setup.AskToSave);
        auto* look = dialog.findChild<QComboBox*>("cboAppearance");
        EXPECT_EQ(look->currentText(), "As the desktop");
        look->setCurrentText("High contrast, dark");
        dialog.findChild<QPushButton*>(ok ? "CmdOK" : "CmdCancel")->click();
        EXPECT_EQ(setup.AskToSave, !ok);
        EXPECT_EQ(chosenLook(platform), ok ? Look::ContrastDark : Look::Desktop);
        EXPECT_EQ(setup.ImagesPath, ok ? "/elsewhere/" : "/pictures/   ");
    }
}

// --- The start

TEST(StartTest, AFullDiskLeavesNothingEmptyBehind)
{
    useResources();
    RecordingPlatform platform;
    const QDir folder(platform.programFolder());
    {
        const FullDisk full(1000);
        EXPECT_FALSE(makeFolders(platform));
    }
    EXPECT_FALSE(folder.exists("Stamps"));
    EXPECT_FALSE(folder.exists("Images"));
    ASSERT_TRUE(makeFolders(platform));
    for (const char* name : {"Stamps/Velara3.bmp", "Images/Velara.bmp"}) {
        putFile(folder.filePath(name), {}); // as left by an earlier version
    }
    QFile::remove(folder.filePath("Stamps/Velara4.bmp"));
    QFile::setPermissions(folder.filePath("Temp"), QFile::Permissions(0x7777)); // accessible to all
    ASSERT_TRUE(makeFolders(platform));
    EXPECT_FALSE(QImage(folder.filePath("Stamps/Velara3.bmp")).isNull());
    EXPECT_FALSE(QImage(folder.filePath("Images/Velara.bmp")).isNull());
    EXPECT_FALSE(folder.exists("Stamps/Velara4.bmp")) << "what was deleted stays away";
    EXPECT_FALSE(QFile::permissions(folder.filePath("Temp")) & (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther));
}

TEST(StartTest, WhateverTheConfigurationSaysTheFrameIsOnTheScreen)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const int size : {0, -32768, 1, 9600, 32767}) {
        velara::Setup setup;
        setup.FrameWidth = setup.FrameHeight = static_cast<std::int16_t>(size);
        QWidget frame;
        placeFrame(frame, setup);
        EXPECT_GE(frame.width(), 320) << size;
        EXPECT_GE(frame.height(), 240) << size;
        EXPECT_LE(frame.width(), screen.width()) << size;
        EXPECT_LE(frame.height(), screen.height()) << size;
    }
}

TEST(StartTest, TheFrameComesBackWhereItStood)
{
    velara::Setup setup;
    QWidget first, again, changed, second;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    placeFrame(first, setup);
    EXPECT_EQ(first.size(), screen.size() * 3 / 4);
    setup.FrameWidth = 480 * 15;
    setup.FrameHeight = 360 * 15;
    placeFrame(first, setup);
    EXPECT_LE((first.geometry().center() - screen.center()).manhattanLength(), 2) << "in the middle the first time";
    first.move(37, 52);
    placeFrame(again, setup, first.saveGeometry());
    EXPECT_EQ(again.geometry(), QRect(37, 52, 480, 360));
    setup.FrameWidth = 500 * 15;
    setup.FrameMaximized = true;
    placeFrame(changed, setup, first.saveGeometry());
    EXPECT_TRUE(changed.isMaximized());
    EXPECT_EQ(changed.normalGeometry(), QRect(37, 52, 500, 360)) << "the size is the configuration's to say";
    placeFrame(second, setup, first.saveGeometry(), true);
    EXPECT_FALSE(second.isMaximized());
    EXPECT_GE(second.y(), 52 + second.style()->pixelMetric(QStyle::PM_TitleBarHeight)) << "below the other's title";
    EXPECT_TRUE(screen.contains(second.geometry()));
    first.move(screen.right() - 420, 52);
    QWidget large;
    placeFrame(large, setup, first.saveGeometry());
    EXPECT_EQ(large.normalGeometry().right(), screen.right()) << "where it has grown over the edge it comes in";
}

TEST(StartTest, AProgramFolderThatCannotBeWrittenIsSaidAndTheEditorStarts)
{
    struct ReadOnly : RecordingPlatform {
        QStringList shown; // before the frame
        QString programFolder() override { return "/proc/velara"; }
        bool previousInstance() override
        {
            EXPECT_FALSE(QGuiApplication::windowIcon().isNull()) << "the box of that comes before the frame";
            for (QWidget* window : QApplication::topLevelWidgets())
                if (window->isVisible()) {
                    shown += window->objectName();
                    QTest::mouseClick(window, Qt::LeftButton); // closes the splash
                }
            return false;
        }
    } platform;
    velara::Setup setup;
    const auto frame = startedEditor(platform, setup);
    EXPECT_EQ(platform.shown, QStringList("fSplash"));
    EXPECT_TRUE(frame->isVisible());
    EXPECT_TRUE(std::ranges::any_of(platform.log, [](const std::string& line) {
        return line.starts_with("message: Velara Studio: The folder \"/proc/velara\" can't be written to.");
    }));
    frame->adopt(randomBits(8, 8, 1), "/somewhere/a.bmp");
    const fImage* image = frame->GetActiveImage();
    const Bits before = image->bits();
    frame->Mmenu("INVERT");
    frame->workspace().wait();
    EXPECT_FALSE(image->bits() == before);
    frame->Mmenu("UNDO");
    frame->workspace().wait();
    EXPECT_TRUE(image->bits() == before) << "the step was in memory";
    setup.AskToSave = false;
    frame->close();
    EXPECT_FALSE(frame->isVisible());
}

} // namespace velara
