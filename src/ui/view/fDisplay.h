// fDisplay: the surface iDst of a document's window. Paints the visible pixels and the outline; what it is told with
// the mouse and the keys goes to the window.
#pragma once
#include "ui/widgets/viewRender.h"
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

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

  private:
    void drawPart(QPainter& painter, const QRect& part);

    fImage& image_;
    const Document& document_;
    ViewSpot spot_;
    ViewRenderer renderer_;
    QImage outline_; // logical pixels, for displays with several device pixels in each
    bool outlineShown_ = false;
};

} // namespace velara
