// What is asked of the print server; any thread may call. Looked for every quarter of a second of silence, the patience
// ends a call; names and neighbours of the network are asked by libraries that don't know of it.
#pragma once
#include "platform/desktop/printing/Talks.h"
#include "seams/Printers.h"
#include <utility>

namespace velara {

/// How long the server may take to answer, in all.
constexpr std::chrono::milliseconds kServerPatience{10000};

/// Options of a print job: name and value, as the server calls them.
using JobOptions = std::vector<std::pair<QByteArray, QByteArray>>;

/// The queues in the server's order; the current one is the server's default. Empty without a server.
Printers::List cupsQueues(const Patience& patience);
/// The sheets that a queue takes, first the one that it takes unless it is told otherwise; otherwise when it doesn't
/// say.
std::vector<Paper> cupsPapers(const QString& queue, const std::vector<Paper>& otherwise, const Patience& patience);
/// Gives a PDF to a queue. The reason why not, in words for a person; empty when it is taken. Once the server has
/// answered, the patience starts anew, with the time that the bytes may take at 100 kB a second.
QString cupsPrint(const QString& queue, const QString& pdf, const QString& title, const JobOptions& options,
                  Patience& patience);

} // namespace velara
