// fPagePreview: a sheet of paper as it will come out of the printer, with the picture in its place and a fine line
// around what the printer reaches.
#pragma once
#include "seams/Printers.h"
#include <QImage>
#include <QWidget>

namespace velara {

class fPagePreview final : public QWidget {
    Q_OBJECT
  public:
    fPagePreview(const QString& objectName, const QString& accessibleName, QSize box, QWidget* parent = nullptr);
    /// A small copy of the picture serves.
    void setPicture(const Bits& picture);
    /// Its picture is left out of account.
    void setPage(const PrintPage& page);
    /// Where the sheet and the picture stand on the surface.
    QRectF sheet() const;
    QRectF picture() const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double scale() const; // pixels a millimetre
    QRectF onSurface(const QRectF& millimetres) const;

    Bits bits_;
    PrintPage page_;
};

} // namespace velara
