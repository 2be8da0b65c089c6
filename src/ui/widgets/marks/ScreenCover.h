// ScreenCover: covers every screen with a borderless window that shows a picture of it, with a rectangle of four lines
// on top. Derived classes define what the mouse does with the rectangle. Esc, the right button or closing one of the
// windows leaves.
#pragma once
#include "seams/Screen.h"
#include <QImage>
#include <QWidget>
#include <array>
#include <vector>

class QKeyEvent;

namespace velara {

class ScreenCover;

/// One screen of it.
class CoverWindow final : public QWidget {
    Q_OBJECT
  public:
    CoverWindow(ScreenCover& cover, const ScreenPicture::Part& part);

    const ScreenPicture::Part& part() const { return part_; }
    /// The position of a picture's pixel in this window.
    QPointF toWindow(QPoint pixel) const;
    void showRectangle(const QRect& rectangle);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    ScreenCover& cover_;
    ScreenPicture::Part part_;
    std::array<QWidget*, 4> lines_; // left, top, right, bottom
    std::array<QWidget*, 8> grips_; // as in kGrips
    QRect box_;                     // of the rectangle
};

class ScreenCover : public QObject {
    Q_OBJECT
  public:
    /// Sides of the rectangle: one, or two that meet; or its inside.
    enum Side { None = 0, Left = 1, Top = 2, Right = 4, Bottom = 8, Inside = 16 };
    using Sides = int;

    /// The names of its windows.
    struct Names {
        QString object, title, accessible;
    };

    ScreenCover(Names names, QObject* parent);
    ~ScreenCover() override;

    const Names& names() const { return names_; }
    /// False when there is nothing to show.
    bool show(const ScreenPicture& picture);
    const ScreenPicture& picture() const { return picture_; }
    /// The picture without a copy; valid as long as picture().
    QImage image() const;
    QRect whole() const { return {0, 0, picture_.bits.width(), picture_.bits.height()}; }
    /// The pixel at a desktop position, or the nearest one; at the far ends of a screen one beyond it.
    QPoint pixelAt(QPointF global) const;

    // --- Mouse and keys
    virtual void press(QPointF global) = 0;
    virtual void move(QPointF global) = 0;
    virtual void release(QPointF global) = 0;
    /// A key that doesn't leave; false: not used.
    virtual bool key(const QKeyEvent&) { return false; }
    void leave();
    /// The part of the rectangle at a pixel that the mouse takes hold of.
    virtual Sides hold(QPoint) const { return None; }

  signals:
    void left();

  protected:
    /// Adds other widgets to a new window, which owns them.
    virtual void furnish(CoverWindow&) {}
    virtual QRect rectangle() const = 0;
    /// Whether what is outside of the rectangle is darker, and whether that has grips.
    virtual bool dims() const { return false; }
    virtual bool hasGrips() const { return false; }
    const std::vector<CoverWindow*>& windows() const { return windows_; }
    void showRectangle();
    void close();

  private:
    friend class CoverWindow;
    const Names names_;
    ScreenPicture picture_;
    std::vector<CoverWindow*> windows_;
};

/// The picture's pixels within the rectangle; black where that exceeds it. Null for an empty one.
Bits partOf(const Bits& bits, const QRect& rectangle);

} // namespace velara
