// Turns rows of the command tables into jobs on a document, for the frame, the dialogs and the batch program.
#pragma once
#include "commands/filterDialogs.h"
#include "commands/presets.h"
#include "commands/sizeWords.h"
#include "document/road/Change.h"

namespace velara {

/// Work on the engine alone: the engine's picture at the end is the result, of any size.
Job engineJob(std::function<void(cBitFilter&)> work);
/// One operation with its arguments.
Job operationJob(const Operation& operation, Arguments arguments);
/// The operation of a preset, which must outlive the job.
Job presetJob(const Preset& preset);
/// A filter with the settings of its dialog.
Job filterJob(const FilterRow& row, const FilterArgs& args);
/// A sizing or turning word; afterOf gives its After.
Job sizeJob(const SizeWord& word);
After afterOf(const SizeWord& word);

} // namespace velara
