// The manual pages, from what the programs say for --help.
#pragma once
#include <QMap>
#include <QString>

namespace velara::packaging {

/// Texts by the names of their files. date: YYYY-MM-DD
QMap<QString, QString> manualPages(const QString& date);

} // namespace velara::packaging
