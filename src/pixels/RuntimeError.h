// Failures of the engine: one small exception type. The command layer is where they stop.
#pragma once
#include <stdexcept>

namespace velara {

enum class Fault { Overflow, DivisionByZero, OutOfRange };

/// A run-time error of the arithmetic. what() is the text a person reads: "Overflow", "Division by zero", ...
class RuntimeError : public std::runtime_error {
  public:
    explicit RuntimeError(Fault fault) : std::runtime_error(text(fault)), fault_(fault) {}
    Fault fault() const { return fault_; }

  private:
    static const char* text(Fault fault)
    {
        constexpr const char* kTexts[] = {"Overflow", "Division by zero", "Subscript out of range"};
        return kTexts[static_cast<int>(fault)];
    }
    Fault fault_;
};

/// Thrown by a Progress handler to end a running filter; the picture stays as it was.
struct Cancelled : std::runtime_error {
    Cancelled() : std::runtime_error("Cancelled") {}
};

} // namespace velara
