// fBands: the rubber bands of the tools, drawn live above a document's display: shpRect, shpEllp and any number of
// lines shpLine_0, shpLine_1, ... They keep their positions in the picture when it is zoomed or scrolled.
#pragma once
#include "tools/ToolSurface.h"
#include <QWidget>
#include <vector>

namespace velara {

/// One shape. It ignores mouse events.
class fBand final : public QWidget {
    Q_OBJECT
  public:
    fBand(QWidget* display, BandShape shape, const QString& name);
    /// From one corner or end to the other, in picture pixels; at least one screen pixel is drawn.
    void setEnds(QPoint from, QPoint to);
    /// Positions it on a display with this scroll position and zoom.
    void place(QPoint scroll, int zoom);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    BandShape shape_;
    QPoint pictureFrom_, pictureTo_;
    QPoint from_, to_; // within this widget
};

class fBands {
  public:
    explicit fBands(QWidget* display);
    /// In picture pixels; see ToolSurface::ShowShape.
    void show(BandShape shape, QPoint from, QPoint to, bool keep);
    void hide(BandShape shape);
    /// The present scroll position and zoom of the display.
    void setSpot(QPoint scroll, int zoom);

  private:
    fBand* addLine();
    void place(fBand& band, QPoint from, QPoint to);

    QWidget* display_;
    QPoint scroll_;
    int zoom_ = 1;
    fBand *rectangle_, *ellipse_;
    std::vector<fBand*> lines_; // the last one is the one that moves
};

} // namespace velara
