// A small mark over a picture: grips, carets, the lines of a rectangle.
#pragma once
#include <QPainter>
#include <QWidget>

namespace velara {

class Mark final : public QWidget {
  public:
    /// Fills the rectangle, which is the whole mark.
    using Paint = void (*)(QPainter& painter, const QRect& rect);

    Mark(Paint paint, const QString& name, QWidget* parent) : QWidget(parent), paint_(paint) { setObjectName(name); }

  protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        paint_(painter, rect());
    }

  private:
    Paint paint_;
};

} // namespace velara
