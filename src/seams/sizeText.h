// Sizes as people read them and as settings keep them.
#pragma once
#include <QSize>
#include <QStringList>

namespace velara {

/// "640 x 480", or with another text between the sides.
inline QString sizeText(QSize size, const QString& by = QStringLiteral(" x "))
{
    return QString::number(size.width()) + by + QString::number(size.height());
}

/// The size that such a text tells; another one gives an empty size.
inline QSize sizeOf(const QString& text, const QString& by = QStringLiteral(" x "))
{
    const QStringList sides = text.split(by);
    return sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
}

} // namespace velara
