// fStartPage: shown in the documents' area while there is none: ways to start, the pictures that can be recovered, and
// the recent ones.
#pragma once
#include "app/start/Recovery.h"
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
    /// The screen rectangles of windows over the page.
    std::function<std::vector<QRect>()> taken;
    /// Covers its parent; its contents use the largest uncovered part that holds them.
    void place();
    /// Shows the paths, skipping blank ones and lost files; their thumbnails appear as they are read.
    void showRecent(const std::array<QString, 8>& recent);

    /// Shows them until the next call; none: hides their part.
    void showRecoverable(const std::vector<Offer>& offers);

  signals:
    void commandChosen(const QString& word);
    void recentChosen(int index);
    void recoverableChosen(const Leftover* leftover);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    QWidget* makeButtons();
    QWidget* makeRecovery();
    void setUp(QListWidget& list);
    void makeList();
    void askThumbnail(int row, const QString& path);

    Platform& platform_;
    QLabel* heading_;
    QListWidget *list_, *recoverable_ = nullptr;
    QWidget* recovery_ = nullptr;
    std::vector<QString> shown_;              // the paths in the list
    std::vector<Previews::Request> requests_; // of its thumbnails
};

} // namespace velara
