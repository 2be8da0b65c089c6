// The icon extractor with real controls, used as a user does.
#include "fileio/writers/iconFile.h"
#include "support/RecordingFrame.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/ui/WindowTest.h"
#include "ui/icons/fIcon.h"
#include "ui/icons/fIconBrowse.h"
#include "ui/widgets/fFolderTree.h"
#include "ui/widgets/fPicture.h"

namespace velara {
namespace {

struct IconTest : WindowTest {
    RecordingFrame frame;
    QTemporaryDir folder;
    std::unique_ptr<fIcon> window;

    void show(const Bits& picture)
    {
        frame.document = picture.isNull() ? nullptr : &frame.open(picture);
        window = std::make_unique<fIcon>(frame, nullptr);
        window->load();
        window->show();
        used = window.get();
    }
    QString path(const QString& name) const { return folder.filePath(name); }
    QByteArray content(const QString& name) const { return fileBytes(path(name)); }
    std::string last() const { return frame.platform_.log.empty() ? "" : frame.platform_.log.back(); }
};

constexpr char kFolderMissing[] = "message: Velara Studio: Folder does not Exists! Please Enter a valid folder path";

TEST_F(IconTest, TheChosenSizeOfThePictureIsShownAndSaved)
{
    const Bits picture = randomBits(40, 30, 5);
    show(picture);
    EXPECT_EQ("Extract Icon", window->windowTitle());
    EXPECT_TRUE(find<QRadioButton>("o32")->isChecked());
    for (const auto& [option, size] : {std::pair{"o16", QSize(16, 16)},
                                       {"o64", QSize(64, 64)},
                                       {"ocustom", QSize(200, 7)},
                                       {"o32", QSize(32, 32)},
                                       {"ocustom", QSize(256, 1)}}) {
        click(option);
        const bool typed = !find<QLineEdit>("Iw")->isReadOnly();
        EXPECT_EQ(option == std::string("ocustom"), typed);
        if (typed) {
            EXPECT_EQ("", text("Iw") + text("Ih"));
            EXPECT_FALSE(find("CmdSave")->isEnabled());
            type("Iw", QString::number(size.width()));
            type("Ih", QString::number(size.height()));
        }
        EXPECT_EQ(QString("%1 %2").arg(size.width()).arg(size.height()), text("Iw") + ' ' + text("Ih"));
        EXPECT_EQ(size.width(), find<fPicture>("Ipic")->bits().width());
        frame.platform_.answers = {path("a.ico")};
        click("CmdSave");
        EXPECT_EQ(iconBytes(iconOf(picture, size, {})), content("a.ico")) << option;
    }
    click("oall");
    frame.platform_.answers = {path("a.ico")};
    click("CmdSave");
    EXPECT_EQ(iconSetBytes(picture, {}), content("a.ico"));
    EXPECT_EQ("Save Icon as", frame.platform_.lastDialog.title);
    EXPECT_EQ("Icon File|*.ico", frame.platform_.lastDialog.filter);
    QFile::remove(path("a.ico"));
    click("CmdSave"); // cancelled
    EXPECT_FALSE(QFile::exists(path("a.ico")));
    frame.platform_.answers = {path("none/a.ico")};
    click("CmdSave");
    EXPECT_EQ("message: Velara Studio: a.ico can't be written.", last());
}

TEST_F(IconTest, NumbersThatMakeNoIconAreToldAndNothingCanBeSaved)
{
    show(randomBits(40, 30, 5));
    click("ocustom");
    for (const auto& [width, height] : {std::pair{"0", "0"}, {"16", "257"}, {"16.5", "16"}, {"", ""}}) {
        find<QLineEdit>("Iw")->setText(width);
        find<QLineEdit>("Ih")->setText(height);
        EXPECT_FALSE(find<QPushButton>("CmdSave")->isEnabled()) << width;
        EXPECT_TRUE(find<fPicture>("Ipic")->bits().isNull()) << width;
        EXPECT_EQ("Width and height are whole numbers from 1 to 256.", text("lblState"));
    }
}

TEST_F(IconTest, TheMaskColourIsTransparentAndComesFromTheWellOrThePreview)
{
    Bits picture = flatBits(32, 32, 0xC0, 0xC0, 0xC0);
    picture.at(3, 4) = {{1, 2, 3, 0}};
    picture.at(31, 31) = {{7, 8, 9, 0}};
    show(picture);
    const auto saved = [&](std::optional<Colour> mask) {
        frame.platform_.answers = {path("a.ico")};
        click("CmdSave");
        return content("a.ico") == iconBytes(iconOf(picture, {32, 32}, mask));
    };
    EXPECT_TRUE(saved({}));
    click("CMask");
    EXPECT_TRUE(saved(0xC0C0C0));
    frame.colour = colourOf(3, 2, 1);
    click("CMaskColor");
    EXPECT_TRUE(saved(colourOf(3, 2, 1)));
    QTest::mouseClick(find<fPicture>("Ipic"), Qt::LeftButton, {}, QPoint(252, 252)); // eight times as large
    EXPECT_TRUE(saved(colourOf(9, 8, 7)));
    click("oall");
    EXPECT_EQ(0u, qAlpha(iconOf(picture, {32, 32}, colourOf(9, 8, 7)).pixel(31, 31)));
    frame.platform_.answers = {path("a.ico")};
    click("CmdSave");
    EXPECT_EQ(iconSetBytes(picture, colourOf(9, 8, 7)), content("a.ico"));
}

TEST_F(IconTest, TheCheckedCutOutsBecomeASeriesOfFiles)
{
    show({}); // without a picture the lower half works
    EXPECT_FALSE(find("Frame1")->isEnabled());
    click("CmdSaveCustom");
    EXPECT_EQ("message: Velara Studio: No Images to extract!", last());
    EXPECT_EQ(Icon::Information, frame.platform_.lastIcon);
    std::vector<Bits> cutOuts;
    for (const int side : {16, 32, 48}) cutOuts.push_back(randomBits(side, side, std::uint32_t(side)));
    for (const Bits& cutOut : cutOuts) window->series().add(cutOut);
    window->series().ListIcons();
    const auto& lv = *find<QTreeWidget>("lv");
    ASSERT_EQ(3, lv.topLevelItemCount());
    EXPECT_EQ("2Velara 32 x 32", lv.topLevelItem(1)->text(0) + ' ' + lv.topLevelItem(1)->text(1));

    for (const char* wrong : {"", "  ", "/none/at/all"}) {
        find<QLineEdit>("txtFolder")->setText(wrong);
        click("CmdSaveCustom");
        EXPECT_EQ(kFolderMissing, last());
        EXPECT_EQ(Icon::Critical, frame.platform_.lastIcon);
        EXPECT_EQ(find("txtFolder"), window->focusWidget());
    }
    find<QLineEdit>("txtFolder")->setText("  " + folder.path() + " ");
    putFile(path("1Velara.ico"), "old");
    lv.topLevelItem(1)->setCheckState(0, Qt::Unchecked);
    click("CmdSaveCustom");
    EXPECT_EQ("message: Velara Studio: 2 icon Files Saved!", last());
    EXPECT_EQ(iconBytes(iconOf(cutOuts[0], {16, 16}, {})), content("1Velara.ico"));
    EXPECT_EQ(iconBytes(iconOf(cutOuts[2], {48, 48}, {})), content("3Velara.ico"));
    EXPECT_FALSE(QFile::exists(path("2Velara.ico")));

    QDir(folder.path()).mkdir("2Velara.ico"); // in the way
    click("chkAll");
    click("CmdSaveCustom");
    EXPECT_EQ("message: Velara Studio: 0 icon Files Saved!", last());
    click("chkAll");
    click("ChkMask");
    click("CmdSaveCustom");
    EXPECT_EQ("message: Velara Studio: 2 icon Files Saved!\nNot written: 2Velara.ico", last());
    EXPECT_EQ(iconBytes(iconOf(cutOuts[0], {16, 16}, 0xC0C0C0)), content("1Velara.ico"));
}

TEST_F(IconTest, TheFolderIsChosenInATree)
{
    show({});
    QDir(folder.path()).mkpath("in/side");
    find<QLineEdit>("txtFolder")->setText(path("in"));
    click("CmdFolder");
    auto* browse = window->findChild<fIconBrowse*>();
    ASSERT_TRUE(browse);
    EXPECT_EQ("Icon Extractor: Select Folder", browse->windowTitle());
    auto* tree = browse->findChild<fFolderTree*>("BF");
    EXPECT_EQ(path("in"), browse->findChild<QLabel*>("FileName")->text());
    tree->select(path("in/side"));
    QDir().rmdir(path("in/side")); // removed before the choice
    tree->select(path("in"));
    EXPECT_TRUE(browse->findChild<QPushButton*>("CmdOpen")->isEnabled());
    QTest::keyClick(tree, Qt::Key_Return);
    EXPECT_FALSE(browse->isVisible());
    EXPECT_EQ(path("in"), text("txtFolder"));
}

} // namespace
} // namespace velara
