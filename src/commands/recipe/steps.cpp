// A step: a word, or an operation with its arguments.
#include "commands/jobs.h"
#include "commands/recipe/RecipeStep.h"
#include "commands/recipe/nearest.h"
#include "commands/recipe/stepWords.h"
#include "commands/recipe/textStep.h"
#include "engine/rowsAround.h"
#include "seams/findRow.h"
#include "seams/text.h"
#include <charconv>
#include <cmath>
#include <memory>

namespace velara {

namespace {

QString quoted(const QString& text) { return u'"' + text + u'"'; }

/// The whole text as a number of type T; hexadecimal integers begin with 0x and may use all 32 bits.
template <class T> std::optional<T> parseNumber(std::string_view text)
{
    T value{};
    const auto read = [&](auto& into, const auto&... base) {
        const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), into, base...);
        return fault == std::errc() && end == text.data() + text.size();
    };
    if constexpr (std::is_integral_v<T>) {
        if (text.starts_with("0x") || text.starts_with("0X")) {
            text.remove_prefix(2);
            std::uint32_t bits = 0;
            return read(bits, 16) ? std::optional(static_cast<T>(bits)) : std::nullopt;
        }
        return read(value, 10) ? std::optional(value) : std::nullopt;
    } else {
        return read(value) && std::isfinite(value) ? std::optional(value) : std::nullopt;
    }
}

/// Splits at commas, except between double quotes, which are removed; between them two stand for one.
QStringList splitArguments(const QString& text)
{
    if (text.isEmpty()) return {};
    QStringList parts{QString()};
    bool inQuotes = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'"' && inQuotes && text.mid(i + 1, 1) == QStringLiteral("\""))
            parts.back() += text[++i];
        else if (c == u'"')
            inQuotes = !inQuotes;
        else if (c == u',' && !inQuotes)
            parts += QString();
        else
            parts.back() += c;
    }
    return parts;
}

QString signature(const Operation& operation)
{
    QStringList names;
    for (const Parameter& p : operation.parameters) names += text(p.name);
    return text(operation.name) + u'(' + names.join(u',') + u')';
}

[[noreturn]] void failUnknown(const QString& name)
{
    const std::string wanted = name.toStdString();
    if (needsWindow(wanted))
        throw unusable(QStringLiteral("%1: this word opens a window of the editor; for a filter, give the operation "
                                      "with its arguments (see --list)")
                           .arg(name));
    std::vector<std::string_view> known;
    for (const StepWord& word : stepWords()) known.push_back(word.word);
    for (const Operation* operation : stepOperations()) known.push_back(operation->name);
    const QString near = QString::fromStdString(nearestName(wanted, known));
    throw unusable(
        quoted(name) + QStringLiteral(" is neither a command word nor an operation") +
        (near.isEmpty() ? QStringLiteral("; --list prints them all") : QStringLiteral("; did you mean %1?").arg(near)));
}

void checkCount(const Operation& operation, const QStringList& texts)
{
    const auto& parameters = operation.parameters;
    const auto given = static_cast<std::size_t>(texts.size());
    if (&operation == &textOperation() && given > 0 && given % parameters.size() == 0) return; // several texts
    if (given > parameters.size() || given + operation.optional < parameters.size())
        throw unusable(QStringLiteral("%1 takes %2%3 argument%4, not %5")
                           .arg(signature(operation))
                           .arg(operation.optional
                                    ? QStringLiteral("%1 to ").arg(parameters.size() - operation.optional)
                                    : QString())
                           .arg(parameters.size())
                           .arg(parameters.size() == 1 ? "" : "s")
                           .arg(texts.size()));
}

Arguments parseArguments(const Operation& operation, const QStringList& texts)
{
    const auto& parameters = operation.parameters;
    Arguments arguments;
    for (int i = 0; i < texts.size(); ++i)
        arguments.push_back(parseArgument(texts[i], parameters[static_cast<std::size_t>(i)]));
    return arguments;
}

RecipeStep operationStep(const QString& text, const Operation& operation, Arguments arguments)
{
    const auto shared = std::make_shared<Arguments>(std::move(arguments));
    RecipeStep step{text, RecipeStep::Change};
    const auto call = [&operation, shared](cBitFilter& filter) { operation.call(filter, *shared); };
    step.job = engineJob(call);
    if (const auto reach = rowsAround(operation)) step.rows = RowStep{*reach, call};
    for (std::size_t i = 0; i < shared->size(); ++i) {
        if (operation.parameters[i].type != ArgumentType::Picture) continue;
        const std::string name = std::get<std::string>((*shared)[i]);
        if (operation.takesSelf && name == "self")
            (*shared)[i] = Bits();
        else
            step.pictures << QString::fromStdString(name);
    }
    if (!step.pictures.isEmpty())
        step.prepare = [&operation, shared](const ReadPicture& read) {
            for (std::size_t i = 0; i < shared->size(); ++i)
                if (const auto* name = std::get_if<std::string>(&(*shared)[i]);
                    name && operation.parameters[i].type == ArgumentType::Picture)
                    (*shared)[i] = read(QString::fromStdString(*name));
        };
    return step;
}

} // namespace

Argument parseArgument(const QString& given, const Parameter& parameter)
{
    const std::string value = given.toStdString();
    const auto wanted = [&](const char* what) {
        return unusable(QStringLiteral("%1 has to be %2, not %3").arg(text(parameter.name), what, quoted(given)));
    };
    switch (parameter.type) {
    case ArgumentType::Boolean:
        if (value != "true" && value != "false") throw wanted("true or false");
        return value == "true";
    case ArgumentType::Integer:
        if (const auto number = parseNumber<int>(value)) return *number;
        throw wanted("a whole number (32 bits; a colour may be 0x00BBGGRR)");
    case ArgumentType::Number:
        if (const auto number = parseNumber<double>(value)) return *number;
        throw wanted("a number");
    case ArgumentType::Picture:
        if (value.empty()) throw wanted("the name of a picture file");
        return value;
    case ArgumentType::Text:
        break;
    }
    return value;
}

RecipeStep parseRecipeStep(const QString& text)
{
    const int open = static_cast<int>(text.indexOf(u'('));
    const QString name = text.left(open < 0 ? text.size() : open);
    const StepWord* word = findRow(stepWords(), name.toStdString(), &StepWord::word);
    if (word && open < 0) return {text, word->kind, word->job, word->after};
    const Operation* operation = findStepOperation(name.toStdString());
    if (!operation && !word) failUnknown(name);
    return namingStep(text, [&] {
        if (!operation) throw unusable(QStringLiteral("%1 is a command word and takes no arguments").arg(name));
        if (open >= 0 && !text.endsWith(u')')) throw unusable(QStringLiteral("the closing bracket is missing"));
        const QStringList texts = open < 0 ? QStringList() : splitArguments(text.mid(open + 1).chopped(1));
        checkCount(*operation, texts);
        if (operation == &textOperation()) return parseTextStep(text, texts);
        return operationStep(text, *operation, parseArguments(*operation, texts));
    });
}

} // namespace velara
