// What must be distinguishable on a dark background, checked pixel by pixel.
#include "app/menus/fControlStyle.h"
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

} // namespace velara
