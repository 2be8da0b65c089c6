// How a method of cBitFilter becomes a row of the operation table: its own parameter types unpack the arguments.
#pragma once
#include "engine/operations.h"
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace velara {

namespace rows {

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

/// A whole number serves where a number is wanted; nothing else converts.
template <class T> std::remove_cvref_t<T> unpack(const Argument& argument, const Parameter& parameter)
{
    using V = std::remove_cvref_t<T>;
    if constexpr (std::is_floating_point_v<V>) {
        if (const int* whole = std::get_if<int>(&argument)) return static_cast<V>(*whole);
        if (const double* number = std::get_if<double>(&argument)) return static_cast<V>(*number);
    } else if (const V* value = std::get_if<V>(&argument)) {
        return *value;
    }
    throw std::invalid_argument(std::string(parameter.name));
}

std::vector<Parameter> parameterList(std::string_view names, std::vector<ArgumentType> types);
void checkCount(std::string_view operation, std::size_t wanted, std::size_t got);

/// names: the parameters in order, split by commas.
template <class... A, class Function> Operation make(std::string_view name, std::string_view names, Function run)
{
    Operation op{name, parameterList(names, {typeOf<A>()...}), {}};
    op.call = [parameters = op.parameters, name, run](cBitFilter& filter, const Arguments& arguments) {
        checkCount(name, sizeof...(A), arguments.size());
        [&]<std::size_t... I>(std::index_sequence<I...>) { run(filter, unpack<A>(arguments[I], parameters[I])...); }
        (std::index_sequence_for<A...>());
    };
    return op;
}

} // namespace rows

/// A filter: its result becomes the object's picture.
template <class... A> Operation row(std::string_view name, std::string_view names, Bits (cBitFilter::*method)(A...))
{
    return rows::make<A...>(name, names, [method](cBitFilter& filter, const std::remove_cvref_t<A>&... a) {
        filter.setBits((filter.*method)(a...));
    });
}

/// An operation in place, as a function over the filter.
template <class... A> Operation row(std::string_view name, std::string_view names, void (*function)(cBitFilter&, A...))
{
    return rows::make<A...>(name, names, function);
}

// The families, one file each.
std::vector<Operation> geometryOperations();
std::vector<Operation> colourOperations();
std::vector<Operation> neighbourOperations();
std::vector<Operation> deformOperations();
std::vector<Operation> styliseOperations();
std::vector<Operation> generateOperations();

} // namespace velara
