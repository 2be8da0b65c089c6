#include "ui/widgets/fPicturePage.h"
#include "ui/widgets/inputs/Spoken.h"
#include "ui/widgets/inputs/named.h"
#include "ui/widgets/viewLayout.h"
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace velara {

namespace {

constexpr int kStep = 16; // screen pixels per arrow key

QScrollBar* barNamed(const char* name, Qt::Orientation direction, const QString& accessibleName)
{
    auto* bar = named(new QScrollBar(direction), QLatin1String(name), accessibleName);
    bar->setSingleStep(kStep);
    return bar;
}

} // namespace

fPicturePage::fPicturePage(const Names& names, const QString& accessibleName, fPicture* canvas, QWidget* parent)
    : QWidget(parent), container_(new QFrame),
      picture_(canvas ? canvas : new fPicture(QLatin1String(names.picture), accessibleName)),
      horizontal_(barNamed(names.horizontal, Qt::Horizontal, tr("%1, left and right").arg(accessibleName))),
      vertical_(barNamed(names.vertical, Qt::Vertical, tr("%1, up and down").arg(accessibleName)))
{
    setLayoutDirection(Qt::LeftToRight); // a picture has no other
    named(container_, QLatin1String(names.container), accessibleName);
    container_->setMinimumSize(64, 64);
    container_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    container_->setAutoFillBackground(true);
    container_->setBackgroundRole(QPalette::Mid);
    container_->installEventFilter(this);
    picture_->setParent(container_);
    named(picture_, QLatin1String(names.picture), accessibleName);
    setFocusPolicy(Qt::StrongFocus);
    setSpokenRole(*this, QAccessible::Pane);
    setAccessibleName(accessibleName);
    setObjectName(QLatin1String(names.container) + QStringLiteral("Page"));

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(container_, 0, 0);
    grid->addWidget(vertical_, 0, 1);
    grid->addWidget(horizontal_, 1, 0);
    grid->setRowStretch(0, 1);
    grid->setColumnStretch(0, 1);
    for (QScrollBar* bar : {horizontal_, vertical_})
        connect(bar, &QScrollBar::valueChanged, this, &fPicturePage::takeScroll);
    connect(picture_, &fPicture::panned, this, [this](QPoint by) { setScroll(scroll() - by); });
    layOut();
}

void fPicturePage::setBits(const Bits& bits)
{
    picture_->setBits(bits);
    layOut();
}

void fPicturePage::setZoom(int zoom)
{
    const Bits& bits = picture_->bits();
    zoom = std::clamp(zoom, leastZoom_, kMostZoom);
    if (bits.isNull() || zoom == picture_->zoom() || !zoomFits(bits.width(), bits.height(), zoom)) return;
    const QPoint value = scroll(), most(horizontal_->maximum(), vertical_->maximum());
    picture_->setZoom(zoom);
    layOut();
    setScroll({restoredValue(horizontal_->maximum(), true, float(value.x()), float(most.x())),
               restoredValue(vertical_->maximum(), true, float(value.y()), float(most.y()))});
    if (partner_) partner_->setZoom(zoom);
}

void fPicturePage::setPartner(fPicturePage& partner)
{
    partner_ = &partner;
    partner.partner_ = this;
    partner.setScroll(scroll());
}

QPoint fPicturePage::scroll() const { return {horizontal_->value(), vertical_->value()}; }

void fPicturePage::setScroll(QPoint place)
{
    horizontal_->setValue(place.x());
    vertical_->setValue(place.y());
}

QRectF fPicturePage::shown() const
{
    const QRect all(-picture_->pos(), container_->size());
    const QRect part = all & QRect(QPoint(), picture_->zoomedSize());
    return {QPointF(part.topLeft()) / picture_->scale(), QSizeF(part.size()) / picture_->scale()};
}

void fPicturePage::showInMiddle(QPointF pixel)
{
    const QSize half = container_->size() / 2;
    setScroll((pixel * picture_->scale()).toPoint() - QPoint(half.width(), half.height()));
}

void fPicturePage::follow(const Rect& pixels)
{
    const auto to = [scale = picture_->scale()](const QScrollBar* bar, int page, int from, int end) {
        return std::min(std::max(bar->value(), int(end * scale) + kStep - page), int(from * scale) - kStep);
    };
    setScroll({to(horizontal_, container_->width(), pixels.left, pixels.right),
               to(vertical_, container_->height(), pixels.top, pixels.bottom)});
}

void fPicturePage::zoomToFit()
{
    const Bits& bits = picture_->bits();
    if (bits.isNull()) return;
    const int times = std::min(container_->width() / bits.width(), container_->height() / bits.height());
    const auto parts = [](int pixels, int room) { return (pixels + room - 1) / std::max(room, 1); };
    const int part = std::max(parts(bits.width(), container_->width()), parts(bits.height(), container_->height()));
    setZoom(times > 0 ? times : 2 - part);
}

void fPicturePage::layOut()
{
    const QSize shown = picture_->zoomedSize();
    const PageAxis across = pageAxis(container_->width(), shown.width(), horizontal_->value());
    const PageAxis down = pageAxis(container_->height(), shown.height(), vertical_->value());
    const auto set = [](QScrollBar* bar, const PageAxis& axis, int page) {
        const QSignalBlocker quiet(bar);
        bar->setRange(0, axis.maximum);
        bar->setPageStep(std::max(page, 1));
        bar->setValue(axis.value);
        bar->setEnabled(axis.maximum > 0);
    };
    set(horizontal_, across, container_->width());
    set(vertical_, down, container_->height());
    picture_->setGeometry({{across.place, down.place}, shown});
    picture_->setPannable(across.maximum > 0 || down.maximum > 0);
}

void fPicturePage::takeScroll()
{
    layOut();
    if (partner_ && !follows_) {
        partner_->follows_ = true;
        partner_->setScroll(scroll());
        partner_->follows_ = false;
    }
    emit scrolled();
}

bool fPicturePage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == container_ && event->type() == QEvent::Resize) layOut();
    return QWidget::eventFilter(watched, event);
}

void fPicturePage::wheelEvent(QWheelEvent* event)
{
    const QPoint turned = event->angleDelta();
    if (event->modifiers() & Qt::ControlModifier) {
        if (turned.y() != 0) setZoom(picture_->zoom() + (turned.y() > 0 ? 1 : -1));
    } else {
        const QPoint by = turned * (3 * kStep) / QWheelEvent::DefaultDeltasPerStep;
        setScroll(scroll() - (event->modifiers() & Qt::ShiftModifier ? by.transposed() : by));
    }
    event->accept();
}

void fPicturePage::keyPressEvent(QKeyEvent* event)
{
    const struct {
        int key;
        QPoint by;
    } moves[] = {{Qt::Key_Left, {-kStep, 0}},
                 {Qt::Key_Right, {kStep, 0}},
                 {Qt::Key_Up, {0, -kStep}},
                 {Qt::Key_Down, {0, kStep}},
                 {Qt::Key_PageUp, {0, -vertical_->pageStep()}},
                 {Qt::Key_PageDown, {0, vertical_->pageStep()}}};
    for (const auto& move : moves)
        if (event->key() == move.key) return setScroll(scroll() + move.by);
    if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Minus)
        return setZoom(picture_->zoom() + (event->key() == Qt::Key_Plus ? 1 : -1));
    QWidget::keyPressEvent(event);
}

} // namespace velara
