// The canvas of the layers dialog: the mouse, which moves and sizes layers and marks letters.
#include "ui/compose/fLayerCanvas.h"
#include "ui/widgets/marks/grips.h"
#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTextBoundaryFinder>

namespace velara {

namespace {

constexpr int kEdge = 6;     // screen pixels of an edited layer's edge, by which it is moved
constexpr int kInSight = 12; // picture pixels of a moved layer that stay within the picture

} // namespace

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
    case QEvent::MouseMove: {
        auto& move = *static_cast<QMouseEvent*>(event);
        if (!drag_ && std::ranges::find(grips_, widget) == grips_.end()) {
            const bool letters =
                editing_ && widgets_.at(selected_).outline == widget && !atEdge(*widget, move.position().toPoint());
            widget->setCursor(letters ? Qt::IBeamCursor : Qt::SizeAllCursor);
        }
        drag(move);
        return true;
    }
    case QEvent::MouseButtonRelease:
        release(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonDblClick:
        doubleClick(*static_cast<QMouseEvent*>(event));
        return true;
    default:
        return fPicture::eventFilter(watched, event);
    }
}

bool fLayerCanvas::atEdge(const QWidget& outline, QPoint at) const
{
    const int across = std::min(kEdge, outline.width() / 4), down = std::min(kEdge, outline.height() / 4);
    return !outline.rect().adjusted(across, down, -across, -down).contains(at);
}

/// Of the selected layer.
qsizetype fLayerCanvas::characterAt(QPoint global) const
{
    const QPoint at = mapFromGlobal(global), pixel = pixelAt(at);
    return layers_.characterAt(selected_, pixel.x(), pixel.y());
}

void fLayerCanvas::press(QWidget* widget, QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton) return;
    setFocus(Qt::MouseFocusReason);
    Drag begun{Holds::Grip, {}, event.globalPosition().toPoint()};
    const auto grip = std::ranges::find(grips_, widget);
    begun.grip = static_cast<int>(grip - grips_.begin());
    if (grip == grips_.end()) {
        const auto layer =
            std::ranges::find_if(widgets_, [widget](const auto& each) { return each.second.outline == widget; });
        if (layer == widgets_.end()) return;
        begun.chosen = selected_ == layer->first;
        const bool letters = begun.chosen && editing_ && !atEdge(*widget, event.position().toPoint());
        begun.what = letters ? Holds::Letters : Holds::Layer;
        if (!begun.chosen) select(layer->first);
        if (letters) setCaret(characterAt(begun.from), event.modifiers() & Qt::ShiftModifier);
    }
    if (selected_ == 0) return;
    begun.place = layers_.layer(selected_).place;
    drag_ = begun;
}

void fLayerCanvas::drag(QMouseEvent& event)
{
    if (!drag_ || selected_ == 0 || !(event.buttons() & Qt::LeftButton)) return;
    const QPoint at = event.globalPosition().toPoint(), by = (at - drag_->from) / scale();
    if (drag_->what == Holds::Letters) return setCaret(characterAt(at), true);
    const Rect& from = drag_->place;
    const Rect to =
        drag_->what == Holds::Grip
            ? resized(from, drag_->grip, by)
            : keptInSight({from.left + by.x(), from.top + by.y(), from.right + by.x(), from.bottom + by.y()});
    if (to == layers_.layer(selected_).place) return;
    if (!std::exchange(drag_->moved, true)) remember({});
    layers_.setPlace(selected_, to);
    place(selected_);
    placeGrips();
    placeCursor();
}

/// A layer that is moved out of the picture keeps an edge there to be caught by.
Rect fLayerCanvas::keptInSight(Rect place) const
{
    const Bits& picture = layers_.canvas();
    const auto kept = [](int from, int length, int room) {
        const int least = std::min({kInSight, length, room});
        return std::clamp(from, least - length, room - least);
    };
    const int x = kept(place.left, place.width(), picture.width()),
              y = kept(place.top, place.height(), picture.height());
    return {x, y, x + place.width(), y + place.height()};
}

void fLayerCanvas::release(QMouseEvent& event)
{
    const auto ended = std::exchange(drag_, {});
    if (!ended || selected_ == 0) return;
    if (ended->what == Holds::Layer && ended->chosen && !ended->moved && !editing_) { // a click: into the text
        edit(true);
        setCaret(characterAt(event.globalPosition().toPoint()), false);
    }
    if (ended->moved) emit layerChanged(selected_);
}

void fLayerCanvas::doubleClick(QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || selected_ == 0) return;
    edit(true);
    const qsizetype at = characterAt(event.globalPosition().toPoint());
    QTextBoundaryFinder words(QTextBoundaryFinder::Word, text());
    words.setPosition(at);
    const qsizetype from = words.isAtBoundary() && at < text().size() ? at : words.toPreviousBoundary();
    words.setPosition(std::max<qsizetype>(from, 0));
    const qsizetype to = words.toNextBoundary();
    setCaret(std::max<qsizetype>(from, 0), false);
    setCaret(to < 0 ? text().size() : to, true);
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
