#include "engine/neighbours/kernels_diffuse.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/neighbours/kernels_diffuse.cpp"
#include <hwy/foreach_target.h>

#include "engine/pixels-inl.h"
#include "engine/random-inl.h"
#include "pixels/lanes-inl.h"
#include <algorithm>
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

constexpr int kRun = 64; // pixels, whose loads all come before the first use: those in between would wait for stores

int diffusePixels(SpanOf s, int y, const Displacement& displacement, const Sources& sources)
{
    const Displacement m = displacement;
    const Sources among = sources;
    const std::int32_t* const words =
        among.mask ? reinterpret_cast<const std::int32_t*>(among.mask->words.data()) : nullptr;
    const int wordsPerRow = among.mask ? among.mask->wordsPerRow : 0, stride = static_cast<int>(s.stride);
    const hn::ScalableTag<std::int32_t> d;
    const hn::RebindToUnsigned<decltype(d)> du;
    const int n = static_cast<int>(hn::Lanes(d));
    const auto sourcesOf = [&](int x) HWY_ATTR {
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
        return hn::IfThenElse(taken, away, columns);
    };
    const auto* pixels = reinterpret_cast<const std::int32_t*>(s.from);
    const auto colour = hn::Set(d, 0x00FFFFFF);
    alignas(HWY_MAX_BYTES) std::int32_t indices[kRun], found[kRun];
    const std::ptrdiff_t firstRead = (std::abs(m.vertical) / 2 + 2) * s.stride;
    int x = s.x0;
    for (int count; (count = std::min(kRun, (s.x1 - x) / n * n)) > 0; x += count) {
        for (int i = 0; i < count; i += n) hn::Store(sourcesOf(x + i), d, indices + i);
        for (int i = 0; i < count; i += kLinePixels) { // what rows below will be the first to read and to write
            __builtin_prefetch(s.from + firstRead + x + i);
            __builtin_prefetch(s.to + 2 * s.stride + x + i, 1);
        }
        loadWords(pixels, indices, count, found);
        for (int i = 0; i < count; i += n) {
            const auto kept = hn::LoadU(d, pixels + x + i);
            hn::StoreU(hn::Or(hn::And(colour, hn::Load(d, found + i)), hn::AndNot(colour, kept)), d,
                       reinterpret_cast<std::int32_t*>(s.to + x + i));
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
