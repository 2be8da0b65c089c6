// The panes of the mouse tools: changes of controls appear in the settings, and vice versa.
#include "commands/effects.h"
#include "support/RecordingFrame.h"
#include "support/filterOf.h"
#include "support/pictures.h"
#include "support/ui/WindowTest.h"
#include "ui/panes/fToolPanes.h"
#include "ui/widgets/fColorButton.h"

namespace velara {

struct Panes : WindowTest {
    RecordingFrame frame;
    std::unique_ptr<QWidget> pane;

    void make(const char* tool)
    {
        pane.reset(makeSidePane(*findTool(QString(tool)), frame));
        used = pane.get();
    }
    void addStamp(const QString& name, int side)
    {
        QDir(frame.platform_.programFolder()).mkpath("Stamps");
        EXPECT_TRUE(QImage(side, side, QImage::Format_RGB32).save(frame.platform_.programFolder() + "/Stamps/" + name));
    }
};

struct SliderCase {
    const char *tool, *name;
    int low, high;
    std::int16_t Setup::*field;
};
constexpr SliderCase kSliders[] = {
    // clang-format off
    {"Select",   "sbSelectionPressure",  0, 100, &Setup::SelectionPressure},
    {"Brush",    "sbBrushSize",          1, 200, &Setup::BrushSize},
    {"Brush",    "sbBrushPressure",      0, 100, &Setup::BrushPressure},
    {"Airbrush", "sbAirbrushSize",       2, 200, &Setup::AirbrushSize},
    {"Airbrush", "sbAirbrushPressure",   0, 100, &Setup::AirbrushPressure},
    {"Airbrush", "sbAirBrushQuantity",   0, 100, &Setup::AirbrushQuantity},
    {"Airbrush", "sbAirbrushDefinition", 0, 100, &Setup::AirbrushDefinition},
    {"Fill",     "sbFillTolerance",      0, 765, &Setup::FillTolerance},
    {"Fill",     "sbFillPressure",       0, 100, &Setup::FillPressure},
    {"Shape",    "sbShapePressure",      0, 100, &Setup::ShapePressure},
    {"Shape",    "sbShapeSides",         3, 24,  &Setup::ShapeSides},
    {"Stamp",    "sbStampPressure",      0, 100, &Setup::StampPressure},
    {"Gradient", "sbGradPressure",       0, 100, &Setup::GradientPressure},
    {"Gradient", "sbGradFrequency",      1, 20,  &Setup::GradientFrequency},
    {"Text",     "sbTextOpacity",        0, 100, &Setup::ToolOpacity},
    {"Pencil",   "sbPencilOpacity",      0, 100, &Setup::ToolOpacity},
    // clang-format on
};

TEST_F(Panes, SlidersWriteTheirSetting)
{
    for (const SliderCase& c : kSliders) {
        frame.setup_.*c.field = static_cast<std::int16_t>(c.high - 1);
        make(c.tool);
        auto* slider = find<QSlider>(c.name);
        auto* number = find<QSpinBox>(QString("lbl") + c.name);
        EXPECT_EQ(slider->value(), c.high - 1) << c.name;
        EXPECT_EQ(number->value(), c.high - 1) << c.name;
        slider->setValue(9999);
        EXPECT_EQ(frame.setup_.*c.field, c.high) << c.name;
        slider->setValue(-9999);
        EXPECT_EQ(frame.setup_.*c.field, c.low) << c.name;
        EXPECT_EQ(number->value(), c.low) << c.name;
        frame.setup_.*c.field = -7; // as from a damaged file
        make(c.tool);
        EXPECT_EQ(frame.setup_.*c.field, c.low) << c.name;
    }
}

struct ListCase {
    const char *tool, *name, *entries, *numbers; // the value of each entry
    std::function<int(const Setup&)> field;
};

TEST_F(Panes, ListsWriteWhatTheEntryStandsFor)
{
    const ListCase cases[] = {
        // clang-format off
        {"Select", "cbSelectionMode", "Add|Subtract|New", "012", &Setup::SelectionMode},
        {"Select", "cbSelectionShape", "Rectangle|Ellipse|Polygon/Free hand|Pixel", "0123", &Setup::SelectionShape},
        {"SelectionMove", "cSelect", "Move Selection Only|Move Content Only", "10", &Setup::MoveSelection},
        {"Brush", "cbBrushMode", "Current color|Current stamp|Darken|Lighten|Sharpen|Soften|Soften (Overlay)", "0654312", &Setup::BrushMode},
        {"Fill", "cbFillMode", "Current color|Current stamp", "01", &Setup::FillMode},
        {"Gradient", "cbGradMode", "Linear|Circular", "01", &Setup::GradientMode},
        // clang-format on
    };
    for (const ListCase& c : cases) {
        make(c.tool);
        const QStringList entries = QString(c.entries).split('|');
        ASSERT_EQ(find<QComboBox>(c.name)->count(), entries.size()) << c.name;
        for (int i = 0; i < entries.size(); ++i) {
            choose(c.name, entries[i]);
            EXPECT_EQ(c.field(frame.setup_), c.numbers[i] - '0') << c.name << ", " << i;
            std::unique_ptr<QWidget> other(makePopup(*findTool(QString(c.tool)), frame, nullptr));
            EXPECT_EQ(controlOf<QComboBox>(*other, c.name)->currentText(), entries[i]) << "the other pane's too";
        }
    }
}

TEST_F(Panes, TheMoveActionIsTheSelectionsOwnSetting)
{
    make("Select");
    find<QCheckBox>("chkMoveSelection")->setChecked(false);
    EXPECT_FALSE(frame.setup_.MoveSelection);
    make("SelectionMove");
    EXPECT_EQ(text("cSelect"), "Move Content Only");
    EXPECT_FALSE(frame.toolStores_.useMovePressure);
    find<QCheckBox>("cSelectionOwn")->setChecked(true);
    EXPECT_TRUE(frame.toolStores_.useMovePressure);
}

TEST_F(Panes, SidesAreForPolygonsOnly)
{
    frame.setup_.ShapeKind = ShapeKind::Line;
    make("Shape");
    auto* kinds = find<QListWidget>("lstShape");
    ASSERT_EQ(kinds->count(), 7);
    EXPECT_FALSE(find<QSlider>("sbShapeSides")->isEnabled());
    kinds->setCurrentRow(6);
    EXPECT_EQ(kinds->currentItem()->text(), "Polygon");
    EXPECT_EQ(frame.setup_.ShapeKind, ShapeKind::Polygon);
    EXPECT_TRUE(find<QSlider>("sbShapeSides")->isEnabled());
}

TEST_F(Panes, TheGradientIsShown)
{
    make("Gradient");
    find<fColorButton>("GradColor_0")->setColour(0x0000FF);
    find<fColorButton>("GradColor_1")->setColour(0xFF0000);
    find<QSlider>("sbGradPressure")->setValue(100);
    EXPECT_EQ(frame.setup_.GradientColor1, 0x0000FF);
    const auto shown = [&] { return find<QLabel>("iGrad")->pixmap().toImage(); };
    const QImage linear = shown();
    EXPECT_GT(qRed(linear.pixel(2, 20)), 200);
    EXPECT_GT(qBlue(linear.pixel(linear.width() - 3, 20)), 200);
    find<QComboBox>("cbGradMode")->setCurrentIndex(1);
    EXPECT_NE(shown(), linear);
    const QImage circular = shown();
    find<QCheckBox>("chkTranspCol_1")->setChecked(true);
    EXPECT_TRUE(frame.setup_.GradientTransparent2);
    EXPECT_NE(shown(), circular);
}

TEST_F(Panes, StampsFollowTheirFolder)
{
    make("Stamp");
    EXPECT_TRUE(frame.platform_.logged("message: Velara Studio: <Stamps> subfolder not found."));
    EXPECT_FALSE(find<QLabel>("lblStamps")->isHidden());
    EXPECT_EQ(text("lblStamps"), "Stamp sub-Folder Not Found!");
    EXPECT_TRUE(frame.toolStores_.stamp.isNull());

    addStamp("b.bmp", 9);
    addStamp("a.bmp", 5);
    auto* list = find<QComboBox>("cbStamps");
    ASSERT_TRUE(comes([&] { return list->count() == 2; })) << "the folder has come";
    EXPECT_TRUE(find<QLabel>("lblStamps")->isHidden());
    EXPECT_EQ(text("cbStamps"), "a.bmp");
    const auto isRead = [&](int width) {
        return comes([&] {
            return frame.toolStores_.stamp.width() == width && find<QLabel>("iStamp")->pixmap().width() == width;
        });
    };
    EXPECT_TRUE(isRead(5));
    pane->show();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Up);
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_TRUE(isRead(9)) << "what was chosen meanwhile is not taken";
    EXPECT_EQ(frame.toolStores_.stampFile, "b.bmp");

    addStamp("c.bmp", 7);
    ASSERT_TRUE(comes([&] { return list->count() == 3; }));
    EXPECT_EQ(list->currentText(), "b.bmp") << "the chosen one stays";
    QFile::remove(frame.platform_.programFolder() + "/Stamps/b.bmp");
    ASSERT_TRUE(comes([&] { return list->count() == 2; }));
    EXPECT_TRUE(isRead(5)) << "the chosen one is gone";
    make("Stamp");
    EXPECT_EQ(find<QComboBox>("cbStamps")->count(), 2);
}

TEST_F(Panes, EveryToolOfTheTableHasBothPanes)
{
    addStamp("a.bmp", 5);
    for (const ToolRow& row : toolRows()) {
        if (row.pane.empty()) continue;
        make(row.name);
        EXPECT_EQ(pane->objectName(), row.side);
        std::unique_ptr<QWidget> popup(makePopup(row, frame, nullptr));
        EXPECT_EQ(popup->objectName(), row.popup);
        for (const QWidget* control : popup->findChildren<QWidget*>()) {
            const QString name = control->objectName();
            if (control->focusPolicy() == Qt::NoFocus || name.isEmpty() || name.startsWith("qt_")) continue;
            EXPECT_FALSE(control->accessibleName().isEmpty()) << name.toStdString();
        }
    }
    EXPECT_EQ(makePopup(*findTool(u"GetColor"), frame, nullptr), nullptr);
}

TEST_F(Panes, TheTextPaneRunsTheChosenEffectAtItsAmount)
{
    const Bits before = randomBits(30, 20, 5);
    Document& document = frame.open(before);
    frame.document = nullptr;
    make("Text");
    auto* list = find<QListWidget>("lstEffects");
    EXPECT_EQ(kEffects, list->count());
    EXPECT_EQ("Emboss", list->currentItem()->text());
    click("cmdEffect"); // no document: nothing
    frame.document = &document;
    find<QSlider>("sbAmount")->setValue(12);
    EXPECT_EQ("12%", text("lblsbAmount"));
    list->setCurrentRow(7 + 1);
    click("cmdEffect");
    frame.settle();
    EXPECT_TRUE(sameBits(run("ENGRAVE", {12}, before, document.Region.working()), document.bits()));
    EXPECT_EQ(1, frame.logged("step"));
}

} // namespace velara
