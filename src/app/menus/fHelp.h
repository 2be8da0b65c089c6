// fHelp: one window with what can't be seen: the keys of tools and menus, and what mouse and keys do on a picture.
#pragma once
#include <QDialog>
#include <QList>
#include <utility>

class QTreeWidget;

namespace velara {

/// Keys of a kind, as they are shown: what to do, and the key for it.
struct KeyGroup {
    QString caption;
    QList<std::pair<QString, QString>> rows = {};
};
/// On a picture, of the tools, of the menus.
QList<KeyGroup> keyGroups();

class fHelp final : public QDialog {
    Q_OBJECT
  public:
    /// Deletes itself when it closes.
    explicit fHelp(QWidget* parent);

  private:
    QTreeWidget* list_;
};

} // namespace velara
