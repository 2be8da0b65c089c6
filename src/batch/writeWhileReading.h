// A picture's file is written while the picture is read, and the steps are taken in between, where that is possible.
#pragma once
#include "batch/BatchPlatform.h"
#include "batch/CommandLine.h"

namespace velara {

/// Whether both ends are files, and a row of the result depends on few rows of the picture.
bool canBeWrittenWhileRead(const CommandLine& line);
/// Reads it, takes the steps and writes it; tells and fails as doing one after the other. Throws Failure.
void writeWhileReading(BatchPlatform& platform, const CommandLine& line);

} // namespace velara
