// The command words that run one operation with fixed arguments.
#pragma once
#include "engine/operations.h"

namespace velara {

struct Preset {
    std::string_view word;
    std::string_view operation;
    Arguments arguments;
};

std::span<const Preset> presets();

} // namespace velara
