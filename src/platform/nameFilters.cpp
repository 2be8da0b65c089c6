#include "platform/nameFilters.h"
#include <QRegularExpression>

namespace velara {

QStringList nameFilters(const QString& filter)
{
    QStringList list;
    const QStringList parts = filter.split('|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (const QString& pattern : parts[i + 1].split(';', Qt::SkipEmptyParts)) patterns << pattern.trimmed();
        if (patterns.isEmpty()) patterns << "*";
        list << parts[i].trimmed() + " (" + patterns.join(' ') + ")";
    }
    return list;
}

QString firstSuffix(const QString& nameFilter)
{
    static const QRegularExpression first(R"(\(\*\.([A-Za-z0-9]+)[^()]*\)$)");
    return first.match(nameFilter).captured(1);
}

} // namespace velara
