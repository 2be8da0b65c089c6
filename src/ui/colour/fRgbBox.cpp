#include "ui/colour/fRgbBox.h"
#include <QKeyEvent>

namespace velara {

namespace {

/// The number at the beginning of a text; anything else counts as 0.
int leadingNumber(const QString& text)
{
    const QString trimmed = text.trimmed();
    qsizetype n = trimmed.startsWith('-') ? 1 : 0;
    while (n < trimmed.size() && n < 9 && trimmed[n] >= '0' && trimmed[n] <= '9') ++n;
    return trimmed.left(n).toInt();
}

} // namespace

fRgbBox::fRgbBox(const QString& name, const QString& accessibleName, QWidget* parent)
    : QLineEdit(QString::number(kMost), parent)
{
    setObjectName(name);
    setAccessibleName(accessibleName);
    setAlignment(Qt::AlignRight);
    setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 16);
    setToolTip(tr("Drag up or down to change it; with Ctrl by tens"));
    connect(this, &QLineEdit::textChanged, this, &fRgbBox::rule);
}

void fRgbBox::setValue(int value)
{
    const QSignalBlocker quiet(this);
    if (value != leadingNumber(text()) || text().isEmpty()) setText(QString::number(value));
}

void fRgbBox::rule()
{
    const int limited = std::clamp(leadingNumber(text()), 0, kMost);
    if (const QString ruled = QString::number(limited); text() != ruled) {
        const QSignalBlocker quiet(this);
        setText(ruled);
        setCursorPosition(3);
    }
    emit edited();
}

void fRgbBox::keyPressEvent(QKeyEvent* event)
{
    const int step = event->modifiers() & Qt::ControlModifier ? 10 : 1;
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)
        return setText(QString::number(value() + (event->key() == Qt::Key_Up ? step : -step)));
    const QString typed = event->text();
    const bool prints =
        !typed.isEmpty() && typed[0].isPrint() && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (prints && !(typed[0] >= '0' && typed[0] <= '9')) return event->accept();
    QLineEdit::keyPressEvent(event);
}

void fRgbBox::mousePressEvent(QMouseEvent* event)
{
    lastY_ = event->position().toPoint().y();
    QLineEdit::mousePressEvent(event);
}

void fRgbBox::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton)) return QLineEdit::mouseMoveEvent(event);
    // A move along the row counts as one downward: odd, and kept.
    const int y = event->position().toPoint().y(), step = event->modifiers() & Qt::ControlModifier ? 10 : 1;
    setText(QString::number(value() + (y < lastY_ ? step : -step)));
    lastY_ = y;
}

void fRgbBox::wheelEvent(QWheelEvent* event)
{
    if (event->angleDelta().y() != 0) setText(QString::number(value() + (event->angleDelta().y() > 0 ? 1 : -1)));
    event->accept();
}

} // namespace velara
