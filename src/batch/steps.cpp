// The steps of the grammar (commands/recipe), as the command line takes them.
#include "batch/CommandLine.h"
#include "commands/recipe/Recipe.h"

namespace velara {

namespace {

template <class Work> auto failing(Work work)
{
    try {
        return work();
    } catch (const StepFault& fault) {
        throw failureOf(fault);
    }
}

void take(Session& session, const RecipeStep& step)
{
    switch (step.kind) {
    case RecipeStep::Nothing:
        return;
    case RecipeStep::Change:
        return session.change(step.job, step.after);
    case RecipeStep::Select:
        return session.select([&](cBitRegion& selection) { step.select(selection, session.picture()); });
    case RecipeStep::Undo:
        return session.undo();
    case RecipeStep::Redo:
        return session.redo();
    }
}

LineStep lineStep(const RecipeStep& step)
{
    return {step.text,    [step](Session& session) { failing([&] { take(session, step); }); },
            step.prepare, step.goesBack(),
            step.fonts,   step.drawBy,
            step.rows};
}

} // namespace

LineStep parseStep(const QString& text)
{
    return failing([&] { return lineStep(parseRecipeStep(text)); });
}

LineStep parseSelection(const QString& shape)
{
    return failing([&] { return lineStep(parseSelectionStep(shape)); });
}

std::vector<LineStep> recipeSteps(const QString& path)
{
    return failing([&] {
        std::vector<LineStep> steps;
        for (const RecipeStep& step : Recipe::read(path).steps) steps.push_back(lineStep(step));
        return steps;
    });
}

} // namespace velara
