#include "app/frame/fHover.h"
#include "platform/desktop/front.h"
#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QScreen>

namespace velara {

fHover::fHover(QWidget* button, std::function<QWidget*()> make)
    : QObject(button), button_(button), make_(std::move(make)), t_t_(this), t_p_(this), look_(this)
{
    t_t_.setInterval(200);
    t_p_.setInterval(500);
    look_.setInterval(250);
    for (QTimer* once : {&t_t_, &t_p_}) once->setSingleShot(true);
    connect(&t_t_, &QTimer::timeout, &t_p_, qOverload<>(&QTimer::start));
    connect(&t_p_, &QTimer::timeout, this, &fHover::show);
    connect(&look_, &QTimer::timeout, this, &fHover::closeIfLeft);
    button->installEventFilter(this);
}

bool fHover::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
        t_t_.start();
        break;
    case QEvent::ToolTip:
        return true;
    case QEvent::Leave:
    case QEvent::MouseButtonPress:
        t_t_.stop();
        t_p_.stop();
        break;
    default:
        break;
    }
    return false;
}

QRect fHover::onScreen(const QWidget* widget) const { return {widget->mapToGlobal(QPoint()), widget->size()}; }

void fHover::show()
{
    if (pane_ || !button_->isVisible() || QApplication::activeModalWidget() || QApplication::activePopupWidget())
        return;
    static QPointer<QWidget> last; // that of another button
    if (last) last->close();
    last = pane_ = make_();
    if (!pane_) return;
    place();
    pane_->show();
    look_.start();
}

/// Where windows can't be placed the pane is a part of the button's window.
void fHover::place()
{
    constexpr int kApart = 4;
    QWidget* const window = button_->window();
    if (!windowsCanBePlaced()) {
        pane_->setParent(window, Qt::Widget);
        pane_->setAttribute(Qt::WA_NoMousePropagation);
        pane_->setAutoFillBackground(true);
        pane_->raise();
    }
    pane_->adjustSize();
    const QRect buttons = onScreen(button_->parentWidget());
    QRect at(QPoint(buttons.right() + kApart, onScreen(button_).top()), pane_->size());
    const QRect all = pane_->isWindow() ? button_->screen()->availableGeometry() : onScreen(window);
    if (at.right() > all.right()) at.moveRight(buttons.left() - kApart);
    at.moveBottom(std::min(at.bottom(), all.bottom()));
    pane_->move(pane_->isWindow() ? at.topLeft() : window->mapFromGlobal(at.topLeft()));
}

/// The pointer counts as near on the button, on the pane, and between them. Over another program's window its place is
/// not known everywhere.
void fHover::closeIfLeft()
{
    constexpr int kNear = 16;
    if (!pane_) return look_.stop();
    const QRect button = onScreen(button_), pane = onScreen(pane_);
    const QRect way = button | QRect(pane.left(), button.top(), 1, button.height());
    const bool isKnown = pane_->isWindow() || button_->window()->underMouse();
    const bool near =
        way.contains(QCursor::pos()) || pane.adjusted(-kNear, -kNear, kNear, kNear).contains(QCursor::pos());
    if ((near && isKnown) || QApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget() ||
        QApplication::activeModalWidget())
        return;
    look_.stop();
    pane_->close();
}

} // namespace velara
