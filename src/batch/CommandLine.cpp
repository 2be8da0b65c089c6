#include "batch/CommandLine.h"
#include "pixels/threads/parallelFor.h"
#include <algorithm>
#include <span>

namespace velara {

namespace {

struct Option {
    const char* name;
    bool CommandLine::*flag;
};
constexpr Option kOptions[] = {
    {"--verbose", &CommandLine::verbose},
    {"--help", &CommandLine::help},
    {"--list", &CommandLine::list},
    {"--partial", &CommandLine::partial},
};

/// Sets the flag of an option without a value; false when text isn't one.
bool takeOption(CommandLine& line, const QString& text)
{
    const auto* option = std::ranges::find_if(kOptions, [&](const Option& o) { return text == QLatin1String(o.name); });
    if (option == std::end(kOptions)) return false;
    line.*option->flag = true;
    return true;
}

int threadsFrom(const QString& text)
{
    bool isNumber = false;
    const int threads = text.toInt(&isNumber);
    if (!isNumber || threads < 1 || threads > kMostThreads)
        throw badArgument(QStringLiteral("--threads: a number from 1 to %1 has to follow").arg(kMostThreads));
    return threads;
}

int pageFrom(const QString& text)
{
    const int page = text.toInt();
    if (page < 1) throw badArgument(QStringLiteral("--page: a number from 1 on has to follow"));
    return page;
}

constexpr std::pair<const char*, CameraKept> kKept[] = {
    {"keep", CameraKept::All}, {"no-place", CameraKept::NoPlace}, {"none", CameraKept::None}};
constexpr std::pair<const char*, bool> kColours[] = {{"srgb", false}, {"stored", true}};

/// The value of an option that has one of a few words; throws a Failure that lists them.
template <class Value, std::size_t N>
Value wordOf(const QString& option, const QString& text, const std::pair<const char*, Value> (&words)[N])
{
    QStringList all;
    for (const auto& [word, value] : words) {
        if (text == QLatin1String(word)) return value;
        all << QLatin1String(word);
    }
    throw badArgument(option + QStringLiteral(": one of ") + all.join(QStringLiteral(", ")) +
                      QStringLiteral(" has to follow"));
}

constexpr auto kUsage = "velara-batch INPUT [--select SHAPE]... [STEP]... [--web PRESET ... | --icon WxH] OUTPUT";

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    static const QString select = QStringLiteral("--select"), selectWith = select + u'=';
    CommandLine line;
    bool optionsOver = false;
    WebOptions webOptions;
    std::vector<std::pair<bool, QString>> middle; // is a selection, text; INPUT and OUTPUT at the ends
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& text = arguments[i];
        if (optionsOver || !text.startsWith(QStringLiteral("--"))) {
            middle.emplace_back(false, text);
        } else if (text == QStringLiteral("--")) {
            optionsOver = true;
        } else if (text.startsWith(selectWith)) {
            middle.emplace_back(true, text.mid(selectWith.size()));
        } else if (text == select) {
            if (++i == arguments.size()) throw badArgument(QStringLiteral("--select: a shape has to follow"));
            middle.emplace_back(true, arguments[i]);
        } else if (text == QStringLiteral("--threads")) {
            line.threads = threadsFrom(arguments.value(++i));
        } else if (text == QStringLiteral("--page")) {
            line.page = pageFrom(arguments.value(++i));
        } else if (text == QStringLiteral("--colours")) {
            line.stored = wordOf(text, arguments.value(++i), kColours);
        } else if (text == QStringLiteral("--metadata")) {
            line.camera = wordOf(text, arguments.value(++i), kKept);
        } else if (text == QStringLiteral("--icon")) {
            if (++i == arguments.size())
                throw badArgument(QStringLiteral("--icon: a size has to follow, such as 32x32"));
            line.icon = iconOrder(arguments[i]);
        } else if (const auto takesValue = webOptionTakesValue(text)) {
            if (*takesValue && i + 1 == arguments.size())
                throw badArgument(text + QStringLiteral(": a value has to follow"));
            webOptions.emplace_back(text, *takesValue ? arguments[++i] : QString());
        } else if (!takeOption(line, text)) {
            throw badArgument(QStringLiteral("%1: there is no such option; see --help").arg(text));
        }
    }
    if (line.help || line.list) return line;
    if (line.icon && !webOptions.empty())
        throw badArgument(webOptions.front().first + QStringLiteral(", --icon: OUTPUT can be one of them only"));
    line.web = webOrder(webOptions);
    if (middle.empty() || middle.front().first) throw badArgument(QStringLiteral("INPUT is missing: ") + kUsage);
    if (middle.size() < 2 || middle.back().first) throw badArgument(QStringLiteral("OUTPUT is missing: ") + kUsage);
    line.input = middle.front().second;
    line.output = middle.back().second;
    for (const auto& [selection, text] : std::span(middle).subspan(1, middle.size() - 2))
        line.steps.push_back(selection ? parseSelection(text) : parseStep(text));
    return line;
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
