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

    /// Where the picture is looked at, in logical pixels. Repaints nothing.
    void setSpot(int scrollX, int scrollY, int zoom);
    const ViewSpot& spot() const { return spot_; }

    /// Whether paint events draw the outline.
    void setOutlineShown(bool on) { outlineShown_ = on; }
    bool outlineShown() const { return outlineShown_; }
    /// Asks for the pixels under the outline's frame alone, where these are few pieces, else for its box.
    void updateOutline();
    /// The line round what a tool would change at a pixel; none for an empty footprint. Repaints along the line alone.
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
