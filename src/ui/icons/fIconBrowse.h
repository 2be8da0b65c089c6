// fIconBrowse: the choice of the folder that a series of icons goes to.
#pragma once
#include <QDialog>

class QLabel;
class QPushButton;

namespace velara {

class fFolderTree;

class fIconBrowse final : public QDialog {
    Q_OBJECT
  public:
    /// start: where the tree is open; the nearest folder above it that there is.
    fIconBrowse(const QString& start, QWidget* parent);

  signals:
    void chosen(const QString& folder);

  private:
    void selected(const QString& path);
    void choose();

    fFolderTree* BF_;
    QLabel* FileName_;
    QPushButton* CmdOpen_;
    QString path_;
};

} // namespace velara
