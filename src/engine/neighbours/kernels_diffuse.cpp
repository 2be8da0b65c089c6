#include "engine/neighbours/kernels_diffuse.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/neighbours/kernels_diffuse.cpp"
#include <hwy/foreach_target.h>

#include "engine/lanes-inl.h"
#include "engine/pixels-inl.h"
#include "engine/random-inl.h"
#include <bit>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

/// round(bits / 2^24 * range + position - range / 2), half to even: with t in units of 2^-24, 2^23 - 1 and the parity
/// of the integer part are added before the fraction is dropped.
template <class D> HWY_INLINE hn::Vec<D> displaced(D d, hn::Vec<D> bits, int range, hn::Vec<D> position)
{
    const auto t = hn::Sub(hn::Mul(bits, hn::Set(d, range)), hn::Set(d, range * (1 << 23)));
    const auto odd = hn::And(hn::Add(hn::ShiftRight<24>(t), position), hn::Set(d, 1));
    const auto rounded = hn::ShiftRight<24>(hn::Add(hn::Add(t, hn::Set(d, (1 << 23) - 1)), odd));
    return hn::Add(rounded, position);
}

template <class D> HWY_INLINE hn::Mask<D> within(D d, hn::Vec<D> v, int low, int high) // low <= v < high
{
    return hn::And(hn::Gt(v, hn::Set(d, low - 1)), hn::Lt(v, hn::Set(d, high)));
}

int diffusePixels(SpanOf s, int y, const Displacement& displacement, const Sources& sources)
{
    const Displacement m = displacement;
    const Sources among = sources;
    Pixel* HWY_RESTRICT const to = s.to;
    const std::int32_t* const words =
        among.mask ? reinterpret_cast<const std::int32_t*>(among.mask->words.data()) : nullptr;
    const int wordsPerRow = among.mask ? among.mask->wordsPerRow : 0, stride = static_cast<int>(s.stride);
    const hn::ScalableTag<std::int32_t> d;
    const hn::RebindToUnsigned<decltype(d)> du;
    const int n = static_cast<int>(hn::Lanes(d));
    int x = s.x0;
    for (; x + n <= s.x1; x += n) {
        const auto columns = countedFrom(d, x);
        const auto number = hn::Add(hn::ShiftLeft<1>(hn::BitCast(du, columns)), hn::Set(du, m.first));
        const auto across = hn::BitCast(d, randomBits(du, m.random, number));
        const auto down = hn::BitCast(d, randomBits(du, m.random, hn::Add(number, hn::Set(du, 1u))));
        const auto sx = displaced(d, across, m.horizontal, columns), sy = displaced(d, down, m.vertical, hn::Set(d, y));
        auto taken = hn::And(within(d, sx, among.x0, among.x1), within(d, sy, among.y0, among.y1));
        if (words) {
            const auto word = hn::Add(hn::Mul(sy, hn::Set(d, wordsPerRow)), hn::ShiftRight<5>(sx));
            const auto found = hn::GatherIndex(d, words, hn::IfThenElseZero(taken, word));
            const auto bit = hn::Shl(hn::Set(d, 1), hn::And(sx, hn::Set(d, 31)));
            taken = hn::And(taken, hn::Ne(hn::And(found, bit), hn::Zero(d)));
        }
        const auto away = hn::Add(hn::Mul(hn::Sub(sy, hn::Set(d, y)), hn::Set(d, stride)), sx);
        // Scalar loads: twice as fast as a gather, which is slow on many processors.
        alignas(64) std::int32_t from[hn::MaxLanes(hn::ScalableTag<std::int32_t>())];
        hn::Store(hn::IfThenElse(taken, away, columns), d, from);
        for (int i = 0; i < n; ++i) {
            const auto colour = std::bit_cast<std::uint32_t>(s.from[from[i]]) & 0x00FFFFFFu;
            const auto fourth = std::bit_cast<std::uint32_t>(s.from[x + i]) & 0xFF000000u;
            to[x + i] = std::bit_cast<Pixel>(colour | fourth);
        }
    }
    return x;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(diffusePixels);
int diffusePixels(SpanOf span, int y, const Displacement& displacement, const Sources& sources)
{
    return HWY_DYNAMIC_DISPATCH(diffusePixels)(span, y, displacement, sources);
}

} // namespace velara
#endif
