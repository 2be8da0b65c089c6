// velara-batch for many pictures.
#pragma once
#include "batch/CommandLine.h"

namespace velara {

/// Makes all outputs of a line with many inputs and tells the user. Returns the exit status: 0 all done or skipped, 1
/// some failed or were not begun, 128 and the number of a signal that ended it. Throws a Failure before anything is
/// written. The process has one thread, and no application object.
int runMany(CommandLine line);

} // namespace velara
