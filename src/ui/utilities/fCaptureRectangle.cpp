#include "ui/utilities/fCaptureRectangle.h"
#include "ui/utilities/PickerWindow.h"
#include <QCursor>
#include <cmath>
#include <cstring>
#include <utility>

namespace velara {

fCaptureRectangle::fCaptureRectangle(QObject* parent) : QObject(parent) {}

fCaptureRectangle::~fCaptureRectangle()
{
    for (PickerWindow* window : windows_) delete window;
}

void fCaptureRectangle::ShowPicture(const ScreenPicture& picture)
{
    close();
    picture_ = picture;
    picRectangle_ = {};
    start_.reset();
    if (picture_.bits.isNull() || picture_.parts.empty()) return emit left();
    for (const ScreenPicture::Part& part : picture_.parts) windows_.push_back(new PickerWindow(*this, part));
    for (PickerWindow* window : windows_) window->showFullScreen();
    windows_.front()->activateWindow(); // the keys go there
    move(QCursor::pos());
}

QImage fCaptureRectangle::image() const
{
    const Bits& bits = picture_.bits;
    return {reinterpret_cast<const uchar*>(bits.row(0)), bits.width(), bits.height(), qsizetype(bits.stride()) * 4,
            QImage::Format_RGB32};
}

QPoint fCaptureRectangle::pixelAt(QPointF global) const
{
    // A drag may leave its screen: the nearest one has the measure.
    const ScreenPicture::Part* nearest = &picture_.parts.front();
    double least = 1e9;
    for (const ScreenPicture::Part& part : picture_.parts) {
        const QRectF box = part.logical;
        const double dx = std::max({box.left() - global.x(), 0.0, global.x() - box.right()});
        const double dy = std::max({box.top() - global.y(), 0.0, global.y() - box.bottom()});
        if (dx + dy < least) {
            least = dx + dy;
            nearest = &part;
        }
    }
    const QRect &from = nearest->logical, &to = nearest->device;
    const int x = to.left() + int(std::floor((global.x() - from.left()) * to.width() / from.width()));
    const int y = to.top() + int(std::floor((global.y() - from.top()) * to.height() / from.height()));
    return {std::clamp(x, to.left(), to.right() + 1), std::clamp(y, to.top(), to.bottom() + 1)};
}

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
    if (picture_.parts.empty()) return;
    at_ = pixelAt(global);
    showAll();
}

void fCaptureRectangle::release(QPointF global)
{
    move(global);
    const QRect dragged = rectangle();
    start_.reset();
    if (dragged.isEmpty()) return showAll(); // a click picks nothing: the picker stays
    picRectangle_ = partOf(picture_.bits, dragged);
    close();
    emit picked();
}

void fCaptureRectangle::leave()
{
    if (windows_.empty()) return; // the windows close one another
    close();
    emit left();
}

void fCaptureRectangle::showAll()
{
    for (PickerWindow* window : windows_) window->follow();
}

/// The windows end after the event that one of them is in.
void fCaptureRectangle::close()
{
    for (PickerWindow* window : std::exchange(windows_, {})) {
        window->hide();
        window->deleteLater();
    }
}

Bits partOf(const Bits& bits, const QRect& rectangle)
{
    if (bits.isNull() || rectangle.isEmpty()) return {};
    Bits part(rectangle.width(), rectangle.height());
    const QRect inside = rectangle & QRect(0, 0, bits.width(), bits.height());
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        std::memcpy(part.row(y - rectangle.top()) + (inside.left() - rectangle.left()), bits.row(y) + inside.left(),
                    std::size_t(inside.width()) * sizeof(Pixel));
    return part;
}

} // namespace velara
