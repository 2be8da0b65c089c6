// What the gallery and the golden results run each filter dialog with: as it opens, and once with telling values.
#pragma once
#include "commands/filterDialogs.h"

namespace velara {

enum class DialogTrial { AsItOpens, Telling };

/// The arguments of a row of filterRows(). Discs are measured against a preview of 300 pixels, the wells are white and
/// black when the dialog opens.
FilterArgs trialArgs(const FilterRow& row, DialogTrial trial);

} // namespace velara
