// fPicturePage: a picture in a container with two scroll bars: centred if it is smaller, else moved by the bars, the
// wheel, the arrow keys and by dragging. A partner shows the same part of its own picture.
#pragma once
#include "ui/widgets/fPicture.h"
#include <QPointer>

class QScrollBar;

namespace velara {

class fPicturePage : public QWidget {
    Q_OBJECT
  public:
    /// The fixed names of the parts.
    struct Names {
        const char *container, *picture, *horizontal, *vertical;
    };
    /// canvas, if given, is used instead of a plain fPicture; the page owns and names it.
    fPicturePage(const Names& names, const QString& accessibleName, fPicture* canvas = nullptr,
                 QWidget* parent = nullptr);

    fPicture& picture() { return *picture_; }
    /// Keeps the position, as far as the picture reaches.
    void setBits(const Bits& bits);
    /// As fPicture's, limited to what fits; keeps the same relative position. The partner follows.
    void setZoom(int zoom);
    /// Below 1, pictures may be shown smaller than they are; 1 at first.
    void setLeastZoom(int zoom) { leastZoom_ = zoom; }
    /// Both follow each other from now on. One partner per page.
    void setPartner(fPicturePage& partner);

    /// The upper left corner of the visible part, in screen pixels of the zoomed picture.
    QPoint scroll() const;
    void setScroll(QPoint place); // limited to the picture
    /// The visible part, in picture pixels.
    QRectF shown() const;
    /// Scrolls no further than these pixels and a little around them need.
    void follow(const Rect& pixels);
    /// The largest zoom at which the whole picture is visible, or the least.
    void zoomToFit();
    /// Centres the pixel, as near as the picture's edges permit.
    void showInMiddle(QPointF pixel);

  signals:
    void scrolled();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override; // of the container
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QSize sizeHint() const override { return {420, 320}; }

  private:
    void layOut();
    void takeScroll();

    QWidget* container_;
    fPicture* picture_;
    QScrollBar *horizontal_, *vertical_;
    QPointer<fPicturePage> partner_;
    int leastZoom_ = 1;
    bool follows_ = false; // the partner is passing its position
};

} // namespace velara
