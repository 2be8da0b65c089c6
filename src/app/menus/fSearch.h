// fSearch: finds a command by a few letters of its name, its menu or another word for it, and runs it.
#pragma once
#include <QAction>
#include <QDialog>
#include <QPointer>
#include <vector>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace velara {

/// A command, as the list shows it.
struct SearchRow {
    QPointer<QAction> action;
    QString name, path; // of its menus
    QString finds = {}; // other words for it
    int lastUsed = -1;  // 0 the last one; -1: not lately
};

class fSearch final : public QDialog {
    Q_OBJECT
  public:
    /// The rows in the order in which they are shown while nothing is typed. Deletes itself when it closes.
    fSearch(std::vector<SearchRow> rows, QWidget* parent);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void fill(const QString& typed);
    void add(const SearchRow& row);
    void choose(const QTreeWidgetItem* item);

    std::vector<SearchRow> rows_;
    QLineEdit* txtSearch_;
    QTreeWidget* lstFound_;
};

} // namespace velara
