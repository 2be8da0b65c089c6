// fPagePreview: a preview of the printed sheet, with the picture in its place and a thin line around the printable
// area.
#pragma once
#include "seams/Printers.h"
#include <QImage>
#include <QWidget>

namespace velara {

class fPagePreview final : public QWidget {
    Q_OBJECT
  public:
    fPagePreview(const QString& objectName, const QString& accessibleName, QSize box, QWidget* parent = nullptr);
    /// A small copy of the picture is sufficient.
    void setPicture(const Bits& picture);
    /// Ignores the page's picture.
    void setPage(const PrintPage& page);
    /// The rectangles of the sheet and the picture on this widget.
    QRectF sheet() const;
    QRectF picture() const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double scale() const; // pixels per millimetre
    QRectF onSurface(const QRectF& millimetres) const;

    Bits bits_;
    PrintPage page_;
};

} // namespace velara
