#include "ui/utilities/fCaptureRectangle.h"
#include "ui/utilities/Magnifier.h"
#include "ui/widgets/inputs/named.h"
#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <algorithm>
#include <cstdlib>
#include <utility>

namespace velara {

namespace {

constexpr int kReach = 6; // pixels on each side of a line that take hold of it
constexpr int kHintMargin = 24;

} // namespace

fCaptureRectangle::fCaptureRectangle(QObject* parent)
    : ScreenCover({"fCaptureRectangle", tr("Capture Rectangle"), tr("Drag a rectangle; Esc leaves")}, parent)
{
}

void fCaptureRectangle::ShowPicture(const ScreenPicture& picture)
{
    picRectangle_ = {};
    start_.reset();
    placed_ = {};
    held_ = None;
    hint_ = nullptr;
    magnifiers_.clear();
    if (!show(picture)) return emit left();
    move(QCursor::pos());
}

void fCaptureRectangle::furnish(CoverWindow& window)
{
    magnifiers_.push_back(new Magnifier(*this, window));
    if (hint_) return;
    QStringList keys{tr("Drag a rectangle; with Shift it stays, with grips"), tr("Enter: all, or the rectangle"),
                     tr("Esc: leave")};
    if (!picture().windows.empty()) keys.insert(1, tr("W: the window below the pointer"));
    hint_ = named(new QLabel(keys.join(QStringLiteral("   ·   ")), &window), "lblHint");
    hint_->setAttribute(Qt::WA_TransparentForMouseEvents);
    hint_->setAutoFillBackground(true);
    hint_->setMargin(6);
    hint_->adjustSize();
}

QRect fCaptureRectangle::rectangle() const
{
    if (held_ != None) return resized();
    if (!start_) return placed_;
    const QPoint from(std::min(start_->x(), at_.x()), std::min(start_->y(), at_.y()));
    const QPoint to(std::max(start_->x(), at_.x()), std::max(start_->y(), at_.y()));
    return {from, QSize(to.x() - from.x(), to.y() - from.y())};
}

/// The placed one as the mouse has pulled it, within the picture.
QRect fCaptureRectangle::resized() const
{
    const QPoint by = at_ - holdFrom_;
    const QRect limits = whole();
    if (held_ == Inside) {
        QRect moved = placed_.translated(by);
        moved.moveLeft(std::clamp(moved.left(), 0, limits.width() - moved.width()));
        moved.moveTop(std::clamp(moved.top(), 0, limits.height() - moved.height()));
        return moved;
    }
    QRect pulled = placed_;
    if (held_ & Left) pulled.setLeft(std::min(placed_.left() + by.x(), placed_.right()));
    if (held_ & Top) pulled.setTop(std::min(placed_.top() + by.y(), placed_.bottom()));
    if (held_ & Right) pulled.setRight(std::max(placed_.right() + by.x(), placed_.left()));
    if (held_ & Bottom) pulled.setBottom(std::max(placed_.bottom() + by.y(), placed_.top()));
    return pulled & limits;
}

ScreenCover::Sides fCaptureRectangle::hold(QPoint pixel) const
{
    const QRect& box = placed_;
    if (!box.adjusted(-kReach, -kReach, kReach, kReach).contains(pixel) || box.isEmpty()) return None;
    const auto near = [](int a, int b) { return std::abs(a - b) <= kReach; };
    Sides sides = None;
    if (near(pixel.x(), box.right()))
        sides |= Right;
    else if (near(pixel.x(), box.left()))
        sides |= Left;
    if (near(pixel.y(), box.bottom()))
        sides |= Bottom;
    else if (near(pixel.y(), box.top()))
        sides |= Top;
    return sides == None ? int(Inside) : sides;
}

void fCaptureRectangle::press(QPointF global)
{
    at_ = holdFrom_ = pixelAt(global);
    held_ = hold(at_);
    if (held_ == None) {
        placed_ = {};
        start_ = at_;
    }
    showAll();
}

void fCaptureRectangle::move(QPointF global)
{
    at_ = pixelAt(global);
    showAll();
}

void fCaptureRectangle::release(QPointF global)
{
    move(global);
    const QRect dragged = rectangle();
    const bool drawn = start_.has_value();
    start_.reset();
    held_ = None;
    if (drawn && !dragged.isEmpty() && !(QGuiApplication::keyboardModifiers() & Qt::ShiftModifier))
        return pick(dragged);
    placed_ = dragged; // a click places nothing: the picker stays
    showAll();
}

bool fCaptureRectangle::key(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        pick(placed_.isEmpty() ? whole() : placed_);
        return true;
    case Qt::Key_W: {
        const auto& windows = picture().windows;
        const auto below = std::ranges::find_if(windows, [this](const QRect& window) { return window.contains(at_); });
        if (below == windows.end()) return false;
        placed_ = *below & whole();
        start_.reset();
        showAll();
        return true;
    }
    default:
        return false;
    }
}

void fCaptureRectangle::pick(const QRect& part)
{
    picRectangle_ = partOf(picture().bits, part);
    close();
    emit picked();
}

void fCaptureRectangle::showAll()
{
    showRectangle();
    if (windows().empty()) return;
    for (Magnifier* magnifier : magnifiers_) magnifier->follow();
    const QWidget& window = *windows().front();
    const bool above = windows().front()->toWindow(at_).y() > window.height() / 2.0; // out of the pointer's way
    hint_->move((window.width() - hint_->width()) / 2,
                above ? kHintMargin : window.height() - hint_->height() - kHintMargin);
}

} // namespace velara
