#include "ui/widgets/marks/FocusRing.h"
#include "ui/widgets/marks/contrast.h"
#include <QApplication>
#include <QCheckBox>
#include <QFocusEvent>
#include <QMenuBar>
#include <QPainter>
#include <QRadioButton>
#include <QTabBar>
#include <QTimer>

namespace velara {

namespace {

constexpr int kWidth = 2, kBeside = 2; // pixels of the line; how far outside of the control

class Ring final : public QWidget {
  public:
    explicit Ring(QWidget* window) : QWidget(window)
    {
        setObjectName(QStringLiteral("focusRing"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

  protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), focusColour(palette()));
    }
    void resizeEvent(QResizeEvent*) override
    {
        setMask(QRegion(rect()) - QRegion(rect().adjusted(kWidth, kWidth, -kWidth, -kWidth)));
    }
};

/// The part of a control that has the focus: check boxes are often as wide as their column, and of tabs it is one.
QRect focusedPart(const QWidget& control)
{
    if (const auto* tabs = qobject_cast<const QTabBar*>(&control)) return tabs->tabRect(tabs->currentIndex());
    const bool isBox = qobject_cast<const QCheckBox*>(&control) || qobject_cast<const QRadioButton*>(&control);
    if (!isBox) return control.rect();
    const int width = std::min(control.width(), control.sizeHint().width());
    return QStyle::visualRect(control.layoutDirection(), control.rect(), {0, 0, width, control.height()});
}

/// A ring of the control's in its window, cut where the windows around it end.
QRect ringOf(const QWidget& control)
{
    const QWidget& window = *control.window();
    const QRect part = focusedPart(control).translated(control.mapTo(&window, QPoint()));
    QRect room = window.rect();
    for (const QWidget* around = control.parentWidget(); around && around != &window; around = around->parentWidget())
        room &= QRect(around->mapTo(&window, QPoint()), around->size()).adjusted(-kBeside, -kBeside, kBeside, kBeside);
    return part.adjusted(-kBeside, -kBeside, kBeside, kBeside) & room;
}

} // namespace

FocusRing::FocusRing() { qApp->installEventFilter(this); }

FocusRing::~FocusRing() { delete ring_; }

void FocusRing::surround(QWidget* control)
{
    control_ = qobject_cast<QMenuBar*>(control) ? nullptr : control; // the item that is open shows itself
    if (ring_ && (!control_ || ring_->parentWidget() != control_->window())) delete ring_;
    place();
}

/// Not before what is under way has ended: a window is laid out in several steps.
void FocusRing::place()
{
    if (!control_ || !control_->isVisible() || control_->isWindow()) {
        if (ring_) ring_->hide();
        return;
    }
    if (!ring_) ring_ = new Ring(control_->window());
    ring_->setGeometry(ringOf(*control_));
    ring_->raise();
    ring_->show();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
        byKeys_ = true;
        break;
    case QEvent::MouseButtonPress:
        byKeys_ = false;
        if (control_) surround(nullptr);
        break;
    case QEvent::FocusIn: {
        if (watched != QApplication::focusWidget()) break;
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        const bool isReached =
            reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
        if (reason != Qt::MouseFocusReason && reason != Qt::PopupFocusReason)
            surround(isReached || byKeys_ ? static_cast<QWidget*>(watched) : nullptr);
        break;
    }
    case QEvent::FocusOut:
        if (watched == control_ && static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
            surround(nullptr);
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        if (auto* moved = qobject_cast<QWidget*>(watched);
            moved && control_ && (moved == control_ || moved->isAncestorOf(control_)))
            QTimer::singleShot(0, this, &FocusRing::place);
        break;
    default:
        break;
    }
    return false;
}

} // namespace velara
