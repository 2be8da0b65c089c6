// The look of the menus, measured and checked pixel by pixel.
#include "app/menus/fMenuStyle.h"
#include <QtWidgets>
#include <gtest/gtest.h>

namespace velara {

namespace {

struct MenuStyleTest : ::testing::Test {
    fMenuStyle style;
    QMenu menu;

    QIcon picture() const
    {
        QPixmap pixmap(16, 16);
        pixmap.fill(menu.palette().color(QPalette::Link));
        return QIcon(pixmap);
    }
    QRect rectOf(QAction* item)
    {
        menu.setStyle(&style);
        menu.ensurePolished();
        menu.sizeHint();
        return menu.actionGeometry(item);
    }
    /// The colours of an item of 140 by 20 at these positions: Window, Highlight, Light, Dark, or the picture.
    std::string painted(const QIcon& icon, bool selected, QStyleOptionMenuItem::MenuItemType type,
                        std::initializer_list<QPoint> places)
    {
        QImage image(140, 20, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        QStyleOptionMenuItem option;
        option.rect = image.rect();
        option.palette = menu.palette();
        option.state = QStyle::State_Enabled | (selected ? QStyle::State_Selected : QStyle::State_None);
        option.menuItemType = type;
        option.icon = icon;
        option.text = " ";
        style.drawControl(QStyle::CE_MenuItem, &option, &painter, &menu);
        constexpr std::pair<char, QPalette::ColorRole> kNames[] = {{'W', QPalette::Window},
                                                                   {'H', QPalette::Highlight},
                                                                   {'L', QPalette::Light},
                                                                   {'D', QPalette::Dark},
                                                                   {'p', QPalette::Link}};
        std::string seen;
        for (const QPoint& place : places)
            for (const auto& [name, role] : kNames)
                if (image.pixel(place) == option.palette.color(role).rgb()) seen += name;
        return seen;
    }
};

} // namespace

// A file name in a label or tool tip is not interpreted as HTML that loads pictures.
TEST_F(MenuStyleTest, TextsAreShownAsTheyAre)
{
    const QString name = "<img src='picture.gif'>";
    QLabel label(name), page;
    page.setTextFormat(Qt::RichText);
    QProgressDialog reading(name, "Cancel", 0, 0);
    for (QWidget* widget : std::initializer_list<QWidget*>{&label, &page, reading.findChild<QLabel*>()}) {
        widget->setStyle(&style);
        widget->ensurePolished();
    }
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.text(), name);
    EXPECT_EQ(reading.findChild<QLabel*>()->textFormat(), Qt::PlainText);
    EXPECT_EQ(page.textFormat(), Qt::RichText) << "where a page is meant";
}

TEST_F(MenuStyleTest, ItemsAreTwentyHighAndSeparatorsFive)
{
    QAction* item = menu.addAction("Item");
    QAction* line = menu.addSeparator();
    menu.addAction("Another");
    EXPECT_GE(rectOf(item).height(), 20);
    EXPECT_LE(rectOf(item).height(), std::max(20, menu.fontMetrics().height() + 4));
    EXPECT_GE(rectOf(item).width(), 120);
    EXPECT_EQ(rectOf(line).height(), 5);
}

TEST_F(MenuStyleTest, ASelectedItemRaisesAFrameAroundItsPictureAndASeparatorIsOneSunkenLine)
{
    constexpr auto kNormal = QStyleOptionMenuItem::Normal, kLine = QStyleOptionMenuItem::Separator;
    EXPECT_EQ("H", painted({}, true, kNormal, {{0, 10}}));
    EXPECT_EQ("WLpDWH", painted(picture(), true, kNormal, {{0, 10}, {1, 10}, {12, 10}, {21, 10}, {22, 10}, {23, 10}}));
    EXPECT_EQ("WW", painted(picture(), false, kNormal, {{1, 10}, {60, 10}}));
    EXPECT_EQ("LDDW", painted(picture(), true, kNormal, {{1, 19}, {2, 19}, {21, 19}, {22, 19}})) << "to the last row";
    EXPECT_EQ("WDLW", painted({}, false, kLine, {{70, 1}, {70, 2}, {70, 3}, {70, 4}}));
    EXPECT_EQ("DDDLL", painted({}, false, kLine, {{0, 2}, {0, 3}, {138, 2}, {139, 2}, {1, 3}})) << "from edge to edge";
}

} // namespace velara
