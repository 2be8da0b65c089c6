// Dice: the random choices of one action. Each action has its own, seeded by the run's seed and the action's number, so
// that it doesn't depend on how many numbers earlier actions used.
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
    /// Uniform in 0..count-1; count must be at least 1.
    int below(int count) { return static_cast<int>(random_() % static_cast<std::uint32_t>(count)); }
    int within(int low, int high) { return low + below(high - low + 1); }
    bool oneIn(int count) { return below(count) == 0; }
    /// A random element of a container that is not empty.
    template <class Some> decltype(auto) of(Some& some)
    {
        return some[static_cast<decltype(std::size(some))>(below(static_cast<int>(std::size(some))))];
    }

  private:
    std::mt19937 random_;
};

} // namespace velara::monkey
