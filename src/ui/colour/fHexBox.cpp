#include "ui/colour/fHexBox.h"
#include "colour/colourCode.h"
#include <QKeyEvent>

namespace velara {

fHexBox::fHexBox(const QString& name, QWidget* parent) : QLineEdit(parent)
{
    setObjectName(name);
    setAccessibleName(tr("Color code"));
    setToolTip(tr("#rrggbb, #rgb or a name such as teal; Enter takes it"));
    setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("#dddddd")) + 18);
    setMaxLength(32);
    setColour(0);
}

void fHexBox::setColour(Colour colour)
{
    colour_ = colour;
    setText(colourCode(colour));
}

bool fHexBox::take()
{
    const QString typed = text();
    const auto colour = colourOfCode(typed);
    if (!colour) {
        selectAll();
        emit refused(tr("\"%1\" is no color. Enter it as #rrggbb, as #rgb or by its name.").arg(typed));
        return false;
    }
    setColour(*colour);
    selectAll();
    emit picked(*colour);
    return true;
}

void fHexBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        take(); // the dialog stays open
    else if (event->key() == Qt::Key_Escape && isModified())
        setColour(colour_);
    else
        QLineEdit::keyPressEvent(event);
}

void fHexBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (!isModified() || event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        return;
    if (const auto colour = colourOfCode(text())) {
        setColour(*colour);
        emit picked(*colour);
    } else {
        setColour(colour_);
    }
}

} // namespace velara
