// fCaptureRectangle: picks a rectangle of the picture of the screens by dragging. Beside the pointer a magnifier shows
// the pixels around it and the size picked so far.
#pragma once
#include "ui/widgets/marks/ScreenCover.h"
#include <optional>

namespace velara {

class Magnifier;

class fCaptureRectangle final : public ScreenCover {
    Q_OBJECT
  public:
    explicit fCaptureRectangle(QObject* parent);

    void ShowPicture(const ScreenPicture& picture);
    /// The picked part; null before.
    const Bits& picRectangle() const { return picRectangle_; }

    void press(QPointF global) override;
    void move(QPointF global) override;
    void release(QPointF global) override;
    /// In pixels of the picture.
    QPoint pointer() const { return at_; }
    /// Empty when nothing is being dragged.
    QRect rectangle() const override;

  signals:
    void picked();

  private:
    void furnish(CoverWindow& window) override;
    void showAll();

    Bits picRectangle_;
    std::vector<Magnifier*> magnifiers_; // one per window, in their order
    QPoint at_;
    std::optional<QPoint> start_;
};

} // namespace velara
