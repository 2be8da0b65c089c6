// The command words that run one operation with fixed arguments.
#pragma once
#include "engine/operations.h"

namespace velara {

struct Preset {
    std::string_view word;
    std::string_view operation;
    Arguments arguments;
    bool yields = true; // before the work, so that the menu closes
};

std::span<const Preset> presets();

} // namespace velara
