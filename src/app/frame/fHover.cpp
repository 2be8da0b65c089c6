#include "app/frame/fHover.h"
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

void fHover::show()
{
    if (pane_ || !button_->isVisible() || QApplication::activeModalWidget() || QApplication::activePopupWidget())
        return;
    pane_ = make_();
    if (!pane_) return;
    constexpr int kBeside = 6; // the button can still be clicked
    pane_->adjustSize();
    QRect at(QCursor::pos() + QPoint(kBeside, kBeside), pane_->size());
    if (const QScreen* screen = button_->screen()) {
        const QRect all = screen->availableGeometry();
        at.moveRight(std::min(at.right(), all.right()));
        at.moveBottom(std::min(at.bottom(), all.bottom()));
    }
    pane_->move(at.topLeft());
    pane_->show();
    look_.start();
}

void fHover::closeIfLeft()
{
    constexpr int kNear = 16;
    if (!pane_) return look_.stop();
    const bool near = pane_->geometry().adjusted(-kNear, -kNear, kNear, kNear).contains(QCursor::pos());
    if (near || QApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget() ||
        QApplication::activeModalWidget())
        return;
    look_.stop();
    pane_->close();
}

} // namespace velara
