// The engine's operations by name, with their arguments; the table is in cBitFilter.h. Adding a filter is one method
// and one row.
#pragma once
#include "engine/cBitFilter.h"
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velara {

/// Booleans, integers (colours too), singles, texts and pictures.
using Argument = std::variant<bool, int, double, std::string, Bits>;
using Arguments = std::vector<Argument>;

enum class ArgumentType { Boolean, Integer, Number, Text, Picture };

/// An argument as described in its row.
struct Parameter {
    std::string_view name;
    ArgumentType type{};
    std::string_view values{};               // "-200..200", "colour", "slanting|squary"; empty: any
    std::string_view usual{};                // as written; empty: none
    std::string_view meaning{};              // its unit and what the ends do
    double least = 0, most = 0, typical = 0; // of numbers; positions and sizes as in a small picture
};

class ParameterList {
  public:
    constexpr const Parameter* begin() const { return all_.data(); }
    constexpr const Parameter* end() const { return all_.data() + size_; }
    constexpr std::size_t size() const { return size_; }
    constexpr bool empty() const { return size_ == 0; }
    constexpr const Parameter& operator[](std::size_t i) const { return all_[i]; }
    constexpr void add(const Parameter& parameter) { all_.at(size_++) = parameter; }

  private:
    std::array<Parameter, 10> all_{};
    std::size_t size_ = 0;
};

struct Operation {
    std::string_view name;
    ParameterList parameters;
    std::size_t optional = 0; // how many trailing parameters may be omitted
    bool takesSelf = false;   // a null picture among the arguments means the filter's own

    /// A row of the table.
    template <auto Method> constexpr Operation(std::string_view name, std::string_view arguments, Does<Method>);
    /// An operation that isn't a method of the filter.
    constexpr Operation(std::string_view name, std::initializer_list<Parameter> all, std::size_t optional,
                        void (*call)(const Operation&, cBitFilter&, const Arguments&), bool takesSelf = false)
        : name(name), optional(optional), takesSelf(takesSelf), call_(call)
    {
        for (const Parameter& p : all) parameters.add(p);
    }
    /// Runs it on the filter and leaves the result in the filter's picture. A wrong argument count or type raises
    /// std::invalid_argument naming the argument; arithmetic faults raise RuntimeError.
    void call(cBitFilter& filter, const Arguments& arguments) const { call_(*this, filter, arguments); }

  private:
    void (*call_)(const Operation&, cBitFilter&, const Arguments&);
};

std::span<const Operation> operations();
/// The texts that an argument accepts.
std::vector<std::string> choicesOf(const Parameter& text);
/// Exact, case-sensitive match; null when there is none.
const Operation* findOperation(std::string_view name);

} // namespace velara
