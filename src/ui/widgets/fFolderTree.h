// fFolderTree: the machine's folders as a tree, with or without files. Typing selects the next item whose name begins
// with the text. What comes and goes above what is seen doesn't move it.
#pragma once
#include <QPersistentModelIndex>
#include <QTreeView>

namespace velara {

class FolderModel;
class Previews;

class fFolderTree : public QTreeView {
    Q_OBJECT
  public:
    enum class Shows { Folders, FoldersAndFiles };

    fFolderTree(Shows shows, const QString& objectName, const QString& accessibleName, QWidget* parent = nullptr);

    static constexpr int kThumbnailSide = 96; // of the model's icons; the tree shows them smaller
    /// Shows pictures by thumbnails.
    void showThumbnails(Previews& previews);
    /// The path of the current item; empty without one.
    QString path() const;
    /// Expands the tree down to the path, and a folder itself, and makes it current. If it doesn't exist, the nearest
    /// existing folder above it.
    void select(const QString& path);
    void doItemsLayout() override;

  signals:
    /// Another item became current.
    void selection(const QString& path);
    /// By a double click or Enter: a folder if only folders are shown, else a file (folders then expand or collapse).
    void chosen(const QString& path);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void showEvent(QShowEvent* event) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

  private:
    void choose(const QModelIndex& index);
    void noteFirst();

    FolderModel* model_;
    Shows shows_;
    QPersistentModelIndex first_ = {}; // in view, before rows came or went; none once they are laid out
    int scrolled_ = 0;                 // then
};

} // namespace velara
