#include "ui/icons/fIconBrowse.h"
#include "ui/widgets/fFolderTree.h"
#include "ui/widgets/inputs/named.h"
#include <QBoxLayout>
#include <QFileInfo>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace velara {

namespace {

constexpr QSize kTree{360, 320};

/// A path in the available width, elided at its beginning.
class PathLabel final : public QLabel {
  public:
    PathLabel() { setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); }

  protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.drawText(rect(), Qt::AlignVCenter, fontMetrics().elidedText(text(), Qt::ElideLeft, width()));
    }
};

} // namespace

fIconBrowse::fIconBrowse(const QString& start, QWidget* parent)
    : QDialog(parent), BF_(new fFolderTree(fFolderTree::Shows::Folders, "BF", tr("Folders"))), FileName_(new PathLabel),
      CmdOpen_(new QPushButton(tr("&Open")))
{
    setObjectName("fIconBrowse");
    setWindowTitle(tr("Icon Extractor: Select Folder"));
    setModal(true);
    named(FileName_, "FileName", tr("The chosen folder"));
    CmdOpen_->setObjectName("CmdOpen");
    CmdOpen_->setEnabled(false);
    CmdOpen_->setDefault(true);
    auto* exit = named(new QPushButton(tr("E&xit")), "CmdExit");
    exit->setAutoDefault(false);
    BF_->setMinimumSize(kTree);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(CmdOpen_);
    buttons->addWidget(exit);
    auto* column = new QVBoxLayout(this);
    column->addWidget(BF_, 1);
    column->addWidget(FileName_);
    column->addLayout(buttons);
    connect(BF_, &fFolderTree::selection, this, &fIconBrowse::selected);
    connect(BF_, &fFolderTree::chosen, this, &fIconBrowse::choose);
    connect(CmdOpen_, &QPushButton::clicked, this, &fIconBrowse::choose);
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    BF_->select(start);
    BF_->setFocus();
}

void fIconBrowse::selected(const QString& path)
{
    path_ = path;
    FileName_->setText(path);
    FileName_->setToolTip(path);
    CmdOpen_->setEnabled(QFileInfo(path).isDir());
}

void fIconBrowse::choose()
{
    if (!CmdOpen_->isEnabled()) return;
    emit chosen(path_);
    accept();
}

} // namespace velara
