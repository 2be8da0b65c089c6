#include "platform/desktop/dialogs/boxes.h"
#include "seams/printable.h"
#include <QApplication>
#include <QMainWindow>
#include <QPointer>

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

int showBox(const QString& title, const QString& text, Icon icon, QMessageBox::StandardButtons buttons)
{
    QStringList lines = text.split('\n');
    for (QString& line : lines) line = printable(line); // may contain file names
    // On the heap and watched: its parent may be deleted while the box is open.
    const QPointer<QMessageBox> box =
        new QMessageBox(boxIcon(icon), title, lines.join('\n'), buttons, parentOfDialogs());
    box->setObjectName("messageBox");
    box->setTextFormat(Qt::PlainText); // a path may contain anything
    const int answer = box->exec();
    delete box;
    return answer;
}

} // namespace velara
