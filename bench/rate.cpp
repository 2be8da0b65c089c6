#include "rate.h"
#include <algorithm>
#include <cstdint>
#include <ctime>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "rate.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#ifndef VELARA_BENCH_RATE
#define VELARA_BENCH_RATE
namespace velara::bench {
constexpr int kRounds = 1 << 14, kAbreast = 8, kOperations = 5;
} // namespace velara::bench
#endif

HWY_BEFORE_NAMESPACE();
namespace velara::bench::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// kRounds * kAbreast * kOperations operations.
std::uint32_t operateImpl(std::uint32_t seed)
{
    const hn::ScalableTag<std::uint32_t> d;
    const auto a = hn::Set(d, seed), b = hn::Set(d, seed * 3);
    // kAbreast, no two alike: the compiler would do those once
    const auto from = [&](std::uint32_t i) HWY_ATTR { return hn::Set(d, seed ^ (i * 0x9E3779B9u)); };
    auto v0 = from(0), v1 = from(1), v2 = from(2), v3 = from(3), v4 = from(4), v5 = from(5), v6 = from(6), v7 = from(7);
    const auto next = [&](auto v)
                          HWY_ATTR { return hn::Xor(hn::Add(hn::Mul(hn::Add(v, a), b), hn::ShiftRight<7>(v)), b); };
    for (int i = 0; i < kRounds; ++i) {
        v0 = next(v0), v1 = next(v1), v2 = next(v2), v3 = next(v3);
        v4 = next(v4), v5 = next(v5), v6 = next(v6), v7 = next(v7);
    }
    const auto four = hn::Add(hn::Add(v0, v1), hn::Add(v2, v3)), rest = hn::Add(hn::Add(v4, v5), hn::Add(v6, v7));
    return hn::GetLane(hn::Add(four, rest));
}

int lanesImpl() { return static_cast<int>(hn::Lanes(hn::ScalableTag<std::uint32_t>())); }

} // namespace velara::bench::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara::bench {

HWY_EXPORT(operateImpl);
HWY_EXPORT(lanesImpl);

namespace {

volatile std::uint32_t kept = 12345; // so that the compiler can't tell the results

/// The least of a few tries, by the processor's time: other programs only add to it.
template <class Work> double leastOf(Work work)
{
    constexpr int kTries = 9;
    double least = 1e9;
    for (int i = 0; i < kTries; ++i) {
        timespec from{}, to{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &from);
        kept = work(kept);
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &to);
        least = std::min(least, double(to.tv_sec - from.tv_sec) * 1e3 + double(to.tv_nsec - from.tv_nsec) / 1e6);
    }
    return least;
}

std::uint32_t chain(std::uint32_t v)
{
    for (int i = 0; i < kRounds; ++i) {
        v += static_cast<std::uint32_t>(i);
#ifdef __GNUC__
        asm volatile("" : "+r"(v)); // one addition after the other
#endif
    }
    return v;
}

} // namespace

double millisecondsAMillionOperations()
{
    return leastOf([](std::uint32_t seed) { return HWY_DYNAMIC_DISPATCH(operateImpl)(seed); }) * 1e6 /
           (double(kRounds) * kAbreast * kOperations);
}
int lanesOfAVector() { return HWY_DYNAMIC_DISPATCH(lanesImpl)(); }
double millisecondsAMillionCycles() { return leastOf(chain) * 1e6 / kRounds; }

} // namespace velara::bench
#endif
