// The run-time error that a call raises.
#pragma once
#include "pixels/RuntimeError.h"
#include <optional>

namespace velara {

/// None when the call returns.
template <class Call> std::optional<Fault> faultOf(const Call& call)
{
    try {
        call();
    } catch (const RuntimeError& e) {
        return e.fault();
    }
    return {};
}

} // namespace velara
