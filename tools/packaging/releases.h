// The list of changes (CHANGELOG.md), for software centres and for Debian. A release is "## VERSION (YYYY-MM-DD)", with
// points below that begin with "- ".
#pragma once
#include <QList>
#include <QString>
#include <QStringList>

namespace velara::packaging {

struct Release {
    QString version, date;
    QStringList points; // a paragraph each, with ` for code
};
using Releases = QList<Release>; // the newest first

Releases releasesOf(const QString& changelog);
QString releasesXml(const Releases& releases);
QString debianChangelog(const Releases& releases);

} // namespace velara::packaging
