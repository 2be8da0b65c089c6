// The vector kernels of every instruction set that the processor supports.
#pragma once
#include <gtest/gtest.h>
#include <hwy/targets.h>

namespace velara {

/// Calls check() with the best kernels, without AVX-512, and without AVX2, too.
template <class Check> void withEachInstructionSet(Check check)
{
    const auto use = [](std::int64_t disabled) {
        hwy::DisableTargets(disabled);
        hwy::GetChosenTarget().DeInit(); // chosen again at the next call
    };
    constexpr std::int64_t kWithout[] = {0, HWY_AVX3_DL, HWY_AVX3_DL | HWY_AVX2};
    for (const std::int64_t without : kWithout) {
        SCOPED_TRACE(::testing::Message() << "without the instruction sets " << without);
        use(without);
        check();
    }
    use(0);
}

} // namespace velara
