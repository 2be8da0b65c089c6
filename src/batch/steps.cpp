// A step of the command line: a word, or an operation with its arguments.
#include "batch/CommandLine.h"
#include "batch/nearest.h"
#include "batch/words.h"
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

/// Splits at commas, except between double quotes, which are removed.
QStringList splitArguments(const QString& text)
{
    if (text.isEmpty()) return {};
    QStringList parts{QString()};
    bool inQuotes = false;
    for (const QChar c : text) {
        if (c == u'"')
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
        throw badArgument(QStringLiteral("%1: this word opens a window of the editor; for a filter, give the operation "
                                         "with its arguments (see --list)")
                              .arg(name));
    std::vector<std::string_view> known;
    for (const Word& word : words()) known.push_back(word.word);
    for (const Operation* operation : stepOperations()) known.push_back(operation->name);
    const QString near = QString::fromStdString(nearestName(wanted, known));
    throw badArgument(
        quoted(name) + QStringLiteral(" is neither a command word nor an operation") +
        (near.isEmpty() ? QStringLiteral("; --list prints them all") : QStringLiteral("; did you mean %1?").arg(near)));
}

Arguments parseArguments(const Operation& operation, const QStringList& texts)
{
    const auto& parameters = operation.parameters;
    const auto given = static_cast<std::size_t>(texts.size());
    if (given > parameters.size() || given + operation.optional < parameters.size())
        throw badArgument(QStringLiteral("%1 takes %2%3 argument%4, not %5")
                              .arg(signature(operation))
                              .arg(operation.optional
                                       ? QStringLiteral("%1 to ").arg(parameters.size() - operation.optional)
                                       : QString())
                              .arg(parameters.size())
                              .arg(parameters.size() == 1 ? "" : "s")
                              .arg(texts.size()));
    Arguments arguments;
    for (int i = 0; i < texts.size(); ++i)
        arguments.push_back(parseArgument(texts[i], parameters[static_cast<std::size_t>(i)]));
    return arguments;
}

LineStep operationStep(const QString& text, const Operation& operation, Arguments arguments)
{
    auto shared = std::make_shared<Arguments>(std::move(arguments));
    return {text, [&operation, shared](Session& s) { s.change(operationJob(operation, *shared)); },
            [&operation, shared](const ReadPicture& read) {
                for (std::size_t i = 0; i < shared->size(); ++i)
                    if (operation.parameters[i].type == ArgumentType::Picture)
                        (*shared)[i] = operation.takesSelf && std::get<std::string>((*shared)[i]) == "self"
                                           ? Bits()
                                           : read(QString::fromStdString(std::get<std::string>((*shared)[i])));
            }};
}

} // namespace

Argument parseArgument(const QString& given, const Parameter& parameter)
{
    const std::string value = given.toStdString();
    const auto wanted = [&](const char* what) {
        return badArgument(QStringLiteral("%1 has to be %2, not %3").arg(text(parameter.name), what, quoted(given)));
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

LineStep parseStep(const QString& text)
{
    const int open = static_cast<int>(text.indexOf(u'('));
    const QString name = text.left(open < 0 ? text.size() : open);
    const Word* word = findRow(words(), name.toStdString(), &Word::word);
    if (word && open < 0) return {text, word->run, {}, word->goesBack};
    const Operation* operation = findStepOperation(name.toStdString());
    if (!operation && !word) failUnknown(name);
    return naming(text, [&] {
        if (!operation) throw badArgument(QStringLiteral("%1 is a command word and takes no arguments").arg(name));
        if (open >= 0 && !text.endsWith(u')')) throw badArgument(QStringLiteral("the closing bracket is missing"));
        const QStringList texts = open < 0 ? QStringList() : splitArguments(text.mid(open + 1).chopped(1));
        return operationStep(text, *operation, parseArguments(*operation, texts));
    });
}

} // namespace velara
