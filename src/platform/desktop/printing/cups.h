// Calls to the print server; thread-safe. The patience is checked every quarter of a second of silence and ends a call;
// host name look-ups and network discovery are done by libraries that can't be interrupted.
#pragma once
#include "platform/desktop/printing/Talks.h"
#include "seams/Printers.h"
#include <utility>

namespace velara {

/// The server's total time to answer.
constexpr std::chrono::milliseconds kServerPatience{10000};

/// Options of a print job: the server's names and values.
using JobOptions = std::vector<std::pair<QByteArray, QByteArray>>;

/// The queues in the server's order; the current one is the server's default. Empty without a server.
Printers::List cupsQueues(const Patience& patience);
/// The papers of a queue, its default first; `otherwise` when it doesn't tell.
std::vector<Paper> cupsPapers(const QString& queue, const std::vector<Paper>& otherwise, const Patience& patience);
/// Sends a PDF to a queue. Returns the reason of a failure, for the user; empty when it is accepted. Once the server
/// has answered, the patience restarts, with the time for the bytes at 100 kB a second.
QString cupsPrint(const QString& queue, const QString& pdf, const QString& title, const JobOptions& options,
                  Patience& patience);

} // namespace velara
