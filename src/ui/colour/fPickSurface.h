// fPickSurface: a picture of colours to pick from, by mouse and by keys: the plane and the strip of the colour box, the
// field and the strip of the picker. Knows no colours; it reports positions.
#pragma once
#include "ui/widgets/inputs/Spoken.h"
#include <QImage>
#include <QWidget>

namespace velara {

class fPickSurface final : public QWidget, public Spoken {
    Q_OBJECT
  public:
    enum class Mark { None, Ring, Arrows };
    struct Look {
        QSizeF cell; // screen pixels per pixel of the picture
        QSize shown; // how many of them are shown; the pointer reaches the others from outside
        Mark mark;   // arrows are in a margin of kArrow on both sides
    };
    static constexpr int kArrow = 8, kEdge = 2; // kEdge: the sunken frame

    fPickSurface(const QString& name, const QString& accessibleName, const Look& look, QWidget* parent);

    void setImage(const QImage& image);
    const QImage& image() const { return image_; }
    /// The position of the mark, from which arrow keys start.
    void setPlace(QPoint place);
    QPoint place() const { return place_; }
    /// The picked colour as a text for screen readers.
    void describe(const QString& text);
    QAccessible::Role spokenRole() const override;
    QString spokenValue() const override { return accessibleDescription(); }
    std::optional<Range> spokenRange() const override;
    void setSpoken(int value) override;

  signals:
    void picked(QPoint place); // pressed, dragged to, or reached by arrow keys; within the picture
    void clicked();            // the button was released; Space
    void doubleClicked();
    void entered();             // Enter
    void hovered(QPoint place); // the pointer is over it
    void left();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    QRect surface() const; // inside the frame
    bool isStrip() const { return look_.shown.width() == 1; }
    QPoint placeAt(QPointF at) const;
    void pick(QPoint place);
    void drawMark(class QPainter& painter) const;

    Look look_;
    QImage image_;
    QPoint place_;
};

} // namespace velara
