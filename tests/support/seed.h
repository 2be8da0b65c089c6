// The seed of random trials.
#pragma once
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace velara {

/// VELARA_SEED if it is set, else the usual one. It is printed, so that failed trials can be repeated.
inline std::uint32_t seedOf(std::uint32_t usual)
{
    const char* given = std::getenv("VELARA_SEED");
    const auto seed = given ? static_cast<std::uint32_t>(std::strtoul(given, nullptr, 10)) : usual;
    std::printf("VELARA_SEED=%u\n", seed);
    return seed;
}

} // namespace velara
