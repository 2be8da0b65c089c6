#include "ui/utilities/fCaptureRectangle.h"
#include "ui/utilities/Magnifier.h"
#include <QCursor>

namespace velara {

fCaptureRectangle::fCaptureRectangle(QObject* parent)
    : ScreenCover({"fCaptureRectangle", tr("Capture Rectangle"), tr("Drag a rectangle; Esc leaves")}, parent)
{
}

void fCaptureRectangle::ShowPicture(const ScreenPicture& picture)
{
    picRectangle_ = {};
    start_.reset();
    magnifiers_.clear();
    if (!show(picture)) return emit left();
    move(QCursor::pos());
}

void fCaptureRectangle::furnish(CoverWindow& window) { magnifiers_.push_back(new Magnifier(*this, window)); }

QRect fCaptureRectangle::rectangle() const
{
    if (!start_) return {};
    const QPoint from(std::min(start_->x(), at_.x()), std::min(start_->y(), at_.y()));
    const QPoint to(std::max(start_->x(), at_.x()), std::max(start_->y(), at_.y()));
    return {from, QSize(to.x() - from.x(), to.y() - from.y())};
}

void fCaptureRectangle::press(QPointF global)
{
    start_ = at_ = pixelAt(global);
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
    start_.reset();
    if (dragged.isEmpty()) return showAll(); // a click picks nothing: the picker stays
    picRectangle_ = partOf(picture().bits, dragged);
    close();
    emit picked();
}

void fCaptureRectangle::showAll()
{
    showRectangle();
    if (!windows().empty())
        for (Magnifier* magnifier : magnifiers_) magnifier->follow();
}

} // namespace velara
