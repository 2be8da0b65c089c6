// fStartPage: what the area of the documents shows while there is none: how to start, and the recent pictures.
#pragma once
#include "seams/Previews.h"
#include <QWidget>
#include <array>
#include <functional>
#include <vector>

class QLabel;
class QListWidget;

namespace velara {

class Platform;

class fStartPage final : public QWidget {
    Q_OBJECT
  public:
    fStartPage(Platform& platform, QWidget* parent);
    /// What stands over the page, on the screen.
    std::function<std::vector<QRect>()> taken;
    /// Covers its parent; what it shows keeps to the largest part that nothing stands over and that holds it.
    void place();
    /// Paths, blank ones and those of lost files left out; their thumbnails come by and by.
    void showRecent(const std::array<QString, 8>& recent);

  signals:
    void commandChosen(const QString& word);
    void recentChosen(int index);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    QWidget* makeButtons();
    void makeList();
    void askThumbnail(int row, const QString& path);

    Platform& platform_;
    QLabel* heading_;
    QListWidget* list_;
    std::vector<QString> shown_;              // the paths in the list
    std::vector<Previews::Request> requests_; // of its thumbnails
};

} // namespace velara
