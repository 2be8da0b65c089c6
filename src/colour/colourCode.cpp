#include "colour/colourCode.h"
#include <QColor>
#include <QRegularExpression>

namespace velara {

QString colourCode(Colour colour) { return QColor(redOf(colour), greenOf(colour), blueOf(colour)).name(); }

std::optional<Colour> colourOfCode(const QString& text)
{
    static const QRegularExpression kCode(QStringLiteral("^#?((?:[0-9a-f]{3}){1,2})$"),
                                          QRegularExpression::CaseInsensitiveOption);
    const QString trimmed = text.trimmed();
    const auto code = kCode.match(trimmed);
    if (!code.hasMatch() && trimmed.startsWith(u'#')) return {}; // longer codes have alpha or more than eight bits
    const QColor colour(code.hasMatch() ? u'#' + code.captured(1) : trimmed);
    if (!colour.isValid() || colour.alpha() < 255) return {};
    return colourOf(colour.red(), colour.green(), colour.blue());
}

} // namespace velara
