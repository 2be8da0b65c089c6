// The table of the engine's operations by name, with their arguments: what presets, dialogs, the batch program, tests
// and benchmarks call. Adding a filter is one method and one row.
#pragma once
#include "engine/cBitFilter.h"
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velara {

/// Booleans, whole numbers (colours too), singles, texts and pictures.
using Argument = std::variant<bool, int, double, std::string, Bits>;
using Arguments = std::vector<Argument>;

enum class ArgumentType { Boolean, Integer, Number, Text, Picture };

struct Parameter {
    std::string_view name;
    ArgumentType type;
};

/// One operation. call runs it on the filter and leaves the result in the filter's picture; a wrong argument count or
/// type raises std::invalid_argument that names the argument, arithmetic faults are RuntimeError.
struct Operation {
    std::string_view name;
    std::vector<Parameter> parameters;
    std::function<void(cBitFilter&, const Arguments&)> call;
    std::size_t optional = 0; // so many of the last parameters may be left out
    bool takesSelf = false;   // a null picture among the arguments stands for the filter's own
};

std::span<const Operation> operations();
/// Exact, case-sensitive; null when there is none.
const Operation* findOperation(std::string_view name);

/// A command word that runs one operation with fixed arguments.
struct Preset {
    std::string_view word;
    std::string_view operation;
    Arguments arguments;
    bool yields = true; // before the work, so that the menu closes
};

std::span<const Preset> presets();
const Preset* findPreset(std::string_view word);

} // namespace velara
