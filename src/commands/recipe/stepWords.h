// The words and operations of the grammar of steps.
#pragma once
#include "commands/recipe/RecipeStep.h"
#include <string_view>
#include <vector>

namespace velara {

/// A command word that needs no window.
struct StepWord {
    std::string_view word;
    QString meaning; // for --list; empty: it doesn't change the picture
    RecipeStep::Kind kind;
    Job job = {};
    After after = After::Step;
};

const std::vector<StepWord>& stepWords();

/// The engine's operations, and the editor's own steps with arguments; by name, null when there is none.
std::vector<const Operation*> stepOperations();
const Operation* findStepOperation(std::string_view name);

/// True for words of the editor that open a window or belong to one.
bool needsWindow(std::string_view word);

} // namespace velara
