#include "pixels/fitSize.h"
#include "pixels/numbers.h"

namespace velara {

QSize fitSize(QSize size, QSize box)
{
    if (size.width() <= box.width() && size.height() <= box.height()) return size;
    const double xScale = quotient(box.width(), size.width()), yScale = quotient(box.height(), size.height());
    return yScale < xScale ? QSize(roundEven(yScale * size.width()), box.height())
                           : QSize(box.width(), roundEven(xScale * size.height()));
}

} // namespace velara
