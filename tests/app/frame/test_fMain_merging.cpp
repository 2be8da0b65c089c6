// Image merging in the frame: the window that lays one open picture over another, and its reactions to events around
// it.
#include "app/frame/frameTest.h"
#include "document/merging.h"
#include "ui/merge/fOverlay.h"
#include "ui/widgets/fColorButton.h"
#include "ui/widgets/fPicture.h"
#include <QtTest>
#include <QtWidgets>
#include <algorithm>
#include <cstring>

namespace velara {
namespace {

struct FrameMerging : FrameTest {
    const Bits below = randomBits(120, 90, 1), above = randomBits(40, 30, 2);
    QPointer<fImage> lower, upper;
    QPointer<fOverlay> dialog;

    void begin()
    {
        lower = open(below, "below.bmp");
        upper = open(above, "above.bmp");
        activate(lower);
        command("IMAGEMERGING");
        dialog = frame->findChild<fOverlay*>();
    }
    template <class T> T* find(const char* name) { return dialog->findChild<T*>(name); }
    void slide(const char* name, int value) { find<QSlider>(name)->setValue(value); }
    Bits blend(const Merging& merging, const Region& region)
    {
        cBitFilter filter;
        filter.setBits(below);
        filter.setBitsRegion(region);
        return merged(filter, merging);
    }
    bool shows(const Bits& wanted) // ignores margins and fourth bytes
    {
        const Bits& shown = find<fPicture>("iSrc")->bits();
        bool same = shown.width() == wanted.width() && shown.height() == wanted.height();
        for (int y = 0; same && y < wanted.height(); ++y)
            same = std::equal(wanted.row(y), wanted.row(y) + wanted.width(), shown.row(y),
                              [](const Pixel& a, const Pixel& b) { return std::memcmp(a.c, b.c, 3) == 0; });
        return same;
    }
};

const Region kAll = Region::rectangle(0, 0, 120, 90);

TEST_F(FrameMerging, TheWindowShowsWhatOkDoesAndTheStepCanBeUndone)
{
    begin();
    ASSERT_TRUE(dialog && dialog->isVisible() && !dialog->isModal());
    EXPECT_EQ(2, find<QComboBox>("cbOverlay")->count());
    EXPECT_EQ("above.bmp", find<QComboBox>("cbOverlay")->currentText()) << "not the picture itself";
    EXPECT_EQ("50%", find<QSpinBox>("lblTransparencyV")->text());
    EXPECT_TRUE(comes([&] { return shows(blend({above, 0, 0}, kAll)); }));
    slide("sbXOffset", 25);
    find<QSpinBox>("txtYOffset")->setValue(-7);
    slide("sbTransparency", 30);
    find<QCheckBox>("chkTiled")->click();
    EXPECT_FALSE(find<fColorButton>("lblMaskColor")->isEnabled());
    find<QCheckBox>("chkMaskColor")->click();
    const Pixel p = above.at(5, 5);
    find<fColorButton>("lblMaskColor")->setColour(colourOf(p.c[2], p.c[1], p.c[0]));
    lower->document().Region.CreateRect(10, 10, 100, 70, Combine::Or, true);
    const Bits wanted =
        blend({above, 25, -7, true, 30, colourOf(p.c[2], p.c[1], p.c[0])}, lower->document().Region.working());
    EXPECT_EQ("30%", find<QSpinBox>("lblTransparencyV")->text());
    EXPECT_TRUE(comes([&] { return shows(wanted); })) << "it follows the selection too";
    QTest::mouseClick(find<QPushButton>("cmdOK"), Qt::LeftButton);
    EXPECT_TRUE(comes([&] { return !dialog; })) << "it went";
    EXPECT_TRUE(sameBits(wanted, lower->bits()));
    EXPECT_TRUE(sameBits(above, upper->bits()));
    command("UNDO");
    EXPECT_TRUE(sameBits(below, lower->bits()));
}

TEST_F(FrameMerging, ANewImageGetsTheWholeBlendAndThePictureStays)
{
    begin();
    lower->document().Region.CreateRect(10, 10, 20, 20, Combine::Or, true);
    find<QCheckBox>("chkCreateNew")->click();
    const Bits wanted = blend({above, 0, 0}, kAll);
    EXPECT_TRUE(comes([&] { return shows(wanted); })) << "nothing is selected in a new picture";
    QTest::mouseClick(find<QPushButton>("cmdOK"), Qt::LeftButton);
    frame->workspace().wait();
    ASSERT_EQ(3, frame->documents().size());
    const fImage* made = frame->documents().back();
    EXPECT_EQ(made, frame->GetActiveImage());
    EXPECT_TRUE(sameBits(wanted, made->bits()));
    EXPECT_TRUE(made->Tag().endsWith("below.bmp") && made->Tag() != lower->Tag());
    EXPECT_TRUE(sameBits(below, lower->bits()));
    command("UNDO");
    EXPECT_TRUE(sameBits(below, made->bits()));
}

TEST_F(FrameMerging, PicturesThatOpenChangeAndCloseMeanwhile)
{
    setup.AskToSave = false;
    begin();
    slide("sbXOffset", 120);
    change(lower->document().handle(),
           [](Document& draft, cBitFilter&) { draft.takePicture(flatBits(20, 10, 9, 9, 9)); });
    change(upper->document().handle(),
           [](Document& draft, cBitFilter&) { draft.takePicture(flatBits(8, 8, 100, 50, 1)); });
    EXPECT_TRUE(comes([&] { return find<QSlider>("sbXOffset")->value() == 20; })) << "it is no wider any more";
    slide("sbXOffset", 0);
    cBitFilter filter;
    filter.setBits(lower->bits());
    filter.setBitsRegion(Region::rectangle(0, 0, 20, 10));
    EXPECT_TRUE(comes([&] { return shows(merged(filter, {upper->bits(), 0, 0})); }));

    open(randomBits(5, 5, 3), "third.bmp");
    EXPECT_TRUE(comes([&] { return find<QComboBox>("cbOverlay")->count() == 3; }));
    EXPECT_EQ("above.bmp", find<QComboBox>("cbOverlay")->currentText());

    const Bits before = lower->bits();
    upper->parentWidget()->close();
    QTest::mouseClick(find<QPushButton>("cmdOK"), Qt::LeftButton); // before the window has noticed the change
    frame->workspace().wait();                                     // for what may have been begun
    ASSERT_TRUE(comes([&] { return !dialog || find<QComboBox>("cbOverlay")->currentText() == "third.bmp"; }) && dialog);
    EXPECT_TRUE(sameBits(before, lower->bits())) << "another picture than the chosen one is not merged";
    for (fImage* image : frame->documents()) image->parentWidget()->close();
    slide("sbTransparency", 10);
    ASSERT_TRUE(comes([&] { return find<QComboBox>("cbOverlay")->count() == 0; }) && dialog->isVisible());
    EXPECT_FALSE(find<QPushButton>("cmdOK")->isEnabled());
    EXPECT_TRUE(find<fPicture>("iSrc")->bits().isNull());
    open(below, "again.bmp");
    EXPECT_TRUE(comes([&] { return find<QPushButton>("cmdOK")->isEnabled(); }));
}

} // namespace
} // namespace velara
