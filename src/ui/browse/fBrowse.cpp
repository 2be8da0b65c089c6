#include "ui/browse/fBrowse.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "platform/desktop/dialogs/PreviewPane.h"
#include "platform/desktop/dialogs/fPathLabel.h"
#include "seams/Platform.h"
#include "seams/printable.h"
#include "seams/sizeText.h"
#include "ui/widgets/fFolderTree.h"
#include "ui/widgets/inputs/named.h"
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QListView>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace velara {

namespace {

const QString kSection = QStringLiteral("Browse");

/// The last size, limited to the screen.
QSize rememberedSize(Platform& platform)
{
    const QSize size = sizeOf(platform.setting(kSection, "Size", {}), "x");
    return size.isEmpty() ? QSize(980, 560) : size;
}

constexpr qsizetype kLastFolders = 8;
const QString kFolders = QStringLiteral("Folders"), kBetween = QStringLiteral("//"); // no path has two of them

QStringList lastFolders(Platform& platform)
{
    return platform.setting(kSection, kFolders, {}).split(kBetween, Qt::SkipEmptyParts).mid(0, kLastFolders);
}

void keepFolder(Platform& platform, const QString& folder)
{
    QStringList folders = lastFolders(platform);
    folders.removeAll(folder);
    folders.prepend(folder);
    platform.setSetting(kSection, kFolders, folders.mid(0, kLastFolders).join(kBetween));
}

void showFolder(QListView& grid, const QModelIndex& folder)
{
    if (grid.model()->canFetchMore(folder)) grid.model()->fetchMore(folder);
    grid.setRootIndex(folder);
}

} // namespace

fBrowse::fBrowse(Platform& platform, BrowseMode mode, const QString& start, QWidget* parent)
    : QDialog(parent), platform_(platform), mode_(mode),
      BF_(new fFolderTree(mode == BrowseMode::Pictures ? fFolderTree::Shows::FoldersAndFiles
                                                       : fFolderTree::Shows::Folders,
                          "BF", tr("Folders"))),
      grid_(named(new QListView, "grid", tr("Pictures of the folder"))), preview_(new PreviewPane(platform.previews())),
      FileName_(new fPathLabel("FileName"))
{
    setObjectName("fBrowse");
    setWindowTitle(tr("Browse For Graphic Filles"));
    setModal(true);
    auto* column = new QVBoxLayout(this);
    auto* sides = new QSplitter;
    sides->setChildrenCollapsible(false);
    for (QWidget* side : std::initializer_list<QWidget*>{BF_, grid_, preview_}) sides->addWidget(side);
    for (const auto& [side, share] : {std::pair{0, 3}, {1, 4}, {2, 3}}) sides->setStretchFactor(side, share);
    column->addWidget(makePlaces());
    column->addWidget(sides, 1);
    column->addWidget(makeButtons());
    if (mode == BrowseMode::Pictures) BF_->showThumbnails(platform.previews());
    makeGrid();
    grid_->setVisible(mode == BrowseMode::Pictures);
    preview_->setVisible(mode == BrowseMode::Pictures);
    connect(BF_, &fFolderTree::selection, this, &fBrowse::selected);
    connect(BF_, &fFolderTree::chosen, CmdOpen_, &QPushButton::click);
    resize(rememberedSize(platform));
    BF_->select(start);
    BF_->setFocus();
}

fBrowse::~fBrowse() { platform_.setSetting(kSection, "Size", sizeText(size(), "x")); }

QWidget* fBrowse::makePlaces()
{
    auto* home = named(new QPushButton(tr("&Home")), "CmdHome");
    home->setAutoDefault(false);
    connect(home, &QPushButton::clicked, this, [this] { BF_->select(QDir::homePath()); });
    auto* last = named(new QComboBox, "cboLast", tr("Last folders"));
    const QStringList folders = lastFolders(platform_);
    for (const QString& folder : folders) last->addItem(printable(folder));
    last->setPlaceholderText(tr("Last folders"));
    last->setCurrentIndex(-1);
    last->setEnabled(last->count() > 0);
    connect(last, &QComboBox::activated, this, [this, folders](int row) { BF_->select(folders[row]); });
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(home);
    row->addWidget(last, 1);
    return box;
}

void fBrowse::makeGrid()
{
    constexpr int kSide = fFolderTree::kThumbnailSide;
    grid_->setModel(BF_->model());
    grid_->setViewMode(QListView::IconMode);
    grid_->setResizeMode(QListView::Adjust);
    grid_->setMovement(QListView::Static);
    grid_->setUniformItemSizes(true);
    grid_->setIconSize({kSide, kSide});
    grid_->setGridSize({kSide + 16, kSide + 2 * fontMetrics().height()});
    grid_->setTextElideMode(Qt::ElideMiddle);
    grid_->setMinimumWidth(2 * (kSide + 16) + 24);
    connect(grid_->selectionModel(), &QItemSelectionModel::currentChanged, BF_, [this](const QModelIndex& item) {
        if (item.isValid()) BF_->setCurrentIndex(item); // nothing new if it comes from there
    });
    connect(grid_, &QListView::activated, this, &fBrowse::enter);
}

void fBrowse::follow()
{
    const QModelIndex item = BF_->currentIndex();
    const bool isFolder = velara::isFolder(BF_->path());
    const bool isShown = item.parent() == grid_->rootIndex() && (!isFolder || focusWidget() == grid_);
    if (!isShown) showFolder(*grid_, isFolder ? item : item.parent());
    grid_->setCurrentIndex(item.parent() == grid_->rootIndex() ? item : QModelIndex());
}

/// A double click or Enter in the grid.
void fBrowse::enter(const QModelIndex& item)
{
    BF_->setCurrentIndex(item);
    if (!isFolder(BF_->path())) return CmdOpen_->click();
    BF_->expand(item);
    showFolder(*grid_, item);
}

QWidget* fBrowse::makeButtons()
{
    CmdOpen_ = named(new QPushButton(tr("&Open")), "CmdOpen");
    CmdOpen_->setDefault(true);
    CmdOpen_->setEnabled(false);
    connect(CmdOpen_, &QPushButton::clicked, this, &fBrowse::open);
    auto* exit = named(new QPushButton(tr("E&xit")), "CmdExit");
    exit->setAutoDefault(false);
    connect(exit, &QPushButton::clicked, this, &fBrowse::reject);
    FileName_->setAccessibleName(tr("Selected"));

    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(FileName_, 1);
    row->addWidget(CmdOpen_);
    row->addWidget(exit);
    return box;
}

void fBrowse::selected(const QString& path)
{
    const bool isFolder = velara::isFolder(path);
    const bool fits = mode_ == BrowseMode::TextureFolder ? isFolder : !isFolder && familyOf(path);
    FileName_->setPath(fits ? path : QString());
    CmdOpen_->setEnabled(fits);
    preview_->showFile(path);
    if (grid_->model()) follow();
}

void fBrowse::open()
{
    const QString path = FileName_->text();
    keepFolder(platform_, mode_ == BrowseMode::TextureFolder ? path : QFileInfo(path).path());
    accept();
    emit opened(path);
}

} // namespace velara
