#include "platform/desktop/dialogs/boxes.h"
#include "platform/desktop/dialogs/shownReason.h"
#include "seams/printable.h"
#include <QApplication>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>

namespace velara {

namespace {

QMessageBox::Icon boxIcon(Icon icon)
{
    constexpr QMessageBox::Icon kIcons[] = {QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Warning,
                                            QMessageBox::Critical};
    return kIcons[static_cast<int>(icon)];
}

} // namespace

QWidget* parentOfDialogs()
{
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* active = QApplication::activeWindow()) return active;
    // Between two dialogs no window is active for a moment.
    for (QWidget* window : QApplication::topLevelWidgets())
        if (qobject_cast<QMainWindow*>(window) && window->isVisible()) return window;
    return nullptr;
}

namespace {

/// On the heap and watched: its parent may be deleted while the box is open.
QPointer<QMessageBox> makeBox(const QString& title, const QString& text, Icon icon,
                              QMessageBox::StandardButtons buttons)
{
    QStringList lines = shownReason(text).split('\n');
    for (QString& line : lines) line = printable(shownReason(line)); // may contain file names
    auto* box = new QMessageBox(boxIcon(icon), shownReason(title), lines.join('\n'), buttons, parentOfDialogs());
    box->setObjectName("messageBox");
    box->setTextFormat(Qt::PlainText); // a path may contain anything
    return box;
}

} // namespace

int showBox(const QString& title, const QString& text, Icon icon, QMessageBox::StandardButtons buttons)
{
    const auto box = makeBox(title, text, icon, buttons);
    const int answer = box->exec();
    delete box;
    return answer;
}

int showChoices(const QString& title, const QString& text, const QStringList& choices)
{
    const auto box = makeBox(title, text, Icon::None, QMessageBox::Cancel);
    QList<QAbstractButton*> buttons;
    for (const QString& choice : choices) buttons << box->addButton(choice, QMessageBox::AcceptRole);
    box->setDefaultButton(qobject_cast<QPushButton*>(buttons.value(0)));
    box->exec();
    const qsizetype chosen = box ? buttons.indexOf(box->clickedButton()) : -1;
    delete box;
    return static_cast<int>(chosen);
}

} // namespace velara
