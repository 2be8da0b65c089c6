// The dialogs that make or reshape a picture, used as a user does, and then their jobs.
#include "document/resizing.h"
#include "support/RecordingPlatform.h"
#include "support/pictures.h"
#include "support/ui/WindowTest.h"
#include "ui/geometry/fCanvas.h"
#include "ui/geometry/fNew.h"
#include "ui/geometry/fOrientation.h"
#include "ui/geometry/fResolution.h"
#include "ui/geometry/fRotate.h"
#include "ui/geometry/fSize.h"

namespace velara {
namespace {

struct Geometry : WindowTest {
    RecordingPlatform platform;
    Bits picture = randomBits(40, 20, 7);

    QString size() { return text("txtW") + " x " + text("txtH"); }
    void check(const char* box, bool on) { find<QCheckBox>(box)->setChecked(on); }
    Bits done()
    {
        Document document({}, 0);
        document.takePicture(picture);
        cBitFilter filter;
        document.handTo(filter);
        static_cast<fGeometry&>(*used).job()(document, filter);
        EXPECT_TRUE(document.bits().sharesWith(filter.bits()));
        EXPECT_TRUE(document.Region.IsEmptyRegion());
        EXPECT_EQ(document.Region.RegionMain().bounds(),
                  (Rect{0, 0, document.PictureWidth(), document.PictureHeight()}));
        return document.bits();
    }
};

TEST_F(Geometry, NewKeepsProportionsRefusesTinySizesAndRemembersCustomOnes)
{
    {
        fNew dialog(platform);
        used = &dialog;
        choose("cbDefault", "320 x 240");
        EXPECT_EQ(size(), "320 x 240");
        check("chkKeepProportions", true);
        type("txtW", "500");
        EXPECT_EQ(text("txtH"), "375");
        type("txtH", "3");
        EXPECT_EQ(text("txtW"), "4");
        check("chkKeepProportions", false);
        type("txtW", "");
        EXPECT_EQ(text("txtW"), "0");
        type("txtW", "1");
        type("txtH", "100");
        dialog.show();
        click("cmdOK");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(platform.log.back(), "message: Velara Studio: Minimum size: 2 x 2");
        EXPECT_EQ(platform.lastIcon, Icon::Information);
        type("txtW", "30000");
        type("txtH", "30000");
        click("cmdOK");
        EXPECT_EQ(platform.log.back(), "message: Velara Studio: Maximum size: 256 megapixels");
        type("txtH", "100");
        type("txtW", "123");
        click("cmdOK");
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_TRUE(sameBits(Bits(123, 100), done()));
    }
    for (int run = 0; run < 2; ++run) { // the second time adds no second entry
        fNew dialog(platform);
        used = &dialog;
        EXPECT_EQ(find<QComboBox>("cbDefault")->count(), 10);
        EXPECT_GE(find<QComboBox>("cbDefault")->findText("123 x 100"), 9);
        dialog.show();
        click("cmdOK");
    }
}

TEST_F(Geometry, SizeRunsTheChosenResize)
{
    fSize dialog(platform, picture);
    used = &dialog;
    choose("cbPreDef", "1.5 *");
    EXPECT_EQ(size(), "60 x 30");
    choose("cbPreDef", "2.0 /");
    EXPECT_EQ(size(), "30 x 15");
    cBitFilter filter;
    filter.BitsResample(picture, 30, 15);
    EXPECT_TRUE(sameBits(filter.bits(), done()));
    check("chkInterpolate", false);
    filter.BitsResize(picture, 30, 15);
    EXPECT_TRUE(sameBits(filter.bits(), done()));
    for (const bool keep : {false, true}) { // the ratio stays the picture's, whatever the boxes contain
        check("chkKeepProportions", keep);
        type("txtW", "100");
    }
    EXPECT_EQ(text("txtH"), "50");
    auto* percent = dialog.findChild<QDoubleSpinBox*>("txtPercent");
    EXPECT_EQ(percent->value(), 250) << "of the width";
    percent->setValue(33.3);
    EXPECT_EQ(size(), "13 x 7");
    EXPECT_EQ(percent->value(), 33.3) << "not rounded to the pixels";
}

TEST_F(Geometry, ResolutionOffersItsSizes)
{
    fResolution dialog(platform);
    used = &dialog;
    for (const auto& [button, caption] :
         {std::pair{"o480", "480 x 340"}, {"o720b", "720 x 576"}, {"o340", "340 x 220"}}) {
        EXPECT_EQ(text(button), caption);
        click(button);
        const Bits sized = done();
        EXPECT_EQ(QString("%1 x %2").arg(sized.width()).arg(sized.height()), caption);
    }
}

TEST_F(Geometry, CanvasAddsTenthsAndPlacesThePictureByAnchorAndByDragging)
{
    fCanvas dialog(platform, picture);
    used = &dialog;
    dialog.show();
    choose("cbPreDef", "2 +"); // on each side
    EXPECT_EQ(size(), "56 x 28");
    choose("cbPreDef", "3 -");
    EXPECT_EQ(size(), "22 x 12");
    check("chkKeepProportions", false);
    type("txtW", "50");
    type("txtH", "10");
    const auto placed = [&](int left, int top) {
        const Rect place{left, top, left + 40, top + 20};
        const Bits wanted = drawnBits(50, 10, [&, seen = plain(picture)](int x, int y) {
            return place.contains(x, y) ? seen.at(x - left, y - top) : Pixel{};
        });
        return sameBits(wanted, done());
    };
    EXPECT_TRUE(placed(5, -5)); // centred
    for (const auto& [anchor, left, top] :
         {std::tuple("anchor_0", 0, 0), {"anchor_8", 10, -10}, {"anchor_5", 10, -5}}) {
        click(anchor);
        EXPECT_TRUE(placed(left, top)) << anchor;
    }
    auto* image = find("iImg");
    QTest::mousePress(image, Qt::LeftButton, {}, {4, 4});
    QTest::mouseMove(image, {1, 7});
    QTest::mouseRelease(image, Qt::LeftButton, {}, {1, 7});
    for (const char* height : {"11", "10"}) type("txtH", height); // another size leaves it there
    EXPECT_TRUE(placed(7, -2));                                   // 3 to the left, 3 down from the last anchor
}

TEST_F(Geometry, OrientationTurnsThenFlips)
{
    fOrientation dialog(platform, picture);
    used = &dialog;
    choose("cbOrientation", "90º left");
    check("chkFlip_1", true);
    cBitFilter filter;
    filter.setBits(picture);
    filter.BitsRotate90(picture);
    filter.setBits(filter.Flip(true, false));
    EXPECT_TRUE(sameBits(filter.bits(), done()));
}

TEST_F(Geometry, RotateTurnsOnASquareAsWideAsTheDiagonal)
{
    fRotate dialog(platform, picture);
    used = &dialog;
    const auto* degrees = find<QSlider>("sbDegrees");
    for (int i = 0; i < 5; ++i) click("cmd45_0");
    EXPECT_EQ(degrees->value(), -135);
    type("txtDegrees", "180");
    EXPECT_EQ(degrees->value(), 180);
    check("chkAntialiasing", false);
    type("txtDegrees", "0");
    const Bits turned = done();
    ASSERT_EQ(turned.width(), 45); // sqrt(2000) is 44.7
    ASSERT_EQ(turned.height(), 45);
    EXPECT_EQ(turned.at(2, 12).c[1], picture.at(0, 0).c[1]);
    EXPECT_EQ(turned.at(1, 12), (Pixel{{0, 0, 0, 0}}));
}

} // namespace
} // namespace velara
