// The readers as they were while one library read almost everything, frozen: what the readers of today are compared
// with.
#pragma once
#include "fileio/decode/decode.h"

namespace velara::compare {

/// As decode::decodePicture, by the library with its mends, or by Qt for gif.
decode::Decoded decodeOld(decode::FileBytes&& file, const QString& extension);
/// Extensions that decodeOld knows, in lower case.
bool isOldFormat(const QString& extension);

} // namespace velara::compare
