// The filter dialog with real controls, used as a user does.
#include "support/RecordingFrame.h"
#include "support/pictures.h"
#include "support/ui/WindowTest.h"
#include "ui/filter/fFilter.h"
#include "ui/widgets/fColorButton.h"
#include "ui/widgets/fPicturePage.h"

namespace velara {
namespace {

struct FilterDialog : WindowTest {
    RecordingFrame frame;
    Bits picture = randomBits(200, 150, 9);
    Region selection = Region::rectangle(20, 10, 150, 140);
    Document* document = nullptr;
    std::unique_ptr<fFilter> dialog;

    void open(std::string_view word)
    {
        document = &frame.open(picture);
        document->Region.setRegion(selection);
        frame.workspace_.handOver(*document);
        frame.log.clear();
        frame.filter_.clock = [this] { return frame.platform_.now += 20; }; // a progress report falls due in every row
        dialog = std::make_unique<fFilter>(frame, *findFilterRow(word), document->handle());
        used = dialog.get();
        dialog->show();
    }
    void finish()
    {
        click("cmdOK");
        frame.settle();
    }
    int steps() const { return frame.logged("step"); }
    const Bits& taken() const { return document->bits(); }
    Bits shown() { return find<fPicture>("iDst")->bits(); }
    /// The filter's result for the whole picture with the dialog's settings.
    Bits wanted(std::string_view word)
    {
        cBitFilter filter = frame.filter_;
        return findFilterRow(word)->call(filter, dialog->arguments());
    }
};

TEST_F(FilterDialog, EveryFilterShowsItsControlsAndRuns)
{
    for (const FilterRow& row : filterRows()) {
        if (row.words[0].empty()) continue;
        open(row.words[0]);
        EXPECT_EQ(row.title, dialog->windowTitle().toStdString());
        int sliders = 0, wells = 0;
        for (const auto& slider : row.sliders) sliders += slider.used();
        wells += has(row.extras, FilterExtra::SourceWell);
        wells += has(row.extras, FilterExtra::TargetWell);
        EXPECT_EQ(sliders, dialog->findChildren<QSlider*>().size()) << row.title;
        EXPECT_EQ(wells, dialog->findChildren<fColorButton*>().size()) << row.title;
        EXPECT_EQ(row.option != nullptr, dialog->findChild<QCheckBox*>("chkOption") != nullptr) << row.title;
        for (QWidget* widget : dialog->findChildren<QWidget*>())
            if (widget->focusPolicy() & Qt::TabFocus) {
                EXPECT_FALSE(widget->accessibleName().isEmpty()) << row.title << widget->objectName().toStdString();
                EXPECT_FALSE(widget->objectName().isEmpty()) << row.title;
                EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry())) << row.title << " is clipped";
            }
        const Bits full = wanted(row.words[0]);
        click(row.number % 2 ? "cmdOK" : "cmdPreview"); // "Real Time" acts like OK
        frame.settle();
        EXPECT_EQ(1, steps()) << row.title;
        EXPECT_TRUE(sameBits(full, taken())) << row.title;
        EXPECT_FALSE(dialog->isVisible()) << row.title;
    }
}

TEST_F(FilterDialog, ASliderShowsItsValueAtOnceAndItsEffectWithinAFrame)
{
    open("BRIGHTNESS");
    auto* slider = find<QSlider>("sbFilter_0");
    const Bits before = shown();
    for (int value = 1; value <= 90; ++value) slider->setValue(value);
    EXPECT_EQ("90", text("lblFilterV_0"));
    EXPECT_TRUE(sameBits(before, shown())) << "a burst of changes waits for its end";
    const auto comesTo = [this](const Bits& bits) { return comes([&] { return shown() == bits; }); };
    EXPECT_TRUE(comesTo(wanted("BRIGHTNESS"))) << "the picture fits the preview, so they are the same";
    EXPECT_EQ(nullptr, dialog->findChild<fPicturePage*>()) << "and there is no detail to show";
    click("chkPreview");
    EXPECT_TRUE(comesTo(picture)) << "without a preview the picture as it is";
    EXPECT_EQ(0, steps());
}

TEST_F(FilterDialog, TheDetailShowsTheWholeResultPixelForPixel)
{
    picture = randomBits(900, 700, 3);
    open("ADDGRID");
    auto* page = dialog->findChild<fPicturePage*>();
    ASSERT_NE(nullptr, page);
    const auto shows = [&](const Bits& bits) { return comes([&] { return sameBits(bits, page->picture().bits()); }); };
    const QPointF middle = page->shown().center();
    EXPECT_NEAR(85, middle.x(), 60) << "it begins at the selection, as far as the picture's edge lets it";
    EXPECT_TRUE(shows(wanted("ADDGRID")));
    for (int value = 5; value <= 40; ++value) find<QSlider>("sbFilter_0")->setValue(value);
    EXPECT_TRUE(shows(wanted("ADDGRID"))) << "the last change is followed by a run";
    emit find<fPicture>("iDst")->pressed({200, 150});
    EXPECT_NEAR(200 * 3, page->shown().center().x(), 3);
    EXPECT_NEAR(150 * 3, page->shown().center().y(), 3);
    click("chkPreview");
    EXPECT_TRUE(shows(picture)) << "without a preview the picture as it is";
    const Bits full = wanted("ADDGRID");
    finish();
    EXPECT_TRUE(sameBits(full, taken()));
}

TEST_F(FilterDialog, ExitAndEscapeLeaveThePicture)
{
    for (const bool byKey : {false, true}) {
        open("TWIRL");
        find<QSlider>("sbFilter_0")->setValue(70);
        const Bits before = shown();
        EXPECT_TRUE(comes([&] { return !(shown() == before); }));
        byKey ? QTest::keyClick(dialog.get(), Qt::Key_Escape) : click("cmdCancel");
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(0, steps());
        EXPECT_TRUE(frame.log.empty());
        EXPECT_TRUE(sameBits(picture, taken()));
    }
}

TEST_F(FilterDialog, EscapeEndsARunThatWorks)
{
    open("CUSTOMEMBOSS");
    find<QSlider>("sbFilter_0")->setValue(30);
    click("cmdOK");
    EXPECT_FALSE(find<QPushButton>("cmdOK")->isEnabled());
    dialog->accept(); // a second time, which must not run beside the first
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    frame.settle();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(0, steps());
    EXPECT_TRUE(frame.log.empty());
    EXPECT_EQ(0, frame.progress.back());
    finish();
    EXPECT_EQ(1, steps()) << "and it can be run again";
}

TEST_F(FilterDialog, SurvivesThatItIsDestroyedWhileItRuns)
{
    open("CUSTOMEMBOSS");
    dialog->accept();
    dialog.reset();
    frame.settle();
    EXPECT_EQ(1, steps()) << "what was asked for is done";
}

TEST_F(FilterDialog, AFailureIsToldAndChangesNothing)
{
    picture = randomBits(1, 50, 2); // too narrow for FOLD
    selection = Region::rectangle(0, 0, 1, 50);
    open("FOLD");
    EXPECT_EQ("Division by zero", text("lblState"));
    finish();
    EXPECT_TRUE(frame.platform_.logged("message: Velara Studio: Deformation [Fold]: Division by zero"));
    EXPECT_EQ(0, steps());
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(FilterDialog, APressOnThePreviewPicksAColourOrTheCentre)
{
    open("REPLACE");
    auto* source = find<fPicture>("iSrc");
    QTest::mouseClick(source, Qt::LeftButton, {}, source->place().topLeft() + QPoint(30, 40));
    const auto& c = picture.at(30, 40).c;
    EXPECT_EQ(colourOf(c[2], c[1], c[0]), dialog->arguments().colour[0]);
    EXPECT_EQ(frame.setup_.BackColor, dialog->arguments().colour[1]);
    QTest::mouseClick(source, Qt::LeftButton, {}, {1, 1});
    EXPECT_EQ(colourOf(c[2], c[1], c[0]), dialog->arguments().colour[0]) << "beside the picture";

    open("LENS");
    source = find<fPicture>("iSrc");
    EXPECT_EQ(0.5f, dialog->arguments().centerX);
    QTest::mouseClick(source, Qt::LeftButton, {}, source->place().topLeft() + QPoint(50, 120));
    EXPECT_EQ(0.25f, dialog->arguments().centerX);
    EXPECT_EQ(0.8f, dialog->arguments().centerY);
    const QImage before = source->grab().toImage();
    EXPECT_TRUE(comes([&] { return before != source->grab().toImage(); })) << "the marker blinks";
}

TEST_F(FilterDialog, GlassOffersTheStrengthsThatItsStyleHas)
{
    open("CUSTOMGLASS");
    EXPECT_EQ("slanting", dialog->arguments().style);
    EXPECT_EQ(2, find<QComboBox>("cbo")->count());
    click("oo_1");
    find<QComboBox>("cbo")->setCurrentIndex(2);
    EXPECT_EQ("horizontal", dialog->arguments().style);
    EXPECT_EQ(2, dialog->arguments().mode);
    EXPECT_TRUE(comes([&] { return sameBits(wanted("CUSTOMGLASS"), shown()); }));
    click("oo_3");
    EXPECT_EQ(0, dialog->arguments().mode) << "slanting has no such strength";

    open("CUSTOMCURTAIN");
    QMap<int, QString> shown; // by position
    for (int mode = 0; mode < 4; ++mode) {
        const QString name = QString("Curt_%1").arg(mode);
        shown[find(name)->x()] = text(name);
        click(name);
        EXPECT_EQ(mode, dialog->arguments().mode) << "told as it is counted: Horizontal, Vertical, Classy, Whity";
    }
    EXPECT_EQ("Whity Classy Vertical Horizontal", shown.values().join(' '));
}

TEST_F(FilterDialog, BanksAndOption)
{
    open("RGBBANKS");
    click("optRChannel_2");
    click("chkInvt_1");
    click("chkKill_0");
    EXPECT_EQ((std::array{0, 1, 0}), dialog->arguments().channel);
    EXPECT_EQ((std::array{false, true, false}), dialog->arguments().invert);
    EXPECT_EQ((std::array{true, false, false}), dialog->arguments().kill);
    open("ROTATE");
    click("lblOption");
    EXPECT_TRUE(dialog->arguments().option);
}

} // namespace
} // namespace velara
