#include "batch/outputs/icon.h"
#include "batch/Failure.h"
#include "fileio/writers/iconFile.h"
#include <QRegularExpression>

namespace velara {

IconOrder iconOrder(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^(\\d+)x(\\d+)(?:,mask:(\\d+|0x[0-9a-fA-F]+))?$"));
    const QRegularExpressionMatch match = form.match(text);
    bool isColour = true;
    IconOrder order{{match.captured(1).toInt(), match.captured(2).toInt()}};
    if (const QString mask = match.captured(3); !mask.isEmpty()) {
        order.mask = mask.toInt(&isColour, mask.startsWith(QStringLiteral("0x")) ? 16 : 10);
        isColour = isColour && *order.mask <= 0xFFFFFF;
    }
    if (match.hasMatch() && isColour && iconSizeAllowed(order.size.width(), order.size.height())) return order;
    throw badArgument(QStringLiteral("--icon: \"%1\" is no icon; it has to be WIDTHxHEIGHT, each from 1 to %2, such as "
                                     "32x32, or the same with the colour that becomes transparent, such as "
                                     "32x32,mask:0x00BBGGRR")
                          .arg(text)
                          .arg(kMostIconSide));
}

} // namespace velara
