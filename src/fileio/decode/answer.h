// The work of velara-decode: one picture for the program at the other end of the line; see DecodeProtocol.h.
#pragma once
#include <QString>

namespace velara::decode {

/// Closes the cage, reads the picture as the extension (lower case, no dot) says, and ends the process. Returns only
/// when there is no memory to put rows into: nobody is at the other end.
void answer(const QString& extension);

} // namespace velara::decode
