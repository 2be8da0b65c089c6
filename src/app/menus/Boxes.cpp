#include "app/menus/Boxes.h"
#include "app/menus/Bars.h"
#include "seams/Setup.h"
#include <QLayout>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <climits>
#include <string_view>

namespace velara {

namespace {

struct BoxRow {
    std::string_view word; // of its menu item
    bool Setup::*visible;
    int down; // pixels from the top of the documents to its first position
};

constexpr BoxRow kBoxes[] = {
    {"@COLORBOX", &Setup::ColorBoxVisible, 36},
    {"@TEXTURESBOX", &Setup::TexturesBoxVisible, 0},
    {"@CLIPBOARDBOX", &Setup::ClipboardBoxVisible, 0},
};

/// The window manager's frame around a window, estimated until it is known.
QSize decoration(const QWidget& window)
{
    constexpr int kBorder = 2;
    return {2 * kBorder, window.style()->pixelMetric(QStyle::PM_TitleBarHeight) + kBorder};
}

/// The area that a window covers on the screen, including its title bar even if it was shown just now.
QRect covered(const QWidget& window)
{
    const QRect rect = window.frameGeometry();
    return rect | QRect(rect.topLeft(), window.size() + decoration(window));
}

/// Gives a window its final size: one that grows only when shown would be displaced by the height of its title bar.
void settle(QWidget& window)
{
    window.ensurePolished();
    for (QWidget* child : window.findChildren<QWidget*>()) child->ensurePolished();
    if (window.layout()) window.layout()->activate();
}

int areaOf(const QRect& rect) { return rect.isEmpty() ? 0 : rect.width() * rect.height(); }

} // namespace

Boxes::Boxes(QWidget& frame, const QWidget& sidePane, Setup& setup, Bars& bars)
    : frame_(frame), sidePane_(sidePane), setup_(setup), bars_(bars)
{
}

void Boxes::show(Box which)
{
    QWidget* box = boxes_[which];
    if (!box) return;
    if (!placed_[which]) {
        settle(*box);
        const int left = frame_.width() - box->width() - sidePane_.width() * 12 / 5;
        const int top = sidePane_.parentWidget()->y() + kBoxes[which].down;
        // In a narrow frame that position is over the tools.
        const bool clear = left >= (sidePane_.isVisible() ? sidePane_.width() : 0);
        box->move(clear ? frame_.mapToGlobal(QPoint(left, top)) : beside(*box));
        placed_[which] = true;
    }
    box->show();
    bars_.mark(kBoxes[which].word, 0, true);
}

QPoint Boxes::beside(const QWidget& box) const
{
    const QRect frame = covered(frame_), screen = frame_.screen()->availableGeometry();
    const QSize size = box.size() + decoration(box); // its size when shown
    std::vector<QRect> taken = places();
    std::vector<int> tops = {frame.top()};
    for (const QRect& other : taken) tops.insert(tops.end(), {other.bottom() + 1, other.top() - size.height()});
    tops.push_back(screen.bottom() + 1 - size.height());
    taken.push_back(frame);
    QRect best;
    int leastCovered = INT_MAX; // a farther position must be clearly better: boxes used together stay together
    for (const int left : {frame.right() + 1, frame.left() - size.width()})
        for (const int top : tops) {
            QRect place({left, top}, size);
            place.moveRight(std::min(place.right(), screen.right()));
            place.moveBottom(std::min(place.bottom(), screen.bottom()));
            place.moveTopLeft({std::max(place.left(), screen.left()), std::max(place.top(), screen.top())});
            int area = 0;
            for (const QRect& other : taken) area += areaOf(place & other);
            if (area >= leastCovered / 4 * 3) continue;
            leastCovered = area;
            best = place;
        }
    return best.topLeft();
}

std::vector<QRect> Boxes::places() const
{
    std::vector<QRect> places;
    for (const QWidget* box : boxes_)
        if (box && box->isVisible()) places.push_back(covered(*box));
    return places;
}

void Boxes::toggle(Box which)
{
    bool& visible = setup_.*kBoxes[which].visible;
    visible = !visible;
    QWidget* box = boxes_[which];
    if (visible) {
        show(which);
        if (box) box->activateWindow(); // it was asked for in order to be used
    } else if (box) {
        const QPoint place = box->pos(); // otherwise a window manager may move it
        box->hide();
        box->move(place);
    }
    bars_.mark(kBoxes[which].word, 0, visible);
}

void Boxes::showAll()
{
    // The large ones first, as they fit in the fewest places; the colours last: they end up in front.
    for (const Box which : {Textures, Clips, Colours})
        if (setup_.*kBoxes[which].visible) show(which);
    if (boxes_[Colours]) boxes_[Colours]->raise();
}

void Boxes::bring(Box which)
{
    if (!(setup_.*kBoxes[which].visible)) return toggle(which);
    show(which);
    boxes_[which]->raise();
}

void Boxes::crossed(const QObject* box)
{
    for (int i = 0; i < kCount; ++i)
        if (box == boxes_[std::size_t(i)] && setup_.*kBoxes[i].visible) toggle(Box(i));
}

} // namespace velara
