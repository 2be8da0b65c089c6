// What must be distinguishable on a dark background, checked pixel by pixel.
#include "app/menus/fControlStyle.h"
#include "app/menus/fIcons.h"
#include "app/settings/Appearance.h"
#include "ui/widgets/marks/contrast.h"
#include <QtWidgets>
#include <gtest/gtest.h>

namespace velara {

struct ControlStyle : ::testing::Test {
    fControlStyle style;
    QPalette dark{QColor(49, 54, 59)};

    ControlStyle()
    {
        style.setBaseStyle(QStyleFactory::create("fusion"));
        style.polish(dark);
    }
    /// The largest difference in lightness from the background in what draw paints.
    int contrast(const std::function<void(QPainter&)>& draw) const
    {
        QImage image(40, 24, QImage::Format_ARGB32_Premultiplied);
        const QColor ground = dark.color(QPalette::Window);
        image.fill(ground);
        QPainter painter(&image);
        draw(painter);
        painter.end();
        int most = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                most = std::max(most, image.pixelColor(x, y).lightness() - ground.lightness());
        return most;
    }
    template <class Option> Option option(QStyle::State state) const
    {
        Option o;
        o.palette = dark;
        o.rect = QRect(4, 4, 14, 14);
        o.state = state;
        return o;
    }
};

TEST_F(ControlStyle, UncheckedBoxesAndHandlesAreSeenOnADarkGround)
{
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton})
        for (const bool enabled : {true, false}) {
            const auto o =
                option<QStyleOption>(QStyle::State_Off | (enabled ? QStyle::State_Enabled : QStyle::State_None));
            const int seen = contrast([&](QPainter& p) { style.drawPrimitive(element, &o, &p, nullptr); });
            EXPECT_GT(seen, enabled ? 70 : 30) << element;
            EXPECT_LT(seen, enabled ? 255 : 70) << element;
        }
    auto slider = option<QStyleOptionSlider>(QStyle::State_Enabled | QStyle::State_Horizontal);
    slider.rect = QRect(0, 0, 40, 24);
    slider.maximum = 10;
    slider.subControls = QStyle::SC_SliderHandle;
    EXPECT_GT(contrast([&](QPainter& p) { style.drawComplexControl(QStyle::CC_Slider, &slider, &p, nullptr); }), 70);
}

TEST_F(ControlStyle, WhatIsDisabledCanBeReadAndLooksDisabled)
{
    const int ground = dark.color(QPalette::Window).lightness();
    const int text = dark.color(QPalette::Active, QPalette::WindowText).lightness() - ground;
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        const int pale = dark.color(QPalette::Disabled, role).lightness() - ground;
        EXPECT_GT(pale, text / 3);
        EXPECT_LT(pale, text * 2 / 3);
    }
    QPixmap white(8, 8);
    white.fill(Qt::white);
    const QStyleOption o;
    const QPixmap pale = style.generatedIconPixmap(QIcon::Disabled, white, &o);
    EXPECT_LT(contrast([&](QPainter& p) { p.drawPixmap(4, 4, pale); }),
              contrast([&](QPainter& p) { p.drawPixmap(4, 4, white); }) / 2);
}

TEST_F(ControlStyle, ACheckedToolButtonIsTintedAndOneThatIsDisabledIsNot)
{
    const auto tint = [&](QStyle::State state) {
        const auto o = option<QStyleOption>(state | QStyle::State_On);
        QImage image(24, 24, QImage::Format_RGB32);
        image.fill(dark.color(QPalette::Window));
        QPainter painter(&image);
        style.drawPrimitive(QStyle::PE_PanelButtonTool, &o, &painter, nullptr);
        const QColor seen = image.pixelColor(11, 11);
        return seen.blue() - seen.red();
    };
    EXPECT_GT(tint(QStyle::State_Enabled), 40);
    EXPECT_LT(tint(QStyle::State_None), 20);

    QStyleOptionToolButton button;
    button.text = "Zoom";
    button.toolButtonStyle = Qt::ToolButtonTextOnly;
    const auto width = [&] {
        return style.sizeFromContents(QStyle::CT_ToolButton, &button, {40, 20}, nullptr).width();
    };
    const int plain = width();
    button.features = QStyleOptionToolButton::HasMenu;
    EXPECT_GT(width(), plain + 12) << "the arrow of a menu stands beside the caption";
}

TEST_F(ControlStyle, HintsAndChosenRowsCanBeReadAndLockedBoxesLookLocked)
{
    QPalette light(QColor(239, 239, 239));
    light.setColor(QPalette::Highlight, QColor(48, 140, 198));
    light.setColor(QPalette::HighlightedText, Qt::white);
    light.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    dark.setColor(QPalette::Highlight, QColor(61, 174, 233));
    for (QPalette* palette : {&light, &dark}) {
        style.polish(*palette);
        const auto read = [&](QPalette::ColorRole text, QPalette::ColorRole ground) {
            return velara::contrast(palette->color(text), palette->color(ground));
        };
        EXPECT_GE(read(QPalette::HighlightedText, QPalette::Highlight), 4.5);
        EXPECT_GE(read(QPalette::Link, QPalette::Base), 4.5);
        EXPECT_GE(read(QPalette::PlaceholderText, QPalette::Window), 4.5);
        EXPECT_GE(read(QPalette::PlaceholderText, QPalette::Base), 4.5);
        QStyleOptionFrame box;
        box.rect = QRect(0, 0, 30, 20);
        box.palette = *palette;
        const auto inside = [&](QStyle::State state) {
            QImage image(30, 20, QImage::Format_RGB32);
            QPainter painter(&image);
            box.state = QStyle::State_Enabled | state;
            style.drawPrimitive(QStyle::PE_PanelLineEdit, &box, &painter, nullptr);
            return image.pixelColor(15, 10);
        };
        EXPECT_EQ(inside(QStyle::State_None), palette->color(QPalette::Base));
        EXPECT_EQ(inside(QStyle::State_ReadOnly), palette->color(QPalette::Window));
    }
    EXPECT_EQ(style.styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons, nullptr, nullptr, nullptr), 0);
}

TEST_F(ControlStyle, TheTitleOfTheActiveWindowIsReadInEveryLook)
{
    for (const Look look : {Look::Light, Look::Dark, Look::ContrastLight, Look::ContrastDark}) {
        auto bar = option<QStyleOptionTitleBar>(QStyle::State_Enabled | QStyle::State_Active);
        bar.palette = paletteOf(look);
        style.polish(bar.palette);
        bar.rect = QRect(0, 0, 200, 22);
        bar.titleBarState = QStyle::State_Active;
        bar.subControls = QStyle::SC_TitleBarLabel;
        QImage image(200, 22, QImage::Format_RGB32);
        QPainter painter(&image);
        style.drawComplexControl(QStyle::CC_TitleBar, &bar, &painter, nullptr);
        EXPECT_GE(velara::contrast(image.pixelColor(100, 11), Qt::white), 4.5) << int(look);
    }
}

// At one and a half, the theme's own choice would be the drawing for half the pixels.
TEST_F(ControlStyle, AnIconIsTheSameDrawingAtEveryScale)
{
    useIconTheme();
    const QIcon icon = themeIcon("document-save");
    const QImage larger = icon.pixmap(QSize(22, 22), 1.5).toImage();
    EXPECT_EQ(larger.size(), QSize(33, 33));
    EXPECT_EQ(icon.pixmap(QSize(22, 22), 3).toImage(), icon.pixmap(QSize(66, 66), 1).toImage());
    EXPECT_NE(icon.pixmap(QSize(16, 16), 1.5).toImage(), icon.pixmap(QSize(24, 24), 1).toImage()) << "that of menus";
}

} // namespace velara
