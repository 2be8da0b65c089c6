// fPicture: the surface that shows a picture in a dialog. As large as it is made; the picture stands in the middle, in
// whole magnifications, and is painted straight from its memory. It can be picked from, marked, and dragged about by
// whoever listens to panned (fPicturePage does).
//
// A canvas with things of its own on it derives from this: paintOver draws on top, the mouse handlers come first and
// leave to these what they don't want, child widgets stand in the picture's coordinates where the surface has the
// picture's size. What changes a few pixels asks for them alone by updatePixels.
#pragma once
#include "pixels/Bits.h"
#include "region/Region.h"
#include "ui/widgets/viewRender.h"
#include <QWidget>
#include <optional>

namespace velara {

class fPicture : public QWidget {
    Q_OBJECT
  public:
    fPicture(const QString& objectName, const QString& accessibleName, QWidget* parent = nullptr);
    /// Keeps the size of box.
    fPicture(const QString& objectName, const QString& accessibleName, QSize box, QWidget* parent = nullptr);

    const Bits& bits() const { return bits_; }
    void setBits(const Bits& bits);
    /// The picture as far scaled down as the surface needs.
    void showWhole(const Bits& bits);
    /// Screen pixels a picture pixel, from 1.
    int zoom() const { return zoom_; }
    void setZoom(int zoom);
    QSize zoomedSize() const { return {bits_.width() * zoom_, bits_.height() * zoom_}; }

    /// Where the picture stands on the surface.
    QRect place() const;
    /// The pixel under a place of the surface; may lie outside of the picture.
    QPoint pixelAt(QPointF at) const;
    /// The place that shows the upper left corner of a pixel.
    QPointF placeOf(QPointF pixel) const { return pixel * zoom_ + place().topLeft(); }
    /// Asks for a repaint of these pixels.
    void updatePixels(const Rect& pixels);

    /// A place in the picture, or none; a cross that is white or black.
    void setMarker(std::optional<QPointF> place);
    void flipMarker();
    /// A dashed frame round these pixels, or none.
    void setFrame(std::optional<QRectF> pixels);
    /// The left button tells pixels instead of dragging the picture.
    void setPickable(bool pickable);
    /// The pointer is an open hand over a picture that can be dragged.
    void setPannable(bool pannable);

  signals:
    void pressed(QPoint pixel); // inside the picture
    void panned(QPoint by);     // how far the pointer is from the place of the surface that it took hold of

  protected:
    /// Draws over the picture; part is what is being repainted. The painter has the surface's coordinates.
    virtual void paintOver(QPainter& painter, const QRect& part);
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void tell(const QMouseEvent& event);
    void showPointer(bool grabbed);

    Bits bits_;
    int zoom_ = 1;
    ViewRenderer renderer_;
    std::optional<QPointF> marker_;
    std::optional<QRectF> frame_;
    std::optional<QPoint> grabbed_;
    bool white_ = true, pickable_ = false, pannable_ = false;
};

/// The picture scaled down so that it fits the box, by BitsResample; itself when it fits.
Bits fittingCopy(const Bits& bits, QSize box);

} // namespace velara
