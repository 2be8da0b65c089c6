#include "ui/compose/fEffectsPage.h"
#include "commands/effects.h"
#include "commands/recipe/stepText.h"
#include "document/Document.h"
#include "document/Workspace.h"
#include "document/road/Frame.h"
#include "document/stockTextures.h"
#include "fileio/formats.h"
#include "fileio/nameOrder.h"
#include "fileio/readInBackground.h"
#include "pixels/images.h"
#include "platform/desktop/dialogs/NameDelegate.h"
#include "platform/desktop/dialogs/fPathLabel.h"
#include "seams/Platform.h"
#include "seams/Setup.h"
#include "seams/text.h"
#include "ui/compose/sampleScene.h"
#include "ui/widgets/inputs/fNumberBox.h"
#include "ui/widgets/inputs/named.h"
#include <QDir>
#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>

namespace velara {

namespace {

constexpr int kCell = kSceneSide + 10; // of a thumbnail with its button

QPushButton* applyButton(const char* name, const QString& accessibleName)
{
    auto* button = named(new QPushButton(fEffectsPage::tr("Apply")), QLatin1String(name), accessibleName);
    return button;
}

} // namespace

fEffectsPage::fEffectsPage(Frame& frame, QWidget* parent)
    : QWidget(parent), frame_(frame), container_(new QWidget), tb_(new QWidget(container_)),
      V_(new QScrollBar(Qt::Vertical)), br_(new QSlider(Qt::Horizontal)), lblFolder_(new fPathLabel("lblFolder")),
      ListFile_(new QListWidget), CmdApply_(applyButton("CmdApply", tr("Apply the effect"))),
      CmdFileApply_(applyButton("CmdFileApply", tr("Apply the file as a texture"))),
      folder_(frame.platform().programFolder() + QStringLiteral("/Textures"))
{
    auto* column = new QVBoxLayout(this);
    column->addWidget(makeToolbar(), 3);
    column->addWidget(makeAmount());
    column->addWidget(makeFiles(), 2);
    connect(CmdApply_, &QPushButton::clicked, this, [this] { ApplyTexture(effect(), false); });
    connect(CmdFileApply_, &QPushButton::clicked, this, [this] { ApplyTexture(effect(), true); });
    CmdFileApply_->setEnabled(false);
}

QWidget* fEffectsPage::makeToolbar()
{
    container_->setObjectName(QStringLiteral("tbContainer"));
    container_->setMinimumSize(4 * kCell, 2 * kCell);
    container_->installEventFilter(this);
    named(tb_, "tb", tr("Effects"));
    int index = 1;
    for (const Effect& effect : effects()) {
        auto* button = named(new QToolButton(tb_), QStringLiteral("tb_%1").arg(index), shown("Filters", effect.name));
        button->setToolTip(tr("%1: a double click applies it").arg(shown("Filters", effect.name)));
        button->setIconSize({kSceneSide, kSceneSide});
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setFixedSize(kCell, kCell);
        button->installEventFilter(this); // double clicks
        group_.addButton(button, index++);
    }
    group_.button(kEmbossEffect)->setChecked(true);
    connect(&group_, &QButtonGroup::idToggled, this, [this](int id, bool on) {
        if (on) emit effectChosen(shown("Filters", effects()[std::size_t(id - 1)].name));
    });
    named(V_, "V", tr("Effects, up and down"));
    V_->setSingleStep(kCell / 2);
    connect(V_, &QScrollBar::valueChanged, this, [this](int value) { tb_->move(0, -value); });

    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(container_, 1);
    row->addWidget(V_);
    return box;
}

QWidget* fEffectsPage::makeAmount()
{
    named(br_, "br", tr("Amount"));
    br_->setRange(kLeastAmount, kMostAmount);
    br_->setPageStep(10);
    br_->setValue(kUsualAmount);
    auto* caption = new QLabel(tr("A&mount"));
    caption->setBuddy(br_);

    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(caption);
    row->addWidget(br_, 1);
    row->addWidget(new fNumberBox(*br_, QStringLiteral("lblSize")));
    row->addWidget(CmdApply_);
    return box;
}

QWidget* fEffectsPage::makeFiles()
{
    named(ListFile_, "ListFile", tr("Texture files"));
    ListFile_->setItemDelegate(new NameDelegate(this));
    ListFile_->setMinimumHeight(60);
    connect(ListFile_, &QListWidget::currentRowChanged, this, [this](int row) { CmdFileApply_->setEnabled(row >= 0); });
    connect(ListFile_, &QListWidget::itemActivated, this, [this] { ApplyTexture(effect(), true); });
    auto* folder = named(new QPushButton(tr("Fol&der...")), "cmdfile", tr("Choose the folder of the texture files"));
    connect(folder, &QPushButton::clicked, this, &fEffectsPage::folderWanted);

    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(lblFolder_);
    column->addWidget(ListFile_, 1);
    auto* row = new QHBoxLayout;
    row->addWidget(folder);
    row->addStretch();
    row->addWidget(CmdFileApply_);
    column->addLayout(row);
    return box;
}

/// Each is made by the effect itself, from a small scene; not before the page is visible.
void fEffectsPage::drawThumbnails()
{
    if (std::exchange(drawn_, true)) return;
    const Bits scene = sampleScene();
    for (int index = 1; index <= kEffects; ++index) {
        cBitFilter filter;
        filter.setBits(scene);
        filter.setBitsRegion(Region::rectangle(0, 0, scene.width(), scene.height()));
        velara::ApplyTexture(filter, index, effects()[std::size_t(index - 1)].sampleValue, 0x00FFFF);
        group_.button(index)->setIcon(QPixmap::fromImage(imageOver(filter.bits()).copy()));
    }
}

void fEffectsPage::showEvent(QShowEvent* event)
{
    drawThumbnails();
    if (!QFileInfo::exists(folder_)) writeStockTextures(frame_.platform()); // the first time
    CheckImagesFile();
    QWidget::showEvent(event);
}

bool fEffectsPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == container_) {
        if (event->type() == QEvent::Resize) flow();
        if (event->type() == QEvent::Wheel) return QCoreApplication::sendEvent(V_, event);
    } else if (event->type() == QEvent::MouseButtonDblClick) {
        ApplyTexture(group_.id(static_cast<QAbstractButton*>(watched)), false);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

/// As many buttons side by side as fit.
void fEffectsPage::flow()
{
    const int columns = std::max(1, container_->width() / kCell);
    for (int i = 0; i < kEffects; ++i) group_.button(i + 1)->move(i % columns * kCell, i / columns * kCell);
    tb_->resize(columns * kCell, (kEffects + columns - 1) / columns * kCell);
    UppdateScroll();
}

void fEffectsPage::UppdateScroll()
{
    const int page = container_->height();
    V_->setRange(0, std::max(0, tb_->height() - page));
    V_->setPageStep(std::max(1, page));
    V_->setEnabled(V_->maximum() > 0);
    tb_->move(0, -V_->value());
}

void fEffectsPage::CheckImagesFile()
{
    const QString chosen = ListFile_->currentItem() ? ListFile_->currentItem()->text() : QString();
    ListFile_->clear();
    QStringList files = QDir(folder_).entryList({"*.bmp", "*.jpg", "*.gif", "*.ico"}, QDir::Files);
    std::ranges::sort(files, nameOrder());
    ListFile_->addItems(files);
    ListFile_->setCurrentRow(static_cast<int>(files.indexOf(chosen)));
    lblFolder_->setPath(files.isEmpty() ? tr("No texture files in %1").arg(QDir::toNativeSeparators(folder_))
                                        : tr("Texture files of %1").arg(QDir::toNativeSeparators(folder_)));
}

void fEffectsPage::setFolder(const QString& folder)
{
    folder_ = folder;
    CheckImagesFile();
}

void fEffectsPage::ApplyTexture(int Index, bool FromFile)
{
    Platform& platform = frame_.platform();
    const DocumentHandle document = frame_.active();
    if (!document) return platform.tell(tr("There is no picture open."));
    if (FromFile) return applyFile(document);
    const Colour colour = frame_.setup().ForeColor;
    const int value = br_->value();
    apply(document, shown("Filters", effects()[std::size_t(Index - 1)].name), effectText(Index, value, colour),
          [=](cBitFilter& filter) { velara::ApplyTexture(filter, Index, value, colour); });
}

void fEffectsPage::applyFile(const DocumentHandle& document)
{
    if (!ListFile_->currentItem()) return;
    const QString path = QDir(folder_).filePath(ListFile_->currentItem()->text());
    readInBackground(frame_.platform(), this, path, [this, document, path](const LoadedPicture& read) {
        if (read.ok())
            return apply(document, tr("Texture"),
                         callText("ApplyTexture", {kEmbossEffect, kUsualAmount, path.toStdString()}),
                         [texture = read.bits](cBitFilter& filter) { applyTexturePicture(filter, texture); });
        frame_.platform().tell(tr("%1 can't be used as a texture: %2").arg(path, read.reason), Icon::Exclamation);
    });
}

void fEffectsPage::apply(const DocumentHandle& document, const QString& what, const QString& words,
                         const std::function<void(cBitFilter&)>& texture)
{
    const Job job = [texture](Document& draft, cBitFilter& filter) {
        texture(filter);
        draft.setBits(filter.bits());
    };
    frame_.workspace().change(document, {job, After::Step, what, words},
                              [&frame = frame_, what](const Outcome& outcome) { frame.report(what, outcome); });
}

} // namespace velara
