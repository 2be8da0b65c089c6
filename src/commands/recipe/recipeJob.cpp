#include "commands/recipe/recipeJob.h"
#include "commands/presets.h"
#include "commands/recipe/stepText.h"
#include "commands/sizeWords.h"
#include "document/Document.h"
#include "engine/cBitFilter.h"
#include "fileio/formats.h"
#include "pixels/RuntimeError.h"
#include "seams/Platform.h"
#include "seams/findRow.h"
#include <algorithm>

namespace velara {

namespace {

/// The steps on one draft, with the states that they may go back to, as the undo series of a document has them.
class RecipeRun {
  public:
    RecipeRun(Document& draft, cBitFilter& filter, bool keeps) : draft_(draft), filter_(filter), keeps_(keeps)
    {
        if (keeps_) states_.push_back(draft.bits());
    }
    void take(const RecipeStep& step)
    {
        if (step.kind == RecipeStep::Change) change(step);
        if (step.kind == RecipeStep::Select) {
            step.select(draft_.Region, draft_.bits());
            draft_.handTo(filter_);
        }
        if (step.kind == RecipeStep::Undo && shown_ > 0) show(shown_ - 1);
        if (step.kind == RecipeStep::Redo && shown_ + 1 < states_.size()) show(shown_ + 1);
    }

  private:
    void change(const RecipeStep& step)
    {
        const bool sizing = step.after == After::Sizing, fromBefore = sizing && sizing_ && shown_ > 0;
        if (fromBefore) put(states_[shown_ - 1]);
        const Bits start = draft_.bits();
        step.job(draft_, filter_);
        draft_.handTo(filter_);
        if (!keeps_ || (sizing && !fromBefore && draft_.bits().sharesWith(start))) return;
        states_.resize(fromBefore ? shown_ : shown_ + 1);
        states_.push_back(draft_.bits());
        if (states_.size() > static_cast<std::size_t>(UndoStore::kLimit)) states_.erase(states_.begin());
        shown_ = states_.size() - 1;
        sizing_ = sizing;
    }
    void show(std::size_t state)
    {
        shown_ = state;
        sizing_ = false;
        put(states_[state]);
    }
    void put(const Bits& picture)
    {
        if (picture.width() == draft_.PictureWidth() && picture.height() == draft_.PictureHeight())
            draft_.setBits(picture);
        else
            draft_.takePicture(picture);
        draft_.handTo(filter_);
    }

    Document& draft_;
    cBitFilter& filter_;
    const bool keeps_;
    std::vector<Bits> states_;
    std::size_t shown_ = 0;
    bool sizing_ = false; // the last change was a sizing word
};

/// Runs work; what it throws names the step.
template <class Work> void named(const RecipeStep& step, Work work)
{
    const auto fault = [&](StepFault::Kind kind, const QString& what) {
        return StepFault(kind, step.text + QStringLiteral(": ") + what);
    };
    try {
        work();
    } catch (const Cancelled&) {
        throw;
    } catch (const StepFault& failure) {
        throw fault(failure.kind, failure.text);
    } catch (const std::invalid_argument& failure) {
        throw fault(StepFault::Unusable, QString::fromUtf8(failure.what()) + QStringLiteral(" is unusable"));
    } catch (const std::exception& failure) {
        throw fault(StepFault::Failed, QString::fromUtf8(failure.what()));
    }
}

Bits pictureFrom(PictureReader& reader, const QString& path)
{
    const LoadedPicture picture = reader.loadPicture(path, extensionOf(path));
    if (!picture.ok()) throw StepFault(StepFault::Failed, picture.reason);
    return picture.bits;
}

/// Gets what the step needs from outside.
void prepare(const RecipeStep& step, Platform& platform)
{
    if (step.prepare) step.prepare([&](const QString& path) { return pictureFrom(platform, path); });
    if (!step.drawBy) return;
    checkFonts(step.fonts, platform.fonts());
    step.drawBy(platform.fonts());
}

void run(const std::vector<RecipeStep>& steps, Platform& platform, Document& draft, cBitFilter& filter)
{
    for (const RecipeStep& step : steps)
        named(step, [&] {
            prepare(step, platform);
            if (step.prepare && filter.Progress) filter.Progress(0); // it may be cancelled meanwhile
        });
    const auto goesBack = [](const RecipeStep& step) { return step.goesBack() != GoesBack::Never; };
    RecipeRun recipe(draft, filter, std::ranges::any_of(steps, goesBack));
    const auto whole = filter.Progress;
    const auto count = static_cast<std::int64_t>(steps.size());
    for (std::int64_t i = 0; i < count; ++i) {
        if (whole)
            filter.Progress = [whole, i, count](int percent) { whole(static_cast<int>((100 * i + percent) / count)); };
        const RecipeStep& step = steps[static_cast<std::size_t>(i)];
        named(step, [&] { recipe.take(step); });
    }
    filter.Progress = whole;
}

bool isSizing(const QString& line)
{
    const SizeWord* word = findRow(sizeWords(), line.toStdString(), &SizeWord::word);
    return word && word->kind != SizeWord::Rotate;
}

/// Whether a selection outlasts the step where the picture keeps its size.
bool keepsSelection(const QString& line)
{
    return line.contains(u'(') || findRow(presets(), line.toStdString(), &Preset::word);
}

} // namespace

Job recipeJob(std::vector<RecipeStep> steps, Platform& platform)
{
    return [steps = std::move(steps), &platform](Document& draft, cBitFilter& filter) {
        run(steps, platform, draft, filter);
    };
}

QString recipeWords(const std::vector<RecipeStep>& steps)
{
    int depth = 0;
    QStringList lines;
    for (const RecipeStep& step : steps) {
        lines += step.text;
        if (std::ranges::any_of(step.pictures, [](const QString& name) { return !name.startsWith(u'/'); })) return {};
        if (step.kind == RecipeStep::Undo && --depth < 0) return {};
        if (step.kind == RecipeStep::Change && step.after == After::Step) ++depth; // a sizing word may make no step
    }
    return lines.join(u'\n');
}

HistoryLines historyLines(std::span<const StepNote> notes, int widthBefore, int heightBefore)
{
    HistoryLines made;
    const QString none = selectionText({});
    QString selected = none; // what is selected before the next line; null: unknown
    bool afterSizing = false;
    for (const StepNote& note : notes) {
        const QStringList words = note.words.split(u'\n', Qt::SkipEmptyParts);
        const bool resized = note.width != widthBefore || note.height != heightBefore;
        widthBefore = note.width;
        heightBefore = note.height;
        if (words.isEmpty()) {
            made.lines << QStringLiteral("# made by hand, left out: ") + note.name;
            made.byHand << note.name;
            continue;
        }
        if (afterSizing && isSizing(words.front())) { // each was a step of its own: this ends the run of sizing words
            made.lines << QStringLiteral("UNDO") << QStringLiteral("REDO");
            selected = QString();
        }
        const QString wanted = selectionText(note.selection);
        if (wanted != selected) made.lines << QStringLiteral("--select ") + wanted;
        made.lines << words;
        afterSizing = isSizing(words.back());
        const bool keeps = words.size() == 1 && !resized && keepsSelection(words.front());
        selected = keeps || (words.size() == 1 && wanted == none) ? wanted : QString();
    }
    return made;
}

} // namespace velara
