#include "engine/stylise/kernels_stucki.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/stylise/kernels_stucki.cpp"
#include <hwy/foreach_target.h>

#include "engine/pixels-inl.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

using Numbers = hn::ScalableTag<std::int16_t>;
using Unsigned = hn::RebindToUnsigned<Numbers>;
using V = hn::Vec<Numbers>;

void greys(const Pixel* from, std::int16_t* to, int x0, int x1)
{
    const hn::ScalableTag<std::uint8_t> d8;
    const hn::Repartition<std::int32_t, decltype(d8)> d32;
    const hn::Rebind<std::int16_t, decltype(d32)> d16;
    const int n = static_cast<int>(hn::Lanes(d32));
    int x = x0;
    for (; x + n <= x1; x += n) {
        const auto sum = sumOfChannels(Numbers(), tap(Numbers(), from + x).split());
        // 21846 / 2^16 is a third, exact for all sums below 2^15
        const auto third = hn::MulHigh(hn::BitCast(Unsigned(), sum), hn::Set(Unsigned(), std::uint16_t{21846}));
        hn::StoreU(hn::DemoteTo(d16, hn::BitCast(d32, third)), d16, to + x);
    }
    for (; x < x1; ++x) to[x] = static_cast<std::int16_t>((from[x].c[0] + from[x].c[1] + from[x].c[2]) / 3);
}

void output(SpanOf s, const std::int16_t* values, int mean, std::int16_t* errors)
{
    const Numbers d;
    const auto white = hn::Set(d, std::int16_t{255}), below = hn::Set(d, static_cast<std::int16_t>(mean - 1));
    const int n = static_cast<int>(hn::Lanes(d));
    const auto errorOf = [&](V value) HWY_ATTR {
        const auto v = hn::Min(hn::Max(value, hn::Zero(d)), white);
        return hn::Sub(v, hn::IfThenElseZero(hn::Gt(v, below), white));
    };
    int x = s.x0;
    for (; x + n <= s.x1; x += n) hn::StoreU(errorOf(hn::LoadU(d, values + x)), d, errors + x);
    for (; x < s.x1; ++x) {
        const int v = std::clamp<int>(values[x], 0, 255);
        errors[x] = static_cast<std::int16_t>(v >= mean ? v - 255 : v);
    }
    forPixels<std::uint8_t>(s, [&](auto d8, int i) HWY_ATTR {
        const hn::Repartition<std::int32_t, decltype(d8)> d32;
        const hn::Rebind<std::int16_t, decltype(d32)> d16;
        const auto v = hn::Max(hn::LoadU(d16, values + i), hn::Zero(d16)); // a mean is 0 to 255: no upper clamp needed
        const auto isWhite = hn::Gt(v, hn::Set(d16, static_cast<std::int16_t>(mean - 1)));
        return withFourthOf(d8, loadBytes(d8, s.from + i),
                            hn::BitCast(d8, hn::PromoteTo(d32, hn::VecFromMask(d16, isWhite))));
    });
}

/// e*8 \ 42, e*4 \ 42, e*2 \ 42 and e \ 42.
struct Parts {
    V eight, four, two, one;
};

HWY_INLINE Parts partsOf(V error)
{
    const Numbers d;
    const auto size = hn::BitCast(Unsigned(), hn::Abs(error)), twice = hn::Add(size, size);
    const auto sign = hn::BroadcastSignBit(error);
    const auto signedAgain = [&](hn::Vec<Unsigned> v)
                                 HWY_ATTR { return hn::Sub(hn::Xor(hn::BitCast(d, v), sign), sign); };
    const auto of21 = [](hn::Vec<Unsigned> v) HWY_ATTR { // 3121 / 2^16 is a 21st, exact for all numbers up to 1020
        return hn::MulHigh(v, hn::Set(Unsigned(), std::uint16_t{3121}));
    };
    const auto two = of21(size);
    return {signedAgain(of21(hn::Add(twice, twice))), signedAgain(of21(twice)), signedAgain(two),
            signedAgain(hn::ShiftRight<1>(two))};
}

void spread(const std::int16_t* errors, std::int16_t* below, std::int16_t* belowThat, int width)
{
    const Numbers d;
    const int n = static_cast<int>(hn::Lanes(d)), last = width - 1;
    const std::int16_t keptBelow = below[last];
    for (int x = 0; x < width; x += n) { // beyond the width is padding, where all errors are 0
        const auto partsAt = [&](int offset) HWY_ATTR { return partsOf(hn::LoadU(d, errors + x + offset)); };
        const Parts a = partsAt(-2), b = partsAt(-1), c = partsAt(0), e = partsAt(1), f = partsAt(2);
        const auto toBelow = hn::Add(hn::Add(hn::Add(a.two, f.two), hn::Add(b.four, e.four)), c.eight);
        const auto toThat = hn::Add(hn::Add(hn::Add(a.one, f.one), hn::Add(b.two, e.two)), c.four);
        hn::StoreU(hn::Add(hn::LoadU(d, below + x), toBelow), d, below + x);
        hn::StoreU(toThat, d, belowThat + x);
    }
    // The last column receives nothing from its left.
    below[last] = static_cast<std::int16_t>(keptBelow + errors[last] * 8 / 42);
    belowThat[last] = static_cast<std::int16_t>(errors[last] * 4 / 42);
}

const StuckiKernels& stuckiKernelTable()
{
    static constexpr StuckiKernels table = {greys, output, spread};
    return table;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(stuckiKernelTable);
const StuckiKernels& stuckiKernels() { return HWY_DYNAMIC_DISPATCH(stuckiKernelTable)(); }

} // namespace velara
#endif
