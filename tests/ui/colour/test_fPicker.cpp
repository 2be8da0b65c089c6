// The picker with real controls, used as a user does.
#include "support/RecordingPlatform.h"
#include "support/files.h"
#include "support/ui/WindowTest.h"
#include "ui/colour/fCellGrid.h"
#include "ui/colour/fColourCell.h"
#include "ui/colour/fPickSurface.h"
#include "ui/colour/fPicker.h"
#include <QAccessible>
#include <unistd.h>

namespace velara {
namespace {

struct Picker : WindowTest {
    RecordingPlatform platform;
    fPicker picker{platform};

    void SetUp() override
    {
        used = &picker;
        picker.show();
        picker.activateWindow();
        ASSERT_TRUE(comes([&] { return picker.isActiveWindow(); }));
    }
    void enter(const char* name, const QString& text)
    {
        type(name, text);
        QTest::keyClick(find(name), Qt::Key_Return);
    }
    QString all()
    {
        QStringList list;
        for (const char* box : {"txtH", "txtS", "txtB", "Text1", "Text2", "Text3"}) list << text(box);
        return list.join(' ');
    }
    QString file() { return platform.folder.filePath("usercolors.cps"); }
    QByteArray fileText() { return fileBytes(file()); }
    void put(const QByteArray& text) { putFile(file(), text); }
};

TEST_F(Picker, BoxesConvertBothWaysAndRefuseWhatIsNoNumberOfTheirRange)
{
    EXPECT_EQ("0 100 100 255 0 0", all()) << "as it starts";
    enter("txtH", "360");
    EXPECT_EQ("360 100 100 255 0 0", all());
    enter("txtH", "120");
    EXPECT_EQ("120 100 100 0 255 0", all());
    enter("Text1", "255");
    EXPECT_EQ("60 100 100 255 255 0", all());
    enter("txtB", "50");
    EXPECT_EQ("60 100 50 128 128 0", all());
    find<QLineEdit>("txtH")->setFocus(Qt::TabFocusReason);
    for (const char* typed : {"60", "40", "100"}) { // each replaces the text in its box
        QTest::keyClicks(picker.focusWidget(), typed);
        QTest::keyClick(picker.focusWidget(), Qt::Key_Tab);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ("60 40 100 255 255 153", all());
    enter("txtS", "100");
    enter("txtB", "50");
    constexpr const char* kBad[][3] = {{"txtH", "361", "360"}, {"txtS", "101", "100"}, {"txtB", "-1", "100"},
                                       {"Text2", "x7", "255"}, {"Text3", "", "255"},   {"txtH", "1.5", "360"}};
    for (const auto& [box, typed, most] : kBad) {
        const QString before = text(box);
        platform.log.clear();
        enter(box, typed);
        EXPECT_EQ(platform.log,
                  std::vector{std::string("message: Velara Studio: Enter an Integer Value Between 0 and ") + most})
            << typed;
        EXPECT_TRUE(find<QLineEdit>(box)->hasFocus());
        EXPECT_EQ(0x008080, picker.colour());
        enter(box, before);
    }
    EXPECT_TRUE(picker.isVisible()) << "Enter in a box leaves the dialog open";
}

TEST_F(Picker, LeavingABoxAsksButExitDoesNot)
{
    auto* box = find<QLineEdit>("txtH");
    box->setFocus();
    box->setText("500");
    find<QLineEdit>("txtS")->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    ASSERT_EQ(1u, platform.log.size());
    EXPECT_TRUE(box->hasFocus());
    box->setText("500");
    click("Command2");
    QCoreApplication::processEvents();
    EXPECT_EQ(1u, platform.log.size());
    EXPECT_EQ(QDialog::Rejected, picker.result());
    EXPECT_FALSE(picker.isVisible());
}

TEST_F(Picker, OkTakesWhatStandsInABox)
{
    type("Text3", "77");
    QTest::keyClick(&picker, Qt::Key_K, Qt::AltModifier);
    click("Command1");
    EXPECT_EQ(QDialog::Accepted, picker.result());
    EXPECT_EQ(colourOf(255, 0, 77), picker.colour());
}

TEST_F(Picker, FieldAndStripFollowMouseAndKeysInEachOfTheThreeWays)
{
    auto *field = find<fPickSurface>("field"), *strip = find<fPickSurface>("strip");
    const auto press = [](fPickSurface* on, int x, int y) {
        const int side = fPickSurface::kEdge + (on->objectName() == "strip" ? fPickSurface::kArrow : 0);
        QTest::mouseClick(on, Qt::LeftButton, {}, {x + side, y + fPickSurface::kEdge});
    };
    press(strip, 4, 85); // hue 120
    press(field, 255, 0);
    EXPECT_EQ("120 100 100 0 255 0", all());
    EXPECT_EQ(QPoint(255, 0), field->place());
    QTest::keyClick(field, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ("120 96 100 10 255 10", all());
    click("optS"); // hue along x, brightness up
    EXPECT_EQ(QPoint(85, 0), field->place());
    press(strip, 4, 0);
    press(field, 0, 255);
    EXPECT_EQ("0 100 0 0 0 0", all());
    click("optB"); // saturation up
    press(strip, 4, 0);
    EXPECT_EQ("0 100 100 255 0 0", all());
    EXPECT_EQ(QPoint(0, 0), field->place());
    QTest::mouseMove(field, {2 + 85, 2 + 255});
    EXPECT_EQ("R: 255\nG: 255\nB: 255\nHex: #FFFFFF", text("lblStatus"));
}

TEST_F(Picker, ScreenReadersMoveTheStripAndHearTheColours)
{
    const auto spoken = [&](const char* name) { return QAccessible::queryAccessibleInterface(find(name)); };
    QAccessibleInterface *strip = spoken("strip"), *field = spoken("field");
    ASSERT_EQ(QAccessible::Slider, strip->role());
    EXPECT_EQ(QAccessible::ColorChooser, field->role());
    EXPECT_EQ(nullptr, field->valueInterface());
    QAccessibleValueInterface* value = strip->valueInterface();
    ASSERT_NE(nullptr, value);
    value->setCurrentValue(value->maximumValue().toInt() / 2);
    EXPECT_EQ(value->maximumValue().toInt() / 2, value->currentValue().toInt());
    value->setCurrentValue(1000000);
    EXPECT_EQ(value->maximumValue(), value->currentValue()) << "limited";
    EXPECT_TRUE(field->text(QAccessible::Value).startsWith("Red ")) << field->text(QAccessible::Value).toStdString();
}

TEST_F(Picker, ModelsRewriteTheLetters)
{
    find<QComboBox>("cmbModel")->setCurrentIndex(1);
    EXPECT_EQ("CMY", text("lblR") + text("lblG") + text("lblB"));
    EXPECT_EQ("0 100 100 0 255 255", all());
    EXPECT_EQ("Yellow", find("Text3")->accessibleName());
    enter("Text1", "55");
    EXPECT_EQ(colourOf(200, 0, 0), picker.colour());
    find<QComboBox>("cmbModel")->setCurrentIndex(2);
    enter("Text1", "240");
    EXPECT_EQ(colourOf(0, 0, 200), picker.colour());
    enter("Text1", "361");
    EXPECT_EQ("message: Velara Studio: Enter an Integer Value Between 0 and 360", platform.log.back());
}

TEST_F(Picker, CellsShowTheSafePaletteAndTheUsersList)
{
    QByteArray list;
    for (int i = 0; i < 20; ++i) list += " " + QByteArray::number(i * 1000) + "\r\n";
    put(list);
    picker.LoadColorDialog(0x123456);
    click("Command3");
    EXPECT_EQ("&Picker", text("Command3"));
    EXPECT_EQ(fPicker::UserList, picker.view());
    auto* cells = find<fCellGrid>("cells");
    EXPECT_EQ(3000, cells->colour(3));
    EXPECT_EQ(0, cells->colour(20)) << "beyond the file: as it was";
    QTest::mouseClick(cells, Qt::LeftButton, {}, {10 + 18 + 5, 15}); // cell 2
    EXPECT_EQ(2000, picker.colour());
    QTest::keyClick(cells, Qt::Key_Down);
    EXPECT_EQ(18, cells->selected());
    click("cmdADD");
    EXPECT_EQ(0x123456, cells->colour(18));
    EXPECT_EQ(0x123456, picker.colour()) << "OK gives what was kept";
    const QByteArray written = fileText();
    EXPECT_EQ(225, written.count("\r\n"));
    EXPECT_EQ(" 1193046", written.split('\r').at(18).trimmed().prepend(' '));

    find<QComboBox>("cmbPreset")->setCurrentIndex(1);
    EXPECT_EQ(fPicker::SafePalette, picker.view());
    EXPECT_FALSE(find("cmdADD")->isVisible());
    QTest::keyClick(cells, Qt::Key_End);
    EXPECT_EQ(0x123456, picker.colour()) << "an empty cell picks nothing";
    QTest::mouseDClick(cells, Qt::LeftButton, {}, {10 + 7 * 18 + 5, 10 + 13 * 18 + 5}); // 216
    EXPECT_EQ(QDialog::Accepted, picker.result());
    EXPECT_EQ(0xFFFFFF, picker.colour());
}

TEST_F(Picker, CodesNamesAndRecentColours)
{
    const std::pair<const char*, Colour> rows[] = {
        {"#123", 0x332211}, {"C0ffEE", 0xEEFFC0}, {" teal ", 0x808000}, {"#00ff7f", 0x7FFF00}};
    for (const auto& [typed, colour] : rows) {
        enter("txtHex", typed);
        EXPECT_EQ(colour, picker.colour()) << typed;
    }
    EXPECT_EQ("#00ff7f", text("txtHex"));
    for (const char* typed : {"#12345", "#12345678", "tael", "transparent", ""}) {
        platform.log.clear();
        enter("txtHex", typed);
        ASSERT_EQ(1U, platform.log.size()) << typed;
        EXPECT_EQ(0x7FFF00, picker.colour());
    }
    type("txtHex", "navy");
    click("Command1");
    EXPECT_EQ(0x800000, picker.colour());
    for (const Colour colour : {0x000000, 0x800000, 0x0000FF}) {
        fPicker next(platform);
        next.LoadColorDialog(colour);
        next.accept();
    }
    fPicker last(platform);
    for (const auto& [cell, colour] : {std::pair{"recent_0", 0x0000FF}, {"recent_1", 0x800000}, {"recent_2", 0}})
        EXPECT_EQ(colour, last.findChild<fColourCell*>(cell)->colour()) << cell;
    EXPECT_TRUE(last.findChild<fColourCell*>("recent_3")->isHidden());
}

TEST_F(Picker, NoListFileHarms)
{
    auto* cells = find<fCellGrid>("cells");
    click("Command3");
    EXPECT_TRUE(QFile::exists(file())) << "made empty";
    EXPECT_EQ(0, cells->colour(1));
    const auto again = [&] {
        find<QComboBox>("cmbPreset")->setCurrentIndex(1);
        find<QComboBox>("cmbPreset")->setCurrentIndex(0);
    };
    put(QByteArray(3 << 20, '\0'));
    again();
    put(" 7\r\n 9\r\n");
    again();
    EXPECT_EQ(9, cells->colour(1));
    QFile::remove(file());
    QDir(platform.folder.path()).mkdir("usercolors.cps");
    again();
    EXPECT_EQ(9, cells->colour(1)) << "a folder: what was there stays";
    click("cmdADD");
    EXPECT_TRUE(QFileInfo(file()).isDir());
    // A dangling link is not followed to create a file.
    QDir(platform.folder.path()).rmdir("usercolors.cps");
    const QString elsewhere = platform.folder.filePath("elsewhere");
    ASSERT_EQ(0, symlink(qPrintable(elsewhere), qPrintable(file())));
    again();
    EXPECT_FALSE(QFile::exists(elsewhere));
    EXPECT_TRUE(platform.log.empty()) << "silent in every case";
}

} // namespace
} // namespace velara
