// fManual: the manual's pages beside the work. It can be used while a modal dialog is open, as it becomes a window of
// that dialog for as long.
#pragma once
#include <QPointer>
#include <QWidget>

class QAction;
class QLineEdit;
class QListWidget;
class QTextBrowser;
class QToolBar;

namespace velara {

class fManual final : public QWidget {
    Q_OBJECT
  public:
    /// Deletes itself when it closes.
    explicit fManual(QWidget* parent);

    /// Shows a page, by the name of its file without ".md", and comes to the front.
    void open(const QString& page);
    /// The name of the page that is shown.
    QString page() const { return page_; }

  protected:
    bool event(QEvent* event) override;

  private:
    QAction* step(QToolBar& bar, const char* name, const char* icon, const QString& caption, const QKeySequence& key);
    /// Lists the pages that have all words of the search field.
    void list();
    void shown(const QUrl& address);
    /// A window of the open modal dialog, or of the parent without one.
    void follow();

    QTextBrowser* browser_;
    QListWidget* pages_;
    QLineEdit* search_;
    QString page_;
    QPointer<QWindow> followed_;
};

} // namespace velara
