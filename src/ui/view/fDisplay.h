// fDisplay: the surface iDst of a view. Paints the visible pixels, the outline and the line round the pointer; the view
// takes the events of mouse and keys from it.
#pragma once
#include "region/cBitRegion.h"
#include "tools/ToolContext.h"
#include "ui/widgets/inputs/Spoken.h"
#include "ui/widgets/viewRender.h"
#include <QPolygon>
#include <QWidget>

namespace velara {

class Document;

class fDisplay final : public QWidget, public Spoken {
    Q_OBJECT
  public:
    fDisplay(QWidget* view, const Document& document);

    /// The scroll position in logical pixels, and the zoom. Doesn't repaint.
    void setSpot(int scrollX, int scrollY, int zoom);
    const ViewSpot& spot() const { return spot_; }
    /// The selection as this display draws it: with a zoom and a pattern of its own.
    const cBitRegion& selection();
    /// The pattern moves on by one pixel. Repaints nothing.
    void march() { selection_.RotateBrush(); }

    /// Whether paint events draw the outline.
    void setOutlineShown(bool on) { outlineShown_ = on; }
    bool outlineShown() const { return outlineShown_; }
    /// Requests a repaint of the pixels under the outline only, if these are few pieces, else of its bounding box.
    void updateOutline();
    /// The outline of what a tool would change at a pixel; none for an empty footprint. Repaints along the line only.
    void showFootprint(const Footprint& footprint, QPoint pixel);
    /// A crosshair around a pixel, which the keys move; none to remove it.
    void showCross(std::optional<QPoint> pixel);
    std::optional<QPoint> cross() const { return cross_; }

    QAccessible::Role spokenRole() const override { return QAccessible::Canvas; }
    /// The crosshair's pixel and its colour.
    QString spokenValue() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    void drawPart(QPainter& painter, const QRect& part);
    void drawPicture(QPainter& painter, const QRegion& region);
    QPoint footprintPlace() const;
    QPolygon crossLines() const;
    void drawOver(QPainter& painter);

    const Document& document_;
    ViewSpot spot_;
    ViewRenderer renderer_;
    cBitRegion selection_;
    QImage outline_; // logical pixels, for displays with several device pixels in each
    bool outlineShown_ = false;
    Footprint footprint_;
    QPoint footprintAt_;     // the pixel
    QPolygon footprintLine_; // from that pixel's corner
    std::optional<QPoint> cross_;
};

} // namespace velara
