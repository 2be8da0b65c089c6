// fFolderTree: the folders of the machine as a tree, with or without the files in them. Typing goes to the next item
// whose name begins so.
#pragma once
#include <QTreeView>

namespace velara {

class FolderModel;
class Previews;

class fFolderTree : public QTreeView {
    Q_OBJECT
  public:
    enum class Shows { Folders, FoldersAndFiles };

    fFolderTree(Shows shows, const QString& objectName, const QString& accessibleName, QWidget* parent = nullptr);

    /// Pictures are shown by small copies of them.
    void showThumbnails(Previews& previews);
    /// Of the current item; empty without one.
    QString path() const;
    /// Opens the tree down to the path, and a folder itself, and makes it current. Where it doesn't exist, the nearest
    /// folder above it that does.
    void select(const QString& path);

  signals:
    /// Another item is current.
    void selection(const QString& path);
    /// By a double click or Enter: a folder where only folders are shown, else a file (a folder opens or closes then).
    void chosen(const QString& path);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void showEvent(QShowEvent* event) override;

  private:
    void choose(const QModelIndex& index);

    FolderModel* model_;
    Shows shows_;
};

} // namespace velara
