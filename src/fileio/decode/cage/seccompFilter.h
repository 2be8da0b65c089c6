// Which system calls a reader may make inside the cage.
#pragma once
#include "fileio/decode/cage/Cage.h"

namespace velara::decode {

/// From here on any call that is not in the tables ends the process; calls for paths come back as a signal where fonts
/// are needed (OpenFonts). False when the filter could not be set.
bool filterSystemCalls(Needs needs);

} // namespace velara::decode
