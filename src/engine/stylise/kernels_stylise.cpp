#include "engine/stylise/kernels_stylise.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/stylise/kernels_stylise.cpp"
#include <hwy/foreach_target.h>

#include "engine/pixels-inl.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

void strongest(SpanOf s)
{
    forPixels<std::uint8_t>(s, [&](auto d, int x) HWY_ATTR {
        const hn::Repartition<std::uint32_t, decltype(d)> d32;
        const auto three = hn::Set(d32, 0x00FFFFFFu);
        const auto source = hn::BitCast(d32, loadBytes(d, s.from + x)), colour = hn::And(source, three);
        // the channels rotated by one and by two, in bytes 0 to 2: each channel faces both others
        const auto next = hn::And(hn::Or(hn::ShiftRight<8>(colour), hn::ShiftLeft<16>(colour)), three);
        const auto last = hn::And(hn::Or(hn::ShiftRight<16>(colour), hn::ShiftLeft<8>(colour)), three);
        const auto others = hn::BitCast(d32, hn::Max(hn::BitCast(d, next), hn::BitCast(d, last)));
        const auto reaches = hn::VecFromMask(d, hn::Eq(hn::Max(hn::BitCast(d, colour), hn::BitCast(d, others)),
                                                       hn::BitCast(d, others))); // others >= channel
        const auto top = hn::AndNot(hn::BitCast(d32, reaches), three);
        const auto tie = hn::VecFromMask(d32, hn::Eq(top, hn::Zero(d32)));
        return hn::BitCast(d, hn::And(source, hn::Or(hn::Or(top, tie), hn::Set(d32, 0xFF000000u))));
    });
}

void twoTone(SpanOf s, std::uint32_t bright, std::uint32_t dark)
{
    forPixels<std::uint8_t>(s, [&](auto d, int x) HWY_ATTR {
        const hn::Repartition<std::uint32_t, decltype(d)> d32;
        const auto source = hn::BitCast(d32, loadBytes(d, s.from + x));
        const auto highBits = hn::Set(d32, 0x00808080u), above = hn::And(source, highBits);
        const auto mixed = hn::IfThenElse(hn::Eq(above, hn::Zero(d32)), hn::Set(d32, dark), source);
        const auto colour = hn::IfThenElse(hn::Eq(above, highBits), hn::Set(d32, bright), mixed);
        return withFourthOf(d, hn::BitCast(d, source), hn::BitCast(d, colour));
    });
}

const StyliseKernels& styliseKernelTable()
{
    static constexpr StyliseKernels table = {strongest, twoTone};
    return table;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(styliseKernelTable);
const StyliseKernels& styliseKernels() { return HWY_DYNAMIC_DISPATCH(styliseKernelTable)(); }

} // namespace velara
#endif
