#include "ui/browse/fBrowse.h"
#include "fileio/formats.h"
#include "platform/desktop/dialogs/PreviewPane.h"
#include "platform/desktop/dialogs/fPathLabel.h"
#include "seams/Platform.h"
#include "seams/sizeText.h"
#include "ui/widgets/fFolderTree.h"
#include "ui/widgets/inputs/named.h"
#include <QFileInfo>
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
    return size.isEmpty() ? QSize(760, 520) : size;
}

} // namespace

fBrowse::fBrowse(Platform& platform, BrowseMode mode, const QString& start, QWidget* parent)
    : QDialog(parent), platform_(platform), mode_(mode),
      BF_(new fFolderTree(mode == BrowseMode::Pictures ? fFolderTree::Shows::FoldersAndFiles
                                                       : fFolderTree::Shows::Folders,
                          "BF", tr("Folders"))),
      preview_(new PreviewPane(platform.previews())), FileName_(new fPathLabel("FileName"))
{
    setObjectName("fBrowse");
    setWindowTitle("Browse For Graphic Filles");
    setModal(true);
    auto* column = new QVBoxLayout(this);
    auto* sides = new QSplitter;
    sides->setChildrenCollapsible(false);
    sides->addWidget(BF_);
    sides->addWidget(preview_);
    sides->setStretchFactor(0, 3);
    sides->setStretchFactor(1, 2);
    column->addWidget(sides, 1);
    column->addWidget(makeButtons());
    if (mode == BrowseMode::Pictures) BF_->showThumbnails(platform.previews());
    preview_->setVisible(mode == BrowseMode::Pictures);
    connect(BF_, &fFolderTree::selection, this, &fBrowse::selected);
    connect(BF_, &fFolderTree::chosen, CmdOpen_, &QPushButton::click);
    resize(rememberedSize(platform));
    BF_->select(start);
    BF_->setFocus();
}

fBrowse::~fBrowse() { platform_.setSetting(kSection, "Size", sizeText(size(), "x")); }

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
    const bool isFolder = QFileInfo(path).isDir();
    const bool fits = mode_ == BrowseMode::TextureFolder ? isFolder : !isFolder && familyOf(path);
    FileName_->setPath(fits ? path : QString());
    CmdOpen_->setEnabled(fits);
    preview_->showFile(path);
}

void fBrowse::open()
{
    const QString path = FileName_->text();
    accept();
    emit opened(path);
}

} // namespace velara
