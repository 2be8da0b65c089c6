// Which of the compiled kernels this processor runs. The vector library is used by its headers; these are the three
// functions of it that are linked. Its own shared object would measure its clock for 2 ms at the start of the program.
#include <hwy/highway.h>

namespace hwy {

namespace {

std::int64_t disabled = 0;

std::int64_t targetsOfProcessor()
{
#if HWY_ARCH_X86
    __builtin_cpu_init();
    const bool hasAvx2 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") &&
                         __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2") &&
                         __builtin_cpu_supports("aes") && __builtin_cpu_supports("pclmul") &&
                         __builtin_cpu_supports("f16c");
    const bool hasAvx512 = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
                           __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw") &&
                           __builtin_cpu_supports("avx512cd") && __builtin_cpu_supports("avx512vnni") &&
                           __builtin_cpu_supports("vpclmulqdq") && __builtin_cpu_supports("avx512vbmi") &&
                           __builtin_cpu_supports("avx512vbmi2") && __builtin_cpu_supports("vaes") &&
                           __builtin_cpu_supports("avx512vpopcntdq") && __builtin_cpu_supports("avx512bitalg") &&
                           __builtin_cpu_supports("gfni");
    if (hasAvx2) return (hasAvx512 ? HWY_AVX3_DL : 0) | HWY_AVX2 | HWY_STATIC_TARGET;
#endif
    return HWY_STATIC_TARGET;
}

} // namespace

std::int64_t SupportedTargets()
{
    const std::int64_t targets = targetsOfProcessor() & ~disabled;
    return targets != 0 ? targets : HWY_STATIC_TARGET;
}

void DisableTargets(std::int64_t targets) { disabled = targets & ~std::int64_t{HWY_STATIC_TARGET}; }

ChosenTarget& GetChosenTarget()
{
    static ChosenTarget chosen;
    return chosen;
}

} // namespace hwy
