// The pop-up of a tool: it appears beside the buttons, without a tool tip on it.
#include "app/frame/frameTest.h"
#include "app/menus/menus.h"
#include "app/start/defaultPictures.h"
#include "app/start/fSplash.h"
#include "tools/toolRows.h"
#include <QtTest>
#include <QtWidgets>
#include <set>

namespace velara {

struct HoverTest : FrameTest {
    QList<QWidget*> popups() const
    {
        QList<QWidget*> all;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->findChild<QLabel*>("lblTool", Qt::FindDirectChildrenOnly)) all << window;
        return all;
    }
    /// The open pop-up, after the pointer has rested on the tool's button.
    QWidget* popupOf(const char* tool)
    {
        QEvent enter(QEvent::Enter);
        QToolButton* button = frame->toolPane().button(tool);
        QCursor::setPos(button->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(button, &enter);
        const QString name = findTool(QString(tool))->caption;
        const auto stands = [&] {
            return popups().size() == 1 && popups()[0]->findChild<QLabel*>("lblTool")->text().startsWith(name);
        };
        return comes(stands) ? popups()[0] : nullptr;
    }
};

TEST_F(HoverTest, ThePopUpStandsBesideTheToolsAndNamesItsTool)
{
    frame->initToolPanes();
    for (const char* tool : {"Pencil", "Brush", "Fill"}) {
        const QWidget* popup = popupOf(tool);
        ASSERT_NE(nullptr, popup) << tool;
        const QWidget* strip = frame->toolPane().button(tool)->parentWidget();
        EXPECT_FALSE(popup->geometry().intersects(QRect(strip->mapToGlobal(QPoint()), strip->size()))) << tool;
        QEvent tip(QEvent::ToolTip);
        EXPECT_TRUE(QCoreApplication::sendEvent(frame->toolPane().button(tool), &tip));
    }

    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file("a.bmp"))});
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(popups()[0], &enter);
    QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(popups()[0], &drop);
    EXPECT_TRUE(comes([&] { return frame->documents().size() == 1; })) << "the frame's, which it covers";
}

TEST_F(HoverTest, TheToolsHavePanesInTheSideAndBesideTheirButtons)
{
    QDir(platform.programFolder()).mkpath("Stamps");
    frame->initToolPanes();
    click("Brush");
    auto* side = controlOf<QWidget>(*frame, "Brush");
    EXPECT_TRUE(side->isVisible());
    click("Fill");
    EXPECT_FALSE(side->isVisible());

    QWidget* popup = popupOf("Brush");
    ASSERT_TRUE(popup);
    controlOf<QSlider>(*popup, "sbBrushSize")->setValue(77);
    EXPECT_EQ(setup.BrushSize, 77);
    click("Brush");
    EXPECT_EQ(controlOf<QSlider>(*side, "sbBrushSize")->value(), 77);
    QCursor::setPos(frame->mapToGlobal(QPoint(600, 400)));
    EXPECT_TRUE(comes([&] { return popups().isEmpty(); }));
}

TEST(PicturesTest, NoTwoButtonsShowTheSame)
{
    useResources();
    useIconTheme();
    std::set<std::string_view> pictures;
    const auto add = [&](std::string_view word) {
        EXPECT_TRUE(pictures.insert(pictureOf(word)).second) << word;
        EXPECT_FALSE(iconOf(word).isNull()) << word;
    };
    for (const ButtonRow& row : buttonRows()) add(row.word);
    for (const ToolRow& row : toolRows()) add(row.name);
    for (const StripRow& row : stripRows()) add(row.key);
}

TEST(RipplesTest, AStepIsShownWhenItIsWholeAndTakesNewcomersAlong)
{
    const QImage calm = splashPicture().scaled(60, 40);
    Ripples ripples(calm);
    const auto drawNext = [&] { return ripples.drawNext([] { return 0.5; }); };
    EXPECT_TRUE(drawNext());
    ripples.add(30, 20);
    ripples.add(10, 10);
    EXPECT_FALSE(drawNext() || ripples.picture() != calm);
    ripples.add(50, 30);
    EXPECT_FALSE(drawNext());
    EXPECT_TRUE(drawNext() && ripples.picture() != calm);
    for (int steps = 1; steps < 60 / 3; steps += drawNext()) EXPECT_EQ(ripples.firstLive(), 0u);
    EXPECT_EQ(ripples.firstLive(), 3u) << "each grows by 3 a step, to the longer side";
    EXPECT_TRUE(drawNext() && ripples.picture() == calm);
}

TEST_F(FrameTest, AboutTellsVersionLicenceAndLibraries)
{
    fSplash about(platform, frame.get());
    about.showFacts();
    about.show();
    const auto* facts = about.findChild<QLabel*>("lblFacts");
    for (const char* told : {"Velara Studio 0.", "General Public License", "Qt 6", "FreeImage"})
        EXPECT_TRUE(facts->text().contains(told)) << told;
    EXPECT_TRUE(about.rect().contains(QRect(facts->mapTo(&about, QPoint()), facts->sizeHint())));
    QTest::mouseClick(facts->parentWidget(), Qt::LeftButton, {}, {4, 4});
    EXPECT_TRUE(about.isVisible());
    about.findChild<QPushButton*>("cmdClose")->click();
    EXPECT_FALSE(about.isVisible());
}

} // namespace velara
