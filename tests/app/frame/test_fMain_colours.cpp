// The floating colour box in the real frame, and the picker behind the wells.
#include "app/frame/frameTest.h"
#include "ui/colour/fColourCell.h"
#include "ui/colour/fPalette.h"
#include "ui/colour/fPickSurface.h"
#include "ui/colour/fPicker.h"
#include "ui/colour/fPresetWell.h"
#include "ui/colour/fRgbBox.h"
#include "ui/widgets/fColorButton.h"
#include <QtTest>

namespace velara {
namespace {

struct ColourBox : FrameTest {
    fPalette* box = nullptr;

    void SetUp() override
    {
        setup.ForeColor = 0x102030;
        FrameTest::SetUp();
        box = frame->findChild<fPalette*>();
        frame->boxes().showAll();
    }
    template <class Widget> Widget* find(const char* name) { return controlOf<Widget>(*box, name); }
    QString numbers()
    {
        QStringList list;
        for (const char* name : {"txtRGB_0", "txtRGB_1", "txtRGB_2"}) list << find<QLineEdit>(name)->text();
        return list.join(' ');
    }
    void press(const char* surface, int x, int y)
    {
        QTest::mouseClick(find<QWidget>(surface), Qt::LeftButton, {},
                          {x + fPickSurface::kEdge, y + fPickSurface::kEdge});
    }
    void link(bool on) { find<QCheckBox>("chkLink")->setChecked(on); }
    /// Schedules the user's actions in the picker that opens next.
    void inPicker(std::function<void(fPicker&)> work)
    {
        QTimer::singleShot(0, [this, work] {
            auto* picker = qobject_cast<fPicker*>(QApplication::activeModalWidget());
            opened += picker != nullptr;
            if (picker) work(*picker);
        });
    }
    int opened = 0;
};

TEST_F(ColourBox, HueAndPlanePickAndStoreInTheCell)
{
    press("iHue", 5, 31); // row 33: 79 of 240, green
    EXPECT_NEAR(1.975, setup.PaletteHue, 1e-6);
    press("iPal", 0, 50);
    const Rgb wanted = HSLToRGB(setup.PaletteHue, 1, 0.5f);
    EXPECT_EQ(colourOf(wanted.r, wanted.g, wanted.b), setup.ForeColor) << "linked";
    EXPECT_EQ(setup.ForeColor, setup.CustomColors[0]);
    EXPECT_EQ(setup.ForeColor, find<fColourCell>("lblCol_0")->colour());
    link(false);
    QTest::mouseClick(find<QWidget>("lblCol_5"), Qt::LeftButton);
    auto* plane = find<QWidget>("iPal");
    QTest::mousePress(plane, Qt::LeftButton, {}, {30, 30});
    // dragged out: columns that aren't shown can be reached
    sendMouse(plane, QEvent::MouseMove, {500, 40}, Qt::NoButton, Qt::LeftButton);
    QTest::mouseRelease(plane, Qt::LeftButton, {}, {500, 40});
    const Colour grey = box->current();
    EXPECT_EQ(redOf(grey), blueOf(grey));
    EXPECT_EQ(grey, setup.CustomColors[5]);
    EXPECT_NE(grey, setup.ForeColor) << "not linked";
    QTest::mouseDClick(find<QWidget>("lblCur"), Qt::LeftButton);
    EXPECT_EQ(grey, setup.ForeColor);
    QTest::keyClick(plane, Qt::Key_Left);
    EXPECT_NE(grey, box->current());
    QTest::mouseDClick(find<QWidget>("lblCol_6"), Qt::LeftButton);
    EXPECT_EQ(find<fColourCell>("lblCol_6")->colour(), setup.ForeColor);
}

TEST_F(ColourBox, NumbersAreRuledTypedPastedAndDragged)
{
    EXPECT_EQ("48 32 16", numbers());
    using Row = std::pair<const char*, const char*>; // input, displayed text
    auto* red = find<fRgbBox>("txtRGB_0");
    for (const auto& [keys, shown] : {Row{"300", "255"}, {"7x8", "78"}, {"-5", "5"}, {"0", "0"}}) {
        red->selectAll();
        QTest::keyClicks(red, keys);
        EXPECT_EQ(shown, red->text());
        EXPECT_EQ(red->text().size(), red->cursorPosition());
    }
    for (const auto& [pasted, shown] :
         {Row{"12ab", "12"}, {"abc", "0"}, {"-5", "0"}, {"99999999999999999999", "255"}, {"", "0"}}) {
        red->setText(pasted);
        EXPECT_EQ(shown, red->text()) << pasted;
    }
    red->setText("100");
    EXPECT_EQ(100, redOf(setup.ForeColor));
    const auto drag = [&](int y, Qt::KeyboardModifiers keys = {}) {
        sendMouse(red, QEvent::MouseMove, QPointF(4, y), Qt::NoButton, Qt::LeftButton, keys);
        return red->text().toStdString();
    };
    QTest::mousePress(red, Qt::LeftButton, {}, {4, 10});
    EXPECT_EQ("101", drag(9));
    EXPECT_EQ("111", drag(8, Qt::ControlModifier));
    EXPECT_EQ("110", drag(8)) << "no way up counts as down";
    EXPECT_EQ("109", drag(20));
    QTest::mouseRelease(red, Qt::LeftButton);
}

TEST_F(ColourBox, PresetsSwapAndChangesElsewhere)
{
    auto* sets = find<QComboBox>("CPL");
    EXPECT_EQ("16 Colors", sets->itemText(0));
    EXPECT_EQ("System Pallete", sets->itemText(6));
    for (int i = 0; i < 7; ++i) {
        sets->setCurrentIndex(i);
        for (int well = 0; well < 7; ++well)
            EXPECT_EQ(well == i, find<QWidget>(qPrintable("cp_" + QString::number(well)))->isVisible());
        auto* well = find<fPresetWell>(qPrintable("cp_" + QString::number(i)));
        QTest::mouseClick(well, Qt::LeftButton);
        auto cells = well->findChildren<fColourCell*>();
        ASSERT_GE(cells.size(), 16);
        cells[0]->setFocus();
        QTest::keyClick(cells[0], Qt::Key_Right);
        const Colour second = cells[1]->colour();
        QTest::keyClick(cells[1], Qt::Key_Return);
        EXPECT_FALSE(well->isOpen());
        EXPECT_EQ(second, setup.ForeColor) << i;
        EXPECT_EQ(second, box->current());
    }
    find<QLineEdit>("txtHex")->setText("#08f");
    QTest::keyClick(find<QWidget>("txtHex"), Qt::Key_Return);
    EXPECT_EQ(0xFF8800, setup.ForeColor);
    EXPECT_NEAR(3.4667, setup.PaletteHue, 1e-3) << "the plane of its hue, so that the ring stands on the colour";
    setup.ForeColor = 1;
    setup.BackColor = 2;
    frame->showColors(); // as the pipette does
    EXPECT_EQ(1, find<fColorButton>("lblColF")->colour());
    EXPECT_EQ(1, box->current()) << "linked";
    QTest::mouseClick(find<QWidget>("iSwap"), Qt::LeftButton);
    EXPECT_EQ(2, setup.ForeColor);
    EXPECT_EQ(1, setup.BackColor);
    EXPECT_EQ(1, find<fColorButton>("lblColB")->colour());
}

TEST_F(ColourBox, TheMenuItemAndTheCrossShowAndHideItWhereItWasPut)
{
    QAction* item = frame->action("VIEWS_4");
    EXPECT_TRUE(item->isChecked() && item->isEnabled() && box->isVisible());
    QDockWidget* dock = frame->boxes().dock(Boxes::Colours);
    dock->setFloating(true);
    dock->move(77, 88);
    item->trigger();
    EXPECT_TRUE(!item->isChecked() && !box->isVisible() && !setup.ColorBoxVisible);
    item->trigger();
    EXPECT_TRUE(item->isChecked() && box->isVisible() && setup.ColorBoxVisible);
    EXPECT_EQ(QPoint(77, 88), dock->pos());
    dock->findChild<QAbstractButton*>("qt_dockwidget_closebutton")->click();
    EXPECT_FALSE(box->isVisible());
    EXPECT_FALSE(setup.ColorBoxVisible || item->isChecked());
    setup.PaletteHue = std::numeric_limits<float>::quiet_NaN(); // a damaged configuration
    fPalette other(*frame, nullptr);
    EXPECT_EQ(0x102030, other.current());
}

TEST_F(ColourBox, EveryWellOpensThePicker)
{
    inPicker([](fPicker& p) {
        p.LoadColorDialog(0xABCDEF);
        QTest::mouseClick(p.findChild<QWidget*>("Command1"), Qt::LeftButton);
    });
    QTest::mouseDClick(find<QWidget>("iPal"), Qt::LeftButton, {}, {40, 40});
    EXPECT_EQ(0xABCDEF, box->current());
    EXPECT_EQ(0xABCDEF, setup.ForeColor);
    for (QWidget* well : {frame->toolPane().findChild<QWidget*>("lblColB"), find<QWidget>("lblColB")}) {
        setup.BackColor = 0x123456;
        frame->showColors();
        inPicker([](fPicker& p) {
            EXPECT_EQ(0x123456, p.colour());
            p.LoadColorDialog(0x654321);
            p.reject();
        });
        QTest::mouseClick(well, Qt::LeftButton);
        EXPECT_EQ(0x123456, setup.BackColor);
        inPicker([](fPicker& p) {
            p.LoadColorDialog(0x654321);
            p.accept();
        });
        QTest::mouseClick(well, Qt::LeftButton);
        EXPECT_EQ(0x654321, setup.BackColor);
    }
    EXPECT_EQ(5, opened);
}

} // namespace
} // namespace velara
