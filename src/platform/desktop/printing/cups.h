// What is asked of the print server. Every call may take up to ten seconds when it is silent; any thread may call.
#pragma once
#include "seams/Printers.h"
#include <optional>
#include <utility>

namespace velara {

/// Options of a print job: name and value, as the server calls them.
using JobOptions = std::vector<std::pair<QByteArray, QByteArray>>;

/// The queues in the server's order; the current one is the server's default. Empty without a server.
Printers::List cupsQueues();
/// The sheet that a queue takes unless it is told otherwise.
std::optional<Paper> cupsPaper(const QString& queue);
/// Gives a PDF to a queue. The reason why not, in words for a person; empty when it is taken.
QString cupsPrint(const QString& queue, const QString& pdf, const QString& title, const JobOptions& options);

} // namespace velara
