// fCaptureRectangle: the picker of a rectangle. Shows the picture of the screens on every screen, one borderless window
// each; a drag picks, Esc, the right button or closing one of them leaves. Beside the pointer a magnifier shows the
// pixels around it and what is picked so far.
#pragma once
#include "seams/Screen.h"
#include <QImage>
#include <QWidget>
#include <optional>

namespace velara {

class PickerWindow;

class fCaptureRectangle final : public QObject {
    Q_OBJECT
  public:
    explicit fCaptureRectangle(QObject* parent);
    ~fCaptureRectangle() override;

    void ShowPicture(const ScreenPicture& picture);
    /// What was picked; null before.
    const Bits& picRectangle() const { return picRectangle_; }

    // --- Of the windows
    const ScreenPicture& picture() const { return picture_; }
    /// The picture without a copy; valid as long as picture().
    QImage image() const;
    void press(QPointF global);
    void move(QPointF global);
    void release(QPointF global);
    void leave();
    /// In pixels of the picture.
    QPoint pointer() const { return at_; }
    /// Empty when nothing is being dragged.
    QRect rectangle() const;

  signals:
    void picked();
    void left();

  private:
    QPoint pixelAt(QPointF global) const;
    void close();
    void showAll();

    ScreenPicture picture_;
    Bits picRectangle_;
    std::vector<PickerWindow*> windows_;
    QPoint at_;
    std::optional<QPoint> start_;
};

/// The picture's pixels within the rectangle; black where it reaches out of it. Null for an empty one.
Bits partOf(const Bits& bits, const QRect& rectangle);

} // namespace velara
