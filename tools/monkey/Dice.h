// Dice: the choices of one action. Each action has its own, made of the run's seed and the action's number, so that
// what an earlier one rolled more or less changes nothing for it.
#pragma once
#include <cstddef>
#include <cstdint>
#include <random>

namespace velara::monkey {

class Dice {
  public:
    Dice(std::uint64_t seed, std::uint64_t action)
    {
        std::seed_seq mixed{std::uint32_t(seed), std::uint32_t(seed >> 32), std::uint32_t(action)};
        random_.seed(mixed);
    }
    /// Uniform in 0..count-1; count is at least 1.
    int below(int count) { return static_cast<int>(random_() % static_cast<std::uint32_t>(count)); }
    int within(int low, int high) { return low + below(high - low + 1); }
    bool oneIn(int count) { return below(count) == 0; }
    /// One of a container that is not empty.
    template <class Some> decltype(auto) of(Some& some)
    {
        return some[static_cast<decltype(std::size(some))>(below(static_cast<int>(std::size(some))))];
    }

  private:
    std::mt19937 random_;
};

} // namespace velara::monkey
