// Sizes as text, for people and for settings.
#pragma once
#include <QSize>
#include <QStringList>

namespace velara {

/// "640 x 480", or with another text between the sides.
inline QString sizeText(QSize size, const QString& by = QStringLiteral(" x "))
{
    return QString::number(size.width()) + by + QString::number(size.height());
}

/// Parses such a text; any other gives an empty size.
inline QSize sizeOf(const QString& text, const QString& by = QStringLiteral(" x "))
{
    const QStringList sides = text.split(by);
    return sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
}

} // namespace velara
