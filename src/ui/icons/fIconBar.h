// fIconBar: the bar of fIconMaker, over the picture; dragging its background moves it.
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
    Q_OBJECT
  public:
    fIconBar(fIconMaker& maker, QWidget* parent);

    void showCutOut(const Bits& cutOut);
    void showCount(int count);
    /// Disables the entry of the present size.
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
