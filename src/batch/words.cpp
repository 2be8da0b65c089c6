#include "batch/words.h"
#include "commands/colourDepth.h"
#include "commands/effects.h"
#include "commands/presets.h"
#include "commands/vocabulary.h"
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

/// The words that change the picture and aren't in another table.
constexpr struct Step {
    std::string_view word;
    const char* meaning;
    void (*run)(Session&);
    GoesBack goesBack = GoesBack::Never;
} kSteps[] = {
    {"CROP", "cuts to the box of the selection", [](Session& s) { s.crop(); }},
    {"UNDO", "one step back", [](Session& s) { s.undo(); }, GoesBack::Always},
    {"REDO", "one step forward again", [](Session& s) { s.redo(); }, GoesBack::Always},
};
static_assert(std::ranges::all_of(kCommandWords,
                                  [](const CommandWord& w) {
                                      return std::ranges::count(kSteps, w.word, &Step::word) ==
                                             (w.kind == WordKind::Step);
                                  }),
              "a word of the kind Step is velara-batch's, too: add its row to kSteps in src/batch/words.cpp");

std::vector<Word> makeWords()
{
    std::vector<Word> list;
    for (const Preset& preset : presets())
        list.push_back({preset.word, callText(preset), [&preset](Session& s) { s.change(presetJob(preset)); }});
    for (const SizeWord& word : sizeWords())
        list.push_back({word.word, meaningOf(word), [&word](Session& s) { s.change(sizeJob(word), afterOf(word)); },
                        word.kind == SizeWord::Rotate ? GoesBack::Never : GoesBack::WhenRepeated});
    for (const Step& step : kSteps)
        list.push_back({step.word, QString::fromUtf8(step.meaning), step.run, step.goesBack});
    for (const CommandWord& word : kCommandWords)
        if (word.kind == WordKind::View || word.kind == WordKind::Nothing)
            list.push_back({word.word, {}, [](Session&) {}});
    return list;
}

} // namespace

const std::vector<Word>& words()
{
    static const std::vector<Word> all = makeWords();
    return all;
}

std::vector<const Operation*> stepOperations()
{
    std::vector<const Operation*> all;
    for (const Operation& operation : operations()) all.push_back(&operation);
    all.push_back(&applyTextureOperation());
    all.push_back(&texturizeOperation());
    all.push_back(&setDepthOperation());
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

QString argumentText(const Argument& argument)
{
    struct {
        QString operator()(bool v) const { return v ? QStringLiteral("true") : QStringLiteral("false"); }
        QString operator()(int v) const
        {
            return v > 0xFFFF ? QStringLiteral("0x%1").arg(v, 8, 16, QChar(u'0')) : QString::number(v);
        }
        QString operator()(double v) const { return QString::number(v); }
        QString operator()(const std::string& v) const { return QString::fromStdString(v); }
        QString operator()(const Bits&) const { return QStringLiteral("picture"); }
    } text;
    return std::visit(text, argument);
}

QString callText(const Preset& preset)
{
    QStringList arguments;
    for (const Argument& a : preset.arguments) arguments += argumentText(a);
    return text(preset.operation) + u'(' + arguments.join(u',') + u')';
}

} // namespace velara
