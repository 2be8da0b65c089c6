// The dialogs that make or reshape a picture, used as a person does, and then their job.
#include "document/resizing.h"
#include "support/RecordingPlatform.h"
#include "support/pictures.h"
#include "support/ui/controls.h"
#include "ui/geometry/fCanvas.h"
#include "ui/geometry/fNew.h"
#include "ui/geometry/fOrientation.h"
#include "ui/geometry/fResolution.h"
#include "ui/geometry/fRotate.h"
#include "ui/geometry/fSize.h"
#include <QtTest>

namespace velara {
namespace {

class Geometry : public ::testing::Test {
  protected:
    static void type(QDialog& dialog, const char* field, const char* text)
    {
        auto* edit = controlOf<QLineEdit>(dialog, field);
        edit->selectAll();
        if (*text)
            QTest::keyClicks(edit, text);
        else
            QTest::keyClick(edit, Qt::Key_Delete);
    }
    static QString text(QDialog& dialog, const char* field) { return controlOf<QLineEdit>(dialog, field)->text(); }
    static void choose(QDialog& dialog, const char* list, const char* entry)
    {
        auto* combo = controlOf<QComboBox>(dialog, list);
        const int index = combo->findText(entry);
        ASSERT_GE(index, 0) << entry;
        combo->setCurrentIndex(index);
        emit combo->activated(index);
        emit combo->textActivated(combo->itemText(index));
    }
    static void press(QDialog& dialog, const char* button)
    {
        QTest::mouseClick(controlOf<QPushButton>(dialog, button), Qt::LeftButton);
    }
    static Bits done(const fGeometry& dialog, const Bits& picture)
    {
        Document document({}, 0);
        document.takePicture(picture);
        cBitFilter filter;
        document.handTo(filter);
        dialog.job()(document, filter);
        EXPECT_TRUE(document.bits().sharesWith(filter.bits()));
        EXPECT_TRUE(document.Region.IsEmptyRegion());
        EXPECT_EQ(document.Region.RegionMain().bounds(),
                  (Rect{0, 0, document.PictureWidth(), document.PictureHeight()}));
        return document.bits();
    }

    RecordingPlatform platform;
    Bits picture = randomBits(40, 20, 7);
};

TEST_F(Geometry, NewKeepsProportionsRefusesTinySizesAndRemembersCustomOnes)
{
    {
        fNew dialog(platform);
        choose(dialog, "cbDefault", "320 x 240");
        EXPECT_EQ(text(dialog, "txtW") + "," + text(dialog, "txtH"), "320,240");
        controlOf<QCheckBox>(dialog, "chkKeepProportions")->setChecked(true);
        type(dialog, "txtW", "500");
        EXPECT_EQ(text(dialog, "txtH"), "375");
        type(dialog, "txtH", "3");
        EXPECT_EQ(text(dialog, "txtW"), "4");
        controlOf<QCheckBox>(dialog, "chkKeepProportions")->setChecked(false);
        type(dialog, "txtW", "");
        EXPECT_EQ(text(dialog, "txtW"), "0");
        type(dialog, "txtW", "1");
        type(dialog, "txtH", "100");
        dialog.show();
        press(dialog, "cmdOK");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(platform.log.back(), "message: Velara Studio: Minimum size: 2 x 2");
        EXPECT_EQ(platform.lastIcon, Icon::Information);
        type(dialog, "txtW", "30000");
        type(dialog, "txtH", "30000");
        press(dialog, "cmdOK");
        EXPECT_EQ(platform.log.back(), "message: Velara Studio: Maximum size: 256 megapixels");
        type(dialog, "txtH", "100");
        type(dialog, "txtW", "123");
        press(dialog, "cmdOK");
        EXPECT_FALSE(dialog.isVisible());
        const Bits made = done(dialog, picture);
        EXPECT_TRUE(sameBits(Bits(123, 100), made));
    }
    for (int run = 0; run < 2; ++run) { // the second time adds no second entry
        fNew dialog(platform);
        EXPECT_EQ(controlOf<QComboBox>(dialog, "cbDefault")->count(), 10);
        EXPECT_GE(controlOf<QComboBox>(dialog, "cbDefault")->findText("123 x 100"), 9);
        dialog.show();
        press(dialog, "cmdOK");
    }
}

TEST_F(Geometry, SizeRunsTheChosenResize)
{
    fSize dialog(platform, picture);
    choose(dialog, "cbPreDef", "1.5 *");
    EXPECT_EQ(text(dialog, "txtW") + "," + text(dialog, "txtH"), "60,30");
    choose(dialog, "cbPreDef", "2.0 /");
    EXPECT_EQ(text(dialog, "txtW") + "," + text(dialog, "txtH"), "30,15");
    cBitFilter filter;
    filter.BitsResample(picture, 30, 15);
    EXPECT_TRUE(sameBits(filter.bits(), done(dialog, picture)));
    controlOf<QCheckBox>(dialog, "chkInterpolate")->setChecked(false);
    filter.BitsResize(picture, 30, 15);
    EXPECT_TRUE(sameBits(filter.bits(), done(dialog, picture)));
    for (const bool keep : {false, true}) { // the ratio stays the picture's, whatever the boxes came to
        controlOf<QCheckBox>(dialog, "chkKeepProportions")->setChecked(keep);
        type(dialog, "txtW", "100");
    }
    EXPECT_EQ(text(dialog, "txtH"), "50");
}

TEST_F(Geometry, ResolutionOffersItsSizes)
{
    fResolution dialog(platform);
    const struct {
        const char *button, *caption;
        int width, height;
    } rows[] = {{"o480", "480 x 340", 480, 340}, {"o720b", "720 x 576", 720, 576}, {"o340", "340 x 220", 340, 220}};
    for (const auto& r : rows) {
        auto* button = controlOf<QRadioButton>(dialog, r.button);
        EXPECT_EQ(button->text(), r.caption);
        button->setChecked(true);
        const Bits sized = done(dialog, picture);
        EXPECT_EQ(sized.width(), r.width);
        EXPECT_EQ(sized.height(), r.height);
    }
}

TEST_F(Geometry, CanvasPlacesThePictureByAnchorAndByDragging)
{
    fCanvas dialog(platform, picture);
    dialog.show();
    controlOf<QCheckBox>(dialog, "chkKeepProportions")->setChecked(false);
    type(dialog, "txtW", "50");
    type(dialog, "txtH", "10");
    const auto placed = [&](int left, int top) {
        Bits wanted(50, 10);
        for (int y = 0; y < 10; ++y)
            for (int x = 0; x < 50; ++x)
                if (x >= left && x < left + 40 && y >= top && y < top + 20)
                    for (int c = 0; c < 3; ++c) wanted.at(x, y).c[c] = picture.at(x - left, y - top).c[c];
        return sameBits(wanted, done(dialog, picture));
    };
    EXPECT_TRUE(placed(5, -5)); // in the middle
    const struct {
        const char* anchor;
        int left, top;
    } rows[] = {{"anchor_0", 0, 0}, {"anchor_8", 10, -10}, {"anchor_5", 10, -5}};
    for (const auto& r : rows) {
        QTest::mouseClick(dialog.findChild<QWidget*>(r.anchor), Qt::LeftButton);
        EXPECT_TRUE(placed(r.left, r.top)) << r.anchor;
    }
    auto* image = dialog.findChild<QWidget*>("iImg");
    QTest::mousePress(image, Qt::LeftButton, {}, {4, 4});
    QTest::mouseMove(image, {1, 7});
    QTest::mouseRelease(image, Qt::LeftButton, {}, {1, 7});
    EXPECT_TRUE(placed(7, -2)); // 3 to the left, 3 down from the last anchor
}

TEST_F(Geometry, CanvasPresetsAddTenthsOnEachSide)
{
    fCanvas dialog(platform, picture);
    choose(dialog, "cbPreDef", "2 +");
    EXPECT_EQ(text(dialog, "txtW") + "," + text(dialog, "txtH"), "56,28");
    choose(dialog, "cbPreDef", "3 -");
    EXPECT_EQ(text(dialog, "txtW") + "," + text(dialog, "txtH"), "22,12");
}

TEST_F(Geometry, OrientationTurnsThenFlips)
{
    fOrientation dialog(platform, picture);
    choose(dialog, "cbOrientation", "90º left");
    controlOf<QCheckBox>(dialog, "chkFlip_1")->setChecked(true);
    cBitFilter filter;
    filter.setBits(picture);
    filter.BitsRotate90(picture);
    filter.setBits(filter.Flip(true, false));
    EXPECT_TRUE(sameBits(filter.bits(), done(dialog, picture)));
}

TEST_F(Geometry, RotateTurnsOnASquareAsWideAsTheDiagonal)
{
    fRotate dialog(platform, picture);
    const auto degrees = [&] { return controlOf<QSlider>(dialog, "sbDegrees")->value(); };
    for (int i = 0; i < 5; ++i) QTest::mouseClick(controlOf<QPushButton>(dialog, "cmd45_0"), Qt::LeftButton);
    EXPECT_EQ(degrees(), -135);
    type(dialog, "txtDegrees", "180");
    EXPECT_EQ(degrees(), 180);
    controlOf<QCheckBox>(dialog, "chkAntialiasing")->setChecked(false);
    type(dialog, "txtDegrees", "0");
    const Bits turned = done(dialog, picture);
    ASSERT_EQ(turned.width(), 45); // sqrt(2000) is 44.7
    ASSERT_EQ(turned.height(), 45);
    EXPECT_EQ(turned.at(2, 12).c[1], picture.at(0, 0).c[1]);
    EXPECT_EQ(turned.at(1, 12), (Pixel{{0, 0, 0, 0}}));
}

} // namespace
} // namespace velara
