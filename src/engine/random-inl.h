// The random numbers of random.h in vectors. For kernel files only: included once per target.
#if defined(VELARA_RANDOM_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef VELARA_RANDOM_INL
#undef VELARA_RANDOM_INL
#else
#define VELARA_RANDOM_INL
#endif

#include "pixels/random.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// Random::bits of each lane's index; D is a tag of 32-bit unsigned lanes.
template <class D, class V = hn::Vec<D>> HWY_INLINE V randomBits(D d, const Random& random, V i)
{
    i = hn::Xor(i, hn::Set(d, random.firstKey()));
    i = hn::Add(hn::Mul(hn::Xor(i, hn::ShiftRight<16>(i)), hn::Set(d, Random::kFirstFactor)),
                hn::Set(d, random.secondKey()));
    i = hn::Mul(hn::Xor(i, hn::ShiftRight<15>(i)), hn::Set(d, Random::kSecondFactor));
    return hn::ShiftRight<8>(hn::Xor(i, hn::ShiftRight<16>(i)));
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif
