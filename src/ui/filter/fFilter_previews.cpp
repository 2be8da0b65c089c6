// fFilter: the pictures before and after, and the detail that shows the result at 1:1.
#include "document/Document.h"
#include "ui/filter/fFilter.h"
#include "ui/widgets/fPicture.h"
#include "ui/widgets/fPicturePage.h"
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

namespace velara {

namespace {

QLabel* heading(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

QWidget* fFilter::makePreviews()
{
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    const bool picks = has(row_.extras, FilterExtra::PickCentre | FilterExtra::PickColour);
    const QString before = has(row_.extras, FilterExtra::PickCentre)   ? tr("Before: click to place the center")
                           : has(row_.extras, FilterExtra::PickColour) ? tr("Before: click to pick a color")
                                                                       : tr("Before");
    grid->addWidget(heading(before, box), 0, 0);
    grid->addWidget(heading(tr("After"), box), 0, 1);
    iSrc_ = new fPicture(QStringLiteral("iSrc"), before, kPreviewBox + QSize(2, 2), box);
    iDst_ = new fPicture(QStringLiteral("iDst"), tr("After"), kPreviewBox + QSize(2, 2), box);
    grid->addWidget(iSrc_, 1, 0);
    grid->addWidget(iDst_, 1, 1);
    iSrc_->setBits(preview_.source());
    iSrc_->setPickable(picks && !preview_.source().isNull());
    if (has(row_.extras, FilterExtra::PickCentre))
        iSrc_->setMarker(QPointF(centre_.x() * preview_.source().width(), centre_.y() * preview_.source().height()));
    if (picks) connect(iSrc_, &fPicture::pressed, this, &fFilter::picked);
    if (preview_.source().width() != picture_.width() || preview_.source().height() != picture_.height())
        addDetail(grid);
    return box;
}

void fFilter::addDetail(QGridLayout* grid)
{
    detail_ = new fPicturePage({"iDetailBack", "iDetail", "hDetail", "vDetail"}, tr("After, pixel for pixel"));
    detail_->setFixedSize(kDetailBox);
    detail_->setToolTip(tr("Drag it, or click in a picture beside it, to see another part"));
    detail_->setBits(picture_);
    grid->addWidget(heading(QStringLiteral("1:1"), this), 0, 2);
    grid->addWidget(detail_, 1, 2);
    connect(detail_, &fPicturePage::scrolled, this, &fFilter::frameDetail);
    for (fPicture* picture : {iSrc_, iDst_}) {
        if (picture == iSrc_ && has(row_.extras, FilterExtra::PickCentre | FilterExtra::PickColour)) continue;
        picture->setPickable(true);
        connect(picture, &fPicture::pressed, this, &fFilter::showDetail);
    }
    const auto done = [this](const Bits& result) {
        QMetaObject::invokeMethod(this, [this, result] {
            if (chkPreview_->isChecked()) detail_->setBits(result);
        });
    };
    detailRun_ = std::make_unique<DetailRun>(
        [&row = row_](cBitFilter& filter, const FilterArgs& args) { return row.call(filter, args); }, picture_,
        document_->Region.working(), done);
}

/// The detail starts at the centre of the filter's region.
void fFilter::showEvent(QShowEvent* event)
{
    const Rect all = preview_.region().bounds();
    showDetail({(all.left + all.right) / 2, (all.top + all.bottom) / 2});
    QDialog::showEvent(event);
}

void fFilter::runDetail()
{
    if (!detailRun_) return;
    if (chkPreview_->isChecked()) return detailRun_->start(arguments());
    detailRun_->stop();
    detail_->setBits(picture_);
}

double fFilter::previewScale() const { return double(preview_.source().width()) / picture_.width(); }

void fFilter::showDetail(QPoint previewPixel)
{
    if (!detail_) return;
    detail_->showInMiddle(QPointF(previewPixel) / previewScale());
    frameDetail();
}

void fFilter::frameDetail()
{
    const QRectF shown = detail_->shown();
    const double scale = previewScale();
    iDst_->setFrame(QRectF(shown.topLeft() * scale, shown.size() * scale));
}

} // namespace velara
