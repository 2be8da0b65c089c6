// Mouse and keys on the display of a document: hand scrolling, the wheel, and everything else for the tools.
#include "document/road/Frame.h"
#include "ui/view/fCursors.h"
#include "ui/view/fDisplay.h"
#include "ui/view/fImage.h"
#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>

namespace velara {

namespace {

constexpr int kWheelNotch = 120;
constexpr int kWheelPixels = 48; // logical pixels per notch

int buttonNumber(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return Tools::Left;
    case Qt::RightButton:
        return Tools::Right;
    default:
        return Tools::NoButton;
    }
}

} // namespace

QPoint fImage::pixelAt(QPointF at) const
{
    return {pictureAt(at.x(), hSB_->value(), zoom_), pictureAt(at.y(), vSB_->value(), zoom_)};
}

/// Shows what the tool would change at the last pointer position; nothing for the hand and a pending paste.
void fImage::showFootprint() { iDst_->showFootprint(mouseScroll_ ? Footprint() : tools_->footprint(), lastPixel_); }

/// The button held during a move.
int fImage::buttonOf(const QMouseEvent& event) const
{
    if (event.buttons() & Qt::LeftButton) return Tools::Left;
    return event.buttons() & Qt::RightButton ? Tools::Right : Tools::NoButton;
}

bool fImage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != iDst_) return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        pressed(static_cast<QMouseEvent&>(*event));
        return true;
    case QEvent::MouseButtonDblClick:
        doubleClicked(static_cast<QMouseEvent&>(*event));
        return true;
    case QEvent::MouseMove:
        moved(static_cast<QMouseEvent&>(*event));
        return true;
    case QEvent::MouseButtonRelease:
        released(static_cast<QMouseEvent&>(*event));
        return true;
    case QEvent::Wheel:
        wheelTurned(static_cast<QWheelEvent&>(*event));
        return true;
    case QEvent::KeyPress:
        return displayKey(static_cast<QKeyEvent&>(*event), true);
    case QEvent::KeyRelease:
        return displayKey(static_cast<QKeyEvent&>(*event), false);
    default:
        return false;
    }
}

void fImage::pressed(const QMouseEvent& event)
{
    if (!PictureExists()) return;
    iDst_->showCross({});
    if (keysHold()) pressAtCross(); // the mouse takes over
    bringToFront();                 // a press in an inactive frame arrives before the frame's activation
    if (!(event.buttons() & grabButton_)) grabButton_ = Qt::NoButton; // its release went to another window
    if (grabButton_ != Qt::NoButton) return;
    // The middle button moves the picture whatever tool is chosen. The hand keeps a press even where there is nothing
    // to move: it never paints.
    const bool grabs =
        event.button() == Qt::LeftButton ? mouseScroll_ : event.button() == Qt::MiddleButton && canScroll();
    const int button = buttonNumber(event.button());
    if (grabs && !tools_->ToolDown()) {
        activate();
        grabButton_ = event.button();
        grabLast_ = event.globalPosition().toPoint();
        if (canScroll()) iDst_->setCursor(cGrab());
        return;
    }
    if (button == Tools::NoButton || asks_) return; // what is being closed takes no stroke
    const QPoint pixel = lastPixel_ = pixelAt(event.position());
    tools_->press(button, pixel.x(), pixel.y());
}

void fImage::doubleClicked(const QMouseEvent& event)
{
    const QPoint pixel = pixelAt(event.position());
    const bool isTools = event.button() == Qt::LeftButton && !mouseScroll_;
    if (!isTools || !tools_->doubleClick(pixel.x(), pixel.y())) pressed(event);
}

void fImage::moved(const QMouseEvent& event)
{
    if (!PictureExists()) return;
    if (grabButton_ != Qt::NoButton) {
        if (event.buttons() & grabButton_) scrollByHand(event.globalPosition().toPoint());
        return;
    }
    if (keysHold()) return;
    const QPoint pixel = pixelAt(event.position());
    const bool same = std::exchange(lastPixel_, pixel) == pixel;
    if (!same) iDst_->showCross({});
    showFootprint();
    if (same) return; // within the same picture pixel
    tools_->move(buttonOf(event), pixel.x(), pixel.y());
}

void fImage::released(const QMouseEvent& event)
{
    if (grabButton_ != Qt::NoButton) {
        if (event.button() != grabButton_) return;
        grabButton_ = Qt::NoButton;
        if (handScrolls())
            iDst_->setCursor(cRelease());
        else
            showTool();
        return;
    }
    const int button = buttonNumber(event.button());
    if (button == Tools::NoButton) return;
    const QPoint pixel = pixelAt(event.position());
    tools_->release(button, pixel.x(), pixel.y());
}

void fImage::wheelTurned(QWheelEvent& event)
{
    if (!PictureExists()) return event.ignore();
    event.accept();
    if (event.modifiers() & Qt::ControlModifier) {
        wheelRest_ += event.angleDelta().y();
        const int notches = wheelRest_ / kWheelNotch;
        wheelRest_ -= notches * kWheelNotch;
        if (notches != 0) zoomAbout(zoom_ + notches, event.position());
        return;
    }
    QPoint way = event.pixelDelta().isNull() ? event.angleDelta() * kWheelPixels / kWheelNotch : event.pixelDelta();
    if (event.modifiers() & Qt::ShiftModifier) way = way.transposed();
    Scroll(hSB_->value() - way.x(), vSB_->value() - way.y());
}

void fImage::showPaste()
{
    activateWindow();
    iDst_->setFocus();
    QPoint at = iDst_->mapFromGlobal(QCursor::pos());
    if (!iDst_->rect().contains(at)) at = iDst_->rect().center();
    lastPixel_ = pixelAt(at);
    tools_->move(Tools::NoButton, lastPixel_.x(), lastPixel_.y());
}

void fImage::restPaste()
{
    if (!frame_.toolStores().pastePending) return;
    tools_->deactivated();
    UpdateImage();
    lastPixel_ = {-1, -1};
}

bool fImage::dropGesture() { return tools_->drop(); }

void fImage::toolChosen() { tools_->toolChosen(); }

} // namespace velara
