#include "engine/deform/kernels_slant.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/deform/kernels_slant.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "engine/pixels-inl.h"
#include "pixels/lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using Singles = hn::ScalableTag<float>;
using Words = hn::ScalableTag<std::int32_t>;

/// Calls take(i, offsets) for each vector of the run. False where an offset is too close to a half.
template <class Take> HWY_INLINE bool eachWave(const SlantWave& wave, Take take)
{
    const Singles d;
    const Words words;
    const auto sine = hn::Set(d, static_cast<float>(-wave.weight * wave.sine));
    const auto cosine = hn::Set(d, static_cast<float>(-wave.weight * wave.cosine));
    const auto large = hn::Set(d, 12582912.0f); // leaves a sum no room for a fraction
    auto most = hn::Zero(d);
    for (int i = 0; i < kPlaces; i += static_cast<int>(hn::Lanes(d))) {
        const auto offset =
            hn::MulAdd(cosine, hn::LoadU(d, wave.tables.sine + i), hn::Mul(sine, hn::LoadU(d, wave.tables.cosine + i)));
        const auto sum = hn::Add(offset, large);
        most = hn::Max(most, hn::Abs(hn::Sub(offset, hn::Sub(sum, large))));
        take(i, hn::Sub(hn::BitCast(words, sum), hn::BitCast(words, large)));
    }
    const float tolerance = static_cast<float>(wave.weight) * 1e-6f;
    return hn::AllTrue(d, hn::Lt(most, hn::Set(d, 0.5f - tolerance)));
}

/// The pixels first[places], places within 0..Lanes + 2 * kWeightX - 1.
template <class V> HWY_INLINE V fromWindow(Words d, const Pixel* first, V places)
{
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto* words = reinterpret_cast<const std::int32_t*>(first);
    const auto indices = hn::IndicesFromVec(d, hn::And(places, hn::Set(d, lanes - 1)));
    auto found = hn::TableLookupLanes(hn::LoadU(d, words), indices);
    for (int begin = lanes; begin < lanes + 2 * kWeightX; begin += lanes)
        found = hn::IfThenElse(hn::Gt(places, hn::Set(d, begin - 1)),
                               hn::TableLookupLanes(hn::LoadU(d, words + begin), indices), found);
    return found;
}

/// Writes the pixels to[i] on, the colours with the fourth bytes of kept.
template <class V> HWY_INLINE void write(Words d, V colours, const Pixel* kept, Pixel* to, bool streams)
{
    const auto all = withFourthOf(d, hn::LoadU(d, reinterpret_cast<const std::int32_t*>(kept)), colours);
    auto* target = reinterpret_cast<std::int32_t*>(to);
    streams ? hn::Stream(all, d, target) : hn::StoreU(all, d, target);
}

bool slantAlongRowImpl(const SlantWave& wave, const Pixel* from, Pixel* to, bool streams)
{
    const Words d;
    const auto here = countedFrom(d, kWeightX);
    return eachWave(wave, [&](int i, auto offsets) HWY_ATTR {
        write(d, fromWindow(d, from + i - kWeightX, hn::Add(offsets, here)), from + i, to + i, streams);
    });
}

bool slantedPlacesImpl(const SlantWave& wave, const Pixel* from, std::ptrdiff_t stride, std::int32_t* places)
{
    const Words d;
    const auto rows = hn::Set(d, static_cast<std::int32_t>(stride));
    for (int i = kPlaces; i < 2 * kPlaces; i += kLinePixels) { // the first and the last row that it reads
        __builtin_prefetch(from + i - wave.weight * stride);
        __builtin_prefetch(from + i + wave.weight * stride);
    }
    return eachWave(wave, [&](int i, auto offsets) HWY_ATTR {
        hn::StoreU(hn::Add(hn::Mul(offsets, rows), countedFrom(d, i)), d, places + i);
    });
}

void takePlacesImpl(const Pixel* from, const std::int32_t* places, Pixel* to, bool streams)
{
    const Words d;
    const auto* words = reinterpret_cast<const std::int32_t*>(from);
    for (int i = 0; i < kPlaces; i += static_cast<int>(hn::Lanes(d)))
        write(d, loadScattered(d, words, places + i), from + i, to + i, streams);
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(slantAlongRowImpl);
HWY_EXPORT(slantedPlacesImpl);
HWY_EXPORT(takePlacesImpl);

bool slantAlongRow(const SlantWave& wave, const Pixel* from, Pixel* to, bool streams)
{
    return HWY_DYNAMIC_DISPATCH(slantAlongRowImpl)(wave, from, to, streams);
}

bool slantedPlaces(const SlantWave& wave, const Pixel* from, std::ptrdiff_t stride, std::int32_t* places)
{
    return HWY_DYNAMIC_DISPATCH(slantedPlacesImpl)(wave, from, stride, places);
}

void takePlaces(const Pixel* from, const std::int32_t* places, Pixel* to, bool streams)
{
    HWY_DYNAMIC_DISPATCH(takePlacesImpl)(from, places, to, streams);
}

} // namespace velara
#endif
