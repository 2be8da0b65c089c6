// The texture dialog with real controls, used as a person does.
#include "support/RecordingPlatform.h"
#include "support/pictures.h"
#include "ui/merge/fTexturize.h"
#include "ui/widgets/fPicture.h"
#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace velara {
namespace {

TEST(Texturize, ShowsWhatOkWillDoAndABrokenFileHarmsNothing)
{
    RecordingPlatform platform;
    QDir(platform.folder.path()).mkpath("Textures");
    QFile broken(platform.folder.filePath("Textures/a broken.jpg"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("no picture") > 0);
    broken.close();
    const Bits picture = randomBits(120, 90, 4);
    const Region selection = Region::rectangle(10, 10, 100, 80);
    fTexturize dialog(platform, picture, selection);
    dialog.show();
    const auto settle = [] { QTest::qWait(30); };
    auto* list = dialog.findChild<QListWidget*>("flTextures");
    auto* ok = dialog.findChild<QPushButton*>("cmdOK");
    ASSERT_EQ(13, list->count());
    EXPECT_FALSE(ok->isEnabled()) << "the first one is broken";
    ASSERT_TRUE(QTest::qWaitFor([&] { return list->item(0)->text().contains("can't be read"); }));
    EXPECT_EQ("Velara2.bmp", list->item(2)->text());
    const auto thumbnail = [&] { return list->item(2)->icon().pixmap(64, 64).toImage().pixelColor(32, 32); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return thumbnail().alpha() == 255; })) << "its thumbnail";
    const auto shownIsDone = [&] {
        cBitFilter filter;
        filter.setBits(picture);
        filter.setBitsRegion(selection);
        return sameBits(texturized(filter, dialog.texturing()), dialog.findChild<fPicture*>("iBack")->bits());
    };
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(2)).center());
    settle();
    EXPECT_EQ("Velara2.bmp", dialog.findChild<QLineEdit*>("txtTexture")->text());
    EXPECT_TRUE(ok->isEnabled());
    EXPECT_EQ(256, dialog.texturing().texture.width());
    EXPECT_EQ(25, dialog.texturing().intensity);
    EXPECT_TRUE(shownIsDone());
    QTest::keyClick(dialog.findChild<QSlider*>("sbWeight"), Qt::Key_End);
    dialog.findChild<QComboBox*>("cbDepth")->setCurrentIndex(1);
    settle();
    EXPECT_EQ("100%", dialog.findChild<QSpinBox*>("lblWeightV")->text());
    EXPECT_TRUE(dialog.texturing().engrave);
    EXPECT_TRUE(shownIsDone());
    list->setCurrentRow(0);
    settle();
    EXPECT_FALSE(ok->isEnabled());
    dialog.findChild<QCheckBox*>("chkUseImage")->click();
    settle();
    EXPECT_TRUE(ok->isEnabled()) << "a picture needs no file";
    EXPECT_TRUE(dialog.texturing().texture.isNull());
    EXPECT_TRUE(shownIsDone());
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_EQ(QDialog::Accepted, dialog.result());
}

TEST(Texturize, APictureOfOnePixelHasNoReliefOfItsOwn)
{
    RecordingPlatform platform;
    fTexturize dialog(platform, Bits(1, 1), Region::rectangle(0, 0, 1, 1));
    dialog.show();
    dialog.findChild<QCheckBox*>("chkUseImage")->click();
    QTest::qWait(10);
    EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdOK")->isEnabled());
    EXPECT_FALSE(dialog.findChild<QLabel*>("lblState")->text().isEmpty());
}

} // namespace
} // namespace velara
