// Keys on the display of a document. A picture can be drawn on without a mouse: the arrows move a crosshair, Enter
// presses the button there, and Enter again releases it.
#include "document/road/Frame.h"
#include "ui/view/fDisplay.h"
#include "ui/view/fImage.h"
#include <QKeyEvent>

namespace velara {

namespace {

struct KeyRow {
    int qt, number;
    QPoint way = {}; // of an arrow
};
constexpr KeyRow kKeys[] = {
    // clang-format off
    {Qt::Key_Left,    Tools::ArrowLeft, {-1, 0}}, {Qt::Key_Right, Tools::ArrowRight, {1, 0}},
    {Qt::Key_Up,      Tools::ArrowUp,   {0, -1}}, {Qt::Key_Down,  Tools::ArrowDown,  {0, 1}},
    {Qt::Key_Control, Tools::Ctrl},  {Qt::Key_Space, Tools::Space}, {Qt::Key_Escape, Tools::Escape},
    {Qt::Key_Return,  Tools::Enter}, {Qt::Key_Enter, Tools::Enter},
    // clang-format on
};
constexpr int kFar = 10; // pixels at a time, with Shift

} // namespace

bool fImage::displayKey(const QKeyEvent& event, bool down)
{
    const auto* row = std::ranges::find(kKeys, event.key(), &KeyRow::qt);
    if (row == std::end(kKeys)) return false;
    if (!down) return tools_->keyUp(row->number);
    const bool mouseHolds = grabButton_ != Qt::NoButton || (tools_->ToolDown() && !keysHold());
    if (mouseHolds || !PictureExists() || frame_.toolStores().pastePending) return tools_->keyDown(row->number);
    if (!row->way.isNull()) {
        moveCross(row->way * (event.modifiers() & Qt::ShiftModifier ? kFar : 1));
        return true;
    }
    if (row->number == Tools::Enter && keysHold()) return pressAtCross();
    return tools_->keyDown(row->number) || (row->number == Tools::Enter && !event.isAutoRepeat() && pressAtCross());
}

/// From where it is, or the pointer, or the middle of what is seen.
void fImage::moveCross(QPoint by)
{
    const QRect seen = iDst_->rect();
    const auto place = [this](QPoint pixel) { return QRect(pixel * zoom_ - GetSBV(), QSize(zoom_, zoom_)); };
    QPoint from = iDst_->cross().value_or(lastPixel_);
    if (!iDst_->cross() && !seen.contains(place(from))) from = pixelAt(seen.center());
    const QPoint to(std::clamp(from.x() + by.x(), 0, PictureWidth() - 1),
                    std::clamp(from.y() + by.y(), 0, PictureHeight() - 1));
    const QRect at = place(to);
    const auto beyond = [](int first, int last, int size) { return first < 0 ? first : std::max(0, last + 1 - size); };
    const QPoint past(beyond(at.left(), at.right(), seen.width()), beyond(at.top(), at.bottom(), seen.height()));
    if (!past.isNull()) Scroll(hSB_->value() + past.x(), vSB_->value() + past.y());
    iDst_->showCross(to);
    lastPixel_ = to;
    showFootprint();
    tools_->move(keysHold() ? Tools::Left : Tools::NoButton, to.x(), to.y());
}

/// Presses the left button at the crosshair, or releases it. False: there is no crosshair, or the hand is chosen.
bool fImage::pressAtCross()
{
    if (keysHold()) {
        keysPressed_ = false;
        tools_->release(Tools::Left, lastPixel_.x(), lastPixel_.y());
        return true;
    }
    const auto at = iDst_->cross();
    if (!at || mouseScroll_ || asks_) return false;
    bringToFront();
    keysPressed_ = true;
    tools_->press(Tools::Left, at->x(), at->y());
    return true;
}

void fImage::idst_KeyUp(int key, int) { tools_->keyUp(key); }

} // namespace velara
