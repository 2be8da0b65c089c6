#include "commands/printing.h"
#include "pixels/numbers.h"

namespace velara {

namespace {

constexpr double kMillimetresAnInch = 25.4, kPixelsAnInch = 96, kTwipsAnInch = 1440;

/// The offset that centres a picture: in whole twips, the printers' unit, halved toward zero.
double gap(double millimetres)
{
    return divide(roundEven(millimetres * kTwipsAnInch / kMillimetresAnInch), 2) * kMillimetresAnInch / kTwipsAnInch;
}

} // namespace

QSizeF naturalSize(QSize picture) { return QSizeF(picture) * (kMillimetresAnInch / kPixelsAnInch); }

QRectF printPlace(QSize picture, QSizeF printable, bool center, bool fit, double scale)
{
    if (picture.isEmpty() || printable.isEmpty()) throw RuntimeError(Fault::DivisionByZero);
    const QSizeF own = naturalSize(picture) * (scale > 0 ? scale : 1);
    QSizeF printed = own;
    if (fit || own.width() >= printable.width() || own.height() >= printable.height()) {
        const double ratio = double(picture.width()) / picture.height();
        printed = ratio >= printable.width() / printable.height()
                      ? QSizeF(printable.width(), printable.width() / ratio)
                      : QSizeF(printable.height() * ratio, printable.height());
    }
    const QPointF at =
        center ? QPointF(gap(printable.width() - printed.width()), gap(printable.height() - printed.height()))
               : QPointF();
    return {at, printed};
}

void PrintPictureToFitPage(PrintPage& page, PageOrientation orientation, bool center, bool fit, double scale)
{
    const QRectF printable = page.paper.printable(orientation);
    page.orientation = orientation;
    page.place = printPlace({page.picture.width(), page.picture.height()}, printable.size(), center, fit, scale)
                     .translated(printable.topLeft());
}

} // namespace velara
