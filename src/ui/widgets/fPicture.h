// fPicture: the surface that shows a picture in a dialog. The picture is centred, at an integer zoom or a whole
// fraction of its size, and painted directly from its memory. It can be picked from, marked, and dragged by a receiver
// of panned (fPicturePage).
//
// A canvas with items of its own derives from this: paintOver draws on top, mouse handlers run first and pass on what
// they don't use, child widgets use the picture's coordinates if the surface has the picture's size. Changes of a few
// pixels request their repaint alone, by updatePixels.
#pragma once
#include "pixels/Bits.h"
#include "region/Region.h"
#include "ui/widgets/viewRender.h"
#include <QAccessible>
#include <QWidget>
#include <optional>

namespace velara {

class fPicture : public QWidget {
    Q_OBJECT
  public:
    fPicture(const QString& objectName, const QString& accessibleName, QWidget* parent = nullptr,
             QAccessible::Role role = QAccessible::Graphic);
    /// Keeps the size of box.
    fPicture(const QString& objectName, const QString& accessibleName, QSize box, QWidget* parent = nullptr);

    const Bits& bits() const { return bits_; }
    void setBits(const Bits& bits);
    /// Shows the picture, scaled down as far as the surface needs.
    void showWhole(const Bits& bits);
    /// From 1: screen pixels per picture pixel. Below: 0 is half of the size, -1 a third, and so on.
    int zoom() const { return zoom_; }
    void setZoom(int zoom);
    /// Screen pixels per picture pixel.
    double scale() const { return zoom_ > 0 ? zoom_ : 1.0 / (2 - zoom_); }
    QSize zoomedSize() const;

    /// The picture's rectangle on the surface.
    QRect place() const;
    /// The pixel at a position on the surface; may lie outside of the picture.
    QPoint pixelAt(QPointF at) const;
    /// The position of a pixel's upper left corner.
    QPointF placeOf(QPointF pixel) const { return pixel * scale() + place().topLeft(); }
    /// The place of these pixels on the surface, to the nearest screen pixels.
    QRect placeOf(const Rect& pixels) const;
    /// Requests a repaint of these pixels.
    void updatePixels(const Rect& pixels);

    /// A cross, white or black, at a position in the picture; none to remove it.
    void setMarker(std::optional<QPointF> place);
    void flipMarker();
    /// A dashed frame around these pixels; none to remove it.
    void setFrame(std::optional<QRectF> pixels);
    /// The left button picks pixels instead of dragging the picture.
    void setPickable(bool pickable);
    /// The pointer is an open hand over a draggable picture.
    void setPannable(bool pannable);

  signals:
    void pressed(QPoint pixel); // inside the picture
    void panned(QPoint by);     // the pointer's distance from where it took hold of the surface

  protected:
    /// Draws over the picture; part is being repainted. The painter has the surface's coordinates.
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

/// The picture scaled down to fit the box, by BitsResample; unchanged if it fits.
Bits fittingCopy(const Bits& bits, QSize box);

} // namespace velara
