#include "batch/CommandLine.h"
#include "batch/many/LineItem.h"
#include "batch/names/NamePattern.h"
#include "batch/onePicture.h"
#include "fileio/disk/nativeName.h"
#include "fileio/formats.h"
#include "fileio/savePicture.h"
#include "pixels/threads/parallelFor.h"
#include <algorithm>
#include <span>

namespace velara {

namespace {

int numberOf(const QString& option, const QString& text, int most)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < 1 || number > most)
        throw badArgument(QStringLiteral("%1: a number from 1 to %2 has to follow").arg(option).arg(most));
    return number;
}

template <class Value> struct ValueWord {
    const char* word;
    Value value;
};
constexpr ValueWord<CameraKept> kKept[] = {
    {"keep", CameraKept::All}, {"no-place", CameraKept::NoPlace}, {"none", CameraKept::None}};
constexpr ValueWord<bool> kColours[] = {{"srgb", false}, {"stored", true}};
constexpr ValueWord<Existing> kExisting[] = {
    {"skip", Existing::Skip}, {"replace", Existing::Replace}, {"number", Existing::Number}, {"newer", Existing::Newer}};

/// The value of an option that has one of a few words; throws a Failure that lists them.
template <class Value, std::size_t N>
Value wordOf(const QString& option, const QString& text, const ValueWord<Value> (&words)[N])
{
    QStringList all;
    for (const auto& [word, value] : words) {
        if (text == QLatin1String(word)) return value;
        all << QLatin1String(word);
    }
    throw badArgument(option + QStringLiteral(": one of ") + all.join(QStringLiteral(", ")) +
                      QStringLiteral(" has to follow"));
}

QString notEmpty(const QString& option, const QString& text, const char* what)
{
    if (text.isEmpty()) throw badArgument(option + QStringLiteral(": %1 has to follow").arg(QLatin1String(what)));
    return text;
}

/// "3/8"
Shard shardFrom(const QString& option, const QString& text)
{
    const QStringList parts = text.split(u'/');
    bool first = false, second = false;
    const Shard shard{parts.value(0).toInt(&first), parts.value(1).toInt(&second)};
    if (parts.size() != 2 || !first || !second || shard.index < 1 || shard.index > shard.count)
        throw badArgument(option +
                          QStringLiteral(": the number of the part and how many there are have to follow, from "
                                         "1/8 to 8/8 for eight"));
    return shard;
}

QString savedFormat(const QString& option, const QString& text)
{
    const QString extension = text.toLower();
    const Format* format = findFormat(extension.toStdString());
    if (!format || !format->saved())
        throw badArgument(QStringLiteral("%1: one of %2 has to follow").arg(option, savedExtensions()));
    return extension;
}

/// What the options say, before it is known of which way the line is.
struct Given {
    CommandLine line;
    ManyOrder many;
    LineItems items;
    WebOptions web;
    QString goesWithMany; // an option that does
};

constexpr int kMostJobs = 256, kMostPages = 1 << 20;

struct Option {
    const char* name;
    bool takesValue, isOfMany;
    void (*take)(Given& given, const QString& option, const QString& value);
};
using Name = const QString&;
// clang-format off
constexpr Option kOptions[] = {
    {"--verbose",       false, false, [](Given& g, Name, Name) { g.line.verbose = true; }},
    {"--help",          false, false, [](Given& g, Name, Name) { g.line.help = true; }},
    {"--list",          false, false, [](Given& g, Name, Name) { g.line.list = true; }},
    {"--partial",       false, false, [](Given& g, Name, Name) { g.line.partial = true; }},
    {"--threads",       true,  false, [](Given& g, Name o, Name v) { g.line.threads = numberOf(o, v, kMostThreads); }},
    {"--page",          true,  false, [](Given& g, Name o, Name v) { g.line.page = numberOf(o, v, kMostPages); }},
    {"--colours",       true,  false, [](Given& g, Name o, Name v) { g.line.stored = wordOf(o, v, kColours); }},
    {"--metadata",      true,  false, [](Given& g, Name o, Name v) { g.line.camera = wordOf(o, v, kKept); }},
    {"--icon",          true,  false, [](Given& g, Name o, Name v) { g.line.icon = iconOrder(notEmpty(o, v, "a size")); }},
    {"--select",        true,  false, [](Given& g, Name o, Name v) { g.items.push_back({LineItem::Selection, notEmpty(o, v, "a shape")}); }},
    {"--recipe",        true,  false, [](Given& g, Name o, Name v) { g.items.push_back({LineItem::Recipe, notEmpty(o, v, "a file")}); }},
    {"--format",        true,  false, [](Given& g, Name o, Name v) { g.line.format = savedFormat(o, v); }},
    {"--input-format",  true,  false, [](Given& g, Name o, Name v) { g.line.inputFormat = notEmpty(o, v, "an extension").toLower(); }},
    {"--into",          true,  true,  [](Given& g, Name o, Name v) { g.many.into = notEmpty(o, v, "a folder"); }},
    {"--in-place",      false, true,  [](Given& g, Name, Name) { g.many.inPlace = true; }},
    {"--yes",           false, true,  [](Given& g, Name, Name) { g.many.yes = true; }},
    {"--do",            false, true,  [](Given& g, Name, Name) { g.items.push_back({LineItem::StepsBegin}); }},
    {"--recursive",     false, true,  [](Given& g, Name, Name) { g.many.recursive = true; }},
    {"--name",          true,  true,  [](Given& g, Name o, Name v) { g.many.pattern = notEmpty(o, v, "a pattern"); }},
    {"--existing",      true,  true,  [](Given& g, Name o, Name v) { g.many.existing = wordOf(o, v, kExisting); }},
    {"--jobs",          true,  true,  [](Given& g, Name o, Name v) { g.many.jobs = numberOf(o, v, kMostJobs); }},
    {"--keep-going",    false, true,  [](Given& g, Name, Name) { g.many.stopAtFirst = false; }},
    {"--stop-at-first", false, true,  [](Given& g, Name, Name) { g.many.stopAtFirst = true; }},
    {"--report",        true,  true,  [](Given& g, Name o, Name v) { g.many.report = notEmpty(o, v, "a file"); }},
    {"--shard",         true,  true,  [](Given& g, Name o, Name v) { g.many.shard = shardFrom(o, v); }},
};
// clang-format on

void takeOption(Given& given, const QString& name, const std::optional<QString>& value)
{
    const auto* option = std::ranges::find_if(kOptions, [&](const Option& o) { return name == QLatin1String(o.name); });
    if (option == std::end(kOptions))
        throw badArgument(QStringLiteral("%1: there is no such option; see --help").arg(name));
    if (option->isOfMany) given.goesWithMany = name;
    option->take(given, name, value.value_or(QString()));
}

bool takesValue(const QString& name)
{
    return std::ranges::any_of(kOptions,
                               [&](const Option& o) { return o.takesValue && name == QLatin1String(o.name); });
}

Given given(const QStringList& arguments)
{
    static const QString selectWith = QStringLiteral("--select=");
    Given given;
    bool optionsOver = false;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& text = arguments[i];
        const auto next = [&] { return i + 1 < arguments.size() ? std::optional(arguments[++i]) : std::nullopt; };
        if (optionsOver || !text.startsWith(QStringLiteral("--"))) {
            given.items.push_back({LineItem::Text, text});
        } else if (text == QStringLiteral("--")) {
            optionsOver = true;
        } else if (text.startsWith(selectWith)) {
            given.items.push_back({LineItem::Selection, text.mid(selectWith.size())});
        } else if (const auto takesOne = webOptionTakesValue(text)) {
            const auto value = *takesOne ? next() : QString();
            if (!value) throw badArgument(text + QStringLiteral(": a value has to follow"));
            given.web.emplace_back(text, *value);
        } else {
            takeOption(given, text, takesValue(text) ? next() : std::nullopt);
        }
    }
    return given;
}

/// What is written instead of a picture of the extension: an icon, a file for the web, or a picture in a quality.
void takeOutputForm(Given& given)
{
    CommandLine& line = given.line;
    if (line.icon && !given.web.empty())
        throw badArgument(given.web.front().first + QStringLiteral(", --icon: OUTPUT can be one of them only"));
    constexpr int kBestQuality = 100;
    if (given.web.size() == 1 && given.web.front().first == QStringLiteral("--quality"))
        line.quality = numberOf(given.web.front().first, given.web.front().second, kBestQuality);
    else
        line.web = webOrder(given.web);
    if (!line.format.isEmpty() && (line.web || line.icon))
        throw badArgument(QStringLiteral("--format: %1 has its own").arg(line.web ? "--web" : "--icon"));
    if (line.quality && !line.format.isEmpty() && !hasQuality(line.format))
        throw badArgument(QStringLiteral("--quality: .%1 files have none").arg(line.format));
}

std::vector<LineStep> stepsOf(std::span<const LineItem> items)
{
    std::vector<LineStep> steps;
    for (const LineItem& item : items) {
        if (item.kind == LineItem::Recipe) {
            if (!isThere(item.text)) throw badArgument(QStringLiteral("--recipe: there is no file %1").arg(item.text));
            for (LineStep& step : recipeSteps(item.text)) steps.push_back(std::move(step));
        } else if (item.kind != LineItem::StepsBegin) {
            steps.push_back(item.kind == LineItem::Selection ? parseSelection(item.text) : parseStep(item.text));
        }
    }
    return steps;
}

constexpr auto kUsage = "velara-batch INPUT [--select SHAPE]... [STEP]... [--web PRESET ... | --icon WxH] OUTPUT";
constexpr auto kUsageOfMany = "velara-batch INPUT... [STEP]... --into FOLDER";

void takeOne(Given& given)
{
    CommandLine& line = given.line;
    if (!given.goesWithMany.isEmpty())
        throw badArgument(given.goesWithMany + QStringLiteral(": this goes with --into or --in-place alone: ") +
                          kUsageOfMany);
    const auto isText = [](const LineItem& item) { return item.kind == LineItem::Text; };
    if (given.items.empty() || !isText(given.items.front()))
        throw badArgument(QStringLiteral("INPUT is missing: ") + kUsage);
    if (given.items.size() < 2 || !isText(given.items.back()))
        throw badArgument(QStringLiteral("OUTPUT is missing: ") + kUsage);
    line.input = given.items.front().text;
    line.output = given.items.back().text;
    const bool isPiped = line.output == QStringLiteral("-");
    if (isPiped && line.format.isEmpty() && !line.web && !line.icon)
        throw badArgument(QStringLiteral("-: --format has to say how the picture is written to standard output"));
    if (!isPiped && !line.format.isEmpty())
        throw badArgument(QStringLiteral("--format: the ending of OUTPUT says it; this goes with - or --into"));
    if (line.input == QStringLiteral("-") && line.page > 1)
        throw badArgument(QStringLiteral("--page: of standard input the first page alone can be read"));
    if (line.input != QStringLiteral("-") && !line.inputFormat.isEmpty())
        throw badArgument(QStringLiteral("--input-format: this goes with - as INPUT alone"));
    if (line.quality && !isPiped && !hasQuality(extensionOf(line.output)))
        throw badArgument(QStringLiteral("--quality: %1 has none").arg(line.output));
    line.steps = stepsOf(std::span(given.items).subspan(1, given.items.size() - 2));
}

void takeMany(Given& given)
{
    CommandLine& line = given.line;
    ManyOrder& many = given.many;
    if (many.inPlace && !many.into.isEmpty())
        throw badArgument(QStringLiteral("--in-place, --into: the pictures can go to one place only"));
    if (many.inPlace && !many.yes)
        throw badArgument(QStringLiteral(
            "--in-place: the originals would be overwritten and lost; say it once more with --yes if that is meant"));
    if (many.inPlace && (!line.format.isEmpty() || line.web || line.icon))
        throw badArgument(QStringLiteral("--in-place: the pictures keep their names and formats"));
    if (line.page > 1) throw badArgument(QStringLiteral("--page: this goes with one INPUT alone"));
    if (many.existing == Existing::Number && many.shard.count > 1)
        throw badArgument(QStringLiteral("--existing number: shards can't agree about numbers; take skip or newer"));
    NamePattern{many.pattern};
    const InputsAndSteps parts = inputsAndSteps(given.items);
    many.inputs = parts.inputs;
    if (many.inputs.contains(QStringLiteral("-")))
        throw badArgument(QStringLiteral("-: standard input is one picture; give its OUTPUT, without --into"));
    if (many.inputs.isEmpty()) throw badArgument(QStringLiteral("INPUT is missing: ") + kUsageOfMany);
    if (!line.inputFormat.isEmpty())
        throw badArgument(QStringLiteral("--input-format: this goes with - as INPUT alone"));
    line.steps = stepsOf(parts.steps);
    line.many = many;
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    Given all = given(arguments);
    if (all.line.help || all.line.list) return all.line;
    takeOutputForm(all);
    if (all.many.into.isEmpty() && !all.many.inPlace)
        takeOne(all);
    else
        takeMany(all);
    return all.line;
}

int CommandLine::lastGoingBack() const
{
    int last = -1, sizings = 0;
    for (int i = 0; i < static_cast<int>(steps.size()); ++i) {
        const GoesBack back = steps[static_cast<std::size_t>(i)].goesBack;
        if (back == GoesBack::Always || (back == GoesBack::WhenRepeated && sizings++ > 0)) last = i;
    }
    return last;
}

} // namespace velara
