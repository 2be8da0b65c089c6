// Filters of file dialogs: from "caption|patterns|caption|patterns" to what Qt takes.
#pragma once
#include <QStringList>

namespace velara {

/// "caption (pattern pattern)" for each pair; blanks around patterns are dropped. A pair without patterns shows all.
QStringList nameFilters(const QString& filter);
/// What a name without a suffix gets, in lower case and without the dot, when the filter of that name is chosen (as of
/// nameFilters(), or without its patterns): preferred, where that is one of its patterns, else the first. Empty: none.
QString suffixFor(const QString& filter, const QString& chosen, const QString& preferred);

} // namespace velara
