// What the gallery and the golden results run each filter dialog with: as it opens, and once with telling values.
#pragma once
#include "commands/filterDialogs.h"
#include "engine/operations.h"

namespace velara {

enum class DialogTrial { AsItOpens, Telling };

/// The arguments of a row of filterRows(). Discs are measured against a preview of 300 pixels, the wells are white and
/// black when the dialog opens.
FilterArgs trialArgs(const FilterRow& row, DialogTrial trial);

/// The operation that a dialog stands for, with the arguments that both trials have to come to; written out, so that a
/// dialog that mixes its controls up is found.
struct DialogCall {
    std::string_view operation;
    Arguments asItOpens, telling;
};
const DialogCall& dialogCall(const FilterRow& row);

} // namespace velara
