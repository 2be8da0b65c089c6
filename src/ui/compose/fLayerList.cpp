#include "ui/compose/fLayerList.h"
#include "pixels/images.h"
#include "platform/desktop/dialogs/ThumbnailIcons.h"
#include "ui/widgets/fPicture.h"
#include "ui/widgets/inputs/named.h"
#include <QCheckBox>
#include <QCoreApplication>
#include <QEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace velara {

namespace {

constexpr QSize kThumbnail{104, 34};

} // namespace

fLayerList::fLayerList(const Layers& layers, QWidget* parent)
    : QWidget(parent), layers_(layers), picLC_(new QWidget), picL_(new QWidget(picLC_)),
      VV_(new QScrollBar(Qt::Vertical)), column_(new QVBoxLayout(picL_))
{
    picLC_->setObjectName(QStringLiteral("picLC"));
    picLC_->setFixedWidth(kThumbnail.width() + 52);
    picLC_->installEventFilter(this);
    named(picL_, "picL", tr("Texts"));
    named(VV_, "VV", tr("Texts, up and down"));
    column_->setContentsMargins(4, 4, 4, 4);
    column_->setSpacing(4);
    connect(VV_, &QScrollBar::valueChanged, this, [this](int value) { picL_->move(0, -value); });
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(picLC_);
    row->addWidget(VV_);
    UpdateLayerScroll();
}

void fLayerList::add(int index)
{
    auto* box = new QWidget;
    auto* BT = named(new QCheckBox, QStringLiteral("BT_%1").arg(index));
    BT->setChecked(true);
    connect(BT, &QCheckBox::toggled, this, [this, index](bool on) { emit shown(index, on); });
    auto* pT = named(new QToolButton, QStringLiteral("pT_%1").arg(index));
    pT->setIconSize(kThumbnail);
    pT->setCheckable(true);
    pT->setAutoRaise(true);
    connect(pT, &QToolButton::clicked, this, [this, index] { emit chosen(index); });
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addWidget(BT);
    row->addWidget(pT, 1);
    column_->insertWidget(static_cast<int>(std::distance(rows_.begin(), rows_.lower_bound(index))), box);
    box->show();
    rows_[index] = {box, BT, pT};
    refresh(index);
    UpdateLayerScroll();
    if (index == rows_.rbegin()->first) VV_->setValue(VV_->maximum());
}

void fLayerList::remove(int index)
{
    delete rows_.at(index).box;
    rows_.erase(index);
    UpdateLayerScroll();
}

void fLayerList::select(int index)
{
    for (const auto& [each, row] : rows_) row.pT->setChecked(each == index);
    const auto found = rows_.find(index);
    if (found == rows_.end()) return;
    const QWidget* box = found->second.box;
    if (box->y() < VV_->value()) VV_->setValue(box->y());
    if (box->y() + box->height() > VV_->value() + picLC_->height())
        VV_->setValue(box->y() + box->height() - picLC_->height());
}

void fLayerList::refresh(int index)
{
    const Row& row = rows_.at(index);
    const QString text = layers_.layer(index).text.simplified().left(60);
    const QSignalBlocker quiet(row.BT);
    row.BT->setChecked(layers_.layer(index).shown);
    row.pT->setAccessibleName(text.isEmpty() ? tr("Empty text") : text);
    row.pT->setToolTip(row.pT->accessibleName());
    row.BT->setAccessibleName(tr("Show %1").arg(row.pT->accessibleName()));
    const Bits small = fittingCopy(layers_.surface(index), 2 * kThumbnail);
    row.pT->setIcon(thumbnailIcon(imageOver(small), kThumbnail));
}

void fLayerList::UpdateLayerScroll()
{
    column_->activate();
    picL_->resize(picLC_->width(), column_->sizeHint().height());
    VV_->setRange(0, std::max(0, picL_->height() - picLC_->height()));
    VV_->setPageStep(std::max(1, picLC_->height()));
    VV_->setSingleStep(kThumbnail.height());
    VV_->setEnabled(VV_->maximum() > 0);
    picL_->move(0, -VV_->value());
}

bool fLayerList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) UpdateLayerScroll();
    if (event->type() == QEvent::Wheel) return QCoreApplication::sendEvent(VV_, event);
    return QWidget::eventFilter(watched, event);
}

} // namespace velara
