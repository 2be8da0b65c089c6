// The texture dialog with real controls, used as a user does.
#include "support/RecordingPlatform.h"
#include "support/files.h"
#include "support/filterOf.h"
#include "support/pictures.h"
#include "support/ui/WindowTest.h"
#include "ui/merge/fTexturize.h"
#include "ui/widgets/fPicture.h"

namespace velara {
namespace {

struct Texturize : WindowTest {
    RecordingPlatform platform;
};

TEST_F(Texturize, ShowsWhatOkWillDoAndABrokenFileHarmsNothing)
{
    QDir(platform.folder.path()).mkpath("Textures");
    putFile(platform.folder.filePath("Textures/a broken.jpg"), "no picture");
    const Bits picture = randomBits(120, 90, 4);
    const Region selection = Region::rectangle(10, 10, 100, 80);
    fTexturize dialog(platform, picture, selection);
    used = &dialog;
    dialog.show();
    auto* list = find<QListWidget>("flTextures");
    auto* ok = find<QPushButton>("cmdOK");
    ASSERT_EQ(13, list->count());
    EXPECT_FALSE(ok->isEnabled()) << "the first one is broken";
    ASSERT_TRUE(comes([&] { return list->item(0)->text().contains("can't be read"); }));
    EXPECT_EQ("Velara2.bmp", list->item(2)->text());
    const auto hasThumbnail = [&](int row) {
        return list->item(row)->icon().pixmap(64, 64).toImage().pixelColor(32, 32).alpha() == 255;
    };
    EXPECT_TRUE(comes([&] { return hasThumbnail(2); }));
    const auto shownIsDone = [&] {
        cBitFilter filter = filterOf(picture, selection);
        return sameBits(texturized(filter, dialog.texturing()), find<fPicture>("iBack")->bits());
    };
    for (const int passed : {4, 3}) list->setCurrentRow(passed);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(2)).center());
    ASSERT_TRUE(comes([&] { return hasThumbnail(12); })) << "all that was asked for is read";
    EXPECT_TRUE(comes([&] { return ok->isEnabled() && shownIsDone(); }));
    EXPECT_EQ("Velara2.bmp", text("txtTexture"));
    const QString second = platform.folder.filePath("Textures/Velara2.bmp");
    EXPECT_TRUE(sameBits(platform.loadPicture(second, "bmp").bits, dialog.texturing().texture));
    EXPECT_EQ(25, dialog.texturing().intensity);
    QTest::keyClick(find<QSlider>("sbWeight"), Qt::Key_End);
    find<QComboBox>("cbDepth")->setCurrentIndex(1);
    EXPECT_TRUE(comes(shownIsDone));
    EXPECT_EQ("100%", text("lblWeightV"));
    EXPECT_TRUE(dialog.texturing().engrave);
    list->setCurrentRow(0);
    EXPECT_TRUE(comes([&] { return !ok->isEnabled(); }));
    click("chkUseImage");
    EXPECT_TRUE(comes([&] { return ok->isEnabled() && shownIsDone(); })) << "a picture needs no file";
    EXPECT_TRUE(dialog.texturing().texture.isNull());
    click("cmdOK");
    EXPECT_EQ(QDialog::Accepted, dialog.result());
}

TEST_F(Texturize, APictureOfOnePixelHasNoReliefOfItsOwn)
{
    fTexturize dialog(platform, Bits(1, 1), Region::rectangle(0, 0, 1, 1));
    used = &dialog;
    dialog.show();
    click("chkUseImage");
    EXPECT_TRUE(comes([&] { return !text("lblState").isEmpty() && !find("cmdOK")->isEnabled(); }));
}

} // namespace
} // namespace velara
