// A step of velara-batch and of recipes: its text, and what it does. The grammar is described by velara-batch --help.
#pragma once
#include "commands/recipe/StepFault.h"
#include "document/road/Change.h"
#include "engine/operations.h"
#include "region/cBitRegion.h"
#include <QStringList>
#include <optional>

namespace velara {

class Fonts;

/// Reads a picture file; throws what the caller understands.
using ReadPicture = std::function<Bits(const QString& path)>;

/// Whether a step needs earlier pictures; consecutive sizing words go back to the one before the first of them.
enum class GoesBack { Never, WhenRepeated, Always };

/// A change that can be made to a picture in bands of rows.
struct RowStep {
    int reach = 0;                         // rows above and below that a row of the result depends on
    std::function<void(cBitFilter&)> take; // on the rows of a band and those around them
};

struct RecipeStep {
    enum Kind { Nothing, Change, Select, Undo, Redo };
    QString text; // as written; that of a selection begins with "--select "
    Kind kind = Nothing;
    Job job = {};              // of a change; may throw StepFault
    After after = After::Step; // of a change
    std::optional<RowStep> rows = {};
    /// Changes the selection of a picture. Throws StepFault when the shape lies outside of it.
    std::function<void(cBitRegion& selection, const Bits& picture)> select = {};
    QStringList pictures = {}; // the names of the files among its arguments
    /// Reads these; to be called once, before the job runs. Null where there are none.
    std::function<void(const ReadPicture&)> prepare = {};
    QStringList fonts = {}; // the families that it draws with
    /// Says who draws them; to be called once, before the job runs. Null where it draws no text.
    std::function<void(Fonts&)> drawBy = {};

    GoesBack goesBack() const
    {
        if (kind == Undo || kind == Redo) return GoesBack::Always;
        return kind == Change && after == After::Sizing ? GoesBack::WhenRepeated : GoesBack::Never;
    }
};

/// A word, or an operation with its arguments. Throws StepFault.
RecipeStep parseRecipeStep(const QString& text);
/// A shape as after "--select". Throws StepFault.
RecipeStep parseSelectionStep(const QString& shape);
/// Throws StepFault, which names it, where one of these families isn't installed; no other takes its place.
void checkFonts(const QStringList& families, Fonts& fonts);
/// An argument as a value of the parameter's type; pictures stay file names until they are read. Throws StepFault.
Argument parseArgument(const QString& given, const Parameter& parameter);

} // namespace velara
