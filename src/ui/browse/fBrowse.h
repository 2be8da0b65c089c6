// fBrowse: the folders of the machine with the pictures in them, and what is selected beside the tree. The same window
// chooses a folder for the textures box.
#pragma once
#include <QDialog>

class QPushButton;

namespace velara {

class fFolderTree;
class fPathLabel;
class Platform;
class PreviewPane;

/// What the window is to choose.
enum class BrowseMode : short { Pictures = 0, TextureFolder = 43 };

class fBrowse final : public QDialog {
    Q_OBJECT
  public:
    /// start: the folder, or the file, that is selected at first.
    fBrowse(Platform& platform, BrowseMode mode, const QString& start, QWidget* parent);
    ~fBrowse() override;

  signals:
    /// A picture file, or a folder; the window is closed.
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
