// fBed: the bed of a scanner, with the picture of a preview scan and the area to scan. The mouse draws an area, moves
// it and pulls its grips.
#pragma once
#include "pixels/Bits.h"
#include <QWidget>

namespace velara {

class fBed final : public QWidget {
    Q_OBJECT
  public:
    fBed();

    /// In millimetres; forgets the preview. Empty: the area can't be chosen.
    void setBed(QSizeF size);
    QSizeF bed() const { return bed_; }
    /// Of the whole bed.
    void setPreview(const Bits& picture);
    /// In millimetres from the upper left of the bed.
    void setArea(const QRectF& area);
    /// The position of a place of the bed in this widget.
    QPointF onSurface(QPointF millimetres) const;

  signals:
    void drawn(const QRectF& area);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    double scale() const; // pixels per millimetre
    QRectF onSurface(const QRectF& millimetres) const;
    QPointF onBed(QPointF position) const;
    int holdAt(QPointF position) const;
    QRectF dragged(QPointF to) const;

    QSizeF bed_;
    Bits preview_;
    QRectF area_, before_; // before the drag
    QPointF start_;        // of the drag, on the bed
    int hold_;             // what is dragged
};

} // namespace velara
