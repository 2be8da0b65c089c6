// Filters of file dialogs: converts "caption|patterns|caption|patterns" to Qt's form.
#pragma once
#include <QStringList>

namespace velara {

/// "caption (pattern pattern)" for each pair; blanks around patterns are removed. A pair without patterns shows all
/// files.
QStringList nameFilters(const QString& filter);
/// The suffix for a name without one, in lower case and without the dot, when the filter of that name is chosen (as in
/// nameFilters(), or without its patterns): preferred, if that is one of its patterns, else the first. Empty: none.
QString suffixFor(const QString& filter, const QString& chosen, const QString& preferred);

} // namespace velara
