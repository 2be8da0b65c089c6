#include "platform/nameFilters.h"

namespace velara {

namespace {

/// A bracket too many would end the list, and show a line without its name.
QStringList patternsOf(QString part)
{
    QStringList patterns;
    for (const QString& pattern : part.remove(u'(').remove(u')').split(';', Qt::SkipEmptyParts))
        patterns << pattern.trimmed();
    return patterns;
}

} // namespace

QStringList nameFilters(const QString& filter)
{
    QStringList list;
    const QStringList parts = filter.split('|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = patternsOf(parts[i + 1]);
        if (patterns.isEmpty()) patterns << "*";
        list << parts[i].trimmed() + " (" + patterns.join(' ') + ")";
    }
    return list;
}

QString suffixFor(const QString& filter, const QString& chosen, const QString& preferred)
{
    const QStringList names = nameFilters(filter), parts = filter.split('|');
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names[i] != chosen && parts[2 * i].trimmed() != chosen) continue;
        QStringList suffixes;
        for (const QString& pattern : patternsOf(parts[2 * i + 1]))
            if (pattern.startsWith("*.")) suffixes << pattern.mid(2).toLower();
        return suffixes.contains(preferred) ? preferred : suffixes.value(0);
    }
    return {};
}

} // namespace velara
