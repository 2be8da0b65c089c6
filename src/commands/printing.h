// The placement of a picture on a page.
#pragma once
#include "seams/Printers.h"
#include <QSize>

namespace velara {

/// The rectangle of a picture (pixels, 96 per inch) on the printable area of a sheet, from its upper left corner; both
/// in millimetres. scale is a part of the natural size, at most as large as fits; 0: the natural size if it is smaller
/// in both directions and fit is off, else as large as fits. RuntimeError(DivisionByZero) for an empty picture or
/// sheet.
QRectF printPlace(QSize picture, QSizeF printable, bool center, bool fit, double scale = 0);

/// The size of a picture at 96 pixels per inch, in millimetres.
QSizeF naturalSize(QSize picture);

/// Sets orientation and place; the paper is the page's own. scale: see printPlace.
void PrintPictureToFitPage(PrintPage& page, PageOrientation orientation, bool center, bool fit, double scale = 0);

} // namespace velara
