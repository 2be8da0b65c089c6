#include "ui/printing/fOwnSize.h"
#include "commands/printing.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSignalBlocker>

namespace velara {

namespace {

constexpr double kLeast = 0.001; // of the natural size
constexpr double kStep = 0.1;    // of the last decimal

} // namespace

fOwnSize::fOwnSize(QSize picture)
    : chkOwnSize_(named(new QCheckBox(tr("&Own size")), "chkOwnSize")),
      boxes_{makeBox("sbWidth", tr("Printed width"), tr(" mm"), naturalSize(picture).width()),
             makeBox("sbHeight", tr("Printed height"), tr(" mm"), naturalSize(picture).height()),
             makeBox("sbPercent", tr("Printed size in percent"), tr(" %"), 100)}
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(chkOwnSize_);
    auto* row = new QHBoxLayout;
    row->addWidget(boxes_[0].field);
    row->addWidget(new QLabel("x"));
    row->addWidget(boxes_[1].field);
    row->addSpacing(8);
    row->addWidget(boxes_[2].field);
    row->addStretch();
    column->addLayout(row);
    connect(chkOwnSize_, &QCheckBox::toggled, this, &fOwnSize::changed);
}

fOwnSize::Box fOwnSize::makeBox(const char* name, const QString& caption, const QString& unit, double natural)
{
    auto* field = named(new QDoubleSpinBox, name, caption);
    field->setDecimals(1);
    field->setSuffix(unit);
    field->setAlignment(Qt::AlignRight);
    connect(field, &QDoubleSpinBox::valueChanged, this, [this, natural](double value) {
        wish_ = std::max(value / natural, kLeast);
        emit changed();
    });
    return {field, natural};
}

double fOwnSize::scale() const { return chkOwnSize_->isChecked() ? wish_ : 0; }

void fOwnSize::turnOff() { chkOwnSize_->setChecked(false); }

void fOwnSize::showScale(double scale, double most)
{
    const bool on = chkOwnSize_->isChecked();
    if (!on) wish_ = scale; // where the user begins
    for (const auto& [field, natural] : boxes_) {
        const QSignalBlocker quiet(field);
        const double largest = most * natural;
        field->setEnabled(on);
        if (std::abs(field->maximum() - largest) >= kStep / 2) field->setRange(std::min(kStep, largest), largest);
        if (std::abs(field->value() - scale * natural) >= kStep / 2)
            field->setValue(scale * natural); // else it is typed
    }
}

} // namespace velara
