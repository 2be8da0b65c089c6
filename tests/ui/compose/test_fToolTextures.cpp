// The textures box, used as a user does: the text for the mouse tool, the effects on the active document.
#include "commands/effects.h"
#include "engine/operations.h"
#include "pixels/images.h"
#include "support/RecordingFrame.h"
#include "support/files.h"
#include "support/filterOf.h"
#include "support/pictures.h"
#include "support/ui/WindowTest.h"
#include "ui/compose/fEffectsPage.h"
#include "ui/compose/fTextPage.h"
#include "ui/compose/fToolTextures.h"
#include "ui/widgets/fPicture.h"

namespace velara {
namespace {

struct TexturesBoxTest : WindowTest {
    RecordingFrame frame;
    QTemporaryDir temp;
    Document* document = nullptr;
    std::unique_ptr<fToolTextures> box;

    void open()
    {
        document = &frame.open(randomBits(40, 30, 4));
        document->Region.CreateRect(5, 5, 30, 25, Combine::Or, true);
        frame.workspace_.handOver(*document);
    }
    void apply()
    {
        click("CmdApply");
        frame.settle();
    }
    void show(int page)
    {
        box = std::make_unique<fToolTextures>(frame);
        used = box.get();
        find<QTabWidget>("SSTab1")->setCurrentIndex(page);
        box->show();
    }
    const Bits& stamp() { return frame.toolStores_.text; }
    void textures(const char* name, const Bits& bits)
    {
        QDir(frame.platform_.programFolder()).mkpath("Textures");
        imageOver(bits).save(frame.platform_.programFolder() + "/Textures/" + name, "PNG"); // read by its contents
    }
};

TEST_F(TexturesBoxTest, TextIsLaidOutForTheMouseAndItsStyleKept)
{
    frame.setup_.TextFont = "Missing";
    frame.setup_.TextSize = 20;
    frame.setup_.TextFlag1 = frame.setup_.TextFlag2 = false;
    frame.setup_.TextMode = LeftJustify;
    show(0);
    EXPECT_TRUE(stamp().isNull()) << "nothing to stamp";
    EXPECT_EQ("Fixed", text("cboFont")) << "what stands in for it";
    EXPECT_EQ("Missing", frame.setup_.TextFont) << "until another one is chosen";
    QTest::keyClicks(find<QPlainTextEdit>("txtText"), "ab");
    ASSERT_EQ(19, stamp().width()); // two of 10, minus the free column
    EXPECT_EQ(20, stamp().height());
    EXPECT_EQ(0, stamp().at(0, 0).c[0]);
    EXPECT_EQ(190, stamp().at(9, 0).c[0]);

    click("CmdB");
    EXPECT_EQ(21, stamp().width());
    find<QComboBox>("cboFont")->setCurrentText("Other");
    QTest::keyClicks(find<QComboBox>("cboSize"), "0"); // "200" is too large and changes nothing
    EXPECT_EQ(21, stamp().width());
    find<QComboBox>("cboSize")->setCurrentText("10");
    EXPECT_EQ(11, stamp().width());
    for (const char* typed : {"0", "", "x", "73", "-4"}) find<QComboBox>("cboSize")->lineEdit()->setText(typed);
    EXPECT_EQ(11, stamp().width());
    emit find<QComboBox>("cboSize")->lineEdit()->editingFinished();
    EXPECT_EQ("10", text("cboSize"));
    find<QComboBox>("cboShadow")->setCurrentText("Bottom Right");
    EXPECT_EQ(12, stamp().width());
    EXPECT_EQ(11, stamp().height());
    EXPECT_EQ(95, stamp().at(11, 10).c[0]) << "the shadow's corner: half";
    find<QComboBox>("cboAlign")->setCurrentText("Full Justify");

    const velara::Setup& s = frame.setup_;
    EXPECT_EQ("Other", s.TextFont);
    EXPECT_EQ(10, s.TextSize);
    EXPECT_TRUE(s.TextFlag1);
    EXPECT_FALSE(s.TextFlag2 || s.TextFlag3);
    EXPECT_EQ(FullJustify, s.TextMode);
}

TEST_F(TexturesBoxTest, AlignmentShowsInTheWorkPicture)
{
    frame.setup_.TextSize = 10;
    frame.setup_.TextFlag1 = frame.setup_.TextFlag2 = false;
    show(0);
    find<QPlainTextEdit>("txtText")->setPlainText("a\nbb");
    const Bits& work = static_cast<fPicture*>(find<QWidget>("picCustom"))->bits();
    const int width = work.width();
    for (const auto& [align, x] : {std::pair{0, 4}, {1, 4 + (width - 8 - 5) / 2}, {2, width - 4 - 5}}) {
        find<QComboBox>("cboAlign")->setCurrentIndex(align);
        EXPECT_EQ(0, work.at(x, 5).c[0]) << align;
        EXPECT_EQ(255, work.at(x - 1, 5).c[0]) << align;
    }
    find<QPlainTextEdit>("txtText")->clear();
    EXPECT_TRUE(stamp().isNull());
}

TEST_F(TexturesBoxTest, WhatFitsAtNoSizeIsSaidOnce)
{
    show(0);
    const auto told = [&] {
        return std::ranges::count(frame.platform_.log,
                                  "message: Velara Studio: Unable to find suitable font size for text");
    };
    find<QPlainTextEdit>("txtText")->setPlainText(QString("line\n").repeated(20000));
    EXPECT_EQ(1, told());
    EXPECT_TRUE(stamp().isNull());
    EXPECT_EQ(find("txtText"), box->focusWidget()) << "after the message, letters are text";
    QTest::keyClicks(find<QPlainTextEdit>("txtText"), "more");
    EXPECT_EQ(1, told()) << "not at every key";
    find<QPlainTextEdit>("txtText")->setPlainText("short");
    EXPECT_FALSE(stamp().isNull());
    find<QPlainTextEdit>("txtText")->setPlainText(QString("line\n").repeated(300));
    EXPECT_EQ(2, told());
}

TEST_F(TexturesBoxTest, FontsOfSymbolsComeLast)
{
    frame.platform_.recordingFonts.families = {{"Dingbats", {}}, {"Fixed", {"Latin"}}, {"Other", {"Thai"}}};
    show(0);
    const auto* list = find<QComboBox>("cboFont");
    EXPECT_EQ(list->findText("Dingbats"), list->count() - 1);
    EXPECT_EQ(list->itemText(list->count() - 2), "Other");
}

TEST_F(TexturesBoxTest, WithoutFontInformationItSaysSo)
{
    frame.platform_.recordingFonts.families.reset();
    show(0);
    EXPECT_TRUE(frame.platform_.logged("message: Velara Studio: Failed to get font info"));
    QTest::keyClicks(find<QPlainTextEdit>("txtText"), "ab");
    EXPECT_FALSE(stamp().isNull());
}

TEST_F(TexturesBoxTest, TheChosenEffectGoesToTheDocument)
{
    open();
    show(1);
    EXPECT_EQ("Textures: Emboss", box->windowTitle());
    EXPECT_EQ("50", text("lblSize"));
    const Bits before = document->bits();
    click("tb_23");
    EXPECT_EQ("Textures: Pixelize", box->windowTitle());
    EXPECT_TRUE(sameBits(before, document->bits())) << "chosen, not applied";
    find<QSlider>("br")->setValue(3);
    apply();
    const Region region = document->Region.working();
    const Bits pixelized = run("PIXELIZE", {3}, before, region);
    EXPECT_TRUE(sameBits(pixelized, document->bits()));
    EXPECT_EQ(1, frame.logged("step"));
    QTest::mouseDClick(find("tb_18"), Qt::LeftButton);
    frame.settle();
    EXPECT_TRUE(sameBits(run("Invert", {}, pixelized, region), document->bits()));
    frame.setup_.ForeColor = 0x112233;
    click("tb_28");
    apply();
    EXPECT_TRUE(
        sameBits(run("SKETCH", {3, false, 0x112233}, run("Invert", {}, pixelized, region), region), document->bits()));
    EXPECT_EQ(3, frame.logged("step"));

    frame.document = nullptr;
    apply();
    EXPECT_EQ("message: Velara Studio: There is no picture open.", frame.platform_.log.back());
}

TEST_F(TexturesBoxTest, EveryEffectHasItsButtonAndThumbnail)
{
    show(1);
    std::set<QByteArray> pictures;
    for (int i = 1; i <= kEffects; ++i) {
        const auto* button = find<QToolButton>(QString("tb_%1").arg(i));
        EXPECT_EQ(effects()[std::size_t(i - 1)].name, button->accessibleName().toStdString());
        const QImage image = button->icon().pixmap(44).toImage();
        pictures.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
    }
    EXPECT_EQ(std::size_t(kEffects), pictures.size()) << "no two look alike";
    auto* V = find<QScrollBar>("V");
    EXPECT_GT(V->maximum(), 0);
    V->setValue(V->maximum());
    const QWidget* tb = find("tb");
    EXPECT_EQ(tb->parentWidget()->height(), tb->y() + tb->height()) << "the last row";
    box->resize(900, 900);
    EXPECT_FALSE(V->isEnabled());
    EXPECT_EQ(0, tb->y());
}

TEST_F(TexturesBoxTest, FilesAreTextures)
{
    open();
    const Bits before = document->bits(), grain = randomBits(7, 5, 9);
    textures("grain10.BMP", grain);
    textures("grain9.gif", randomBits(1, 1, 1));
    textures("not.png", grain);
    putFile(frame.platform_.programFolder() + "/Textures/broken.jpg", "junk");
    show(1);
    auto* list = find<QListWidget>("ListFile");
    ASSERT_EQ(3, list->count());
    EXPECT_FALSE(find("CmdFileApply")->isEnabled());
    for (const int bad : {0, 1}) { // broken.jpg, grain9.gif
        const std::size_t told = frame.log.size() + frame.platform_.log.size();
        list->setCurrentRow(bad);
        click("CmdFileApply");
        EXPECT_TRUE(comes([&] { return frame.log.size() + frame.platform_.log.size() > told; })) << bad;
        EXPECT_TRUE(sameBits(before, document->bits())) << bad;
    }
    EXPECT_EQ(0, frame.logged("step"));
    list->setCurrentRow(2);
    click("CmdFileApply");
    EXPECT_TRUE(comes([&] { return frame.logged("step") == 1; }));
    EXPECT_FALSE(before == document->bits());

    QObject::connect(box.get(), &fToolTextures::folderWanted, [&] { box->setTextureFolder(temp.path()); });
    click("cmdfile");
    EXPECT_EQ(0, list->count());
    EXPECT_TRUE(text("lblFolder").startsWith("No texture files"));
}

TEST_F(TexturesBoxTest, ADocumentOrTheBoxMayGoWhileAnEffectIsAtWork)
{
    open();
    show(1);
    frame.onCall = [&](const std::string& line) {
        if (line == "step") box.reset();
    };
    apply();
    EXPECT_EQ(1, frame.logged("step"));
}

} // namespace
} // namespace velara
