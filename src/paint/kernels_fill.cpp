#include "paint/kernels_fill.h"
#include <bit>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "paint/kernels_fill.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

std::uint64_t pixelsLikeImpl(const Pixel* pixels, int count, Pixel seed, int tolerance)
{
    const hn::ScalableTag<std::uint32_t> d;
    const hn::RebindToSigned<decltype(d)> d32;
    const hn::Repartition<std::uint8_t, decltype(d)> d8;
    constexpr int kLanes = static_cast<int>(hn::MaxLanes(d));
    const auto wanted = hn::BitCast(d8, hn::Set(d, std::bit_cast<std::uint32_t>(seed)));
    const auto most = hn::Set(d32, tolerance);
    std::uint64_t bits = 0;
    for (int i = 0; i < count; i += kLanes) {
        std::uint32_t rest[kLanes] = {};
        const bool whole = i + kLanes <= count;
        if (!whole) std::memcpy(rest, pixels + i, sizeof(Pixel) * static_cast<std::size_t>(count - i));
        const auto v = hn::BitCast(d8, hn::LoadU(d, whole ? reinterpret_cast<const std::uint32_t*>(pixels + i) : rest));
        const auto off = hn::BitCast(d, hn::Or(hn::SaturatedSub(v, wanted), hn::SaturatedSub(wanted, v)));
        const auto part = [&](auto shift) HWY_ATTR {
            return hn::And(hn::ShiftRight<decltype(shift)::value>(off), hn::Set(d, 255u));
        };
        const auto sum =
            hn::Add(hn::Add(part(std::integral_constant<int, 0>()), part(std::integral_constant<int, 8>())),
                    part(std::integral_constant<int, 16>()));
        std::uint64_t some = 0;
        std::uint8_t bytes[8] = {};
        hn::StoreMaskBits(d32, hn::Not(hn::Gt(hn::BitCast(d32, sum), most)), bytes);
        std::memcpy(&some, bytes, sizeof some);
        bits |= (some & ((std::uint64_t{1} << kLanes) - 1)) << i;
    }
    return bits & ~std::uint64_t{0} >> (64 - count);
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(pixelsLikeImpl);
std::uint64_t pixelsLike(const Pixel* pixels, int count, Pixel seed, int tolerance)
{
    return HWY_DYNAMIC_DISPATCH(pixelsLikeImpl)(pixels, count, seed, tolerance);
}

} // namespace velara
#endif
