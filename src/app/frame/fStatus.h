// fStatus: the bottom pane PicStatus with the status bar sbInfo (five panels, and what the keys do while a tool is at
// work) and the progress bar of the filters.
#pragma once
#include "document/road/Frame.h"
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
    /// A word to the user, which stands for some seconds.
    void say(const QString& text) { showMessage(printable(text), 8000); }
    /// Percent; values below 0 are dropped.
    void setProgress(int percent);

  private:
    std::array<QLabel*, 6> panels_{};
    QProgressBar* progress_;
};

} // namespace velara
