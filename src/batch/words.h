// The command words that need no window, as run by the batch program.
#pragma once
#include "batch/Session.h"
#include <functional>
#include <string_view>
#include <vector>

namespace velara {

struct Word {
    std::string_view word;
    QString meaning; // for --list; empty: it doesn't change the picture
    std::function<void(Session&)> run;
    GoesBack goesBack = GoesBack::Never;
};

const std::vector<Word>& words();

/// The engine's operations, and the editor's own steps with arguments; by name, null when there is none.
std::vector<const Operation*> stepOperations();
const Operation* findStepOperation(std::string_view name);

/// True for words of the editor that open a window or belong to one.
bool needsWindow(std::string_view word);

/// "0.5", "\"slanting\"" and so on.
QString argumentText(const Argument& argument);
/// "EMBOSS(10)".
QString callText(const Preset& preset);

} // namespace velara
