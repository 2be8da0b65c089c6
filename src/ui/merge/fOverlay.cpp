#include "ui/merge/fOverlay.h"
#include "commands/recipe/stepText.h"
#include "document/Document.h"
#include "document/Workspace.h"
#include "document/road/Frame.h"
#include "seams/Setup.h"
#include "seams/printable.h"
#include "ui/widgets/fColorButton.h"
#include "ui/widgets/fPicture.h"
#include "ui/widgets/inputs/fNumberBox.h"
#include "ui/widgets/inputs/named.h"
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <algorithm>
#include <utility>

namespace velara {

namespace {

constexpr QSize kPreview{380, 300};
constexpr int kWatch = 150; // milliseconds between two checks of the open pictures

bool hasPicture(const DocumentHandle& document) { return document && document->PictureExists(); }

} // namespace

fOverlay::fOverlay(Frame& frame, const DocumentHandle& below, QWidget* parent)
    : QDialog(parent), frame_(frame), below_(below)
{
    setObjectName(QStringLiteral("fOverlay"));
    setWindowTitle(tr("Image Merging"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* line = new QHBoxLayout(this);
    line->setSpacing(14);
    line->setSizeConstraint(QLayout::SetFixedSize);
    line->addWidget(makePreview());
    line->addWidget(makeControls());
    previewTimer_.setSingleShot(true);
    connect(&previewTimer_, &QTimer::timeout, this, &fOverlay::showPreview);
    // Documents don't notify their viewers; a check costs a few comparisons.
    connect(&watch_, &QTimer::timeout, this, &fOverlay::follow);
    watch_.start(kWatch);
    follow();
    showPreview();
}

QWidget* fOverlay::makePreview()
{
    auto* ppp = named(new QFrame(this), "ppp", tr("Preview"));
    ppp->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    auto* inside = new QVBoxLayout(ppp);
    inside->setContentsMargins(2, 2, 2, 2);
    iSrc_ = new fPicture(QStringLiteral("iSrc"), tr("Preview"), kPreview, ppp);
    inside->addWidget(iSrc_);
    return ppp;
}

QWidget* fOverlay::makeControls()
{
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto check = [&](const char* name, const QString& text) {
        auto* made = named(new QCheckBox(text, box), name, QString(text).remove(u'&'));
        connect(made, &QCheckBox::toggled, this, &fOverlay::changed);
        return made;
    };
    auto* select = named(new QLabel(tr("Select image to overlay:"), box), "lblSelectImage", {});
    cbOverlay_ = named(new QComboBox(box), "cbOverlay", tr("Image to overlay"));
    cbOverlay_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cbOverlay_->setMinimumContentsLength(24);
    select->setBuddy(cbOverlay_);
    auto* transparency = named(new QLabel(tr("Transparency"), box), "lblTransparency", {});
    sbTransparency_ = named(new QSlider(Qt::Horizontal, box), "sbTransparency", tr("Transparency"));
    sbTransparency_->setRange(0, 100);
    sbTransparency_->setPageStep(10);
    sbTransparency_->setValue(Merging().transparency);
    sbTransparency_->setMinimumWidth(150);
    transparency->setBuddy(sbTransparency_);
    auto* percent = new fNumberBox(*sbTransparency_, QStringLiteral("lblTransparencyV"), {1, 0, "%"});
    chkTiled_ = check("chkTiled", tr("&Tiled"));
    chkMaskColor_ = check("chkMaskColor", tr("&Mask color"));
    lblMaskColor_ = new fColorButton(frame_, QStringLiteral("lblMaskColor"), tr("Mask color"), box);
    lblMaskColor_->setColour(frame_.setup().BackColor);
    chkCreateNew_ = check("chkCreateNew", tr("Create &new image"));
    state_ = named(new QLabel(box), "lblState", tr("State"));
    state_->setWordWrap(true);
    state_->setMinimumHeight(2 * state_->fontMetrics().lineSpacing());
    state_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* mask = new QHBoxLayout;
    mask->addWidget(chkMaskColor_);
    mask->addWidget(lblMaskColor_);
    mask->addStretch();
    auto* buttons = new QHBoxLayout;
    cmdOK_ = named(new QPushButton(tr("OK"), box), "cmdOK", tr("OK"));
    cmdOK_->setDefault(true);
    auto* cancel = named(new QPushButton(tr("Cancel"), box), "cmdCancel", tr("Cancel"));
    cancel->setAutoDefault(false);
    buttons->addStretch();
    buttons->addWidget(cmdOK_);
    buttons->addWidget(cancel);
    grid->addWidget(select, 0, 0, 1, 3);
    grid->addWidget(cbOverlay_, 1, 0, 1, 3);
    grid->addWidget(transparency, 2, 0);
    grid->addWidget(sbTransparency_, 2, 1);
    grid->addWidget(percent, 2, 2);
    x_ = makeOffset(grid, 3, tr("Left offset"), "XOffset");
    y_ = makeOffset(grid, 4, tr("Top offset"), "YOffset");
    grid->addWidget(chkTiled_, 5, 0, 1, 3);
    grid->addLayout(mask, 6, 0, 1, 3);
    grid->addWidget(chkCreateNew_, 7, 0, 1, 3);
    grid->addWidget(state_, 8, 0, 1, 3);
    grid->setRowStretch(9, 1);
    grid->addLayout(buttons, 10, 0, 1, 3);
    connect(cbOverlay_, &QComboBox::currentIndexChanged, this, [this] {
        setRanges();
        changed();
    });
    connect(sbTransparency_, &QSlider::valueChanged, this, &fOverlay::changed);
    connect(lblMaskColor_, &fColorButton::colourChanged, this, &fOverlay::changed);
    connect(cmdOK_, &QPushButton::clicked, this, &fOverlay::accept);
    connect(cancel, &QPushButton::clicked, this, &fOverlay::reject);
    return box;
}

/// A slider, and a box for the exact pixel value.
fOverlay::Offset fOverlay::makeOffset(QGridLayout* grid, int row, const QString& caption, const char* name)
{
    QWidget* box = grid->parentWidget();
    auto* label = new QLabel(caption, box);
    const Offset made{new QSlider(Qt::Horizontal, box), new QSpinBox(box)};
    named(made.bar, "", caption)->setObjectName(QStringLiteral("sb") + QLatin1String(name));
    named(made.value, "", caption)->setObjectName(QStringLiteral("txt") + QLatin1String(name));
    made.value->setAlignment(Qt::AlignRight);
    made.value->setRange(-Bits::kMostASide, Bits::kMostASide);
    made.value->setFixedWidth(made.value->sizeHint().width()); // the same for all pictures
    label->setBuddy(made.bar);
    grid->addWidget(label, row, 0);
    grid->addWidget(made.bar, row, 1);
    grid->addWidget(made.value, row, 2);
    connect(made.bar, &QSlider::valueChanged, made.value, &QSpinBox::setValue);
    connect(made.value, &QSpinBox::valueChanged, made.bar, &QSlider::setValue);
    connect(made.bar, &QSlider::valueChanged, this, &fOverlay::changed);
    return made;
}

void fOverlay::setBelow(const DocumentHandle& below)
{
    below_ = below;
    seen_.clear();
    follow();
}

// --- The open pictures

std::vector<fOverlay::Seen> fOverlay::look() const
{
    std::vector<Seen> seen;
    for (const DocumentHandle& document : frame_.workspace().documents())
        if (hasPicture(document))
            seen.push_back({document, document->Tag(), document->commits(), document->Region.working()});
    return seen;
}

void fOverlay::follow()
{
    if (!hasPicture(below_)) below_ = frame_.active(); // the picture was closed
    std::vector<Seen> seen = look();
    if (seen == seen_) return;
    seen_ = std::move(seen);
    fillList();
    setRanges();
    changed();
}

/// Keeps the selected one; initially another than the one below.
void fOverlay::fillList()
{
    const QSignalBlocker quiet(cbOverlay_);
    const DocumentHandle before = chosen();
    offered_.clear();
    cbOverlay_->clear();
    for (const Seen& one : seen_) {
        offered_.push_back(one.document);
        cbOverlay_->addItem(printable(QFileInfo(one.tag).fileName()));
        cbOverlay_->setItemData(cbOverlay_->count() - 1, printable(one.tag), Qt::ToolTipRole);
    }
    auto at = hasPicture(before) ? std::ranges::find(offered_, before) : offered_.end();
    if (at == offered_.end())
        at = std::ranges::find_if(offered_, [this](const DocumentHandle& one) { return !(one == below_); });
    cbOverlay_->setCurrentIndex(at == offered_.end() ? 0 : int(at - offered_.begin()));
}

/// From just outside of the picture on one side to just outside on the other.
void fOverlay::setRanges()
{
    const DocumentHandle over = chosen();
    if (!hasPicture(below_) || !hasPicture(over)) return;
    const auto range = [](const Offset& offset, int above, int below) {
        offset.value->setRange(-above, below);
        offset.bar->setRange(-above, below);
        offset.bar->setPageStep(std::max(1, (above + below) / 20));
    };
    range(x_, over->PictureWidth(), below_->PictureWidth());
    range(y_, over->PictureHeight(), below_->PictureHeight());
}

DocumentHandle fOverlay::chosen() const
{
    const auto at = static_cast<std::size_t>(cbOverlay_->currentIndex());
    return at < offered_.size() ? offered_[at] : DocumentHandle();
}

// --- The blend

Merging fOverlay::merging() const
{
    const DocumentHandle over = chosen();
    return {over ? over->bits() : Bits(),
            x_.bar->value(),
            y_.bar->value(),
            chkTiled_->isChecked(),
            sbTransparency_->value(),
            chkMaskColor_->isChecked() ? lblMaskColor_->colour() : -1};
}

/// Only a picture that is as its file has it can be named.
QString fOverlay::words() const
{
    const DocumentHandle over = chosen();
    if (!over || !over->file.isOwn() || over->commits() != 1) return {};
    const Merging m = merging();
    return callText("TileMask", {over->file.path.toStdString(), m.left, m.top, m.tiled, m.transparency, m.key});
}

void fOverlay::changed()
{
    lblMaskColor_->setEnabled(chkMaskColor_->isChecked());
    const bool ready = hasPicture(below_) && hasPicture(chosen());
    cmdOK_->setEnabled(ready && !working_);
    state_->setText(ready ? tr("Over %1").arg(printable(QFileInfo(below_->file.path).fileName()))
                          : tr("No picture is open."));
    if (!previewTimer_.isActive()) previewTimer_.start(0); // one preview for all pending changes
}

/// A new picture has no selection.
void fOverlay::showPreview()
{
    if (!hasPicture(below_)) return iSrc_->setBits({});
    const Bits& picture = below_->bits();
    const Region region = chkCreateNew_->isChecked() ? Region::rectangle(0, 0, picture.width(), picture.height())
                                                     : below_->Region.working();
    iSrc_->setBits(mergedView(picture, region, merging(), kPreview));
}

void fOverlay::accept()
{
    const std::pair asked{below_, chosen()};
    follow(); // what happened since the last check
    if (working_ || !cmdOK_->isEnabled() || asked != std::pair{below_, chosen()}) return;
    working_ = true;
    cmdOK_->setEnabled(false);
    const Job job = [merging = merging()](Document& draft, cBitFilter& filter) {
        draft.setBits(merged(filter, merging));
    };
    const QString words = this->words();
    const DocumentHandle onto = chkCreateNew_->isChecked() ? frame_.adopt(below_->bits(), below_->file.path)
                                                           : below_; // the copy becomes active
    frame_.workspace().change(onto, {job, After::Step, tr("Image Merging"), words},
                              [alive = QPointer(this)](const Outcome& outcome) {
                                  if (alive) alive->ended(outcome);
                              });
}

void fOverlay::ended(const Outcome& outcome)
{
    working_ = false;
    if (outcome) return QDialog::accept();
    changed();
    if (!outcome.reason.isEmpty()) state_->setText(tr("Not merged: %1").arg(outcome.reason));
}

} // namespace velara
