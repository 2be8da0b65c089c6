// fCaptureRectangle: picks a rectangle of the picture of the screens by dragging; what is outside is darker. A drag
// with Shift, or the window below the pointer (W), leaves a rectangle with grips, which Enter picks; without one Enter
// picks everything. Beside the pointer a magnifier shows the pixels around it and the size picked so far.
#pragma once
#include "ui/widgets/marks/ScreenCover.h"
#include <optional>

class QLabel;

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
    bool key(const QKeyEvent& event) override;
    Sides hold(QPoint pixel) const override;
    /// In pixels of the picture.
    QPoint pointer() const { return at_; }
    /// Empty when there is none yet.
    QRect rectangle() const override;

  signals:
    void picked();

  private:
    void furnish(CoverWindow& window) override;
    bool dims() const override { return true; }
    bool hasGrips() const override { return !start_ && !placed_.isEmpty(); }
    QRect resized() const;
    void pick(const QRect& part);
    void showAll();

    Bits picRectangle_;
    std::vector<Magnifier*> magnifiers_; // one per window, in their order
    QLabel* hint_ = nullptr;             // in the first window
    QPoint at_;
    std::optional<QPoint> start_; // of a drag that draws a rectangle
    QRect placed_;                // the one with grips
    Sides held_ = None;           // of the placed one
    QPoint holdFrom_;
};

} // namespace velara
