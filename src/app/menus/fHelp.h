// fHelp: one window with what can't be seen: the keys of tools and menus, and what mouse and keys do on a picture.
#pragma once
#include <QDialog>

class QTreeWidget;

namespace velara {

class fHelp final : public QDialog {
    Q_OBJECT
  public:
    /// Deletes itself when it closes.
    explicit fHelp(QWidget* parent);

  private:
    QTreeWidget* list_;
};

} // namespace velara
