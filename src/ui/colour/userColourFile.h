// The list of the user's colours as a file in the program folder.
#pragma once
#include "colour/colourCells.h"

namespace velara {

/// Reads the file into colours, as far as it reaches; if there is none, creates an empty one and makes the colours
/// black. If it can't be read the colours are unchanged. At most 64 KiB are read.
void loadUserColours(const QString& programFolder, UserColours& colours);
/// Replaces the whole file. False: the old file is intact.
bool saveUserColours(const QString& programFolder, const UserColours& colours);

} // namespace velara
