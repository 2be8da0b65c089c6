#include "batch/many/Tally.h"
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace velara {

namespace {

/// "0:07", "12:30", "2:00:00".
QString timeOf(double seconds)
{
    const auto whole = static_cast<qint64>(std::llround(seconds));
    const QString minutes = QString::number(whole / 60 % 60);
    const QString rest = u':' + QString::number(whole % 60).rightJustified(2, u'0');
    return whole < 3600 ? minutes + rest
                        : QString::number(whole / 3600) + u':' + minutes.rightJustified(2, u'0') + rest;
}

QString rateOf(double aMinute) { return QStringLiteral("%1 a minute").arg(std::llround(aMinute)); }

} // namespace

QString barOf(const Tally& tally, double seconds, int columns)
{
    const int worked = tally.done + tally.failed, over = worked + tally.skipped;
    QStringList parts{QStringLiteral("%1 of %2").arg(over).arg(tally.total)};
    if (tally.failed > 0) parts << QStringLiteral("%1 failed").arg(tally.failed);
    if (worked > 0 && seconds > 0) {
        parts << rateOf(worked * 60 / seconds);
        parts << timeOf(tally.left() * seconds / worked) + QStringLiteral(" left");
    }
    const QString text = parts.join(QStringLiteral(", "));
    const int width = std::min(30, columns - static_cast<int>(text.size()) - 3);
    if (width < 5) return text.left(std::max(columns, 0));
    const int filled = tally.total > 0 ? static_cast<int>(std::int64_t{width} * over / tally.total) : width;
    return u'[' + QString(filled, u'#') + QString(width - filled, u'.') + QStringLiteral("] ") + text;
}

QString summaryOf(const Tally& tally, double seconds)
{
    QStringList parts{QStringLiteral("%1 done").arg(tally.done)};
    const std::pair<int, const char*> rest[] = {
        {tally.skipped, "%1 skipped"}, {tally.failed, "%1 failed"}, {tally.left(), "%1 not begun"}};
    for (const auto& [count, text] : rest)
        if (count > 0) parts << QString::fromUtf8(text).arg(count);
    parts << QStringLiteral("in ") + timeOf(seconds);
    const int worked = tally.done + tally.failed;
    return parts.join(QStringLiteral(", ")) +
           (worked > 0 && seconds > 0 ? QStringLiteral(" (%1)").arg(rateOf(worked * 60 / seconds)) : QString());
}

} // namespace velara
