// fBrowse: the machine's folders with the pictures in them as a tree, the chosen folder's pictures as a grid, and the
// selected item beside them. Home and the folders used last are a click away. The same window chooses a folder for the
// textures box.
#pragma once
#include <QDialog>

class QComboBox;
class QListView;
class QPushButton;

namespace velara {

class fFolderTree;
class fPathLabel;
class Platform;
class PreviewPane;

/// What the window chooses.
enum class BrowseMode : short { Pictures = 0, TextureFolder = 43 };

class fBrowse final : public QDialog {
    Q_OBJECT
  public:
    /// start: the folder or file that is initially selected.
    fBrowse(Platform& platform, BrowseMode mode, const QString& start, QWidget* parent);
    ~fBrowse() override;

  signals:
    /// A picture file, or a folder, was chosen; the window is closed.
    void opened(const QString& path);

  private:
    QWidget* makePlaces();
    void makeGrid();
    QWidget* makeButtons();
    /// The grid shows the contents of the folder of the tree's current item, or of that itself.
    void follow();
    void enter(const QModelIndex& item);
    void selected(const QString& path);
    void open();

    Platform& platform_;
    BrowseMode mode_;
    fFolderTree* BF_;
    QListView* grid_;
    PreviewPane* preview_;
    fPathLabel* FileName_;
    QPushButton* CmdOpen_;
};

} // namespace velara
