// The printing dialogs, used as a user does, with printers that record what they get.
#include "support/RecordingPlatform.h"
#include "support/pictures.h"
#include "support/ui/WindowTest.h"
#include "ui/printing/fPagePreview.h"
#include "ui/printing/fPrint.h"
#include "ui/printing/fPrinterSetup.h"

namespace velara {
namespace {

struct fPrintTest : WindowTest {
    RecordingPlatform platform;
    RecordingPrinters& printers = platform.printers();
    int copied = 0;

    fPrintTest()
    {
        printers.printers = {{"Attic", "Lab"}, "Lab"};
        printers.tray = {"letter", {200, 300}, {10, 10, 10, 10}};
    }
    ~fPrintTest() override { delete used; }
    void open(int width = 90, int height = 60)
    {
        delete used;
        used = new fPrint(
            platform, randomBits(width, height, 3), "holiday.png", [this] { ++copied; }, nullptr);
        used->show();
    }
};

} // namespace

TEST_F(fPrintTest, PrintsAsItIsSet)
{
    open();
    EXPECT_EQ(text("cbPrinters") + text("cbQuality") + text("txtCopies"), "LabMedium1");
    EXPECT_EQ(text("lblCopies"), "");
    find<QScrollBar>("sbCopies")->setValue(8);
    printers.mostCopies = 5;
    choose("cbPrinters", "Attic");
    EXPECT_EQ(printers.log.back(), "current Attic");
    EXPECT_EQ(text("txtCopies") + text("lblCopies"), "5at most 5");
    choose("cbOrientation", "Portrait");
    choose("cbQuality", "High");
    click("chkFit");
    click("chkCenter");
    type("txtCopies", "3");
    EXPECT_EQ(find<QScrollBar>("sbCopies")->value(), 3);
    find<QScrollBar>("sbCopies")->triggerAction(QScrollBar::SliderSingleStepAdd);
    EXPECT_EQ(text("txtCopies"), "4");
    click("cmdOK");
    ASSERT_EQ(printers.pages.size(), 1u);
    const auto& [printer, page] = printers.pages.front();
    EXPECT_EQ(printer + ": " + page.title, "Attic: holiday.png");
    EXPECT_EQ(page.place, QRectF(10, 10, 180, 120));
    EXPECT_EQ(std::pair(page.orientation, page.quality), std::pair(PageOrientation::Portrait, PrintQuality::High));
    EXPECT_EQ(std::tuple(page.copies, page.picture.width(), copied), std::tuple(4, 90, 1));
    EXPECT_FALSE(used->isVisible());
    EXPECT_TRUE(platform.log.empty());
}

TEST_F(fPrintTest, OrientationFollowsThePictureAndThePreviewThePage)
{
    open(60, 60);
    EXPECT_EQ(text("cbOrientation"), "Landscape") << "a square";
    auto* page = find<fPagePreview>("iOut");
    EXPECT_GT(page->sheet().width(), page->sheet().height());
    choose("cbOrientation", "Portrait");
    EXPECT_LT(page->sheet().width(), page->sheet().height());
    EXPECT_NEAR(page->picture().center().x(), page->sheet().center().x(), 0.1);
    click("chkFit");
    EXPECT_NEAR(page->picture().width(), page->sheet().width() * 180 / 200, 0.1);
    open(60, 61);
    EXPECT_EQ(text("cbOrientation"), "Portrait");
}

TEST_F(fPrintTest, WhatFailsIsToldOnceAndEndsTheDialog)
{
    for (const char* copies : {"0", "-3", "99999", "abc", ""}) {
        open();
        find<QLineEdit>("txtCopies")->setText(copies);
        click("cmdOK");
        EXPECT_EQ(platform.log, std::vector<std::string>{"message: Velara Studio: Unable to print"}) << copies;
        EXPECT_EQ(platform.lastIcon, Icon::Exclamation);
        EXPECT_FALSE(used->isVisible());
        EXPECT_TRUE(printers.pages.empty());
        platform.log.clear();
    }
    printers.reason = "there is no printer Lab any more";
    open();
    click("cmdOK");
    EXPECT_TRUE(platform.logged("message: Velara Studio: Unable to print"));
    platform.log.clear();
    printers.reason.clear();
    printers.notice = "The printer Lab is paused.";
    open();
    click("cmdOK");
    EXPECT_EQ(platform.log, std::vector<std::string>{"message: Velara Studio: The printer Lab is paused."});
    EXPECT_FALSE(used->isVisible());
}

TEST_F(fPrintTest, AnOwnSizeKeepsProportionsAndStaysOnThePage)
{
    open(960, 480); // 254 x 127 mm; the page has 280 x 180
    const auto shown = [&] { return text("sbWidth") + ' ' + text("sbHeight") + ' ' + text("sbPercent"); };
    EXPECT_EQ(shown(), "254.0 mm 127.0 mm 100.0 %");
    EXPECT_FALSE(find<QDoubleSpinBox>("sbWidth")->isEnabled());
    click("chkFit");
    EXPECT_EQ(shown(), "280.0 mm 140.0 mm 110.2 %");
    click("chkOwnSize");
    EXPECT_FALSE(find<QCheckBox>("chkFit")->isChecked());
    find<QDoubleSpinBox>("sbPercent")->setValue(90);
    EXPECT_EQ(shown(), "228.6 mm 114.3 mm 90.0 %");
    find<QDoubleSpinBox>("sbHeight")->setValue(999);
    EXPECT_EQ(shown(), "280.0 mm 140.0 mm 110.2 %");
    find<QDoubleSpinBox>("sbWidth")->setValue(200);
    choose("cbOrientation", "Portrait");
    EXPECT_EQ(shown(), "180.0 mm 90.0 mm 70.9 %");
    choose("cbOrientation", "Landscape");
    EXPECT_EQ(shown(), "200.0 mm 100.0 mm 78.7 %") << "the wish is kept";
    click("cmdOK");
    EXPECT_EQ(printers.pages.front().second.place.size(), QSizeF(200, 100));
}

TEST_F(fPrintTest, WithoutAPrinterThereIsAFile)
{
    printers.printers = {};
    open();
    EXPECT_EQ(text("lblState"), "No printer was found");
    EXPECT_EQ(find<QComboBox>("cbPrinters")->count(), 1);
    click("cmdOK"); // without a file name
    EXPECT_TRUE(used->isVisible());
    EXPECT_TRUE(printers.pages.empty());
    platform.answers = {"/somewhere/page.pdf"};
    click("cmdOK");
    ASSERT_EQ(printers.pages.size(), 1u);
    EXPECT_EQ(printers.pages.front().first, "/somewhere/page.pdf");
    EXPECT_FALSE(used->isVisible());
}

TEST_F(fPrintTest, ASilentServerIsLeft)
{
    printers.silent = true;
    open();
    EXPECT_EQ(text("lblState") + text("cbPrinters"), "Looking for printers ...");
    EXPECT_FALSE(find<QPushButton>("cmdOK")->isEnabled());
    EXPECT_TRUE(printers.answer());
    EXPECT_EQ(text("lblState") + text("cbPrinters"), "Asking the printer ...Lab");
    EXPECT_FALSE(find<QPushButton>("cmdOK")->isEnabled()) << "its paper isn't known";
    choose("cbPrinters", "PDF file ...");
    EXPECT_EQ(text("lblState"), "");
    EXPECT_FALSE(printers.answer()) << "of a printer that isn't chosen any more";
    choose("cbPrinters", "Lab");
    EXPECT_TRUE(printers.answer());
    EXPECT_EQ(text("lblState"), "");
    click("cmdOK");
    EXPECT_FALSE(find<QPushButton>("cmdOK")->isEnabled());
    QTest::keyClick(used, Qt::Key_Escape);
    EXPECT_FALSE(used->isVisible());
    delete used;
    EXPECT_FALSE(printers.answer()) << "nobody waits any more";
}

// A PDF file needs no server: it can be chosen at once, and stays chosen when the printers arrive.
TEST_F(fPrintTest, AFileIsChosenWhilePrintersAreLookedFor)
{
    printers.silent = true;
    for (const bool setUp : {false, true}) {
        open();
        if (setUp) {
            delete used;
            used = new fPrinterSetup(printers, nullptr);
        }
        const auto listed = printers.held();
        choose("cbPrinters", "PDF file ...");
        if (setUp) printers.answer(); // the usual papers don't come from the server
        EXPECT_TRUE(find<QPushButton>("cmdOK")->isEnabled());
        (*listed)();
        EXPECT_EQ(find<QComboBox>("cbPrinters")->count(), 3);
        EXPECT_EQ(text("cbPrinters"), "PDF file ...");
    }
    click("cmdOK");
    EXPECT_EQ(printers.log, std::vector<QString>{"choose  letter"});
}

TEST_F(fPrintTest, TheSetupChoosesPrinterPaperAndShades)
{
    used = new fPrinterSetup(printers, nullptr);
    EXPECT_EQ(used->windowTitle() + text("cbPrinters") + text("cbPaper"), "Printer SetupLab200 x 300 mm");
    EXPECT_TRUE(find<QCheckBox>("chkGray")->isChecked()) << "as it was chosen before";
    choose("cbPaper", "A4 (210 x 297 mm)");
    click("cmdOK");
    EXPECT_EQ(printers.log.back(), "choose Lab iso_a4_210x297mm gray");
    printers.printers = {{}, {}, "the print server does not answer"};
    delete used;
    used = new fPrinterSetup(printers, nullptr);
    EXPECT_EQ(text("lblState"), "No printer was found: the print server does not answer");
    click("chkGray");
    click("cmdOK");
    EXPECT_EQ(printers.log.back(), "choose  letter gray") << "a file, too";
}

} // namespace velara
