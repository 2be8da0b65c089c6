#include "commands/recipe/stepWords.h"
#include "commands/colourDepth.h"
#include "commands/effects.h"
#include "commands/jobs.h"
#include "commands/presets.h"
#include "commands/recipe/geometrySteps.h"
#include "commands/recipe/stepText.h"
#include "commands/recipe/textStep.h"
#include "commands/vocabulary.h"
#include "document/resizing.h"
#include "document/texturing.h"
#include "seams/text.h"
#include <QStringList>
#include <algorithm>

namespace velara {

namespace {

QString meaningOf(const SizeWord& word)
{
    const QString by = QString::number(word.value);
    const QString way = word.quality ? QStringLiteral(", smoothly") : QStringLiteral(", by the nearest pixel");
    switch (word.kind) {
    case SizeWord::Enlarge:
        return QStringLiteral("enlarges ") + by + QStringLiteral(" times") + way;
    case SizeWord::Reduce:
        if (word.value == 1) return QStringLiteral("back to the size before the sizing words that precede it");
        return QStringLiteral("reduces to 1/") + by + way;
    default:
        return QStringLiteral("turns by ") + by + QStringLiteral(" degrees") + way;
    }
}

void crop(Document& draft, cBitFilter& filter)
{
    const CropAnswer answer = cropAnswer(draft);
    if (answer == CropAnswer::NothingSelected) throw StepFault(StepFault::Failed, QStringLiteral("Nothing selected"));
    if (answer == CropAnswer::TooSmall) throw StepFault(StepFault::Failed, QStringLiteral("Minimum size: 2 x 2"));
    cropImage(draft, filter);
}

/// The words that change the picture and aren't in another table.
constexpr struct OwnStep {
    std::string_view word;
    const char* meaning;
    RecipeStep::Kind kind;
    void (*job)(Document&, cBitFilter&) = nullptr;
} kSteps[] = {
    {"CROP", "cuts to the box of the selection", RecipeStep::Change, crop},
    {"UNDO", "one step back", RecipeStep::Undo},
    {"REDO", "one step forward again", RecipeStep::Redo},
};
static_assert(
    std::ranges::all_of(kCommandWords,
                        [](const CommandWord& w) {
                            return std::ranges::count(kSteps, w.word, &OwnStep::word) == (w.kind == WordKind::Step);
                        }),
    "a word of the kind Step is velara-batch's, too: add its row to kSteps in src/commands/recipe/stepWords.cpp");

std::vector<StepWord> makeWords()
{
    std::vector<StepWord> list;
    for (const Preset& preset : presets())
        list.push_back(
            {preset.word, callText(preset.operation, preset.arguments), RecipeStep::Change, presetJob(preset)});
    for (const SizeWord& word : sizeWords())
        list.push_back({word.word, meaningOf(word), RecipeStep::Change, sizeJob(word), afterOf(word)});
    for (const OwnStep& step : kSteps)
        list.push_back({step.word, QString::fromUtf8(step.meaning), step.kind, step.job});
    for (const CommandWord& word : kCommandWords)
        if (word.kind == WordKind::View || word.kind == WordKind::Nothing)
            list.push_back({word.word, {}, RecipeStep::Nothing});
    return list;
}

} // namespace

const std::vector<StepWord>& stepWords()
{
    static const std::vector<StepWord> all = makeWords();
    return all;
}

std::vector<const Operation*> stepOperations()
{
    std::vector<const Operation*> all;
    for (const Operation& operation : operations()) all.push_back(&operation);
    all.push_back(&applyTextureOperation());
    all.push_back(&texturizeOperation());
    all.push_back(&setDepthOperation());
    for (const Operation& operation : geometryOperations()) all.push_back(&operation);
    all.push_back(&textOperation());
    return all;
}

const Operation* findStepOperation(std::string_view name)
{
    const auto all = stepOperations();
    const auto found = std::ranges::find(all, name, [](const Operation* operation) { return operation->name; });
    return found == all.end() ? nullptr : *found;
}

bool needsWindow(std::string_view word)
{
    const CommandWord* row = findCommandWord(word);
    return row && (row->kind == WordKind::Window || row->kind == WordKind::Dialog);
}

} // namespace velara
