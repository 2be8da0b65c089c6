// fIconMaker: cuts icons out of a picture of the screens. A frame of the chosen size is dragged over the picture or
// moved by the arrow keys; a small bar shows the frame's contents, takes them, and closes.
#pragma once
#include "ui/widgets/marks/ScreenCover.h"
#include <functional>

class QLabel;

namespace velara {

class fIconBar;
class fPicture;

class fIconMaker final : public ScreenCover {
    Q_OBJECT
  public:
    explicit fIconMaker(QObject* parent);

    /// Shows itself over the picture; count is how many have been taken before.
    void ShowPicture(const ScreenPicture& picture, int count);
    void setSide(int side);
    int side() const { return frame_.width(); }
    void take();

    void press(QPointF global) override;
    void move(QPointF global) override;
    void release(QPointF global) override;
    bool key(const QKeyEvent& event) override;

  signals:
    void taken(const Bits& cutOut);

  private:
    QRect rectangle() const override { return frame_; }
    void moveFrame(QPoint corner);
    void showFrame();

    fIconBar* bar_ = nullptr; // of the first window
    QRect frame_{0, 0, 32, 32};
    QPoint hold_; // where the frame is held
    bool dragging_ = false;
    int count_ = 0;
};

} // namespace velara
