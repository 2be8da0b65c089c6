#include "ui/colour/fColourCell.h"
#include <QKeyEvent>
#include <QPainter>

namespace velara {

QString colourText(Colour colour)
{
    return QCoreApplication::translate("velara::fColourCell", "Red %1, green %2, blue %3")
        .arg(redOf(colour))
        .arg(greenOf(colour))
        .arg(blueOf(colour));
}

fColourCell::fColourCell(const QString& name, const QString& accessibleName, QSize size, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(name);
    setAccessibleName(accessibleName);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(size);
    setColour(0);
}

void fColourCell::setColour(Colour colour)
{
    colour_ = colour & 0xFFFFFF;
    setToolTip(colourText(colour_));
    setAccessibleDescription(toolTip());
    sayValue(*this);
    update();
}

void fColourCell::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor fill(redOf(colour_), greenOf(colour_), blueOf(colour_));
    const int pen = hasFocus() ? 2 : 1;
    painter.fillRect(rect(), hasFocus() ? palette().color(QPalette::Highlight) : palette().color(QPalette::Mid));
    painter.fillRect(rect().adjusted(pen, pen, -pen, -pen), fill);
}

void fColourCell::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) emit clicked();
}

void fColourCell::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) emit doubleClicked();
}

void fColourCell::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space)
        emit clicked();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit doubleClicked();
    else
        QWidget::keyPressEvent(event);
}

} // namespace velara
