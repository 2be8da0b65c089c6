// The dialogs for colour depth and for saving for the web, with real controls, used as a user does. The files written
// by the second one are read by velara-decode.
#include "fileio/load/PictureLoader.h"
#include "reduce/EuroDepth.h"
#include "support/RecordingPlatform.h"
#include "support/exif.h"
#include "support/files.h"
#include "support/fullDisk.h"
#include "support/pictures.h"
#include "support/places.h"
#include "support/ui/WindowTest.h"
#include "ui/export/FWeb.h"
#include "ui/export/fColorDepth.h"
#include "ui/widgets/ActiveComposer.h"

namespace velara {
namespace {

/// Whatever the background asks holds it until the window's thread has done what the test has laid out.
struct RealFiles final : RecordingPlatform {
    int works = 0;
    std::atomic<int> reads = 0;
    std::atomic<bool> holds = false, holdsReading = false;
    std::function<void()> onAsked; // work asks whether to go on, on the window's thread
    Request inBackground(std::function<void(const GoOn&)> work, std::function<void()> done) override
    {
        ++works;
        const auto held = [this, work = std::move(work)](const GoOn& goOn) {
            work([&](auto waited) {
                if (holds)
                    QMetaObject::invokeMethod(
                        qApp, [this] { onAsked(); }, Qt::BlockingQueuedConnection);
                return goOn(waited);
            });
        };
        return RecordingPlatform::inBackground(held, std::move(done));
    }
    LoadedPicture loadPicture(const QString& path, const QString& extension, const GoOn& goOn = {}, int = 1) override
    {
        ++reads;
        if (holdsReading) holds = true;
        return loadThroughDecoder(path, extension, builtPath("velara-decode"), {}, goOn);
    }
    /// All that was begun has ended, wanted or not.
    void settle()
    {
        bool ended = false;
        const Request last = RecordingPlatform::inBackground([](auto) {}, [&] { ended = true; });
        EXPECT_TRUE(comes([&] { return ended; }));
    }
};

struct ExportDialogs : WindowTest {
    RealFiles world;
    Bits picture = randomBits(90, 70, 4);

    ~ExportDialogs() override
    {
        web.reset();
        world.settle();
    }
    void open(const Bits& shown, const CameraData& camera = {})
    {
        web = std::make_unique<FWeb>(world, shown, camera, "Photo", QString());
        used = web.get();
        web->show();
    }
    void idle()
    {
        ASSERT_TRUE(comes([&] { return !web->isRunning(); }));
    }
    const WebSettings& settings() { return web->settings(); }
    const Bits& bits(const char* name) { return find<fPicture>(name)->bits(); }
    QString temporary(const char* name) const { return world.folder.filePath(QStringLiteral("Temp/") + name); }

  private:
    std::unique_ptr<FWeb> web;
};

TEST_F(ExportDialogs, DepthShowsAndHandsOnTheReducedPicture)
{
    const Bits big = randomBits(900, 600, 6);
    int taken = 0;
    Bits sent;
    for (const bool toSaver : {false, true}) {
        fColorDepth dialog(big, {[&](int depth) { taken = depth; }, [&](const Bits& b) { sent = b; }});
        used = &dialog;
        dialog.show();
        EXPECT_EQ(Composer::ColorDepth, ActiveComposer::current());
        auto* menu = find<QToolButton>("Toolbar1_1")->menu();
        ASSERT_EQ(7, menu->actions().size());
        EXPECT_EQ(300, bits("OptimizedP").width());
        EXPECT_FALSE(menu->actions()[4]->isEnabled()) << "the present one";
        constexpr int kDepths[] = {1, 4, 8, 15, 16, 24, 32};
        auto* list = find<QComboBox>("cmbDepth");
        ASSERT_EQ(7, list->count());
        for (int i = 0; i < 7; ++i) {
            list->setCurrentIndex(i);
            EXPECT_EQ(list->currentText(), text("Lbloptimized"));
            EXPECT_TRUE(sameBits(bitsAtDepth(bits("OriginalP"), kDepths[i]), bits("OptimizedP")));
        }
        list->setCurrentIndex(1);
        for (QAction* entry : menu->actions()) entry->trigger();
        EXPECT_TRUE(sameBits(bitsAtDepth(big, 4), bits("OptimizedP"))) << "the depth stays, at full size";
        EXPECT_TRUE(find<QScrollBar>("HHop")->isEnabled());
        menu->actions()[0]->trigger();
        EXPECT_TRUE(comes([&] { return !find("HHop")->isEnabled(); }));
        click(toSaver ? "cmdSave" : "CmdOK");
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(Composer::None, ActiveComposer::current());
    }
    EXPECT_EQ(4, taken);
    EXPECT_TRUE(sameBits(bitsAtDepth(big, 4), sent));
    fColorDepth tiny(randomBits(1, 1, 1), {});
    used = &tiny;
    for (QAction* entry : find<QToolButton>("Toolbar1_1")->menu()->actions()) entry->trigger();
}

TEST_F(ExportDialogs, EveryPresetPaletteAndDitherShowsItsFile)
{
    open(picture);
    EXPECT_EQ("Photo", text("FileType1"));
    EXPECT_FALSE(find<QComboBox>("cboMap")->isEnabled());
    EXPECT_FALSE(find<QPushButton>("CmdSave")->isEnabled());
    auto* presets = find<QComboBox>("CboFiles");
    ASSERT_EQ(25, presets->count());
    for (int p = 0; p < 25; ++p) {
        presets->setCurrentIndex(p);
        idle();
        const std::string name = presets->currentText().toStdString();
        const WebSettings& s = settings();
        EXPECT_EQ(s.typeText(), text("FileType2")) << name;
        EXPECT_EQ(s.depthText(), text("Depth4")) << name;
        EXPECT_TRUE(text("FileSize2").endsWith(s.isJpeg() ? " Kb" : " KB")) << name;
        EXPECT_EQ(s.isGif(), find<QCheckBox>("ChkInterlaced")->isVisible()) << name;
        EXPECT_TRUE(text("lblExact").contains(s.BitCount == 24 ? "no loss" : " dB")) << name;
        auto* maps = find<QComboBox>("cboMap");
        for (int m = 0; m < maps->count() && !s.hasQuality(); ++m) {
            maps->setCurrentIndex(m);
            EXPECT_EQ(s.takesDither, find<QComboBox>("cboDither")->isEnabled()) << name;
            EXPECT_EQ(s.takesDither, maps->currentText() != "MS Map") << name;
            EXPECT_EQ(maps->isEnabled(), maps->count() > 1) << name;
        }
        idle();
        const QString file = temporary(s.isJpeg() ? "J0001.jpg" : "G0001.gif");
        EXPECT_TRUE(sameBits(world.loadPicture(file, s.extension()).bits, bits("oSrc"))) << name;
    }
}

TEST_F(ExportDialogs, TheCamerasDataIsKeptWhereThatIsWanted)
{
    const QByteArray second = ExifMaker(true).number(12345, 4); // of the place
    const auto fileHas = [&](const QByteArray& part) {
        idle();
        return fileBytes(temporary("J0001.jpg")).contains(part);
    };
    open(picture, {.exif = exifOfCamera(true)});
    auto *keep = find<QCheckBox>("chkKeepCamera"), *leaveOut = find<QCheckBox>("chkWithoutPlace");
    auto* presets = find<QComboBox>("CboFiles");
    presets->setCurrentIndex(0); // GIF
    EXPECT_FALSE(keep->isEnabled());
    presets->setCurrentIndex(presets->findText("JPEG", Qt::MatchContains));
    ASSERT_TRUE(settings().isJpeg());
    EXPECT_FALSE(keep->isChecked()) << "off at first";
    EXPECT_FALSE(leaveOut->isEnabled());
    EXPECT_FALSE(fileHas("Maker"));
    keep->click();
    EXPECT_TRUE(leaveOut->isChecked());
    EXPECT_TRUE(fileHas("Maker"));
    EXPECT_FALSE(fileHas(second));
    leaveOut->click();
    EXPECT_TRUE(fileHas(second));
    open(picture);
    EXPECT_FALSE(find<QCheckBox>("chkKeepCamera")->isVisible()) << "there is none";
}

TEST_F(ExportDialogs, ChoicesTakeEffectAndEqualKeepsTheLastDither)
{
    open(picture);
    choose("CboFiles", "GIF-4 Colors");
    EXPECT_EQ(0x8004, settings().PaletteWord);
    choose("CboFiles", "GIF-16 Colors");
    choose("cboMap", "Fixed Color");
    EXPECT_EQ(0, settings().PaletteWord);
    choose("cboDither", "Forward Diag");
    choose("cboDither", "Equal");
    EXPECT_EQ(8, settings().DitherWord);
    choose("cboMap", "Fixed Grey");
    EXPECT_EQ(8, settings().DitherWord) << "it goes with any palette";
    choose("cboMap", "MS Map");
    EXPECT_EQ(0, settings().DitherWord) << "but not with none";
    choose("cboColorMode", "Greyscale");
    idle();
    const Bits grey = bits("oSrc");
    for (int x = 0; x < 90; ++x)
        ASSERT_TRUE(grey.at(x, 9).c[0] == grey.at(x, 9).c[1] && grey.at(x, 9).c[1] == grey.at(x, 9).c[2]);
    choose("CboFiles", "PNG-24 bit");
    for (const char* name : {"chkFlipH", "chkFlipV", "chkInvert"}) find<QCheckBox>(name)->setChecked(true);
    idle();
    const Bits turned = bits("oSrc");
    for (int c = 0; c < 3; ++c) EXPECT_EQ(255 - picture.at(5, 3).c[c], turned.at(84, 66).c[c]);
    find<QTabWidget>("sT")->setCurrentIndex(2);
    EXPECT_TRUE(sameBits(turned, bits("OptimizedP")));
    EXPECT_TRUE(sameBits(picture, bits("OriginalP")));
}

TEST_F(ExportDialogs, JpegQualityAndFit)
{
    open(randomBits(300, 200, 3));
    choose("CboFiles", "JPEG");
    EXPECT_EQ(0x100, settings().JpegQuality);
    auto* custom = find<QLineEdit>("TxtJPG");
    custom->clear();
    click("jpgUpdate");
    EXPECT_TRUE(world.logged("message: Velara Studio: Enter value between 1 to 99 !"));
    for (const char* value : {"0", "100", "99999"}) {
        custom->setText(value);
        click("jpgUpdate");
        idle();
        EXPECT_EQ(std::min(QString(value).toInt(), 32767), settings().JpegQuality);
        choose("cboJpg", "Good");
        EXPECT_EQ(0x100, settings().JpegQuality) << "the same class as before " << value;
    }
    find<QSpinBox>("spnFit")->setValue(30);
    click("cmdFit");
    idle();
    EXPECT_LE(QFileInfo(temporary("J0001.jpg")).size(), 30 * 1024);
    EXPECT_GT(QFileInfo(temporary("J0001.jpg")).size(), 20 * 1024);
    const int quality = settings().JpegQuality;
    QTest::keyClick(used, Qt::Key_Escape);
    open(randomBits(300, 200, 4));
    EXPECT_EQ(quality, settings().JpegQuality) << "as it was left";
    find<QSpinBox>("spnFit")->setValue(1);
    QTest::keyClick(find("spnFit"), Qt::Key_Return);
    idle();
    EXPECT_TRUE(text("lblExact").contains("No quality"));
    choose("CboFiles", "GIF-256 Colors");
    find<QSpinBox>("spnFit")->setValue(40);
    click("cmdFit");
    idle();
    EXPECT_LE(QFileInfo(temporary("G0001.gif")).size(), 40 * 1024);
    EXPECT_EQ(QString("%1 Colors").arg(1 << settings().BitCount), text("Depth2"));
    EXPECT_EQ("GIF-" + text("Depth2"), find<QComboBox>("CboFiles")->currentText());
}

TEST_F(ExportDialogs, TheTableOfAllFormatsIsSortedAndChoosesOne)
{
    open(picture);
    QTimer::singleShot(0, used, [&] {
        auto* table = find<QTableWidget>("tblFormats");
        ASSERT_TRUE(comes([&] { return table->rowCount() == 25; }));
        const auto bytes = [&](int row) { return QLocale().toLongLong(table->item(row, 1)->text()); };
        for (int row = 1; row < 25; ++row) EXPECT_LE(bytes(row - 1), bytes(row));
        const auto rows = table->findItems("PNG-24 bit", Qt::MatchExactly);
        ASSERT_EQ(1, rows.size());
        EXPECT_EQ("no loss", table->item(rows[0]->row(), 2)->text());
        table->selectRow(rows[0]->row());
        click("cmdChoose");
    });
    click("cmdTable");
    idle();
    EXPECT_EQ("PNG", text("FileType2"));
    EXPECT_TRUE(text("lblExact").contains("no loss"));
}

TEST_F(ExportDialogs, OneRunAfterTheLastChangeAndEscEndsIt)
{
    open(randomBits(800, 600, 3));
    for (const char* preset : {"GIF-8 Colors", "GIF-64 Colors", "BMP-24 bit"}) choose("CboFiles", preset);
    EXPECT_EQ(0, world.works);
    idle();
    EXPECT_EQ(1, world.works);
    EXPECT_EQ("BMP", text("FileType2"));
    world.onAsked = [&] {
        world.holds = false;
        choose("CboFiles", "BMP-16 Colors");
    };
    world.holds = true;
    choose("CboFiles", "GIF-256 Colors");
    idle();
    EXPECT_EQ("BMP", text("FileType2")) << "the later change stands";
    EXPECT_EQ("16 Colors", text("Depth2"));
    EXPECT_EQ(2, world.reads) << "what was given up is not read back";
    world.onAsked = [&] {
        world.holds = world.holdsReading = false;
        QTest::keyClick(used, Qt::Key_Escape);
        EXPECT_FALSE(used->isVisible()) << "at once, whatever the thread does";
        EXPECT_EQ(nullptr, QGuiApplication::overrideCursor());
    };
    for (std::atomic<bool>* when : {&world.holds, &world.holdsReading}) {
        open(randomBits(800, 600, 3));
        *when = true;
        choose("CboFiles", "PNG-24 bit");
        ASSERT_TRUE(comes([&] { return !used->isVisible(); }));
        world.settle();
        EXPECT_EQ("", text("FileType2")) << "nothing came of it";
    }
}

TEST_F(ExportDialogs, WhatIsPressedWhileAPreviewIsWrittenIsDone)
{
    const Bits big = randomBits(400, 300, 3);
    const QString name = world.folder.filePath("out");
    const auto pressIn = [&](const char* preset, QStringList buttons) { // one at each question of the work
        world.reads = 0;
        world.onAsked = [&, buttons]() mutable {
            EXPECT_TRUE(find("pbBusy")->isVisible());
            world.holds = buttons.size() > 1;
            click(buttons.takeFirst());
        };
        world.holds = !buttons.isEmpty();
        choose("CboFiles", preset);
        EXPECT_FALSE(find("FileSize2")->isEnabled()) << "of the file before";
        idle();
        EXPECT_TRUE(find("FileSize2")->isEnabled());
        EXPECT_FALSE(find("pbBusy")->isVisible());
        return world.reads.load();
    };
    open(big);
    world.answers = {name};
    EXPECT_EQ(1, pressIn("PNG-24 bit", {"CmdSave"})) << "the saved file; the preview was ended";
    EXPECT_TRUE(sameBits(bits("oSrc"), world.loadPicture(name + ".png", "png").bits));
    EXPECT_TRUE(text("lblExact").contains("no loss"));
    EXPECT_EQ("PNG", text("FileType2"));
    EXPECT_EQ(1, pressIn("BMP-24 bit", {"CmdSave"})) << "cancelled: the preview after all";
    EXPECT_EQ("BMP", text("FileType2"));

    const auto bytes = [&] { return QFileInfo(name + ".jpg").size(); };
    find<QSpinBox>("spnFit")->setValue(60);
    world.answers = {name};
    pressIn("JPEG", {"cmdFit", "CmdSave"});
    EXPECT_TRUE(bytes() > 40 * 1024 && bytes() <= 60 * 1024) << bytes();
    find<QSpinBox>("spnFit")->setValue(1);
    pressIn("GIF-2 Colors", {});
    world.log.clear();
    pressIn("JPEG", {"cmdFit", "CmdSave"});
    EXPECT_TRUE(text("lblExact").contains("No quality"));
    EXPECT_TRUE(world.log.empty()) << "a file that is too large is not saved";
}

TEST_F(ExportDialogs, AFailedSaveIsToldWithItsReason)
{
    open(picture);
    QDir(world.folder.path()).mkdir("folder.pcx");
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"GIF-32 Colors", "none/a.gif", "a.gif can't be written: No such file or directory."},
        {"PCX-24 bit (Compressed)", "folder.pcx", "folder.pcx can't be written: Is a directory."},
        {"PNG-24 bit", "full.png", "full.png can't be written: File too large."},
        {"JPEG", "none/a.jpg", "a.jpg can't be written: No such file or directory."}};
    for (const auto& [preset, name, told] : rows) {
        choose("CboFiles", preset);
        idle();
        const FullDisk disk(1000);
        world.answers = {world.folder.filePath(name)};
        click("CmdSave");
        idle();
        EXPECT_EQ(std::string("message: Velara Studio: ") + told, world.log.back());
        EXPECT_TRUE(find("FileSize2")->isEnabled() && find("CmdSave")->isEnabled()) << "the preview stands";
    }
}

TEST_F(ExportDialogs, SaveAsWritesTheSameAndFailuresLeaveTheLastPreview)
{
    open(picture);
    choose("CboFiles", "GIF-32 Colors");
    idle();
    const QString name = world.folder.filePath("out.gif");
    world.answers = {name};
    click("CmdSave");
    EXPECT_FALSE(find("CmdSave")->isEnabled()) << "one at a time";
    idle();
    EXPECT_TRUE(world.logged("save: Save Optimized As"));
    EXPECT_EQ("Graphical Interface Format (*.gif)|*.gif", world.lastDialog.filter);
    EXPECT_EQ(fileBytes(temporary("G0001.gif"), "missing"), fileBytes(name));
    find<QCheckBox>("ChkInterlaced")->setChecked(true);
    idle();
    world.answers = {std::nullopt};
    click("CmdSave");
    EXPECT_EQ("", world.lastDialog.filter) << "an interlaced one has none";
    EXPECT_EQ("Photo.gif", world.lastDialog.name);
    for (const char* typed : {"/a/out", "/a/out.gif", "/a/out.png", "/a/out.jpeg"})
        EXPECT_EQ("/a/out.gif", world.lastDialog.writtenAs(typed));
    EXPECT_EQ("/a/out.2.gif", world.lastDialog.writtenAs("/a/out.2"));

    const Bits before = bits("oSrc");
    QDir(world.folder.filePath("Temp")).removeRecursively();
    QFile blocker(world.folder.filePath("Temp"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    choose("cboDither", "Odd");
    idle();
    EXPECT_TRUE(sameBits(before, bits("oSrc")));
    blocker.remove();
    const QString precious = world.folder.filePath("precious"), shown = temporary("G0001.gif");
    choose("cboDither", "Even");
    idle();
    constexpr auto kOthers = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    for (const QString& kept : {shown, world.folder.filePath("Temp")})
        EXPECT_FALSE(QFile::permissions(kept) & kOthers) << kept.toStdString() << " is the user's alone";
    ASSERT_TRUE(QFile::rename(shown, precious));
    ASSERT_TRUE(QFile::link(precious, shown));
    const QByteArray first = fileBytes(precious);
    choose("cboDither", "Odd");
    idle();
    EXPECT_EQ(first, fileBytes(precious)) << "a link in the Temp folder is not followed";
    EXPECT_NE(first, fileBytes(shown, first));
}

} // namespace
} // namespace velara
