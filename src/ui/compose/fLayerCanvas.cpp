#include "ui/compose/fLayerCanvas.h"
#include "pixels/images.h"
#include "text/visibleColour.h"
#include "ui/widgets/inputs/Spoken.h"
#include "ui/widgets/inputs/named.h"
#include "ui/widgets/marks/Mark.h"
#include "ui/widgets/marks/grips.h"
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>
#include <QTimerEvent>

namespace velara {

namespace {

constexpr int kGrip = kGripSide;

/// Dashes of black on white. Lines of images: blended lines of a pen are spread over threads by Qt, whose waking takes
/// longer than all else that is painted.
void paintOutline(QPainter& painter, const QRect& around, bool chosen)
{
    constexpr int kDash = 4, kPeriod = 6;
    const QRgb gap = qPremultiply(qRgba(255, 255, 255, chosen ? 255 : 150));
    const QRgb dash = chosen ? qRgba(0, 0, 0, 255) : qRgba(62, 62, 62, 212); // black over that white, premultiplied
    const auto line = [&](QPoint at, int length, bool across) {
        std::vector<QRgb> pixels(static_cast<std::size_t>(std::max(length, 0)));
        for (int i = 0; i < length; ++i) pixels[std::size_t(i)] = i % kPeriod < kDash ? dash : gap;
        const int width = across ? length : 1, height = across ? 1 : length;
        painter.drawImage(at, QImage(reinterpret_cast<const uchar*>(pixels.data()), width, height, 4 * width,
                                     QImage::Format_ARGB32_Premultiplied));
    };
    line(around.topLeft(), around.width(), true);
    line(around.bottomLeft(), around.width(), true);
    line(around.topLeft(), around.height(), false);
    line(around.topRight(), around.height(), false);
}

/// MskText: shows a layer's surface, directly from its memory, and its outline. Ink may extend beyond the outline.
class Surface final : public QWidget {
  public:
    Surface(const Layers& layers, int index, fLayerCanvas& canvas)
        : QWidget(&canvas), layers_(layers), canvas_(canvas), index_(index)
    {
        setObjectName(QStringLiteral("MskText_%1").arg(index));
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

  protected:
    void paintEvent(QPaintEvent*) override
    {
        if (!layers_.has(index_)) return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform, canvas_.zoom() < 1);
        const Bits& bits = layers_.surface(index_);
        const QImage whole = imageOver(bits);
        if (!bits.isNull()) // premultiplied: Qt spreads other formats over threads, whose waking takes most of the time
            painter.drawImage(onSurface(layers_.visible(index_)),
                              QImage(whole.constBits(), whole.width(), whole.height(), whole.bytesPerLine(),
                                     QImage::Format_ARGB32_Premultiplied));
        const bool chosen = canvas_.selected() == index_; // visible on light and on dark
        if (chosen) paintMarks(painter);
        paintOutline(painter, onSurface(layers_.layer(index_).place), chosen);
    }

  private:
    QRect onSurface(const Rect& pixels) const { return canvas_.placeOf(pixels).translated(-pos()); }
    void paintMarks(QPainter& painter) const
    {
        QColor mark = palette().color(QPalette::Active, QPalette::Highlight);
        mark.setAlpha(120);
        for (const Rect& each : canvas_.marked()) painter.fillRect(onSurface(each), mark);
        for (const Rect& each : canvas_.composed()) {
            const QRect line = onSurface(each);
            painter.fillRect(line.left(), line.bottom() - 2, line.width(), 1, Qt::white);
            painter.fillRect(line.left(), line.bottom() - 1, line.width(), 1, Qt::black);
        }
    }

    const Layers& layers_;
    const fLayerCanvas& canvas_;
    int index_;
};

void paintCaret(QPainter& painter, const QRect& rect)
{
    painter.fillRect(rect, Qt::white);
    painter.fillRect(rect.adjusted(0, 0, -1, 0), Qt::black);
}

/// Where three grips begin along one side of an outline: at its ends and its middle, always apart and within the room
/// of the canvas, and outside of an outline that they would cover.
std::array<int, 3> gripPlaces(int from, int length, int room)
{
    const int out = length < 4 * kGrip ? kGrip - kGrip / 2 : 0;
    std::array<int, 3> at{from - kGrip / 2 - out, from + length / 2 - kGrip / 2, from + length - kGrip / 2 + out};
    at[2] = std::clamp(std::max(at[2], at[1] + kGrip), 2 * kGrip, std::max(2 * kGrip, room - kGrip));
    at[1] = std::clamp(at[1], kGrip, at[2] - kGrip);
    at[0] = std::clamp(at[0], 0, at[1] - kGrip);
    return at;
}

} // namespace

fLayerCanvas::fLayerCanvas(Layers& layers)
    : fPicture(QStringLiteral("picImage"), tr("Picture with its texts"), nullptr, QAccessible::Canvas), layers_(layers),
      cursor_(new Mark(paintCaret, QStringLiteral("Cursor"), this))
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    cursor_->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (int i = 0; i < 8; ++i) {
        grips_[std::size_t(i)] = new Mark(paintGrip, QStringLiteral("lblGrip_%1").arg(i), this);
        QWidget& grip = *grips_[std::size_t(i)];
        setSpokenRole(grip, QAccessible::Grip);
        grip.setFixedSize(kGrip, kGrip);
        grip.setCursor(kGrips[i].pointer);
        grip.installEventFilter(this);
        grip.hide();
    }
}

// --- Layers and the widgets that show them

int fLayerCanvas::addLayer()
{
    remember({});
    const Rect place{stored_.x(), stored_.y(), stored_.x() + Layers::kWidth, stored_.y() + Layers::kHeight};
    const Colour colour = keepColour ? nextColour : visibleColour(nextColour, layers_.canvas(), place);
    const int index = layers_.add(stored_.x(), stored_.y(), nextStyle, colour);
    makeWidgets(index);
    emit added(index);
    select(index);
    edit(true);
    return index;
}

void fLayerCanvas::showLayers()
{
    for (const int index : layers_.indices()) {
        makeWidgets(index);
        emit added(index);
    }
}

void fLayerCanvas::removeSelected()
{
    const int index = selected_;
    if (index == 0) return;
    remember({});
    select(0);
    layers_.remove(index);
    dropWidgets(index);
    emit removed(index);
}

void fLayerCanvas::makeWidgets(int index)
{
    auto* surface = new Surface(layers_, index, *this);
    auto* outline = new QWidget(this);
    setSpokenRole(*outline, QAccessible::Graphic);
    named(outline, QStringLiteral("lblShape_%1").arg(index), tr("Text %1").arg(index - 1));
    outline->setMouseTracking(true);
    outline->setCursor(Qt::SizeAllCursor);
    outline->installEventFilter(this);
    widgets_[index] = {surface, outline};
    place(index);
}

void fLayerCanvas::dropWidgets(int index)
{
    const Widgets gone = widgets_.at(index);
    widgets_.erase(index);
    delete gone.surface;
    delete gone.outline;
}

void fLayerCanvas::place(int index)
{
    const auto [surface, outline] = widgets_.at(index);
    const Layer& layer = layers_.layer(index);
    outline->setGeometry(placeOf(layer.place));
    surface->setGeometry(placeOf(layer.place.united(layers_.visible(index))));
    outline->setVisible(layer.shown);
    surface->setVisible(layer.shown);
    surface->update();
}

void fLayerCanvas::refresh(int index)
{
    for (const auto& [each, widgets] : widgets_)
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
        if (widgets_.contains(each)) widgets_[each].surface->update();
    caret_ = anchor_ = index ? text().size() : 0;
    ShowG();
    placeCursor();
    emit selectionChanged(index);
    emit stateChanged();
}

void fLayerCanvas::edit(bool on)
{
    if (!preedit_.isEmpty()) {
        dropPreedit();
        QGuiApplication::inputMethod()->reset();
    }
    editing_ = on && selected_ != 0;
    history_.close();
    if (editing_) caret_ = std::min(caret_, text().size());
    anchor_ = caret_;
    showMarks();
    emit stateChanged();
}

// --- Undo

void fLayerCanvas::remember() { remember({}); }

void fLayerCanvas::remember(const QString& kind)
{
    if (!preedit_.isEmpty()) dropPreedit();
    history_.before(layers_, spot(), kind);
    emit stateChanged();
}

void fLayerCanvas::step(bool back)
{
    if (!canStep(back)) return;
    const bool wasEditing = editing_;
    edit(false);
    LayerSpot to = spot();
    if (!(back ? history_.undo(layers_, to) : history_.redo(layers_, to))) return;
    const std::vector<int> now = layers_.indices();
    std::vector<int> gone;
    for (const auto& [index, widgets] : widgets_)
        if (!layers_.has(index)) gone.push_back(index);
    if (!layers_.has(to.selected)) to.selected = 0;
    if (!layers_.has(selected_)) selected_ = 0;
    for (const int index : gone) {
        dropWidgets(index);
        emit removed(index);
    }
    for (const int index : now)
        if (!widgets_.contains(index)) {
            makeWidgets(index);
            emit added(index);
        }
    for (const auto& [index, widgets] : widgets_) { // later ones over earlier ones
        widgets.surface->raise();
        widgets.outline->raise();
    }
    select(to.selected);
    edit(wasEditing);
    if (selected_) {
        caret_ = std::min(to.caret, text().size());
        anchor_ = std::min(to.anchor, text().size());
    }
    refresh(0);
    emit selectionChanged(selected_); // its style may be another one
    emit stateChanged();
}

// --- Marks over the layers

std::vector<Rect> fLayerCanvas::marked() const
{
    if (!editing_ || caret_ == anchor_) return {};
    return layers_.spans(selected_, std::min(caret_, anchor_), std::max(caret_, anchor_));
}

std::vector<Rect> fLayerCanvas::composed() const
{
    if (preedit_.isEmpty() || selected_ == 0) return {};
    return layers_.spans(selected_, caret_, caret_ + preedit_.size());
}

void fLayerCanvas::showMarks()
{
    if (const auto found = widgets_.find(selected_); found != widgets_.end()) found->second.surface->update();
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

void fLayerCanvas::placeGrips()
{
    const QRect shape = widgets_.at(selected_).outline->geometry();
    const auto x = gripPlaces(shape.x(), shape.width(), width()), y = gripPlaces(shape.y(), shape.height(), height());
    for (std::size_t i = 0; i < grips_.size(); ++i)
        grips_[i]->move(x[std::size_t(kGrips[i].across + 1)], y[std::size_t(kGrips[i].down + 1)]);
}

void fLayerCanvas::placeCursor()
{
    Rect at{stored_.x(), stored_.y(), stored_.x() + 1, stored_.y() + Layers::kHeight};
    if (editing_) at = layers_.caret(selected_, caret_ + (preedit_.isEmpty() ? 0 : preeditCaret_));
    const QRect place = placeOf(at);
    cursor_->setGeometry({place.topLeft(), QSize(2, std::max(place.height(), 1))});
    const bool wanted = editing_ || selected_ == 0;
    cursor_->setVisible(wanted);
    const int flash = QGuiApplication::styleHints()->cursorFlashTime();
    if (wanted && hasFocus() && flash > 1)
        blink_.start(flash / 2, this);
    else
        blink_.stop();
    updateMicroFocus();
    if (editing_ && hasFocus() && !drag_) emit caretMoved(at);
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
    for (const auto& [index, widgets] : widgets_) place(index);
    ShowG();
    placeCursor();
    fPicture::resizeEvent(event);
}

void fLayerCanvas::paintOver(QPainter&, const QRect&) {} // the layers are widgets

} // namespace velara
