// fIconBar: the bar of fIconMaker, on the picture and dragged out of the way by its ground.
#pragma once
#include <QFrame>
#include <QList>
#include <optional>

class QAction;
class QLabel;

namespace velara {

class Bits;
class fIconMaker;
class fPicture;

class fIconBar final : public QFrame {
  public:
    fIconBar(fIconMaker& maker, QWidget* parent);

    void showCutOut(const Bits& cutOut);
    void showCount(int count);
    /// The entry of the present size is disabled.
    void showSide(int side);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QWidget* makeToolbar(fIconMaker& maker);

    QList<QAction*> sizes_;
    QAction* size_ = nullptr;
    fPicture* picD_;
    QLabel* lblcount_;
    std::optional<QPoint> held_;
};

} // namespace velara
