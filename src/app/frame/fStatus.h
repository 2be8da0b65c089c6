// fStatus: the bottom pane PicStatus with the status bar sbInfo (five panels, the page of a file
// that has several, and the keys of the tool at work) and the
// filters' progress bar.
#pragma once
#include "document/road/Frame.h"
#include "platform/desktop/dialogs/shownReason.h"
#include "seams/printable.h"
#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <array>

namespace velara {

class fStatus final : public QStatusBar {
    Q_OBJECT
  public:
    explicit fStatus(QWidget* parent);

    void setPanel(Panel panel, const QString& text);
    QString panel(Panel panel) const;
    /// The whole path of the named picture, as its hover text.
    void setPath(const QString& path);
    /// A message to the user, shown for eight seconds, or until something else begins.
    void say(const QString& text) { showMessage(printable(shownReason(text)), 8000); }
    /// Percent; negative values are ignored.
    void setProgress(int percent);

  private:
    std::array<QLabel*, 7> panels_{};
    QProgressBar* progress_;
};

} // namespace velara
