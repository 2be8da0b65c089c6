// The placement of a picture on a page.
#pragma once
#include "seams/Printers.h"
#include <QSize>

namespace velara {

/// The rectangle of a picture (pixels, 96 per inch) on the printable area of a sheet, from its upper left corner; both
/// in millimetres. Its natural size if it is smaller in both directions and fit is off, else as large as fits.
/// RuntimeError(DivisionByZero) for an empty picture or sheet.
QRectF printPlace(QSize picture, QSizeF printable, bool center, bool fit);

/// Sets orientation and place; the paper is the page's own.
void PrintPictureToFitPage(PrintPage& page, PageOrientation orientation, bool center, bool fit);

} // namespace velara
