// The look of the menus, measured and looked at pixel by pixel.
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
        pixmap.fill(Qt::red);
        return QIcon(pixmap);
    }
    QRect rectOf(QAction* item)
    {
        menu.setStyle(&style);
        menu.ensurePolished();
        menu.sizeHint();
        return menu.actionGeometry(item);
    }
    QImage paint(const QIcon& icon, bool selected, QStyleOptionMenuItem::MenuItemType type)
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
        return image;
    }
};

} // namespace

// The name of a file, in a label or as a hint, is no page that names pictures to load.
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

TEST_F(MenuStyleTest, ASelectedItemLeavesThePictureColumnFreeAndRaisesAFrameThere)
{
    const QPalette palette = menu.palette();
    const QImage plain = paint({}, true, QStyleOptionMenuItem::Normal);
    EXPECT_EQ(plain.pixel(0, 10), palette.color(QPalette::Highlight).rgb());
    const QImage icon = paint(picture(), true, QStyleOptionMenuItem::Normal);
    EXPECT_EQ(icon.pixel(0, 10), palette.color(QPalette::Window).rgb());
    EXPECT_EQ(icon.pixel(22, 10), palette.color(QPalette::Window).rgb());
    EXPECT_EQ(icon.pixel(23, 10), palette.color(QPalette::Highlight).rgb());
    EXPECT_EQ(icon.pixelColor(12, 10), QColor(Qt::red));
    EXPECT_EQ(icon.pixel(1, 10), palette.color(QPalette::Light).rgb());
    EXPECT_EQ(icon.pixel(21, 10), palette.color(QPalette::Dark).rgb());
    const QImage rest = paint(picture(), false, QStyleOptionMenuItem::Normal);
    EXPECT_EQ(rest.pixel(60, 10), palette.color(QPalette::Window).rgb());
    EXPECT_EQ(rest.pixel(1, 10), palette.color(QPalette::Window).rgb());
}

TEST_F(MenuStyleTest, ASeparatorIsOneSunkenLine)
{
    const QPalette palette = menu.palette();
    const QImage line = paint({}, false, QStyleOptionMenuItem::Separator);
    EXPECT_EQ(line.pixel(70, 2), palette.color(QPalette::Dark).rgb());
    EXPECT_EQ(line.pixel(70, 3), palette.color(QPalette::Light).rgb());
    EXPECT_EQ(line.pixel(70, 1), palette.color(QPalette::Window).rgb());
    EXPECT_EQ(line.pixel(70, 4), palette.color(QPalette::Window).rgb());
}

} // namespace velara
