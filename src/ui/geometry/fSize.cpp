#include "ui/geometry/fSize.h"
#include "commands/recipe/stepText.h"
#include "document/resizing.h"
#include "pixels/mBitmap.h"
#include "pixels/numbers.h"
#include "ui/widgets/fPicture.h"
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSignalBlocker>
#include <algorithm>

namespace velara {

namespace {

constexpr struct Quick {
    const char* entry;
    double factor;
} kQuick[] = {{"1.5 *", 1.5}, {"2.0 *", 2.0}, {"1.5 /", 1 / 1.5}, {"2.0 /", 1 / 2.0}};

int part(int length, double percent) { return roundEven(length * percent / 100); }

} // namespace

fSize::fSize(Platform& platform, const Bits& picture, QWidget* parent)
    : fGeometry("fSize", tr("Image size"), platform, parent), picture_(fittingCopy(picture, kPreview)),
      size_(picture.width(), picture.height()),
      fields_(new fSizeFields(tr("&Keep proportions"), picture.width(), picture.height(),
                              double(picture.width()) / picture.height())),
      percent_(named(new QDoubleSpinBox, "txtPercent", tr("Percent"))),
      smooth_(named(new QCheckBox(tr("&Anti-Alias")), "chkInterpolate", tr("Anti-Alias"))),
      preview_(new fPicture("iSrc", tr("Preview"), kPreview))
{
    auto* quickList = named(new QComboBox, "cbPreDef", tr("Quick"));
    for (const Quick& q : kQuick) quickList->addItem(q.entry);
    quickList->setCurrentIndex(-1);
    quickList->setPlaceholderText(tr("Choose a factor"));
    auto* label = new QLabel(tr("Quick"));
    label->setBuddy(quickList);
    percent_->setRange(0.1, 10000);
    percent_->setDecimals(1);
    percent_->setSuffix(" %");
    percent_->setValue(100);
    auto* percentLabel = new QLabel(tr("&Percent"));
    percentLabel->setBuddy(percent_);

    grid().addWidget(preview_, 0, 0, 5, 1);
    grid().addWidget(fields_, 0, 1, 1, 2);
    grid().addWidget(percentLabel, 1, 1);
    grid().addWidget(percent_, 1, 2);
    grid().addWidget(label, 2, 1);
    grid().addWidget(quickList, 2, 2);
    grid().addWidget(smooth_, 3, 1, 1, 2);
    grid().setRowStretch(4, 1);
    smooth_->setChecked(true);
    addButtons("cmdOK", "cmdCancel");

    connect(quickList, &QComboBox::textActivated, this, &fSize::quick);
    connect(percent_, &QDoubleSpinBox::valueChanged, this,
            [this](double percent) { fields_->set(part(size_.width(), percent), part(size_.height(), percent)); });
    connect(fields_, &fSizeFields::changed, this, &fSize::showPercent);
    connect(fields_, &fSizeFields::changed, this, &fSize::showPreview);
    connect(smooth_, &QCheckBox::toggled, this, &fSize::showPreview);
    showPreview();
}

void fSize::quick(const QString& entry)
{
    const auto* q = std::ranges::find_if(kQuick, [&](const Quick& row) { return entry == row.entry; });
    fields_->set(roundEven(fields_->widthValue() * q->factor), roundEven(fields_->heightValue() * q->factor));
}

/// Of the width. One that is being typed stands: the size was made from it.
void fSize::showPercent()
{
    if (part(size_.width(), percent_->value()) == fields_->widthValue()) return;
    const QSignalBlocker quiet(percent_);
    percent_->setValue(100.0 * fields_->widthValue() / size_.width());
}

Job fSize::job() const
{
    return [w = fields_->widthValue(), h = fields_->heightValue(), smooth = smooth_->isChecked()](
               Document& document, cBitFilter& filter) { resizeImage(document, filter, w, h, smooth); };
}

QString fSize::words() const { return resizeText(fields_->widthValue(), fields_->heightValue(), smooth_->isChecked()); }

/// Shows the new shape as large as the box permits; the small copy itself is resized by the command.
void fSize::showPreview()
{
    const int w = fields_->widthValue(), h = fields_->heightValue();
    if (w < 1 || h < 1) return;
    const QSize shown = fitSize({w, h}, kPreview).expandedTo({1, 1});
    const bool smooth = smooth_->isChecked();
    preview_->showWhole(tried(picture_, [=](Document& document, cBitFilter& filter) {
        resizeImage(document, filter, shown.width(), shown.height(), smooth);
    }));
}

} // namespace velara
