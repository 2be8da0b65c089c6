// The work of velara-decode: reads one picture for the program at the other end of the socket; see DecodeProtocol.h.
#pragma once
#include <QStringList>

namespace velara::decode {

/// Enters the cage, reads the picture with the reader of the extension (lower case, no dot), and ends the process.
/// wishes: see DecodeProtocol.h; unknown ones are ignored. Returns only when there is no shared memory for rows: nobody
/// is at the other end.
void answer(const QString& extension, const QStringList& wishes = {});

} // namespace velara::decode
