// Recipes: steps as a text of lines.
//
//     velara recipe 1
//     # what follows a hash at the start of a line is for people
//     --select rect:10,10,200,100
//     BRIGHTNESS(30)
//     x2
//
// The first line has the version; then comes one step a line, written as for velara-batch, but with nothing quoted for
// a shell. Blank lines, and blanks around a line, mean nothing.
#pragma once
#include "commands/recipe/RecipeStep.h"
#include <vector>

namespace velara {

struct Recipe {
    std::vector<RecipeStep> steps;

    /// Throws StepFault, which names the line. Pictures among the arguments are looked for in the folder.
    static Recipe parse(const QString& text, const QString& folder);
    /// The same of a file, at most 64 MiB; its folder is that of the pictures.
    static Recipe read(const QString& path);
};

/// The text of a recipe with these lines: steps and comments.
QString recipeText(const QStringList& lines);

} // namespace velara
