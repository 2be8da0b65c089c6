// Which system calls a reader may make inside the cage.
#pragma once
#include "fileio/decode/Cage.h"

namespace velara::decode {

/// From here on any call that is not in the tables ends the process. False where the kernel has no filters.
bool filterSystemCalls(Needs needs);

} // namespace velara::decode
