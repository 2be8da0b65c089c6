// fPicturePage: a picture in a container with two scroll bars: in the middle when it is smaller, else moved by the
// bars, the wheel, the arrow keys and by dragging it. A partner shows the same place of its own picture.
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
    /// canvas, when given, is shown in place of a plain fPicture; the page owns it and names it.
    fPicturePage(const Names& names, const QString& accessibleName, fPicture* canvas = nullptr,
                 QWidget* parent = nullptr);

    fPicture& picture() { return *picture_; }
    /// The place stays, as far as the picture reaches.
    void setBits(const Bits& bits);
    /// Whole magnifications, limited to what fits; the same relative place is shown. The partner follows.
    void setZoom(int zoom);
    /// Each follows the other from here on. One partner a page.
    void setPartner(fPicturePage& partner);

    /// The part of the picture that the container shows, in screen pixels of the zoomed picture.
    QPoint scroll() const;
    void setScroll(QPoint place); // limited to the picture
    /// The part that the container shows, in picture pixels.
    QRectF shown() const;
    /// As near as the picture's edges let it come.
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
    bool follows_ = false; // the partner is telling its place
};

} // namespace velara
