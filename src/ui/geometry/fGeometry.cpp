#include "ui/geometry/fGeometry.h"
#include "pixels/RuntimeError.h"
#include "pixels/numbers.h"
#include "seams/Platform.h"
#include "ui/widgets/inputs/named.h"
#include <QDialogButtonBox>
#include <QIntValidator>
#include <QLabel>
#include <QPushButton>

namespace velara {

namespace {

/// value as a 16-bit integer, half to even, clamped to 0..32767.
int sixteenBit(double value) { return static_cast<int>(std::clamp(roundToEven(value), 0.0, double(Bits::kMostASide))); }

} // namespace

fGeometry::fGeometry(const QString& name, const QString& title, Platform& platform, QWidget* parent)
    : QDialog(parent), platform_(platform), grid_(new QGridLayout(this))
{
    setObjectName(name);
    setWindowTitle(title);
    setModal(true);
    grid_->setHorizontalSpacing(12);
    grid_->setSizeConstraint(QLayout::SetFixedSize);
}

void fGeometry::addButtons(const QString& okName, const QString& cancelName, const QString& okText,
                           const QString& cancelText)
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    const auto button = [&](QDialogButtonBox::StandardButton which, const QString& name, const QString& text) {
        buttons->button(which)->setObjectName(name);
        if (!text.isEmpty()) buttons->button(which)->setText(text);
    };
    button(QDialogButtonBox::Ok, okName, okText);
    button(QDialogButtonBox::Cancel, cancelName, cancelText);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    grid_->addWidget(buttons, grid_->rowCount(), 0, 1, std::max(grid_->columnCount(), 1));
}

void fGeometry::accept()
{
    if (valid()) QDialog::accept();
}

bool fGeometry::sizeAllowed(int width, int height) const
{
    const auto refused = [this](const QString& why) {
        platform_.tell(why);
        return false;
    };
    if (width < 2 || height < 2) return refused(tr("Minimum size: 2 x 2"));
    if (!Bits::sizeAllowed(width, height)) return refused(tr("Maximum size: 256 megapixels"));
    return true;
}

Bits fGeometry::tried(const Bits& picture, const Job& job)
{
    Document copy({}, 0);
    copy.takePicture(picture);
    cBitFilter filter;
    copy.handTo(filter);
    try {
        job(copy, filter);
    } catch (const RuntimeError&) {
        return picture;
    }
    return copy.bits();
}

fSizeFields::fSizeFields(const QString& proportionsCaption, int width, int height, double ratio, QWidget* parent)
    : QWidget(parent), width_(new QLineEdit), height_(new QLineEdit), keep_(new QCheckBox(proportionsCaption)),
      ratio_(ratio)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto field = [&](QLineEdit* edit, const char* name, const QString& caption, int row) {
        named(edit, name, caption);
        edit->setMaxLength(5);
        edit->setValidator(new QIntValidator(0, Bits::kMostASide, edit));
        edit->setFixedWidth(edit->fontMetrics().horizontalAdvance("000000") + 24);
        edit->setAlignment(Qt::AlignRight);
        auto* label = new QLabel(caption);
        label->setBuddy(edit);
        grid->addWidget(label, row, 0);
        grid->addWidget(edit, row, 1);
        connect(edit, &QLineEdit::textChanged, this, [this, edit] { edited(edit); });
    };
    field(width_, "txtW", tr("Width"), 0);
    field(height_, "txtH", tr("Height"), 1);
    named(keep_, "chkKeepProportions", tr("Keep proportions"));
    keep_->setChecked(ratio > 0);
    grid->addWidget(keep_, 2, 0, 1, 2);
    connect(keep_, &QCheckBox::toggled, this, [this, ofPicture = ratio > 0](bool on) {
        if (on && !ofPicture && heightValue() > 0) ratio_ = double(widthValue()) / heightValue();
    });
    set(width, height);
}

void fSizeFields::set(int width, int height)
{
    guard_ = true;
    width_->setText(QString::number(std::clamp(width, 0, Bits::kMostASide)));
    height_->setText(QString::number(std::clamp(height, 0, Bits::kMostASide)));
    guard_ = false;
    emit changed();
}

void fSizeFields::edited(QLineEdit* field)
{
    if (guard_) return;
    guard_ = true;
    if (field->text().isEmpty()) {
        field->setText("0");
        field->selectAll(); // so that the next digit replaces it
    }
    if (keep_->isChecked() && ratio_ > 0) {
        if (field == width_)
            height_->setText(QString::number(sixteenBit(widthValue() / ratio_)));
        else
            width_->setText(QString::number(sixteenBit(heightValue() * ratio_)));
    }
    guard_ = false;
    emit changed();
}

} // namespace velara
