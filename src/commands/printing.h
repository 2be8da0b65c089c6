// Where a picture goes on a page.
#pragma once
#include "seams/Printers.h"
#include <QSize>

namespace velara {

/// The place of a picture (pixels, 96 to an inch) on what of a sheet can be printed on, from its upper left corner;
/// both in millimetres. Its own size where it is smaller both ways and fit is off, else as large as fits.
/// RuntimeError(DivisionByZero) for an empty picture or sheet.
QRectF printPlace(QSize picture, QSizeF printable, bool center, bool fit);

/// Fills in orientation and place; the paper is the page's own.
void PrintPictureToFitPage(PrintPage& page, PageOrientation orientation, bool center, bool fit);

} // namespace velara
