#include "ui/merge/fTexturize.h"
#include "commands/recipe/stepText.h"
#include "document/stockTextures.h"
#include "fileio/nameOrder.h"
#include "fileio/readInBackground.h"
#include "pixels/RuntimeError.h"
#include "pixels/images.h"
#include "platform/desktop/dialogs/ThumbnailIcons.h"
#include "seams/Platform.h"
#include "seams/printable.h"
#include "seams/text.h"
#include "ui/widgets/fPicture.h"
#include "ui/widgets/inputs/fNumberBox.h"
#include "ui/widgets/inputs/named.h"
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QSlider>

namespace velara {

namespace {

constexpr QSize kThumbnail{64, 64}, kChosen{112, 112}, kPreview{340, 280};
const QStringList kPattern{QStringLiteral("*.bmp"), QStringLiteral("*.jpg"), QStringLiteral("*.gif")};

QIcon iconOf(const Bits& bits)
{
    const Bits small = fittingCopy(bits, 2 * kThumbnail);
    // Otherwise the fourth byte would be taken as alpha.
    return thumbnailIcon(imageOver(small).convertToFormat(QImage::Format_RGB32), kThumbnail);
}

/// An empty frame, crossed out if the file can't be read.
QIcon frameIcon(const QPalette& palette, bool crossed)
{
    QPixmap pixmap(kThumbnail);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(QPen(palette.color(QPalette::PlaceholderText), 1));
    const QRect frame(0, 0, kThumbnail.width() - 1, kThumbnail.height() - 1);
    painter.drawRect(frame);
    if (crossed) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawLine(frame.topLeft(), frame.bottomRight());
        painter.drawLine(frame.topRight(), frame.bottomLeft());
    }
    painter.end();
    return untinted(pixmap);
}

} // namespace

fTexturize::fTexturize(Platform& platform, const Bits& picture, const Region& selection, QWidget* parent)
    : QDialog(parent), platform_(platform), picture_(picture), selection_(selection)
{
    setObjectName(QStringLiteral("fTexturize"));
    setWindowTitle(tr("Texturize"));
    setModal(true);
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(12);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->addWidget(makeList(), 0, 0, 2, 1);
    grid->addWidget(makePreview(), 0, 1);
    grid->addWidget(makeControls(), 1, 1);
    previewTimer_.setSingleShot(true);
    connect(&previewTimer_, &QTimer::timeout, this, &fTexturize::showPreview);
    const bool written = writeStockTextures(platform_);
    fillList();
    if (!written && flTextures_->count() == 0) state_->setText(tr("The folder \"Textures\" can't be written to."));
    changed();
    showPreview();
}

QWidget* fTexturize::makeList()
{
    auto* box = new QWidget(this);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    flTextures_ = named(new QListWidget(box), "flTextures", tr("Textures"));
    flTextures_->setIconSize(kThumbnail);
    flTextures_->setUniformItemSizes(true);
    flTextures_->setMinimumSize(210, 380);
    txtTexture_ = named(new QLineEdit(box), "txtTexture", tr("Chosen texture"));
    txtTexture_->setReadOnly(true);
    column->addWidget(flTextures_);
    column->addWidget(txtTexture_);
    connect(flTextures_, &QListWidget::currentRowChanged, this, &fTexturize::choose);
    return box;
}

QWidget* fTexturize::makePreview()
{
    auto* box = new QWidget(this);
    auto* line = new QHBoxLayout(box);
    line->setContentsMargins(0, 0, 0, 0);
    iBack_ = new fPicture(QStringLiteral("iBack"), tr("Preview, pixel for pixel"), kPreview, box);
    iBack_->setToolTip(iBack_->accessibleName());
    line->addWidget(iBack_);
    return box;
}

QWidget* fTexturize::makeControls()
{
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    iTexture_ = new fPicture(QStringLiteral("iTexture"), tr("The texture"), kChosen, box);
    auto* weight = named(new QLabel(tr("Intensity"), box), "lblWeight");
    sbWeight_ = named(new QSlider(Qt::Horizontal, box), "sbWeight", tr("Intensity"));
    sbWeight_->setRange(0, kMostIntensity);
    sbWeight_->setPageStep(10);
    sbWeight_->setValue(texturing_.intensity);
    weight->setBuddy(sbWeight_);
    auto* depth = named(new QLabel(tr("Depth "), box), "Label1");
    cbDepth_ = named(new QComboBox(box), "cbDepth", tr("Depth"));
    cbDepth_->addItems({tr("Emboss"), tr("Engrave")});
    depth->setBuddy(cbDepth_);
    chkUseImage_ = named(new QCheckBox(tr("Self-Texturized"), box), "chkUseImage", tr("Self-Texturized"));
    state_ = named(new QLabel(box), "lblState", tr("State"));
    state_->setWordWrap(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    const auto button = [&](const char* name, const QString& text, auto clicked) {
        auto* made = named(new QPushButton(text, box), name, text);
        connect(made, &QPushButton::clicked, this, clicked);
        buttons->addWidget(made);
        return made;
    };
    cmdOK_ = button("cmdOK", tr("OK"), &QDialog::accept);
    cmdOK_->setDefault(true);
    button("cmdCancel", tr("Cancel"), &QDialog::reject)->setAutoDefault(false);
    grid->addWidget(iTexture_, 0, 0, 4, 1, Qt::AlignTop);
    grid->addWidget(weight, 0, 1);
    grid->addWidget(sbWeight_, 0, 2);
    grid->addWidget(new fNumberBox(*sbWeight_, QStringLiteral("lblWeightV"), {1, 0, "%"}), 0, 3);
    grid->addWidget(depth, 1, 1);
    grid->addWidget(cbDepth_, 1, 2, 1, 2);
    grid->addWidget(chkUseImage_, 2, 1, 1, 3);
    grid->addWidget(state_, 3, 1, 1, 3);
    grid->addLayout(buttons, 4, 0, 1, 4);
    grid->setColumnStretch(2, 1);
    connect(sbWeight_, &QSlider::valueChanged, this, &fTexturize::changed);
    connect(cbDepth_, &QComboBox::currentIndexChanged, this, &fTexturize::changed);
    connect(chkUseImage_, &QCheckBox::toggled, this, &fTexturize::changed);
    return box;
}

QString fTexturize::words() const
{
    const QListWidgetItem* item = flTextures_->currentItem();
    const QString path = item ? item->data(Qt::UserRole).toString() : QString();
    const bool own = texturing_.texture.isNull();
    return callText("fTexturize",
                    {own ? std::string("self") : path.toStdString(), texturing_.intensity, texturing_.engrave ? 1 : 0});
}

// --- Files

void fTexturize::fillList()
{
    const QDir folder(platform_.programFolder() + QStringLiteral("/Textures"));
    QStringList files = folder.entryList(kPattern, QDir::Files);
    std::ranges::sort(files, nameOrder());
    for (const QString& file : files) {
        auto* item = new QListWidgetItem(frameIcon(palette(), false), printable(file), flTextures_);
        const QString stock = shown("Textures", stockTextureName(file).toStdString());
        item->setToolTip(stock);
        if (!stock.isEmpty()) item->setData(Qt::AccessibleTextRole, QString(file + QStringLiteral(", ") + stock));
        item->setData(Qt::UserRole, folder.filePath(file));
    }
    flTextures_->setCurrentRow(0);
    nextThumbnail();
}

/// One at a time, so that a chosen file is read before the rest.
void fTexturize::nextThumbnail()
{
    if (thumbnails_ >= flTextures_->count()) return;
    QListWidgetItem* item = flTextures_->item(thumbnails_++);
    readInBackground(platform_, this, item->data(Qt::UserRole).toString(), [this, item](const auto& loaded) {
        showThumbnail(*item, loaded);
        nextThumbnail();
    });
}

void fTexturize::showThumbnail(QListWidgetItem& item, const LoadedPicture& loaded)
{
    item.setIcon(loaded.ok() ? iconOf(loaded.bits) : frameIcon(palette(), true));
    if (!loaded.ok()) {
        item.setText(item.text() + u'\n' + tr("(can't be read)")); // there is room for two lines beside the icon
        item.setToolTip(loaded.reason);
        item.setForeground(palette().color(QPalette::PlaceholderText));
    }
}

void fTexturize::choose()
{
    const QListWidgetItem* item = flTextures_->currentItem();
    if (!item) return;
    const QString path = item->data(Qt::UserRole).toString();
    txtTexture_->setText(printable(QFileInfo(path).fileName()));
    delete choice_; // what is still read was chosen before
    choice_ = new QObject(this);
    readInBackground(platform_, choice_, path, [this](const LoadedPicture& loaded) {
        texture_ = loaded.bits;
        unreadable_ = loaded.ok() ? QString() : tr("This file can't be read as a picture.");
        iTexture_->showWhole(texture_);
        changed();
    });
}

// --- The relief

bool fTexturize::ready() const
{
    const Bits& source = chkUseImage_->isChecked() ? picture_ : texture_;
    return !source.isNull() && reliefFits(source.width(), source.height());
}

void fTexturize::changed()
{
    const bool own = chkUseImage_->isChecked();
    texturing_ = {own ? Bits() : texture_, sbWeight_->value(), cbDepth_->currentIndex() == 1};
    for (QWidget* widget : std::initializer_list<QWidget*>{flTextures_, txtTexture_, iTexture_})
        widget->setEnabled(!own);
    cmdOK_->setEnabled(ready());
    if (ready())
        state_->clear();
    else if (own)
        state_->setText(tr("A relief needs a picture of at least 2 x 2 pixels."));
    else if (!unreadable_.isEmpty())
        state_->setText(unreadable_);
    else if (!texture_.isNull())
        state_->setText(tr("A texture needs at least 2 x 2 pixels."));
    if (!previewTimer_.isActive()) previewTimer_.start(0); // one preview for all pending changes
}

/// Shows the centre of the relief's region.
void fTexturize::showPreview()
{
    const Rect all = selection_.bounds();
    const auto from = [](int first, int last, int size, int room) {
        return std::clamp((first + last - room) / 2, 0, std::max(size - room, 0));
    };
    const int left = from(all.left, all.right, picture_.width(), kPreview.width());
    const int top = from(all.top, all.bottom, picture_.height(), kPreview.height());
    const Rect part{left, top, std::min(left + kPreview.width(), picture_.width()),
                    std::min(top + kPreview.height(), picture_.height())};
    try {
        if (ready()) return iBack_->setBits(texturizedPart(picture_, selection_, texturing_, part));
    } catch (const RuntimeError&) { // then the picture is unchanged
    }
    cBitFilter crop;
    crop.setBits(picture_);
    crop.BitsCrop(picture_, part.left, part.top, part.right, part.bottom);
    iBack_->setBits(crop.bits());
}

} // namespace velara
