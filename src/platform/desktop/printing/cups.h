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
struct QueueFacts {
    std::vector<Paper> papers; // the default first; at least one
    int mostCopies = kMostCopies;
};
/// `papers` when it doesn't tell.
QueueFacts cupsFacts(const QString& queue, const std::vector<Paper>& papers, const Patience& patience);
/// Sends a PDF to a queue and follows the job, for three seconds at most, until it is printed or refused. Once the
/// server has answered, the patience restarts, with the time for the bytes at 100 kB a second. When the patience ends
/// or is given up, and whenever an error is returned, the job is cancelled.
PrintResult cupsPrint(const QString& queue, const QString& pdf, const QString& title, const JobOptions& options,
                      Patience& patience);

} // namespace velara
