// fDisplay: the surface iDst of a document's window. Paints the visible pixels and the outline; what it is told with
// the mouse and the keys goes to the window.
#pragma once
#include "tools/ToolContext.h"
#include "ui/widgets/viewRender.h"
#include <QPolygon>
#include <QWidget>

namespace velara {

class Document;
class fImage;

class fDisplay final : public QWidget {
    Q_OBJECT
  public:
    fDisplay(fImage& image, const Document& document);

    /// The scroll position in logical pixels, and the zoom. Doesn't repaint.
    void setSpot(int scrollX, int scrollY, int zoom);
    const ViewSpot& spot() const { return spot_; }

    /// Whether paint events draw the outline.
    void setOutlineShown(bool on) { outlineShown_ = on; }
    bool outlineShown() const { return outlineShown_; }
    /// Requests a repaint of the pixels under the outline only, if these are few pieces, else of its bounding box.
    void updateOutline();
    /// The outline of what a tool would change at a pixel; none for an empty footprint. Repaints along the line only.
    void showFootprint(const Footprint& footprint, QPoint pixel);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    void drawPart(QPainter& painter, const QRect& part);
    void drawPicture(QPainter& painter, const QRegion& region);
    QPoint footprintPlace() const;

    fImage& image_;
    const Document& document_;
    ViewSpot spot_;
    ViewRenderer renderer_;
    QImage outline_; // logical pixels, for displays with several device pixels in each
    bool outlineShown_ = false;
    Footprint footprint_;
    QPoint footprintAt_;     // the pixel
    QPolygon footprintLine_; // from that pixel's corner
};

} // namespace velara
