// The dialogs of colour depth and of saving for the web, with real controls, used as a person does. The files that the
// second one writes are read by velara-decode.
#include "fileio/load/PictureLoader.h"
#include "reduce/EuroDepth.h"
#include "support/RecordingPlatform.h"
#include "support/pictures.h"
#include "support/places.h"
#include "support/ui/controls.h"
#include "ui/export/FWeb.h"
#include "ui/export/fColorDepth.h"
#include "ui/widgets/ActiveComposer.h"
#include <QtTest>

namespace velara {
namespace {

struct RealFiles final : RecordingPlatform {
    std::uint32_t milliseconds() override { return now += 20; } // a yield falls due at each report
    std::function<void()> onRead;                               // the file is written
    LoadedPicture loadPicture(const QString& path, const QString& extension, const GoOn& goOn = {}) override
    {
        if (onRead) onRead();
        return loadThroughDecoder(path, extension, builtPath("velara-decode"), {}, goOn);
    }
};

struct ExportDialogs : ::testing::Test {
    RealFiles world;
    Bits picture = randomBits(90, 70, 4);

    static QString text(QWidget& dialog, const char* name) { return controlOf<QLabel>(dialog, name)->text(); }
    static void choose(QWidget& dialog, const char* list, const QString& entry)
    {
        auto* box = controlOf<QComboBox>(dialog, list);
        ASSERT_TRUE(box->isEnabled()) << list;
        ASSERT_GE(box->findText(entry), 0) << list << ": " << entry.toStdString();
        box->setCurrentText(entry);
    }
    static void idle(FWeb& dialog)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !dialog.isRunning(); }, 20000));
    }
    QString temporary(const char* name) const { return world.folder.filePath(QStringLiteral("Temp/") + name); }
};

TEST_F(ExportDialogs, DepthShowsAndHandsOnTheReducedPicture)
{
    const Bits big = randomBits(900, 600, 6);
    Bits taken, sent;
    for (const bool toSaver : {false, true}) {
        fColorDepth dialog(big, {[&](const Bits& b) { taken = b; }, [&](const Bits& b) { sent = b; }});
        dialog.show();
        EXPECT_EQ(Composer::ColorDepth, ActiveComposer::current());
        auto* menu = controlOf<QToolButton>(dialog, "Toolbar1_1")->menu();
        ASSERT_EQ(7, menu->actions().size());
        auto* optimized = controlOf<fPicture>(dialog, "OptimizedP");
        EXPECT_EQ(300, optimized->bits().width());
        EXPECT_FALSE(menu->actions()[4]->isEnabled()) << "the present one";
        constexpr int kDepths[] = {1, 4, 8, 15, 16, 24, 32};
        auto* list = controlOf<QComboBox>(dialog, "cmbDepth");
        ASSERT_EQ(7, list->count());
        for (int i = 0; i < 7; ++i) {
            list->setCurrentIndex(i);
            EXPECT_EQ(list->currentText(), text(dialog, "Lbloptimized"));
            EXPECT_TRUE(
                sameBits(bitsAtDepth(controlOf<fPicture>(dialog, "OriginalP")->bits(), kDepths[i]), optimized->bits()));
        }
        list->setCurrentIndex(1);
        for (QAction* entry : menu->actions()) entry->trigger();
        EXPECT_TRUE(sameBits(bitsAtDepth(big, 4), optimized->bits())) << "the depth stays, at full size";
        EXPECT_TRUE(controlOf<QScrollBar>(dialog, "HHop")->isEnabled());
        menu->actions()[0]->trigger();
        QTest::qWait(1);
        EXPECT_FALSE(controlOf<QScrollBar>(dialog, "HHop")->isEnabled());
        controlOf<QPushButton>(dialog, toSaver ? "cmdSave" : "CmdOK")->click();
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(Composer::None, ActiveComposer::current());
    }
    EXPECT_TRUE(sameBits(bitsAtDepth(big, 4), taken));
    EXPECT_TRUE(sameBits(taken, sent));
    fColorDepth tiny(randomBits(1, 1, 1), {});
    for (QAction* entry : controlOf<QToolButton>(tiny, "Toolbar1_1")->menu()->actions()) entry->trigger();
    controlOf<QPushButton>(tiny, "CmdExit")->click();
}

TEST_F(ExportDialogs, EveryPresetPaletteAndDitherShowsItsFile)
{
    FWeb dialog(world, picture, "Photo", {});
    dialog.show();
    EXPECT_EQ("Photo", text(dialog, "FileType1"));
    EXPECT_FALSE(controlOf<QComboBox>(dialog, "cboMap")->isEnabled());
    EXPECT_FALSE(controlOf<QPushButton>(dialog, "CmdSave")->isEnabled());
    auto* presets = controlOf<QComboBox>(dialog, "CboFiles");
    ASSERT_EQ(21, presets->count());
    for (int p = 0; p < 21; ++p) {
        presets->setCurrentIndex(p);
        idle(dialog);
        const std::string name = presets->currentText().toStdString();
        const WebSettings& s = dialog.settings();
        EXPECT_EQ(s.typeText(), text(dialog, "FileType2")) << name;
        EXPECT_EQ(s.depthText(), text(dialog, "Depth4")) << name;
        EXPECT_TRUE(text(dialog, "FileSize2").endsWith(s.isJpeg() ? " Kb" : " KB")) << name;
        EXPECT_EQ(s.isGif(), controlOf<QCheckBox>(dialog, "ChkInterlaced")->isVisible()) << name;
        EXPECT_TRUE(text(dialog, "lblExact").contains(s.BitCount == 24 ? "no loss" : " dB")) << name;
        auto* maps = controlOf<QComboBox>(dialog, "cboMap");
        for (int m = 0; m < maps->count() && !s.isJpeg(); ++m) {
            maps->setCurrentIndex(m);
            EXPECT_EQ(s.takesDither, controlOf<QComboBox>(dialog, "cboDither")->isEnabled()) << name;
            EXPECT_EQ(s.takesDither, maps->currentText() != "MS Map" || s.BitCount > 8) << name;
        }
        idle(dialog);
        const QString file = temporary(s.isJpeg() ? "J0001.jpg" : "G0001.gif");
        const LoadedPicture shown = world.loadPicture(file, s.extension());
        ASSERT_TRUE(shown.ok()) << name << shown.reason.toStdString();
        EXPECT_TRUE(sameBits(shown.bits, controlOf<fPicture>(dialog, "oSrc")->bits())) << name;
    }
}

TEST_F(ExportDialogs, ChoicesTakeEffectAndEqualKeepsTheLastDither)
{
    FWeb dialog(world, picture, "Photo", {});
    dialog.show();
    choose(dialog, "CboFiles", "GIF-4 Colors");
    EXPECT_EQ(0x8004, dialog.settings().PaletteWord);
    choose(dialog, "cboMap", "Fixed Color");
    EXPECT_EQ(0, dialog.settings().PaletteWord);
    choose(dialog, "CboFiles", "GIF-16 Colors");
    choose(dialog, "cboDither", "Forward Diag");
    choose(dialog, "cboDither", "Equal");
    EXPECT_EQ(8, dialog.settings().DitherWord);
    choose(dialog, "cboMap", "Fixed Grey");
    EXPECT_EQ(8, dialog.settings().DitherWord) << "it goes with any palette";
    choose(dialog, "cboMap", "MS Map");
    EXPECT_EQ(0, dialog.settings().DitherWord) << "but not with none";
    choose(dialog, "cboColorMode", "Greyscale");
    idle(dialog);
    const Bits grey = controlOf<fPicture>(dialog, "oSrc")->bits();
    for (int x = 0; x < 90; ++x)
        ASSERT_TRUE(grey.at(x, 9).c[0] == grey.at(x, 9).c[1] && grey.at(x, 9).c[1] == grey.at(x, 9).c[2]);
    choose(dialog, "CboFiles", "PNG-24 bit");
    for (const char* name : {"chkFlipH", "chkFlipV", "chkInvert"}) controlOf<QCheckBox>(dialog, name)->setChecked(true);
    idle(dialog);
    const Bits turned = controlOf<fPicture>(dialog, "oSrc")->bits();
    for (int c = 0; c < 3; ++c) EXPECT_EQ(255 - picture.at(5, 3).c[c], turned.at(84, 66).c[c]);
    controlOf<QTabWidget>(dialog, "sT")->setCurrentIndex(2);
    EXPECT_TRUE(sameBits(turned, controlOf<fPicture>(dialog, "OptimizedP")->bits()));
    EXPECT_TRUE(sameBits(picture, controlOf<fPicture>(dialog, "OriginalP")->bits()));
}

TEST_F(ExportDialogs, JpegQualityAndFit)
{
    FWeb dialog(world, randomBits(300, 200, 3), "Photo", {});
    dialog.show();
    choose(dialog, "CboFiles", "JPEG");
    EXPECT_EQ(0x100, dialog.settings().JpegQuality);
    auto* custom = controlOf<QLineEdit>(dialog, "TxtJPG");
    custom->clear();
    controlOf<QPushButton>(dialog, "jpgUpdate")->click();
    EXPECT_TRUE(world.logged("message: Velara Studio: Enter value between 1 to 99 !"));
    for (const char* value : {"0", "100", "99999"}) {
        custom->setText(value);
        controlOf<QPushButton>(dialog, "jpgUpdate")->click();
        idle(dialog);
        EXPECT_EQ(std::min(QString(value).toInt(), 32767), dialog.settings().JpegQuality);
        choose(dialog, "cboJpg", "Good");
        EXPECT_EQ(0x100, dialog.settings().JpegQuality) << "the same class as before " << value;
    }
    controlOf<QSpinBox>(dialog, "spnFit")->setValue(30);
    controlOf<QPushButton>(dialog, "cmdFit")->click();
    idle(dialog);
    EXPECT_LE(QFileInfo(temporary("J0001.jpg")).size(), 30 * 1024);
    EXPECT_GT(QFileInfo(temporary("J0001.jpg")).size(), 20 * 1024);
    controlOf<QSpinBox>(dialog, "spnFit")->setValue(1);
    controlOf<QPushButton>(dialog, "cmdFit")->click();
    EXPECT_TRUE(text(dialog, "lblExact").contains("No quality"));
}

TEST_F(ExportDialogs, OneRunAfterTheLastChangeAndEscEndsIt)
{
    FWeb dialog(world, randomBits(800, 600, 3), "Photo", {});
    dialog.show();
    for (const char* preset : {"GIF-8 Colors", "GIF-64 Colors", "BMP-24 bit"}) choose(dialog, "CboFiles", preset);
    EXPECT_EQ(0, world.yields) << "nothing ran between";
    idle(dialog);
    EXPECT_EQ("BMP", text(dialog, "FileType2"));
    bool changed = false;
    world.onYield = [&] {
        if (!std::exchange(changed, true)) choose(dialog, "CboFiles", "BMP-16 Colors");
    };
    choose(dialog, "CboFiles", "GIF-256 Colors");
    idle(dialog);
    EXPECT_EQ("BMP", text(dialog, "FileType2")) << "the later change stands";
    EXPECT_EQ("16 Colors", text(dialog, "Depth2"));
    for (const bool whileReading : {false, true}) {
        FWeb web(world, randomBits(800, 600, 3), "Photo", {});
        const auto escape = [&] { QTest::keyClick(&web, Qt::Key_Escape); };
        world.onYield = whileReading ? std::function<void()>() : escape;
        world.onRead = [&] { world.onYield = escape; };
        web.show();
        choose(web, "CboFiles", "PNG-24 bit");
        ASSERT_TRUE(QTest::qWaitFor([&] { return !web.isVisible(); }, 5000));
        EXPECT_EQ("", text(web, "FileType2")) << "nothing came of it";
    }
}

TEST_F(ExportDialogs, SaveAsWritesTheSameAndFailuresLeaveTheLastPreview)
{
    FWeb dialog(world, picture, "Photo", {});
    dialog.show();
    choose(dialog, "CboFiles", "GIF-32 Colors");
    idle(dialog);
    const QString name = world.folder.filePath("out.gif");
    const auto bytesOf = [](const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    };
    world.answers = {name};
    controlOf<QPushButton>(dialog, "CmdSave")->click();
    EXPECT_TRUE(world.logged("save: Save Optimized As"));
    EXPECT_EQ("Graphical Interface Format (*.gif)|*.gif", world.lastDialog.filter);
    EXPECT_EQ(bytesOf(temporary("G0001.gif")), bytesOf(name));
    controlOf<QCheckBox>(dialog, "ChkInterlaced")->setChecked(true);
    idle(dialog);
    world.answers = {std::nullopt};
    controlOf<QPushButton>(dialog, "CmdSave")->click();
    EXPECT_EQ("", world.lastDialog.filter) << "an interlaced one has none";
    EXPECT_EQ("/a/out.gif", world.lastDialog.writtenAs("/a/out"));

    const Bits before = controlOf<fPicture>(dialog, "oSrc")->bits();
    QDir(world.folder.filePath("Temp")).removeRecursively();
    QFile blocker(world.folder.filePath("Temp"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    choose(dialog, "cboDither", "Odd");
    idle(dialog);
    EXPECT_TRUE(sameBits(before, controlOf<fPicture>(dialog, "oSrc")->bits()));
    blocker.remove();
    const QString precious = world.folder.filePath("precious"), shown = temporary("G0001.gif");
    choose(dialog, "cboDither", "Even");
    idle(dialog);
    constexpr auto kOthers = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    for (const QString& kept : {shown, world.folder.filePath("Temp")})
        EXPECT_FALSE(QFile::permissions(kept) & kOthers) << kept.toStdString() << " is the user's alone";
    ASSERT_TRUE(QFile::rename(shown, precious));
    ASSERT_TRUE(QFile::link(precious, shown));
    const QByteArray first = bytesOf(precious);
    choose(dialog, "cboDither", "Odd");
    idle(dialog);
    EXPECT_EQ(first, bytesOf(precious)) << "a link in the Temp folder is not followed";
    EXPECT_NE(first, bytesOf(shown));
}

} // namespace
} // namespace velara
