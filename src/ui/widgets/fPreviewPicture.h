// fPreviewPicture: a small picture in a dialog, centred, that can be pressed; a marker can blink on it.
#pragma once
#include "pixels/Bits.h"
#include <QWidget>
#include <optional>

namespace velara {

class fPreviewPicture final : public QWidget {
    Q_OBJECT
  public:
    static constexpr QSize kSize{300, 260}; // the box that pictures fit

    fPreviewPicture(const QString& name, const QString& accessibleName, QWidget* parent);

    void setBits(const Bits& bits);
    const Bits& bits() const { return bits_; }
    /// A place in the picture, or none; marked in white or in black.
    void setMarker(std::optional<QPointF> place);
    void flipMarker();
    /// Presses are told.
    void setPickable(bool pickable);

    /// Where the picture's upper left pixel is shown.
    QPoint origin() const;

  signals:
    void pressed(QPoint pixel); // inside the picture

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    void tell(const QMouseEvent& event);

    Bits bits_;
    std::optional<QPointF> marker_;
    bool white_ = true, pickable_ = false;
};

} // namespace velara
