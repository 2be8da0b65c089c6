#include "ui/compose/fLayerCanvas.h"
#include "pixels/images.h"
#include "ui/widgets/inputs/named.h"
#include "ui/widgets/marks/Mark.h"
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>
#include <QTimerEvent>

namespace velara {

namespace {

constexpr int kGrip = 9; // side of a grip, screen pixels

/// The sides that each grip moves: -1 left or top, 1 right or bottom.
constexpr struct {
    int across, down;
    Qt::CursorShape pointer;
} kGrips[] = {{-1, -1, Qt::SizeFDiagCursor}, {0, -1, Qt::SizeVerCursor},  {1, -1, Qt::SizeBDiagCursor},
              {1, 0, Qt::SizeHorCursor},     {1, 1, Qt::SizeFDiagCursor}, {0, 1, Qt::SizeVerCursor},
              {-1, 1, Qt::SizeBDiagCursor},  {-1, 0, Qt::SizeHorCursor}};

/// MskText: shows a layer's surface, directly from its memory, within its outline.
class Surface final : public QWidget {
  public:
    Surface(const Layers& layers, int index, const fLayerCanvas& canvas, QWidget* parent)
        : QWidget(parent), layers_(layers), canvas_(canvas), index_(index)
    {
        setObjectName(QStringLiteral("MskText_%1").arg(index));
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

  protected:
    void paintEvent(QPaintEvent*) override
    {
        if (!layers_.has(index_)) return;
        QPainter painter(this);
        const Bits& bits = layers_.surface(index_);
        if (!bits.isNull()) {
            const Rect part = layers_.visible(index_), place = layers_.layer(index_).place;
            const int zoom = canvas_.zoom();
            painter.drawImage(QRect(QPoint(part.left - place.left, part.top - place.top) * zoom,
                                    QSize(part.width(), part.height()) * zoom),
                              imageOver(bits));
        }
        const bool chosen = canvas_.selected() == index_; // visible on light and on dark
        painter.setPen(chosen ? Qt::white : QColor(255, 255, 255, 150));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.setPen(QPen(chosen ? Qt::black : QColor(0, 0, 0, 150), 1, Qt::DashLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

  private:
    const Layers& layers_;
    const fLayerCanvas& canvas_;
    int index_;
};

void paintGrip(QPainter& painter, const QRect& rect)
{
    painter.fillRect(rect, Qt::black);
    painter.fillRect(rect.adjusted(1, 1, -1, -1), Qt::white);
}

void paintCaret(QPainter& painter, const QRect& rect)
{
    painter.fillRect(rect, Qt::white);
    painter.fillRect(rect.adjusted(0, 0, -1, 0), Qt::black);
}

} // namespace

fLayerCanvas::fLayerCanvas(Layers& layers)
    : fPicture(QStringLiteral("picImage"), tr("Picture with its texts")), layers_(layers),
      cursor_(new Mark(paintCaret, QStringLiteral("Cursor"), this))
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    cursor_->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (int i = 0; i < 8; ++i) {
        grips_[std::size_t(i)] = new Mark(paintGrip, QStringLiteral("lblGrip_%1").arg(i), this);
        QWidget& grip = *grips_[std::size_t(i)];
        grip.setFixedSize(kGrip, kGrip);
        grip.setCursor(kGrips[i].pointer);
        grip.installEventFilter(this);
        grip.hide();
    }
}

// --- Layers and the widgets that show them

int fLayerCanvas::addLayer()
{
    const int index = layers_.add(stored_.x(), stored_.y(), nextStyle, nextColour);
    makeOutline(index);
    emit added(index);
    select(index);
    edit(true);
    return index;
}

void fLayerCanvas::removeSelected()
{
    const int index = selected_;
    if (index == 0) return;
    select(0);
    layers_.remove(index);
    delete outlines_[index];
    outlines_.erase(index);
    emit removed(index);
}

void fLayerCanvas::makeOutline(int index)
{
    auto* outline = named(new QWidget(this), QStringLiteral("lblShape_%1").arg(index), tr("Text %1").arg(index - 1));
    outline->setCursor(Qt::SizeAllCursor);
    outline->installEventFilter(this);
    new Surface(layers_, index, *this, outline);
    outlines_[index] = outline;
    place(index);
}

void fLayerCanvas::place(int index)
{
    QWidget* outline = outlines_.at(index);
    const Layer& layer = layers_.layer(index);
    outline->setGeometry(QRect(placeOf(QPointF(layer.place.left, layer.place.top)).toPoint(),
                               QSize(layer.place.width(), layer.place.height()) * zoom()));
    for (QObject* surface : outline->children()) static_cast<QWidget*>(surface)->resize(outline->size());
    outline->setVisible(layer.shown);
    outline->update();
}

void fLayerCanvas::refresh(int index)
{
    for (const auto& [each, outline] : outlines_)
        if (index == 0 || each == index) {
            place(each);
            emit layerChanged(each);
        }
    ShowG();
    placeCursor();
}

void fLayerCanvas::select(int index)
{
    if (selected_ == index) return;
    edit(false);
    const int before = std::exchange(selected_, index);
    for (const int each : {before, index})
        if (outlines_.contains(each)) outlines_[each]->update();
    caret_ = index ? layers_.layer(index).text.size() : 0;
    ShowG();
    placeCursor();
    emit selectionChanged(index);
}

void fLayerCanvas::edit(bool on)
{
    editing_ = on && selected_ != 0;
    if (!preedit_.isEmpty()) {
        dropPreedit();
        QGuiApplication::inputMethod()->reset();
    }
    if (editing_) caret_ = std::min(caret_, layers_.layer(selected_).text.size());
    placeCursor();
}

void fLayerCanvas::ShowG()
{
    const bool shown = selected_ != 0 && layers_.layer(selected_).shown;
    if (shown) placeGrips();
    for (QWidget* grip : grips_) {
        grip->setVisible(shown);
        grip->raise();
    }
    cursor_->raise();
}

/// At the corners and side centres; if those lie outside of the canvas, at its edge.
void fLayerCanvas::placeGrips()
{
    const QRect shape = outlines_.at(selected_)->geometry();
    for (std::size_t i = 0; i < grips_.size(); ++i) {
        const auto at = [](int direction, int from, int length, int room) {
            const int place = from + (direction + 1) * length / 2 - kGrip / 2;
            return std::clamp(place, 0, std::max(0, room - kGrip));
        };
        grips_[i]->move(at(kGrips[i].across, shape.x(), shape.width(), width()),
                        at(kGrips[i].down, shape.y(), shape.height(), height()));
    }
}

void fLayerCanvas::placeCursor()
{
    Rect at{stored_.x(), stored_.y(), stored_.x() + 1, stored_.y() + Layers::kHeight};
    if (editing_) at = layers_.caret(selected_, caret_);
    cursor_->setGeometry(
        QRect(placeOf(QPointF(at.left, at.top)).toPoint(), QSize(2, std::max(1, at.height()) * zoom())));
    const bool wanted = editing_ || selected_ == 0;
    cursor_->setVisible(wanted);
    const int flash = QGuiApplication::styleHints()->cursorFlashTime();
    if (wanted && hasFocus() && flash > 1)
        blink_.start(flash / 2, this);
    else
        blink_.stop();
    updateMicroFocus();
}

void fLayerCanvas::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == blink_.timerId()) cursor_->setVisible(!cursor_->isVisible());
}

void fLayerCanvas::focusInEvent(QFocusEvent* event)
{
    placeCursor();
    fPicture::focusInEvent(event);
}

void fLayerCanvas::focusOutEvent(QFocusEvent* event)
{
    placeCursor();
    fPicture::focusOutEvent(event);
}

void fLayerCanvas::resizeEvent(QResizeEvent* event)
{
    for (const auto& [index, outline] : outlines_) place(index);
    ShowG();
    placeCursor();
    fPicture::resizeEvent(event);
}

void fLayerCanvas::paintOver(QPainter&, const QRect&) {} // the layers are widgets

// --- Mouse

Rect fLayerCanvas::resized(const Rect& place, int grip, QPoint by)
{
    const auto [across, down, pointer] = kGrips[grip];
    Rect to = place;
    // The opposite side stays where it is, however far this one is pushed.
    if (across < 0) to.left = std::min(to.left + by.x(), to.right - Layers::kLeastSide);
    if (across > 0) to.right = std::max(to.right + by.x(), to.left + Layers::kLeastSide);
    if (down < 0) to.top = std::min(to.top + by.y(), to.bottom - Layers::kLeastSide);
    if (down > 0) to.bottom = std::max(to.bottom + by.y(), to.top + Layers::kLeastSide);
    return to;
}

bool fLayerCanvas::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = static_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(widget, *static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseMove:
        drag(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonRelease:
        if (std::exchange(drag_, {}) && selected_) emit layerChanged(selected_);
        return true;
    case QEvent::MouseButtonDblClick:
        if (selected_) edit(true);
        return true;
    default:
        return fPicture::eventFilter(watched, event);
    }
}

void fLayerCanvas::press(QWidget* widget, QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton) return;
    setFocus(Qt::MouseFocusReason);
    const auto grip = std::ranges::find(grips_, widget);
    if (grip == grips_.end())
        for (const auto& [index, outline] : outlines_)
            if (outline == widget) {
                edit(false);
                select(index);
                break;
            }
    if (selected_ == 0) return;
    drag_ = {layers_.layer(selected_).place, event.globalPosition().toPoint(),
             grip == grips_.end() ? -1 : static_cast<int>(grip - grips_.begin())};
}

void fLayerCanvas::drag(QMouseEvent& event)
{
    if (!drag_ || selected_ == 0 || !(event.buttons() & Qt::LeftButton)) return;
    const QPoint by = (event.globalPosition().toPoint() - drag_->from) / zoom();
    const Rect& from = drag_->place;
    const Rect to = drag_->grip < 0
                        ? Rect{from.left + by.x(), from.top + by.y(), from.right + by.x(), from.bottom + by.y()}
                        : resized(from, drag_->grip, by);
    if (to == layers_.layer(selected_).place) return;
    layers_.setPlace(selected_, to);
    place(selected_);
    placeGrips();
    placeCursor();
}

void fLayerCanvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return fPicture::mousePressEvent(event); // the middle one drags the picture
    setFocus(Qt::MouseFocusReason);
    select(0);
    stored_ = pixelAt(event->position());
    placeCursor();
}

void fLayerCanvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) addLayer();
}

} // namespace velara
