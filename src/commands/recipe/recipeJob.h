// Recipes and documents: a whole recipe as one change, and what was done to a document as a recipe.
#pragma once
#include "commands/recipe/Recipe.h"
#include "document/undo/StepNote.h"
#include <span>

namespace velara {

class Platform;

/// All steps, in order, as one job, with the same result as velara-batch has. It first reads the pictures that they
/// name and looks for their fonts; a failure names the step. Progress is that of the whole. platform is asked for both
/// on the job's thread. A job runs once.
Job recipeJob(std::vector<RecipeStep> steps, Platform& platform);

/// The words of such a change, one step a line; empty where they would not mean the same elsewhere: a step goes back
/// beyond the first, or a picture is named relatively.
QString recipeWords(const std::vector<RecipeStep>& steps);

struct HistoryLines {
    QStringList lines;  // of a recipe; for each step by hand a comment
    QStringList byHand; // the names of those
};
/// What was done, each step in the selection that it ran in. before: the size of the picture that the first one got.
HistoryLines historyLines(std::span<const StepNote> notes, int widthBefore, int heightBefore);

} // namespace velara
