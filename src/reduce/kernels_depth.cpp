#include "reduce/kernels_depth.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "reduce/kernels_depth.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

constexpr int kStreamFrom = 1024; // pixels of a row

/// to[i] = of(d, from[i]) for vectors of words, and for single ones at the ends.
template <class Of> HWY_INLINE void eachWord(const Pixel* from, Pixel* to, int n, Of of)
{
    const hn::ScalableTag<std::uint32_t> many;
    const hn::CappedTag<std::uint32_t, 1> one;
    const int lanes = static_cast<int>(hn::Lanes(many));
    const auto* source = reinterpret_cast<const std::uint32_t*>(from);
    auto* target = reinterpret_cast<std::uint32_t*>(to);
    const auto single = [&](int i) HWY_ATTR { hn::StoreU(of(one, hn::LoadU(one, source + i)), one, target + i); };
    int i = 0;
    if (n >= kStreamFrom) {
        while (reinterpret_cast<std::uintptr_t>(target + i) % (sizeof(Pixel) * hn::Lanes(many)) != 0) single(i++);
        for (; i + lanes <= n; i += lanes) hn::Stream(of(many, hn::LoadU(many, source + i)), many, target + i);
    }
    for (; i + lanes <= n; i += lanes) hn::StoreU(of(many, hn::LoadU(many, source + i)), many, target + i);
    for (; i < n; ++i) single(i);
}

void blackOrWhiteImpl(const Pixel* from, Pixel* to, int n)
{
    eachWord(from, to, n, [](auto d, auto v) HWY_ATTR {
        const auto byte = hn::Set(d, 255u), colour = hn::Set(d, 0xFFFFFFu);
        const auto sum = hn::Add(hn::Add(hn::And(v, byte), hn::And(hn::ShiftRight<8>(v), byte)),
                                 hn::And(hn::ShiftRight<16>(v), byte));
        const hn::RebindToSigned<decltype(d)> ints;
        const auto isWhite = hn::RebindMask(d, hn::Gt(hn::BitCast(ints, sum), hn::Set(ints, 382)));
        return hn::Or(hn::AndNot(colour, v), hn::IfThenElseZero(isWhite, colour));
    });
}

void highBitsImpl(const Pixel* from, Pixel* to, int n)
{
    eachWord(from, to, n, [](auto d, auto v) HWY_ATTR {
        return hn::Or(hn::And(v, hn::Set(d, 0xFFF8F8F8u)), hn::And(hn::ShiftRight<5>(v), hn::Set(d, 0x00070707u)));
    });
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(blackOrWhiteImpl);
HWY_EXPORT(highBitsImpl);

void blackOrWhite(const Pixel* from, Pixel* to, int n) { HWY_DYNAMIC_DISPATCH(blackOrWhiteImpl)(from, to, n); }
void highBits(const Pixel* from, Pixel* to, int n) { HWY_DYNAMIC_DISPATCH(highBitsImpl)(from, to, n); }

} // namespace velara
#endif
