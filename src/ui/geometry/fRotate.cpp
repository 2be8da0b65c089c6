#include "ui/geometry/fRotate.h"
#include "commands/recipe/stepText.h"
#include "document/resizing.h"
#include "ui/widgets/fPicture.h"
#include <QIntValidator>
#include <QLabel>
#include <QPushButton>
#include <cmath>

namespace velara {

namespace {

constexpr int kBox = 200, kLimit = 180;

/// A box in which a picture of that shape can turn.
QSize turningBox(const Bits& picture)
{
    const double diagonal = std::hypot(picture.width(), picture.height());
    const double scale = std::min(1.0, kBox / diagonal);
    return {std::max(int(picture.width() * scale), 1), std::max(int(picture.height() * scale), 1)};
}

} // namespace

fRotate::fRotate(Platform& platform, const Bits& picture, QWidget* parent)
    : fGeometry("fRotate", tr("Rotate"), platform, parent), picture_(fittingCopy(picture, turningBox(picture))),
      degrees_(named(new QSlider(Qt::Horizontal), "sbDegrees", tr("Degrees"))),
      text_(named(new QLineEdit("0"), "txtDegrees", tr("Degrees"))),
      smooth_(named(new QCheckBox(tr("&Antialiasing")), "chkAntialiasing", tr("Antialiasing"))),
      preview_(new fPicture("iSrc", tr("Preview"), {kBox, kBox}))
{
    degrees_->setRange(-kLimit, kLimit);
    degrees_->setPageStep(15);
    degrees_->setTickInterval(45);
    degrees_->setTickPosition(QSlider::TicksBelow);
    degrees_->setMinimumWidth(180);
    text_->setValidator(new QIntValidator(-kLimit, kLimit, text_));
    text_->setFixedWidth(text_->fontMetrics().horizontalAdvance("-00000") + 16);
    text_->setAlignment(Qt::AlignRight);
    smooth_->setChecked(true);
    auto* more = named(new QPushButton("+ 45º"), "cmd45_0", tr("45 degrees more"));
    auto* less = named(new QPushButton("- 45º"), "cmd45_1", tr("45 degrees less"));
    for (QPushButton* button : {more, less}) button->setAutoDefault(false);

    grid().addWidget(preview_, 0, 0, 6, 1);
    grid().addWidget(degrees_, 0, 1, 1, 2);
    grid().addWidget(text_, 0, 3);
    grid().addWidget(more, 1, 1);
    grid().addWidget(less, 1, 2);
    grid().addWidget(smooth_, 2, 1, 1, 3);
    grid().addWidget(new QLabel(tr("Canvas will be resized")), 3, 1, 1, 3);
    grid().setRowStretch(5, 1);
    addButtons("cmdOK", "cmdCancel");

    connect(degrees_, &QSlider::valueChanged, this, [this](int value) {
        if (text_->text().toInt() != value) text_->setText(QString::number(value));
        showPreview();
    });
    connect(text_, &QLineEdit::textChanged, this, [this](const QString& text) { degrees_->setValue(text.toInt()); });
    connect(more, &QPushButton::clicked, this, [this] { turnBy(45); });
    connect(less, &QPushButton::clicked, this, [this] { turnBy(-45); });
    connect(smooth_, &QCheckBox::toggled, this, &fRotate::showPreview);
    showPreview();
}

/// Wraps around at the half turn.
void fRotate::turnBy(int degrees)
{
    const int sum = degrees_->value() + degrees;
    degrees_->setValue(sum > kLimit ? sum - 2 * kLimit : sum < -kLimit ? sum + 2 * kLimit : sum);
}

Job fRotate::job() const
{
    return [degrees = degrees_->value(), smooth = smooth_->isChecked()](Document& document, cBitFilter& filter) {
        turnOnSquare(document, filter, degrees, smooth);
    };
}

QString fRotate::words() const { return callText("RotateImage", {degrees_->value(), smooth_->isChecked()}); }

void fRotate::showPreview() { preview_->showWhole(tried(picture_, job())); }

} // namespace velara
