// fBrowse: the machine's folders with the pictures in them as a tree, and the selected item beside it. The same window
// chooses a folder for the textures box.
#pragma once
#include <QDialog>

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
    QWidget* makeButtons();
    void selected(const QString& path);
    void open();

    Platform& platform_;
    BrowseMode mode_;
    fFolderTree* BF_;
    PreviewPane* preview_;
    fPathLabel* FileName_;
    QPushButton* CmdOpen_;
};

} // namespace velara
