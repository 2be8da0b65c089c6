#include "ui/icons/fIconPicture.h"
#include "document/road/Frame.h"
#include "fileio/writers/iconFile.h"
#include "seams/Platform.h"
#include "seams/printable.h"
#include "ui/icons/MaskChoice.h"
#include "ui/widgets/fPicture.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

namespace velara {

namespace {

struct SizeRow {
    const char *name, *caption;
    int side;
};
constexpr int kEntered = 0, kTogether = -1; // instead of a side
constexpr SizeRow kSizes[] = {{"o16", "16 x 16", 16},
                              {"o32", "32 x 32", 32},
                              {"o64", "64 x 64", 64},
                              {"ocustom", QT_TRANSLATE_NOOP("velara::fIconPicture", "Custom"), kEntered},
                              {"oall", QT_TRANSLATE_NOOP("velara::fIconPicture", "16 to 256 in one &file"), kTogether}};
constexpr int kUsual = 1;           // of kSizes
constexpr QSize kPreview{256, 256}; // the largest icon at its own size
constexpr int kCheck = 8;           // side of the squares behind transparent pixels, in the preview
constexpr std::uint8_t kChecks[] = {255, 208};

/// The icon over squares of white and grey. zoom: of the preview.
Bits overChecks(const QImage& icon, int zoom)
{
    Bits shown(icon.width(), icon.height());
    for (int y = 0; y < icon.height(); ++y)
        for (int x = 0; x < icon.width(); ++x) {
            const QRgb pixel = icon.pixel(x, y);
            const int ground = kChecks[(x * zoom / kCheck + y * zoom / kCheck) % 2], opacity = qAlpha(pixel);
            const auto over = [=](int part) { return std::uint8_t(ground + (part - ground) * opacity / 255); };
            shown.at(x, y) = {{over(qBlue(pixel)), over(qGreen(pixel)), over(qRed(pixel)), 0}};
        }
    return shown;
}

} // namespace

fIconPicture::fIconPicture(Frame& frame)
    : QGroupBox(tr("Select Required Options")), frame_(frame), Iw_(new QLineEdit), Ih_(new QLineEdit),
      mask_(new MaskChoice(frame, "CMask", tr("Use &Mask Color"))),
      Ipic_(new fPicture("Ipic", tr("Icon Preview"), kPreview)), state_(new QLabel),
      CmdSave_(new QPushButton(tr("&Save As")))
{
    setObjectName("Frame1");
    auto* row = new QHBoxLayout(this);
    row->addWidget(makeChoices(), 1);
    row->addWidget(makePreview());
    connect(mask_, &MaskChoice::changed, this, &fIconPicture::makeIcon);
    connect(Ipic_, &fPicture::pressed, this, &fIconPicture::pickMask);
    connect(CmdSave_, &QPushButton::clicked, this, &fIconPicture::save);
    setPicture({});
}

QWidget* fIconPicture::makeChoices()
{
    auto* choices = new QWidget;
    auto* column = new QVBoxLayout(choices);
    column->setContentsMargins(0, 0, 0, 0);
    for (const SizeRow& row : kSizes) {
        auto* option = named(new QRadioButton(tr(row.caption)), row.name);
        connect(option, &QRadioButton::clicked, this, [this, side = row.side] { chooseSide(side); });
        column->addWidget(option);
        sizes_ << option;
    }
    auto* numbers = new QGridLayout;
    int line = 0;
    for (const auto& [box, name, caption] : {std::tuple{Iw_, "Iw", tr("&Width")}, {Ih_, "Ih", tr("&Height")}}) {
        box->setObjectName(name);
        box->setMaxLength(9);
        box->setFixedWidth(70);
        auto* label = new QLabel(caption);
        label->setBuddy(box);
        numbers->addWidget(label, line, 0);
        numbers->addWidget(box, line++, 1);
        connect(box, &QLineEdit::textChanged, this, &fIconPicture::makeIcon);
    }
    numbers->setColumnStretch(2, 1);
    column->addLayout(numbers);
    column->addWidget(mask_);
    state_->setObjectName("lblState");
    state_->setWordWrap(true);
    column->addWidget(state_);
    column->addStretch();
    CmdSave_->setObjectName("CmdSave");
    CmdSave_->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(CmdSave_);
    buttons->addStretch();
    column->addLayout(buttons);
    return choices;
}

QWidget* fIconPicture::makePreview()
{
    auto* preview = new QWidget;
    auto* column = new QVBoxLayout(preview);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(new QLabel(tr("Icon Preview")));
    Ipic_->setPickable(true);
    Ipic_->setToolTip(tr("A click takes the mask color from here"));
    column->addWidget(Ipic_);
    column->addStretch();
    return preview;
}

void fIconPicture::setPicture(const Bits& picture)
{
    picture_ = picture;
    setEnabled(!picture.isNull());
    sizes_[kUsual]->setChecked(true);
    chooseSide(kSizes[kUsual].side);
}

void fIconPicture::chooseSide(int side)
{
    together_ = side == kTogether;
    if (together_) side = kMostIconSide;
    for (QLineEdit* box : {Iw_, Ih_}) {
        const QSignalBlocker quiet(box); // set both, then make the icon
        box->setText(side == kEntered ? QString() : QString::number(side));
        box->setReadOnly(side != kEntered);
    }
    if (side == kEntered) Iw_->setFocus();
    makeIcon();
}

/// Picks the picture's own colour, not one mixed by scaling.
void fIconPicture::pickMask(QPoint pixel)
{
    QSize shown(picture_.width(), picture_.height());
    shown.scale(icon_.size(), together_ ? Qt::KeepAspectRatio : Qt::IgnoreAspectRatio);
    const QRect place(QPoint(icon_.width() - shown.width(), icon_.height() - shown.height()) / 2, shown);
    if (!place.contains(pixel)) return;
    const QPoint at = pixel - place.topLeft();
    const int x = (2 * at.x() + 1) * picture_.width() / (2 * place.width());
    const int y = (2 * at.y() + 1) * picture_.height() / (2 * place.height());
    const Pixel& picked = picture_.at(x, y);
    mask_->setMask(colourOf(picked.c[2], picked.c[1], picked.c[0]));
}

void fIconPicture::makeIcon()
{
    const QSize size(Iw_->text().toInt(), Ih_->text().toInt());
    icon_ = together_ ? largestIconOf(picture_, mask_->mask()) : iconOf(picture_, size, mask_->mask());
    const int zoom = icon_.isNull() ? 1 : std::max(1, kPreview.width() / std::max(size.width(), size.height()));
    Ipic_->setZoom(zoom);
    Ipic_->setBits(icon_.isNull() ? Bits() : overChecks(icon_, zoom));
    CmdSave_->setEnabled(!icon_.isNull());
    if (picture_.isNull())
        state_->setText(tr("There is no picture open."));
    else if (icon_.isNull())
        state_->setText(tr("Width and height are whole numbers from 1 to %1.").arg(kMostIconSide));
    else
        state_->setText(zoom > 1 ? tr("%1 times as large").arg(zoom) : QString());
}

void fIconPicture::save()
{
    const QPointer<fIconPicture> alive = this;
    const QByteArray bytes = together_ ? iconSetBytes(picture_, mask_->mask()) : iconBytes(icon_);
    Platform& platform = frame_.platform();
    FileDialog dialog{tr("Save Icon as"), tr("Icon File") + QStringLiteral("|*.ico"), {}};
    dialog.defaultPattern = QStringLiteral("*.ico");
    const std::optional<QString> path = platform.saveFileName(dialog);
    if (!path) return;
    const QString name = QFileInfo(*path).fileName();
    if (!writeIcon(bytes, *path)) return platform.tell(tr("%1 can't be written.").arg(name), Icon::Exclamation);
    if (alive) state_->setText(tr("Saved: %1").arg(printable(name)));
}

} // namespace velara
