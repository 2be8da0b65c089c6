#include "releases.h"
#include <QDate>
#include <QLocale>
#include <QRegularExpression>

namespace velara::packaging {

namespace {

constexpr int kWidth = 76;

/// Indented by four, the first line with a star.
QString wrapped(const QString& point)
{
    QString lines, line = QStringLiteral("  *");
    for (const QString& word : point.split(u' ')) {
        if (line.size() + word.size() > kWidth) {
            lines += line + u'\n';
            line = QStringLiteral("   ");
        }
        line += u' ' + word;
    }
    return lines + line + u'\n';
}

} // namespace

Releases releasesOf(const QString& changelog)
{
    static const QRegularExpression kHeading(QStringLiteral("^## (\\S+) \\((\\d{4}-\\d\\d-\\d\\d)\\)$"));
    Releases releases;
    for (const QString& line : changelog.split(u'\n')) {
        const auto heading = kHeading.match(line);
        if (heading.hasMatch())
            releases.append({heading.captured(1), heading.captured(2), {}});
        else if (releases.isEmpty() || line.trimmed().isEmpty())
            continue;
        else if (line.startsWith(u"- "))
            releases.last().points << line.mid(2).trimmed();
        else if (!releases.last().points.isEmpty())
            releases.last().points.last() += u' ' + line.trimmed();
    }
    return releases;
}

QString releasesXml(const Releases& releases)
{
    QString xml;
    for (const Release& release : releases) {
        xml += QStringLiteral("    <release version=\"%1\" date=\"%2\">\n      <description>\n        <ul>\n")
                   .arg(release.version, release.date);
        for (QString point : release.points)
            xml += QStringLiteral("          <li>%1</li>\n").arg(point.remove(u'`').toHtmlEscaped());
        xml += QStringLiteral("        </ul>\n      </description>\n    </release>\n");
    }
    return xml;
}

QString debianChangelog(const Releases& releases)
{
    QString text;
    for (const Release& release : releases) {
        text += QStringLiteral("velara-studio (%1) unstable; urgency=medium\n\n").arg(release.version);
        for (QString point : release.points) text += wrapped(point.remove(u'`'));
        const QString day =
            QLocale::c().toString(QDate::fromString(release.date, Qt::ISODate), QStringLiteral("ddd, dd MMM yyyy"));
        text += QStringLiteral("\n -- " VELARA_MAINTAINER "  %1 12:00:00 +0000\n\n").arg(day);
    }
    return text.trimmed() + u'\n';
}

} // namespace velara::packaging
