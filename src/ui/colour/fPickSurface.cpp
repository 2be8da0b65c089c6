#include "ui/colour/fPickSurface.h"
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <cmath>
#include <qdrawutil.h>

namespace velara {

fPickSurface::fPickSurface(const QString& name, const QString& accessibleName, const Look& look, QWidget* parent)
    : QWidget(parent), look_(look)
{
    setObjectName(name);
    setAccessibleName(accessibleName);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    const int sides = kEdge + (look.mark == Mark::Arrows ? kArrow : 0);
    setFixedSize(static_cast<int>(look.shown.width() * look.cell.width()) + 2 * sides,
                 static_cast<int>(look.shown.height() * look.cell.height()) + 2 * kEdge);
}

QRect fPickSurface::surface() const
{
    const int sides = kEdge + (look_.mark == Mark::Arrows ? kArrow : 0);
    return rect().adjusted(sides, kEdge, -sides, -kEdge);
}

void fPickSurface::setImage(const QImage& image)
{
    image_ = image;
    update();
}

void fPickSurface::setPlace(QPoint place)
{
    place_ = place;
    update();
}

void fPickSurface::describe(const QString& text)
{
    if (text == accessibleDescription()) return;
    setAccessibleDescription(text);
    sayValue(*this);
}

QAccessible::Role fPickSurface::spokenRole() const
{
    return isStrip() ? QAccessible::Slider : QAccessible::ColorChooser;
}

std::optional<Spoken::Range> fPickSurface::spokenRange() const
{
    if (!isStrip()) return {};
    return Range{place_.y(), 0, std::max(image_.height() - 1, 0)};
}

void fPickSurface::setSpoken(int value) { pick({0, value}); }

QPoint fPickSurface::placeAt(QPointF at) const
{
    const QPointF inside = at - surface().topLeft();
    const auto cell = [](double v, double size, int count) {
        return std::clamp(static_cast<int>(std::floor(v / size)), 0, std::max(count - 1, 0));
    };
    return {cell(inside.x(), look_.cell.width(), image_.width()),
            cell(inside.y(), look_.cell.height(), image_.height())};
}

void fPickSurface::pick(QPoint place)
{
    setPlace(place);
    emit picked(place);
}

void fPickSurface::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) pick(placeAt(event->position()));
}

void fPickSurface::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton) pick(placeAt(event->position()));
    if (surface().contains(event->position().toPoint())) emit hovered(placeAt(event->position()));
}

void fPickSurface::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) emit clicked();
}

void fPickSurface::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) emit doubleClicked();
}

void fPickSurface::leaveEvent(QEvent*) { emit left(); }

void fPickSurface::keyPressEvent(QKeyEvent* event)
{
    const int step = event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier) ? 10 : 1;
    QPoint to = place_;
    switch (event->key()) {
    case Qt::Key_Left:
        to.rx() -= step;
        break;
    case Qt::Key_Right:
        to.rx() += step;
        break;
    case Qt::Key_Up:
        to.ry() -= step;
        break;
    case Qt::Key_Down:
        to.ry() += step;
        break;
    case Qt::Key_PageUp:
        to.ry() -= 10;
        break;
    case Qt::Key_PageDown:
        to.ry() += 10;
        break;
    case Qt::Key_Space:
        emit clicked();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit entered();
        return;
    default:
        return QWidget::keyPressEvent(event);
    }
    pick({std::clamp(to.x(), 0, std::max(image_.width() - 1, 0)),
          std::clamp(to.y(), 0, std::max(image_.height() - 1, 0))});
}

void fPickSurface::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect inside = surface();
    const QRect framed = inside.adjusted(-kEdge, -kEdge, kEdge, kEdge);
    if (hasFocus()) {
        painter.setPen(QPen(palette().highlight(), kEdge));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(framed.adjusted(1, 1, -1, -1));
    } else {
        qDrawShadePanel(&painter, framed, palette(), true, 1);
        painter.fillRect(framed.adjusted(1, 1, -1, -1), palette().mid());
    }
    // Displays with few colours get what they can show.
    const QImage shown = screen()->depth() < 15 ? image_.convertToFormat(QImage::Format_RGB444) : image_;
    painter.save();
    painter.setClipRect(inside);
    painter.translate(inside.topLeft());
    painter.scale(look_.cell.width(), look_.cell.height());
    painter.drawImage(0, 0, shown);
    painter.restore();
    drawMark(painter);
}

void fPickSurface::drawMark(QPainter& painter) const
{
    if (look_.mark == Mark::None) return;
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect inside = surface();
    const QPointF at =
        inside.topLeft() + QPointF((place_.x() + 0.5) * look_.cell.width(), (place_.y() + 0.5) * look_.cell.height());
    if (look_.mark == Mark::Ring) {
        const QPointF ring(std::clamp(at.x(), double(inside.left()), double(inside.right())),
                           std::clamp(at.y(), double(inside.top()), double(inside.bottom())));
        painter.setClipRect(inside);
        painter.setBrush(Qt::NoBrush);
        // Black inside white is visible on any colour.
        painter.setPen(QPen(Qt::white, 3));
        painter.drawEllipse(ring, 5, 5);
        painter.setPen(QPen(Qt::black, 1));
        painter.drawEllipse(ring, 5, 5);
        return;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().windowText());
    const double half = kArrow / 2.0, left = inside.left() - kEdge - 1.0, right = inside.right() + kEdge + 2.0;
    painter.drawPolygon(
        QPolygonF({{left, at.y()}, {left - kArrow + 1, at.y() - half}, {left - kArrow + 1, at.y() + half}}));
    painter.drawPolygon(
        QPolygonF({{right, at.y()}, {right + kArrow - 1, at.y() - half}, {right + kArrow - 1, at.y() + half}}));
}

} // namespace velara
