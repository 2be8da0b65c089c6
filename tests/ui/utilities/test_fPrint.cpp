// The print dialog, used as a person does, over printers that write down what they get.
#include "support/RecordingPlatform.h"
#include "support/pictures.h"
#include "support/ui/controls.h"
#include "ui/utilities/fPagePreview.h"
#include "ui/utilities/fPrint.h"
#include <QtTest>
#include <gtest/gtest.h>

namespace velara {
namespace {

struct fPrintTest : ::testing::Test {
    RecordingPlatform platform;
    RecordingPrinters& printers = platform.printers();
    int copied = 0;
    QPointer<fPrint> dialog;

    fPrintTest()
    {
        printers.printers = {{"Attic", "Lab"}, "Lab"};
        printers.tray = {"letter", {200, 300}, {10, 10, 10, 10}};
    }
    ~fPrintTest() override { delete dialog; }
    void open(int width = 90, int height = 60)
    {
        dialog = new fPrint(
            platform, randomBits(width, height, 3), "holiday.png", [this] { ++copied; }, nullptr);
        dialog->show();
    }
    template <class Widget> Widget* find(const char* name) { return controlOf<Widget>(*dialog, name); }
    void choose(const char* box, int index)
    {
        find<QComboBox>(box)->setCurrentIndex(index);
        emit find<QComboBox>(box)->activated(index);
    }
    void click(const char* name) { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }
    void type(const QString& copies)
    {
        find<QLineEdit>("txtCopies")->selectAll();
        QTest::keyClicks(find<QLineEdit>("txtCopies"), copies);
    }
};

} // namespace

TEST_F(fPrintTest, PrintsAsItIsSet)
{
    open();
    EXPECT_EQ(find<QComboBox>("cbPrinters")->currentText(), "Lab");
    EXPECT_EQ(find<QComboBox>("cbOrientation")->currentText(), "Landscape");
    EXPECT_EQ(find<QComboBox>("cbQuality")->currentText(), "Medium");
    EXPECT_EQ(find<QLineEdit>("txtCopies")->text(), "1");
    choose("cbPrinters", 0);
    EXPECT_EQ(printers.log.back(), "current Attic");
    choose("cbOrientation", 0);
    choose("cbQuality", 3);
    find<QCheckBox>("chkFit")->click();
    find<QCheckBox>("chkCenter")->click();
    type("3");
    EXPECT_EQ(find<QScrollBar>("sbCopies")->value(), 3);
    find<QScrollBar>("sbCopies")->triggerAction(QScrollBar::SliderSingleStepAdd);
    EXPECT_EQ(find<QLineEdit>("txtCopies")->text(), "4");
    click("cmdOK");
    ASSERT_EQ(printers.pages.size(), 1u);
    const auto& [printer, page] = printers.pages.front();
    EXPECT_EQ(printer, "Attic");
    EXPECT_EQ(page.place, QRectF(10, 10, 180, 120));
    EXPECT_EQ(page.orientation, PageOrientation::Portrait);
    EXPECT_EQ(page.quality, PrintQuality::High);
    EXPECT_EQ(page.copies, 4);
    EXPECT_EQ(page.title, "holiday.png");
    EXPECT_EQ(page.picture.width(), 90);
    EXPECT_EQ(copied, 1);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(platform.log.empty());
}

TEST_F(fPrintTest, OrientationFollowsThePictureAndThePreviewThePage)
{
    open(60, 60);
    EXPECT_EQ(find<QComboBox>("cbOrientation")->currentIndex(), 1) << "a square is a landscape";
    auto* page = find<fPagePreview>("iOut");
    EXPECT_GT(page->sheet().width(), page->sheet().height());
    choose("cbOrientation", 0);
    EXPECT_LT(page->sheet().width(), page->sheet().height());
    EXPECT_NEAR(page->picture().center().x(), page->sheet().center().x(), 0.1);
    find<QCheckBox>("chkFit")->click();
    EXPECT_NEAR(page->picture().width(), page->sheet().width() * 180 / 200, 0.1);
    delete dialog;
    open(60, 61);
    EXPECT_EQ(find<QComboBox>("cbOrientation")->currentIndex(), 0);
}

TEST_F(fPrintTest, WhatFailsIsToldOnceAndEndsTheDialog)
{
    for (const char* copies : {"0", "-3", "99999", "abc", ""}) {
        open();
        type(copies);
        find<QLineEdit>("txtCopies")->setText(copies);
        click("cmdOK");
        EXPECT_EQ(platform.log, std::vector<std::string>{"message: Velara Studio: Unable to print"}) << copies;
        EXPECT_EQ(platform.lastIcon, Icon::Exclamation);
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_TRUE(printers.pages.empty());
        platform.log.clear();
        delete dialog;
    }
    printers.reason = "there is no printer Lab any more";
    open();
    click("cmdOK");
    EXPECT_TRUE(platform.logged("message: Velara Studio: Unable to print"));
}

TEST_F(fPrintTest, WithoutAPrinterThereIsAFile)
{
    printers.printers = {};
    open();
    EXPECT_EQ(find<QLabel>("lblState")->text(), "No printer was found");
    EXPECT_EQ(find<QComboBox>("cbPrinters")->count(), 1);
    click("cmdOK"); // and no name is given
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(printers.pages.empty());
    platform.answers = {"/somewhere/page.pdf"};
    click("cmdOK");
    ASSERT_EQ(printers.pages.size(), 1u);
    EXPECT_EQ(printers.pages.front().first, "/somewhere/page.pdf");
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(fPrintTest, ASilentServerIsLeft)
{
    printers.silent = true;
    open();
    EXPECT_FALSE(find<QPushButton>("cmdOK")->isEnabled());
    EXPECT_TRUE(printers.answer());
    EXPECT_TRUE(printers.answer()); // the paper
    click("cmdOK");
    EXPECT_FALSE(find<QPushButton>("cmdOK")->isEnabled());
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    delete dialog;
    EXPECT_FALSE(printers.answer()) << "nobody waits any more";
}

} // namespace velara
