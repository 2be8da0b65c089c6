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

/// Stores e*8 \ 42, e*4 \ 42, e*2 \ 42 and e \ 42.
HWY_INLINE void storeParts(V error, StuckiParts& parts, int x)
{
    const Numbers d;
    const auto size = hn::BitCast(Unsigned(), hn::Abs(error)), twice = hn::Add(size, size);
    const auto sign = hn::BroadcastSignBit(error);
    const auto store = [&](hn::Vec<Unsigned> v, StuckiRow& row)
                           HWY_ATTR { hn::StoreU(hn::Sub(hn::Xor(hn::BitCast(d, v), sign), sign), d, row.data() + x); };
    const auto of21 = [](hn::Vec<Unsigned> v) HWY_ATTR { // 3121 / 2^16 is a 21st, exact for all numbers up to 1020
        return hn::MulHigh(v, hn::Set(Unsigned(), std::uint16_t{3121}));
    };
    const auto two = of21(size);
    store(of21(hn::Add(twice, twice)), parts.eight);
    store(of21(twice), parts.four);
    store(two, parts.two);
    store(hn::ShiftRight<1>(two), parts.one);
}

void output(SpanOf s, const std::int16_t* values, int mean, StuckiParts& parts)
{
    const Numbers d;
    const auto white = hn::Set(d, std::int16_t{255}), below = hn::Set(d, static_cast<std::int16_t>(mean - 1));
    const int n = static_cast<int>(hn::Lanes(d));
    int x = s.x0;
    for (; x + n <= s.x1; x += n) {
        const auto v = hn::Min(hn::Max(hn::LoadU(d, values + x), hn::Zero(d)), white);
        storeParts(hn::Sub(v, hn::IfThenElseZero(hn::Gt(v, below), white)), parts, x);
    }
    for (; x < s.x1; ++x) {
        const int v = std::clamp<int>(values[x], 0, 255), e = v >= mean ? v - 255 : v;
        parts.eight.data()[x] = static_cast<std::int16_t>(e * 8 / 42);
        parts.four.data()[x] = static_cast<std::int16_t>(e * 4 / 42);
        parts.two.data()[x] = static_cast<std::int16_t>(e * 2 / 42);
        parts.one.data()[x] = static_cast<std::int16_t>(e / 42);
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

void incoming(const StuckiParts& above, const StuckiParts& aboveThat, std::int16_t* to, int x0, int x1)
{
    const Numbers d;
    const int n = static_cast<int>(hn::Lanes(d));
    const auto at = [&](const StuckiRow& row, int x) HWY_ATTR { return hn::LoadU(d, row.data() + x); };
    const auto around = [&](const StuckiRow& row, int distance, int x)
                            HWY_ATTR { return hn::Add(at(row, x - distance), at(row, x + distance)); };
    for (int x = x0; x < x1; x += n) { // beyond the row is padding
        const auto near = hn::Add(hn::Add(around(above.two, 2, x), around(above.four, 1, x)), at(above.eight, x));
        const auto far =
            hn::Add(hn::Add(around(aboveThat.one, 2, x), around(aboveThat.two, 1, x)), at(aboveThat.four, x));
        hn::StoreU(hn::Add(near, far), d, to + x);
    }
}

const StuckiKernels& stuckiKernelTable()
{
    static constexpr StuckiKernels table = {greys, incoming, output};
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
