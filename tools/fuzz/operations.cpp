// Sequences of operations, sizes, selections, undo and redo through the classes of the batch program. In parallel runs
// the simplest model of an undo series; every restored state is compared with it byte by byte.
#include "engine/operations.h"
#include "batch/BatchPlatform.h"
#include "batch/CommandLine.h"
#include "commands/jobs.h"
#include "commands/presets.h"
#include "commands/recipe/stepWords.h"
#include "commands/sizeWords.h"
#include "seams/findRow.h"
#include "seams/text.h"
#include "tools/fuzz/Subject.h"
#include <algorithm>

namespace velara::fuzz {

namespace {

constexpr int kMostASide = 400; // larger pictures would only take longer

QString numberText(const Parameter& p, Dice& dice)
{
    double low = p.least, high = p.most;
    if (dice.oneIn(12)) low -= high - low + 1, high += high - low + 1;
    low = std::max(low, -2147483648.0);
    high = std::min(high, 2147483647.0);
    if (p.type == ArgumentType::Number) return QString::number(dice.between(low, high));
    return QString::number(dice.within(static_cast<int>(low), static_cast<int>(high)));
}

QString argumentOf(const Parameter& p, Dice& dice)
{
    if (p.type == ArgumentType::Boolean) return dice.oneIn(2) ? "true" : "false";
    if (p.type == ArgumentType::Picture) return "a";
    if (p.type != ArgumentType::Text) return numberText(p, dice);
    const auto choices = choicesOf(p);
    return '"' + QString::fromStdString(choices[dice.next() % choices.size()]) + '"';
}

QString operationText(Dice& dice)
{
    static const auto all = stepOperations();
    const Operation& operation = *all[dice.next() % (all.size() - 1)]; // the last one, TEXT, needs fonts
    QStringList arguments;
    for (const Parameter& p : operation.parameters) arguments += argumentOf(p, dice);
    return text(operation.name) + '(' + arguments.join(',') + ')';
}

QString shapeText(Dice& dice)
{
    static constexpr const char* kShapes[] = {"rect", "ellipse", "polygon", "rects"};
    if (dice.oneIn(5)) return dice.oneIn(2) ? "invert" : "none";
    const int shape = dice.within(0, 3);
    QStringList numbers;
    for (int i = shape < 2 ? 4 : shape == 2 ? 2 * dice.within(3, 7) : 4 * dice.within(1, 5); i > 0; --i)
        numbers += QString::number(dice.within(-9, 60));
    return QStringList{"", "+", "-", "&", "^"}[dice.within(0, 4)] + kShapes[shape] + ':' + numbers.join(',');
}

/// The expected behaviour of a series of ten steps.
struct Model {
    std::vector<Bits> states;
    std::size_t shown = 0;
    bool sizing = false; // the last change was a sizing word

    void change(const Bits& picture, After after)
    {
        const bool isSizing = after == After::Sizing;
        if (isSizing && sizing && shown > 0) --shown; // it began from the picture before the first of them
        states.resize(shown + 1);
        states.push_back(picture);
        if (states.size() > static_cast<std::size_t>(UndoStore::kLimit)) states.erase(states.begin());
        shown = states.size() - 1;
        sizing = isSizing;
    }
    void undo()
    {
        if (shown == 0) return;
        --shown;
        sizing = false;
    }
    void redo()
    {
        if (shown + 1 >= states.size()) return;
        ++shown;
        sizing = false;
    }
};

/// Whether a successful step makes an undo step, and of which kind.
std::optional<After> afterOf(const QString& text, bool sameBlock)
{
    const std::string word = text.toStdString();
    const bool isCall = text.contains('(') || text == "CROP";
    const SizeWord* size = findRow(sizeWords(), word, &SizeWord::word);
    if (text.startsWith("--") || (!isCall && !size && !findRow(presets(), word, &Preset::word))) return {};
    if (!size || velara::afterOf(*size) == After::Step) return After::Step;
    return sameBlock ? std::nullopt : std::optional(After::Sizing);
}

class Sequence {
  public:
    explicit Sequence(Dice& dice) : dice_(dice), session_(platform_)
    {
        const int kind = dice.within(0, 9);
        const int width = kind == 0 ? 1 : dice.within(2, 60), height = kind == 1 ? 1 : dice.within(2, 60);
        session_.adopt(dice.bits(width, height), true);
        model_.states.push_back(session_.picture());
    }
    QString step()
    {
        const QString text = textOfStep();
        told_ += text + ' ';
        const Bits before = session_.picture();
        try {
            LineStep step = text.startsWith("--") ? parseSelection(text.section(' ', 1)) : parseStep(text);
            if (step.prepare) step.prepare([&](const QString&) { return dice_.smallBits(20); });
            step.run(session_);
        } catch (const Failure& failure) {
            if (failure.status == Status::FileFault) return told_ + failure.text;
            return same(before, "a step that failed changed the picture");
        }
        if (text == "UNDO")
            model_.undo();
        else if (text == "REDO")
            model_.redo();
        else if (const auto after = afterOf(text, session_.picture().sharesWith(before)))
            model_.change(session_.picture(), *after);
        return same(model_.states[model_.shown], "not the state that it has to be");
    }
    /// All the way back and forward again.
    QString walk()
    {
        for (const char* word : {"UNDO", "REDO"})
            for (int i = 0; i <= UndoStore::kLimit; ++i) {
                parseStep(word).run(session_);
                *word == 'U' ? model_.undo() : model_.redo();
                const QString fault = same(model_.states[model_.shown], "not the state on the way back and forth");
                if (!fault.isEmpty()) return fault;
            }
        return {};
    }

  private:
    QString textOfStep()
    {
        const Bits& picture = session_.picture();
        if (std::max(picture.width(), picture.height()) > kMostASide) return "BitsResize(30,20)";
        const int kind = dice_.within(0, 19);
        if (kind < 3) return "UNDO";
        if (kind < 5) return "REDO";
        if (kind < 8) return "--select " + shapeText(dice_);
        if (kind == 8) return "CROP";
        if (kind == 9) {
            const SizeWord& word = sizeWords()[dice_.next() % sizeWords().size()];
            return text(word.word);
        }
        if (kind < 12) {
            const StepWord& word = stepWords()[dice_.next() % stepWords().size()];
            return text(word.word);
        }
        return operationText(dice_);
    }
    QString same(const Bits& wanted, const char* fault) const
    {
        return session_.picture() == wanted ? QString() : told_ + fault;
    }

    Dice& dice_;
    BatchPlatform platform_;
    Session session_;
    Model model_;
    QString told_;
};

} // namespace

QString tryOperations(const Place& place, std::uint64_t number)
{
    Dice dice = diceOf("operations", number);
    Sequence sequence(dice);
    QString fault;
    for (int i = dice.within(5, 30); i > 0 && fault.isEmpty(); --i) fault = sequence.step();
    if (fault.isEmpty()) fault = sequence.walk();
    if (!fault.isEmpty()) writeInput(place.input, "steps.txt", fault.toUtf8());
    return fault;
}

} // namespace velara::fuzz
