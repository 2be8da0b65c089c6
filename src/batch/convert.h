// Where a picture is only put into another format, its file is written while it is read.
#pragma once
#include "batch/BatchPlatform.h"
#include "batch/CommandLine.h"

namespace velara {

/// Whether nothing is done to the picture, and both ends are files.
bool isConversion(const CommandLine& line);
/// Reads and writes it; tells and fails as reading it first and writing it then. Throws Failure.
void convert(BatchPlatform& platform, const CommandLine& line);

} // namespace velara
