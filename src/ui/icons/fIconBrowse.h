// fIconBrowse: chooses the folder for a series of icons.
#pragma once
#include <QDialog>

class QLabel;
class QPushButton;

namespace velara {

class fFolderTree;

class fIconBrowse final : public QDialog {
    Q_OBJECT
  public:
    /// start: the folder initially shown; the nearest existing folder above it.
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
