#include "ui/icons/fIconMaker.h"
#include "ui/icons/fIconBar.h"
#include <QKeyEvent>
#include <algorithm>

namespace velara {

namespace {

constexpr int kFarStep = 10; // pixels per arrow key with Shift

struct KeyRow {
    int key;
    QPoint by;
};
constexpr KeyRow kArrows[] = {
    {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};

constexpr int kSmallest = 16, kLargest = 64, kSizeStep = 16;

} // namespace

fIconMaker::fIconMaker(QObject* parent)
    : ScreenCover({"picC", tr("Icon Maker"), tr("Drag the frame of the icon; Enter takes, Esc closes")}, parent)
{
}

void fIconMaker::ShowPicture(const ScreenPicture& picture, int count)
{
    dragging_ = false;
    count_ = count;
    if (!show(picture)) return emit left();
    bar_ = new fIconBar(*this, windows().front());
    bar_->show();
    bar_->showCount(count_);
    bar_->showSide(side());
    moveFrame(windows().front()->part().device.center() - frame_.size().width() * QPoint(1, 1) / 2);
}

void fIconMaker::setSide(int side)
{
    const QPoint middle = frame_.topLeft() + QPoint(frame_.width(), frame_.height()) / 2;
    frame_.setSize({side, side});
    bar_->showSide(side);
    moveFrame(middle - QPoint(side, side) / 2);
}

void fIconMaker::take()
{
    bar_->showCount(++count_);
    emit taken(partOf(picture().bits, frame_));
}

void fIconMaker::press(QPointF global)
{
    const QPoint at = pixelAt(global);
    hold_ = frame_.contains(at) ? at - frame_.topLeft() : QPoint(frame_.width(), frame_.height()) / 2;
    dragging_ = true;
    move(global);
}

void fIconMaker::move(QPointF global)
{
    if (dragging_) moveFrame(pixelAt(global) - hold_);
}

void fIconMaker::release(QPointF global)
{
    move(global);
    dragging_ = false;
}

bool fIconMaker::key(const QKeyEvent& event)
{
    const auto* arrow = std::ranges::find(kArrows, event.key(), &KeyRow::key);
    if (arrow != std::end(kArrows))
        moveFrame(frame_.topLeft() + arrow->by * (event.modifiers() & Qt::ShiftModifier ? kFarStep : 1));
    else if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space)
        take();
    else if (event.key() == Qt::Key_Plus || event.key() == Qt::Key_Minus)
        setSide(std::clamp(side() + (event.key() == Qt::Key_Plus ? kSizeStep : -kSizeStep), kSmallest, kLargest));
    else
        return false;
    return true;
}

/// Limited to the picture.
void fIconMaker::moveFrame(QPoint corner)
{
    const QSize room = whole().size() - frame_.size();
    frame_.moveTo(std::clamp(corner.x(), 0, std::max(room.width(), 0)),
                  std::clamp(corner.y(), 0, std::max(room.height(), 0)));
    showRectangle();
    bar_->raise(); // above the frame
    bar_->showCutOut(partOf(picture().bits, frame_));
}

} // namespace velara
