// Base of tests of one window at a time, whose controls are found by name and used as a user does.
#pragma once
#include "support/ui/controls.h"
#include <QtTest>
#include <gtest/gtest.h>

namespace velara {

struct WindowTest : ::testing::Test {
    QPointer<QWidget> used; // the window that the names below refer to

    template <class Control = QWidget> Control* find(const QString& name) { return controlOf<Control>(*used, name); }
    /// The text shown by a label, a field, a button or a list.
    QString text(const QString& name)
    {
        const auto* list = used->findChild<QComboBox*>(name);
        return list ? list->currentText() : find(name)->property("text").toString();
    }
    /// Clicks on the indicator of a check box or radio button.
    void click(const QString& name)
    {
        auto* control = find(name);
        QTest::mouseClick(control, Qt::LeftButton, {}, {8, control->height() / 2});
    }
    void type(const QString& field, const QString& text)
    {
        auto* edit = find<QLineEdit>(field);
        edit->setFocus();
        edit->selectAll();
        text.isEmpty() ? QTest::keyClick(edit, Qt::Key_Delete) : QTest::keyClicks(edit, text);
    }
    void choose(const QString& list, const QString& entry)
    {
        auto* box = find<QComboBox>(list);
        const int index = box->findText(entry);
        ASSERT_TRUE(box->isEnabled() && index >= 0) << list.toStdString() << ": " << entry.toStdString();
        box->setCurrentIndex(index);
        emit box->activated(index);
        emit box->textActivated(entry);
    }
};

} // namespace velara
