#include "ui/colour/fCellGrid.h"
#include "ui/colour/fColourCell.h"
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <qdrawutil.h>

namespace velara {

fCellGrid::fCellGrid(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("cells"));
    setAccessibleName(tr("Colors"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    const Rect last = cellRect(kCells);
    setFixedSize(last.right + kFirstCell, last.bottom + kFirstCell);
}

void fCellGrid::setColour(int cell, std::optional<Colour> colour)
{
    colours_[static_cast<std::size_t>(cell)] = colour;
    update();
}

void fCellGrid::select(int cell)
{
    selected_ = std::clamp(cell, 1, kCells);
    const auto now = colour(selected_);
    setAccessibleDescription(tr("Cell %1: %2").arg(selected_).arg(now ? colourText(*now) : tr("empty")));
    sayValue(*this);
    update();
}

void fCellGrid::moveTo(int cell)
{
    if (cell < 1 || cell > kCells) return;
    select(cell);
    emit selectedCell(cell);
}

void fCellGrid::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) moveTo(cellAt(event->pos().x(), event->pos().y()));
}

void fCellGrid::mouseMoveEvent(QMouseEvent* event)
{
    if (const int cell = cellAt(event->pos().x(), event->pos().y()))
        emit hovered(cell);
    else
        emit left();
}

void fCellGrid::mouseDoubleClickEvent(QMouseEvent* event)
{
    const int cell = cellAt(event->pos().x(), event->pos().y());
    if (event->button() == Qt::LeftButton && cell) emit chosen(cell);
}

void fCellGrid::leaveEvent(QEvent*) { emit left(); }

void fCellGrid::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        return moveTo(selected_ - 1);
    case Qt::Key_Right:
        return moveTo(selected_ + 1);
    case Qt::Key_Up:
        return moveTo(selected_ - kCellColumns);
    case Qt::Key_Down:
        return moveTo(selected_ + kCellColumns);
    case Qt::Key_Home:
        return moveTo(1);
    case Qt::Key_End:
        return moveTo(kCells);
    case Qt::Key_Space:
        return moveTo(selected_);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit chosen(selected_);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

/// Draws a cell's border: its sunken edge, or the frame of the selected one.
void fCellGrid::DrawSafePicker(QPainter& painter, int Index, bool Selected)
{
    const Rect r = cellRect(Index);
    const QRect cell(r.left, r.top, r.width(), r.height());
    if (!Selected) return qDrawShadePanel(&painter, cell.adjusted(-1, -1, 1, 1), palette(), true, 1);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(hasFocus() ? palette().color(QPalette::Highlight) : palette().color(QPalette::WindowText), 2));
    painter.drawRect(cell.adjusted(-1, -1, 1, 1));
}

void fCellGrid::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int cell = 1; cell <= kCells; ++cell) {
        if (cell == selected_) continue;
        DrawSafePicker(painter, cell, false);
        const Rect r = cellRect(cell);
        if (const auto c = colour(cell))
            painter.fillRect(r.left, r.top, r.width(), r.height(), QColor(redOf(*c), greenOf(*c), blueOf(*c)));
    }
    DrawSafePicker(painter, selected_, true);
    const Rect r = cellRect(selected_);
    if (const auto c = colour(selected_))
        painter.fillRect(r.left, r.top, r.width(), r.height(), QColor(redOf(*c), greenOf(*c), blueOf(*c)));
}

} // namespace velara
