// fCanvas: the dialog "Canvas size": enlarges or crops the area around the picture. The picture is placed by dragging
// or by one of nine anchors.
#pragma once
#include "ui/geometry/fGeometry.h"
#include <QButtonGroup>

namespace velara {

/// The canvas (iCnv) with the picture on it (iImg), scaled together so that both fit.
class fCanvasView final : public QWidget {
    Q_OBJECT
  public:
    explicit fCanvasView(const Bits& picture);
    /// The canvas size and the position of the picture's upper left pixel on it, in pixels of the picture.
    void show(QSize canvas, QPoint place);

  signals:
    void dragged(QPoint place);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QRect canvasOnScreen() const;
    void layOut();

    Bits small_;
    QSize size_, canvas_; // of the picture and of the canvas
    QPoint place_;
    QWidget* image_;
    QPointF grabbed_;
    QPoint grabbedPlace_;
    double scale_ = 1; // screen pixels per picture pixel
};

class fCanvas final : public fGeometry {
    Q_OBJECT
  public:
    fCanvas(Platform& platform, const Bits& picture, QWidget* parent = nullptr);
    Job job() const override;
    QString words() const override;

  protected:
    bool valid() const override { return sizeAllowed(fields_->widthValue(), fields_->heightValue()); }

  private:
    QWidget* makeAnchors();
    QWidget* makeHelp();
    void defined(int index);
    /// Puts the picture at the selected anchor; without one it stays.
    void placeByAnchor();

    QSize size_; // of the picture
    QPoint place_;
    fSizeFields* fields_;
    QButtonGroup* anchors_;
    fCanvasView* view_;
};

} // namespace velara
