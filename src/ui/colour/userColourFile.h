// The list of the user's colours as a file of the program folder.
#pragma once
#include "colour/colourCells.h"

namespace velara {

/// Reads the file into colours, as far as it reaches; makes it, empty, when there is none, and the colours black.
/// Whatever can't be read leaves them as they were. Never more than a few thousand bytes are looked at.
void loadUserColours(const QString& programFolder, UserColours& colours);
/// Replaces the whole file. False: what stood there still does.
bool saveUserColours(const QString& programFolder, const UserColours& colours);

} // namespace velara
