// Counter-based random numbers: value i of a sequence depends on the seed and i alone, so that any part of it can be
// computed in any order, by any number of lanes. random-inl.h has the same in vectors.
#pragma once
#include <cstdint>

namespace velara {

class Random {
  public:
    explicit constexpr Random(std::uint64_t seed)
    {
        seed = (seed ^ seed >> 30) * 0xBF58476D1CE4E5B9u;
        seed = (seed ^ seed >> 27) * 0x94D049BB133111EBu;
        seed ^= seed >> 31;
        first_ = static_cast<std::uint32_t>(seed);
        second_ = static_cast<std::uint32_t>(seed >> 32);
    }

    /// 24 random bits: the value i is bits(i) / 2^24.
    constexpr std::uint32_t bits(std::uint32_t i) const
    {
        i ^= first_;
        i = (i ^ i >> 16) * kFirstFactor + second_;
        i = (i ^ i >> 15) * kSecondFactor;
        return (i ^ i >> 16) >> 8;
    }
    /// In [0, 1).
    constexpr float single(std::uint32_t i) const { return static_cast<float>(bits(i)) * kUnit; }

    static constexpr float kUnit = 1.0f / (1 << 24);
    static constexpr std::uint32_t kFirstFactor = 0x7FEB352Du, kSecondFactor = 0x846CA68Bu;
    std::uint32_t firstKey() const { return first_; }
    std::uint32_t secondKey() const { return second_; }

  private:
    std::uint32_t first_ = 0, second_ = 0;
};

} // namespace velara
