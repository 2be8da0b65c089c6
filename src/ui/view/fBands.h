// fBands: the rubber bands of the tools, live shapes above a document's display: shpRect, shpEllp and any number of
// lines shpLine_0, shpLine_1, ...
#pragma once
#include "tools/ToolSurface.h"
#include <QWidget>
#include <vector>

namespace velara {

/// One shape. It takes no part in mouse events.
class fBand final : public QWidget {
    Q_OBJECT
  public:
    fBand(QWidget* display, BandShape shape, const QString& name);
    /// From one corner or end to the other, in the display's pixels; at least one pixel is drawn.
    void place(QPoint from, QPoint to);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    BandShape shape_;
    QPoint from_, to_; // within this widget
};

class fBands {
  public:
    explicit fBands(QWidget* display);
    void show(BandShape shape, QPoint from, QPoint to, bool keep);
    void hide(BandShape shape);

  private:
    fBand* addLine();

    QWidget* display_;
    fBand *rectangle_, *ellipse_;
    std::vector<fBand*> lines_; // the last one is the one that moves
};

} // namespace velara
