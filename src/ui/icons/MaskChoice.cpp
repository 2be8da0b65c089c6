#include "ui/icons/MaskChoice.h"
#include "ui/widgets/fColorButton.h"
#include <QBoxLayout>
#include <QCheckBox>

namespace velara {

namespace {

constexpr Colour kUsualMask = 0xC0C0C0; // light grey, a traditional background of icons

} // namespace

MaskChoice::MaskChoice(Frame& frame, const QString& check, const QString& caption)
    : check_(new QCheckBox(caption)), well_(new fColorButton(frame, check + "Color", tr("Mask color"), this))
{
    check_->setObjectName(check);
    check_->setToolTip(tr("What has this color becomes transparent"));
    well_->setColour(kUsualMask);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(check_);
    row->addWidget(well_);
    row->addStretch();
    connect(check_, &QCheckBox::toggled, this, &MaskChoice::changed);
    connect(well_, &fColorButton::colourChanged, this, [this] {
        if (check_->isChecked()) emit changed();
    });
}

std::optional<Colour> MaskChoice::mask() const
{
    return check_->isChecked() ? std::optional(well_->colour()) : std::nullopt;
}

void MaskChoice::setMask(Colour colour)
{
    well_->setColour(colour);
    check_->setChecked(true);
}

} // namespace velara
