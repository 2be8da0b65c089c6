#include "reduce/best/kernels_refine.h"
#include <algorithm>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "reduce/best/kernels_refine.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

void nearestImpl(const Pixel* colours, int n, const Centres& centres, std::uint8_t* numbers)
{
    const hn::ScalableTag<float> d;
    const hn::RebindToSigned<decltype(d)> words;
    const hn::Rebind<std::uint8_t, decltype(d)> bytes;
    constexpr int kAbreast = 2, kLanes = static_cast<int>(hn::MaxLanes(decltype(d)())), kTogether = kAbreast * kLanes;
    const auto channel = [&](const Pixel* from, auto shift) HWY_ATTR {
        const auto pixels = hn::LoadU(words, reinterpret_cast<const std::int32_t*>(from));
        return hn::ConvertTo(d, hn::And(hn::ShiftRight<decltype(shift)::value>(pixels), hn::Set(words, 255)));
    };
    for (int i = 0; i < n; i += kTogether) {
        std::array<Pixel, kTogether> some{};
        std::copy_n(colours + i, std::min(n - i, kTogether), some.begin());
        const auto blue = [&](int k)
                              HWY_ATTR { return channel(&some[std::size_t(k)], std::integral_constant<int, 0>()); };
        const auto green = [&](int k)
                               HWY_ATTR { return channel(&some[std::size_t(k)], std::integral_constant<int, 8>()); };
        const auto red = [&](int k)
                             HWY_ATTR { return channel(&some[std::size_t(k)], std::integral_constant<int, 16>()); };
        const auto b0 = blue(0), g0 = green(0), r0 = red(0), b1 = blue(kLanes), g1 = green(kLanes), r1 = red(kLanes);
        auto least0 = hn::Set(d, 1e9F), least1 = least0;
        auto number0 = hn::Zero(words), number1 = number0;
        for (int c = 0; c < centres.count; ++c) {
            const auto of = [&](const auto& values) HWY_ATTR { return hn::Set(d, values[std::size_t(c)]); };
            const auto b = of(centres.channels[0]), g = of(centres.channels[1]), r = of(centres.channels[2]);
            const auto half = of(centres.half);
            const auto apart = [&](auto blues, auto greens, auto reds) HWY_ATTR {
                return hn::NegMulAdd(reds, r, hn::NegMulAdd(greens, g, hn::NegMulAdd(blues, b, half)));
            };
            const auto apart0 = apart(b0, g0, r0), apart1 = apart(b1, g1, r1);
            const auto here = hn::Set(words, c);
            number0 = hn::IfThenElse(hn::RebindMask(words, hn::Lt(apart0, least0)), here, number0);
            number1 = hn::IfThenElse(hn::RebindMask(words, hn::Lt(apart1, least1)), here, number1);
            least0 = hn::Min(least0, apart0);
            least1 = hn::Min(least1, apart1);
        }
        std::array<std::uint8_t, kTogether> found;
        hn::StoreU(hn::DemoteTo(bytes, number0), bytes, &found[0]);
        hn::StoreU(hn::DemoteTo(bytes, number1), bytes, &found[kLanes]);
        std::copy_n(found.begin(), std::min(n - i, kTogether), numbers + i);
    }
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(nearestImpl);

void Centres::add(const std::array<int, 3>& quarters)
{
    float square = 0;
    for (std::size_t c = 0; c < 3; ++c) {
        const float level = float(quarters[c]) / 4;
        channels[c][std::size_t(count)] = level;
        square += level * level;
    }
    half[std::size_t(count++)] = square / 2;
}

void nearestCentres(const Pixel* colours, int n, const Centres& centres, std::uint8_t* numbers)
{
    HWY_DYNAMIC_DISPATCH(nearestImpl)(colours, n, centres, numbers);
}

} // namespace velara
#endif
