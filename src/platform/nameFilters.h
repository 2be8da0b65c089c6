// Filters of file dialogs: from "caption|patterns|caption|patterns" to what Qt takes.
#pragma once
#include <QStringList>

namespace velara {

/// "caption (pattern pattern)" for each pair; blanks around patterns are dropped. A pair without patterns shows all.
QStringList nameFilters(const QString& filter);
/// The suffix of the first pattern of one of nameFilters(), without the dot; empty when there is none.
QString firstSuffix(const QString& nameFilter);

} // namespace velara
