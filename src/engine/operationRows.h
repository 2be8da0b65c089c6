// Turns a row of the operation table into an Operation at compile time: its text is parsed, and the method's own
// parameter types unpack the arguments. A malformed row does not compile.
#pragma once
#include "engine/operations.h"
#include "pixels/Bits.h"
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace velara {

namespace rows {

using Mask = std::vector<std::vector<int>>;

template <class T> constexpr ArgumentType typeOf()
{
    using V = std::remove_cvref_t<T>;
    if constexpr (std::is_same_v<V, bool>)
        return ArgumentType::Boolean;
    else if constexpr (std::is_integral_v<V>)
        return ArgumentType::Integer;
    else if constexpr (std::is_floating_point_v<V>)
        return ArgumentType::Number;
    else if constexpr (std::is_same_v<V, Bits>)
        return ArgumentType::Picture;
    else
        return ArgumentType::Text;
}

/// "0 1 0/1 4 1/0 1 0": integers, rows separated by slashes, as many rows as columns.
Mask maskOf(const std::string& text);

/// An integer converts to a number, a buffer to a picture, a text to a mask; nothing else converts.
template <class T> std::remove_cvref_t<T> unpack(const Argument& argument, const Parameter& parameter)
{
    using V = std::remove_cvref_t<T>;
    if constexpr (std::is_floating_point_v<V>) {
        if (const int* whole = std::get_if<int>(&argument)) return static_cast<V>(*whole);
        if (const double* number = std::get_if<double>(&argument)) return static_cast<V>(*number);
    } else if constexpr (std::is_same_v<V, Mask>) {
        if (const std::string* text = std::get_if<std::string>(&argument)) return maskOf(*text);
    } else if (const V* value = std::get_if<V>(&argument)) {
        return *value;
    }
    throw std::invalid_argument(std::string(parameter.name));
}

void checkCount(std::string_view operation, std::size_t wanted, std::size_t got);

/// Returns the text before the separator; text keeps what follows it.
constexpr std::string_view takeUpTo(std::string_view separator, std::string_view& text)
{
    const auto at = text.find(separator);
    const std::string_view part = text.substr(0, at);
    text = at == std::string_view::npos ? std::string_view() : text.substr(at + separator.size());
    return part;
}

/// "-12", "0.25", "0x4060A0".
constexpr double numberOf(std::string_view text)
{
    const bool negative = text.starts_with('-');
    if (negative) text.remove_prefix(1);
    const int base = text.starts_with("0x") ? 16 : 10;
    if (base == 16) text.remove_prefix(2);
    if (text.empty()) throw std::invalid_argument("a number is missing");
    double value = 0, scale = 1;
    bool fraction = false;
    for (const char c : text) {
        const int digit = c >= '0' && c <= '9' ? c - '0' : base == 16 && c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
        if (c == '.' && !fraction && base == 10) {
            fraction = true;
            continue;
        }
        if (digit < 0) throw std::invalid_argument("not a number");
        value = value * base + digit;
        if (fraction) scale *= 10;
    }
    return (negative ? -value : value) / scale;
}

/// The words for values, with the ranges used by tests on small pictures.
struct ValueWord {
    std::string_view word;
    double least, most;
};
constexpr ValueWord kValueWords[] = {
    {"colour", 0, 0xFFFFFF}, {"colour|-1", -1, 0xFFFFFF}, {"column", -10, 60}, {"row", -10, 40}, {"side", 1, 100}};

constexpr Parameter parameterOf(std::string_view text, ArgumentType type)
{
    std::string_view meaning = text, value = takeUpTo(" = ", meaning);
    if (meaning.empty()) throw std::invalid_argument("an argument's meaning is missing");
    Parameter p{takeUpTo(":", value), type};
    p.meaning = meaning;
    p.values = takeUpTo(":", value);
    p.usual = value;
    if (type == ArgumentType::Boolean || type == ArgumentType::Picture || type == ArgumentType::Text) {
        if (!p.usual.empty() || (type == ArgumentType::Text) == p.values.empty())
            throw std::invalid_argument("texts list their values, booleans and pictures have none");
        return p;
    }
    bool isWord = false;
    for (const ValueWord& word : kValueWords)
        if (word.word == p.values) p.least = word.least, p.most = word.most, isWord = true;
    if (!isWord) {
        std::string_view range = p.values;
        p.least = numberOf(takeUpTo("..", range));
        p.most = numberOf(range);
    }
    p.typical = numberOf(p.usual);
    if (!(p.least <= p.typical && p.typical <= p.most && p.least < p.most))
        throw std::invalid_argument("least <= usual <= most");
    return p;
}

constexpr ParameterList parameterList(std::string_view text, std::initializer_list<ArgumentType> types)
{
    ParameterList list;
    for (const ArgumentType type : types) list.add(parameterOf(takeUpTo(",", text), type));
    if (!text.empty()) throw std::invalid_argument("more names than arguments");
    return list;
}

/// Calls run with the unpacked arguments.
template <class... A, class Function> void unpacked(const Operation& op, const Arguments& arguments, Function run)
{
    checkCount(op.name, sizeof...(A), arguments.size());
    [&]<std::size_t... I>(std::index_sequence<I...>) { run(unpack<A>(arguments[I], op.parameters[I])...); }
    (std::index_sequence_for<A...>());
}

/// The arguments of a method beside the filter, and how it is called.
template <auto Method, class Signature> struct Caller;

/// A filter: its result becomes the object's picture.
template <auto Method, class... A> struct Caller<Method, Bits (cBitFilter::*)(A...)> {
    static constexpr std::initializer_list<ArgumentType> types{typeOf<A>()...};
    static void call(const Operation& op, cBitFilter& filter, const Arguments& arguments)
    {
        unpacked<A...>(op, arguments, [&](const auto&... a) { filter.setBits((filter.*Method)(a...)); });
    }
};
/// An in-place operation.
template <auto Method, class... A> struct Caller<Method, void (cBitFilter::*)(A...)> {
    static constexpr std::initializer_list<ArgumentType> types{typeOf<A>()...};
    static void call(const Operation& op, cBitFilter& filter, const Arguments& arguments)
    {
        unpacked<A...>(op, arguments, [&](const auto&... a) { (filter.*Method)(a...); });
    }
};
/// One that takes a source: the object's own picture.
template <auto Method, class... A> struct Caller<Method, void (cBitFilter::*)(const Bits&, A...)> {
    static constexpr std::initializer_list<ArgumentType> types{typeOf<A>()...};
    static void call(const Operation& op, cBitFilter& filter, const Arguments& arguments)
    {
        unpacked<A...>(op, arguments, [&](const auto&... a) { (filter.*Method)(filter.bits(), a...); });
    }
};

} // namespace rows

template <auto Method>
constexpr Operation::Operation(std::string_view name, std::string_view arguments, Does<Method>)
    : name(name), parameters(rows::parameterList(arguments, rows::Caller<Method, decltype(Method)>::types)),
      call_(rows::Caller<Method, decltype(Method)>::call)
{
}

} // namespace velara
