// The system calls permitted to a reader inside the cage.
#pragma once
#include "fileio/decode/cage/Cage.h"

namespace velara::decode {

/// From now on any call that is not in the tables ends the process; where fonts are needed, calls by path raise a
/// signal instead (OpenFonts). False when the filter could not be set.
bool filterSystemCalls(Needs needs);

} // namespace velara::decode
