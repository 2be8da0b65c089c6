// The number box beside a slider, used by typing.
#include "support/ui/controls.h"
#include "ui/widgets/inputs/fNumberBox.h"
#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace velara {

struct NumberBox : ::testing::Test {
    QWidget window;
    QSlider* slider = new QSlider(Qt::Horizontal, &window);

    fNumberBox* make(int low, int high, const fNumberBox::Measure& measure = {})
    {
        slider->setRange(low, high);
        auto* box = new fNumberBox(*slider, "number", measure);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(comes([&] { return window.isActiveWindow(); }));
        box->setFocus();
        box->selectAll();
        return box;
    }
};

TEST_F(NumberBox, SliderAndNumberFollowEachOther)
{
    const std::tuple<int, int, fNumberBox::Measure, const char*, int, const char*> cases[] = {
        // lowest, highest, measure, typed text, resulting position, text after Enter
        {0, 100, {}, "42", 42, "42"},
        {0, 100, {1, 0, "%"}, "42", 42, "42%"},
        {0, 100, {}, "999", 99, "99"}, // the third digit is refused
        {-255, 255, {}, "-31", -31, "-31"},
        {3, 24, {}, "12", 12, "12"}, // through a 1 that is too small
        {0, 200, {0.01, 2}, "1.25", 125, "1.25"},
        {0, 200, {0.01, 2}, "0,5", 50, "0.50"},
        {0, 200, {0.01, 2}, "7", 60, "0.60"}, // too large: restores the previous value
    };
    for (const auto& [low, high, measure, typed, position, text] : cases) {
        auto* box = make(low, high, measure);
        slider->setValue(60);
        EXPECT_EQ(box->value(), slider->value());
        box->selectAll();
        QTest::keyClicks(box, typed);
        QTest::keyClick(box, Qt::Key_Return);
        EXPECT_EQ(position, slider->value()) << typed;
        EXPECT_EQ(text, box->text().toStdString());
        delete box;
    }
}

TEST_F(NumberBox, WhatIsBeingTypedIsNotWrittenAnew)
{
    auto* box = make(0, 200, {0.01, 2});
    QTest::keyClicks(box, "1.");
    EXPECT_EQ("1.", box->text()) << "the slider's answer would make it 1.00";
    QTest::keyClicks(box, "5");
    EXPECT_EQ(150, slider->value());
}

TEST_F(NumberBox, LettersAreTheWindowsAndFiguresItsOwn)
{
    int chosen = 0;
    for (const auto key : {Qt::Key_B, Qt::Key_5}) {
        auto* action = new QAction(&window);
        action->setShortcut(key);
        QObject::connect(action, &QAction::triggered, &window, [&] { ++chosen; });
        window.addAction(action);
    }
    auto* box = make(0, 100);
    QTest::keyClick(box, Qt::Key_B);
    EXPECT_EQ(1, chosen);
    QTest::keyClick(box, Qt::Key_5);
    EXPECT_EQ(1, chosen);
    EXPECT_EQ(5, slider->value());
}

} // namespace velara
