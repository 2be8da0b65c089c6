#include "ui/widgets/fFolderTree.h"
#include "platform/desktop/dialogs/ThumbnailIcons.h"
#include "ui/widgets/FolderModel.h"
#include <QKeyEvent>
#include <QScrollBar>
#include <utility>

namespace velara {

fFolderTree::fFolderTree(Shows shows, const QString& objectName, const QString& accessibleName, QWidget* parent)
    : QTreeView(parent), model_(new FolderModel(shows == Shows::FoldersAndFiles, this)), shows_(shows)
{
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    setModel(model_);
    setHeaderHidden(true);
    setUniformRowHeights(true); // avoids measuring thousands of rows
    setExpandsOnDoubleClick(false);
    setVerticalScrollMode(ScrollPerItem);
    connect(this, &QTreeView::doubleClicked, this, &fFolderTree::choose);
    connect(model_, &FolderModel::rowsAboutToBeInserted, this, &fFolderTree::noteFirst);
}

void fFolderTree::noteFirst()
{
    const int scrolled = verticalScrollBar()->value();
    if (first_.isValid() && scrolled == scrolled_) return;
    first_ = indexAt({0, 0});
    scrolled_ = scrolled;
}

void fFolderTree::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end)
{
    noteFirst(); // the view forgets its rows next
    QTreeView::rowsAboutToBeRemoved(parent, start, end);
}

/// Rows that moved would have a click meet another item than the one that was aimed at.
void fFolderTree::doItemsLayout()
{
    const QPersistentModelIndex first = std::exchange(first_, {});
    const bool stays = first.isValid() && verticalScrollBar()->value() == scrolled_;
    QTreeView::doItemsLayout();
    if (!stays) return;
    const QRect now = visualRect(first);
    if (!now.isEmpty()) verticalScrollBar()->setValue(verticalScrollBar()->value() + now.top() / now.height());
}

void fFolderTree::showThumbnails(Previews& previews)
{
    setIconSize({32, 32});
    model_->setThumbnails(*new ThumbnailIcons(previews, kThumbnailSide, model_));
}

QString fFolderTree::path() const { return model_->path(currentIndex()); }

void fFolderTree::select(const QString& path)
{
    const QModelIndex index = model_->indexOf(path);
    setCurrentIndex(index);
    expand(index);
    scrollTo(index, PositionAtCenter);
}

void fFolderTree::choose(const QModelIndex& index)
{
    if (!index.isValid()) return;
    if (shows_ == Shows::FoldersAndFiles && model_->isFolder(index)) return setExpanded(index, !isExpanded(index));
    emit chosen(model_->path(index));
}

void fFolderTree::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        choose(currentIndex());
    else
        QTreeView::keyPressEvent(event);
}

void fFolderTree::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTreeView::currentChanged(current, previous);
    emit selection(path());
}

/// Only now is the visible part of the tree known.
void fFolderTree::showEvent(QShowEvent* event)
{
    QTreeView::showEvent(event);
    scrollTo(currentIndex(), PositionAtCenter);
}

} // namespace velara
