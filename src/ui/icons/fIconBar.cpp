#include "ui/icons/fIconBar.h"
#include "seams/sizeText.h"
#include "ui/icons/fIconMaker.h"
#include "ui/widgets/fPicture.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <iterator>

namespace velara {

namespace {

constexpr int kSides[] = {16, 32, 48, 64};
constexpr int kPreview = 128; // pixels per side
constexpr int kMargin = 12;   // from the corner of the screen

} // namespace

fIconBar::fIconBar(fIconMaker& maker, QWidget* parent)
    : QFrame(parent), picD_(new fPicture("picD", tr("What is in the frame, magnified"), QSize(kPreview, kPreview))),
      lblcount_(new QLabel)
{
    setObjectName("fIconMaker");
    setWindowTitle(tr("Icon Maker"));
    setAccessibleName(windowTitle());
    setFrameStyle(QFrame::Panel | QFrame::Raised);
    setAutoFillBackground(true);
    setCursor(Qt::SizeAllCursor);
    auto* title = new QLabel(windowTitle());
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    auto* help = new QLabel(tr("Drag the frame over the picture.\nArrow keys move it by a pixel."));
    named(lblcount_, "lblcount", tr("Icons taken"));
    auto* counter = new QHBoxLayout;
    counter->addWidget(new QLabel(tr("Icons taken:")));
    counter->addWidget(lblcount_, 1);
    QWidget* bar = makeToolbar(maker);
    auto* column = new QVBoxLayout(this);
    column->addWidget(title);
    column->addWidget(bar);
    column->addWidget(picD_, 0, Qt::AlignHCenter);
    column->addLayout(counter);
    column->addWidget(help);
    showSide(kSides[std::size(kSides) - 1]);
    bar->setMinimumWidth(bar->sizeHint().width());
    adjustSize();
    QWidget::move(kMargin, kMargin);
}

QWidget* fIconBar::makeToolbar(fIconMaker& maker)
{
    auto* bar = named(new QToolBar, "tb");
    bar->setCursor(Qt::ArrowCursor);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto add = [bar](int number, const char* icon, const QString& caption, const QString& tip) {
        QAction* action = bar->addAction(QIcon::fromTheme(QLatin1String(icon)), caption);
        action->setToolTip(tip);
        QWidget* button = bar->widgetForAction(action);
        named(button, QString("tb_%1").arg(number), tip);
        button->setFocusPolicy(Qt::NoFocus); // the focus stays with the frame
        return action;
    };
    size_ = add(1, "transform-scale", {}, tr("Size of the icon: + and -"));
    auto* menu = named(new QMenu(bar), "tb_1_menu");
    for (const int side : kSides) {
        QAction* entry = menu->addAction(sizeText({side, side}));
        entry->setObjectName(QString("tb_1_%1").arg(sizes_.size() + 1));
        entry->setData(side);
        connect(entry, &QAction::triggered, &maker, [&maker, side] { maker.setSide(side); });
        sizes_ << entry;
    }
    size_->setMenu(menu);
    static_cast<QToolButton*>(bar->widgetForAction(size_))->setPopupMode(QToolButton::InstantPopup);
    bar->addSeparator();
    connect(add(3, "camera-photo", tr("Take"), tr("Take the icon: Enter")), &QAction::triggered, &maker,
            &fIconMaker::take);
    bar->addSeparator();
    connect(add(5, "window-close", tr("Close"), tr("Back to the icon extractor: Esc")), &QAction::triggered, &maker,
            &ScreenCover::leave);
    return bar;
}

void fIconBar::showCutOut(const Bits& cutOut)
{
    picD_->setBits(cutOut);
    picD_->setZoom(std::max(1, kPreview / std::max(cutOut.width(), 1)));
}

void fIconBar::showCount(int count) { lblcount_->setText(QString::number(count)); }

void fIconBar::showSide(int side)
{
    for (QAction* entry : sizes_) entry->setEnabled(entry->data() != side);
    size_->setText(sizeText({side, side}));
}

void fIconBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) held_ = event->position().toPoint();
}

void fIconBar::mouseMoveEvent(QMouseEvent* event)
{
    if (!held_) return;
    const QPoint corner = mapToParent(event->position().toPoint() - *held_),
                 room(parentWidget()->width() - width(), parentWidget()->height() - height());
    QWidget::move(std::clamp(corner.x(), 0, std::max(room.x(), 0)), std::clamp(corner.y(), 0, std::max(room.y(), 0)));
}

void fIconBar::mouseReleaseEvent(QMouseEvent*) { held_.reset(); }

} // namespace velara
