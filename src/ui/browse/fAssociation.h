// fAssociation: the list of the picture formats. It registers nothing: the desktop decides which program opens a file.
#pragma once
#include <QDialog>

namespace velara {

class fAssociation final : public QDialog {
    Q_OBJECT
  public:
    explicit fAssociation(QWidget* parent);

  private:
    QWidget* makeRows();
};

} // namespace velara
