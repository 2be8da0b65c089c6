// GoOn: how work that takes its time learns that nobody wants it any more.
#pragma once
#include <chrono>
#include <functional>

namespace velara {

/// Asked some twenty times a second while work goes on, with the time since its start; false gives it up.
using GoOn = std::function<bool(std::chrono::milliseconds)>;

} // namespace velara
