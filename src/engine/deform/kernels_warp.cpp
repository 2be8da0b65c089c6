#include "engine/deform/kernels_warp.h"
#include "engine/deform/passes_warp.h"
#include "pixels/numbers.h"
#include <type_traits>
#include <utility>

#ifndef VELARA_KERNELS_WARP_TYPES
#define VELARA_KERNELS_WARP_TYPES
namespace velara {

constexpr int kLongestVector = 16;         // words
constexpr int kTurnAhead = 16;             // rows
constexpr int kTurnPitch = kTurnRows + 16; // no power of two: rows would share cache sets

struct TakeJob {
    const std::int32_t* origin; // of pixel (0, 0), as words
    std::int32_t stride;
    Rect rect, inner;       // within inner all pixels are selected, outside of rect none
    const SourceMask* mask; // null when all of rect is selected
    bool clean;
    bool streams; // the picture doesn't fit into the cache
};

struct TurnJob {
    const std::uint32_t* from;
    std::ptrdiff_t fromStride;
    std::uint32_t* to;
    std::ptrdiff_t toStride;
};

struct BlendJob {
    const std::int32_t* origin;
    std::int32_t stride, width, height;
    bool streams; // the picture doesn't fit into the cache
};

} // namespace velara
#endif

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/deform/kernels_warp.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "engine/pixels-inl.h"
#include "pixels/lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace velara {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// Prefetch what the run of kPlaces pixels to the right will read and write. Its sources are assumed to be collinear; a
/// quarter of them, begun at another one row by row (by `stagger`) for runs that read a column.
HWY_INLINE void prefetchTargets(const Pixel* kept, const Pixel* to, bool streams)
{
    for (int i = kPlaces; i < 2 * kPlaces; i += kLinePixels) {
        if (kept) __builtin_prefetch(kept + i);
        if (!streams) __builtin_prefetch(to + i, 1);
    }
}
HWY_INLINE void prefetchSources(const std::int32_t* origin, const std::int32_t* indices, std::int32_t stagger)
{
    constexpr int kEach = kLinePixels / 4;
    const std::ptrdiff_t onward = std::ptrdiff_t(indices[kPlaces - 1]) - indices[0];
    for (int i = stagger & (kEach - 1); i < kPlaces; i += kEach) __builtin_prefetch(origin + indices[i] + onward);
}

/// A run is written by non-temporal stores: it is whole and begins at a cache line, and the picture is large.
HWY_INLINE bool isStreamed(bool streams, int n, const Pixel* to)
{
    return streams && n == kPlaces && reinterpret_cast<std::uintptr_t>(to) % kCacheLine == 0;
}

/// to[i] = merged(i, kept) for n pixels, a vector at a time.
template <class Merge> HWY_INLINE void mergePixels(int n, const Pixel* kept, Pixel* to, bool streams, Merge merged)
{
    const hn::ScalableTag<std::int32_t> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto step = [&](int i, const Pixel* from)
                          HWY_ATTR { return merged(i, hn::LoadU(d, reinterpret_cast<const std::int32_t*>(from))); };
    auto* words = reinterpret_cast<std::int32_t*>(to);
    int i = 0;
    if (isStreamed(streams, n, to))
        for (; i < kPlaces; i += lanes) hn::Stream(step(i, kept + i), d, words + i);
    for (; i + lanes <= n; i += lanes) hn::StoreU(step(i, kept + i), d, words + i);
    if (i < n) {
        Pixel tail[HWY_MAX_BYTES / sizeof(Pixel)] = {};
        copyPixels(kept + i, tail, 0, n - i);
        hn::StoreU(step(i, tail), d, reinterpret_cast<std::int32_t*>(tail));
        copyPixels(tail, to + i, 0, n - i);
    }
}

/// The places of positions that may be outside of the selection: those are the pixel's (left, top), and inside marks
/// them.
HWY_NOINLINE void findSelected(const TakeJob& job, const std::int32_t* sx, const std::int32_t* sy, int n,
                               std::int32_t* indices, std::int32_t* inside)
{
    const hn::ScalableTag<std::int32_t> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto left = hn::Set(d, job.rect.left), right = hn::Set(d, job.rect.right - 1);
    const auto top = hn::Set(d, job.rect.top), bottom = hn::Set(d, job.rect.bottom - 1);
    const auto stride = hn::Set(d, job.stride);
    const auto* marks = job.mask ? reinterpret_cast<const std::int32_t*>(job.mask->bits()) : nullptr;
    const auto marksARow = hn::Set(d, job.mask ? job.mask->wordsARow() : 0);
    for (int i = 0; i < n; i += lanes) {
        const auto x = hn::Load(d, sx + i), y = hn::Load(d, sy + i);
        const auto limitedX = hn::Min(hn::Max(x, left), right), limitedY = hn::Min(hn::Max(y, top), bottom);
        const auto isInside = hn::And(hn::Eq(x, limitedX), hn::Eq(y, limitedY));
        const auto sourceX = hn::IfThenElse(isInside, x, left), sourceY = hn::IfThenElse(isInside, y, top);
        hn::Store(hn::Add(hn::Mul(sourceY, stride), sourceX), d, indices + i);
        auto selected = hn::VecFromMask(d, isInside);
        if (marks) { // the pixel's bit, moved to the sign
            const auto word = loadComputed(d, marks, hn::Add(hn::Mul(sourceY, marksARow), hn::ShiftRight<5>(sourceX)));
            const auto above = hn::AndNot(sourceX, hn::Set(d, 31)); // bits above it
            selected = hn::And(selected, hn::BroadcastSignBit(hn::Shl(word, above)));
        }
        hn::Store(selected, d, inside + i);
    }
}

/// Whether the pixels of a box of sources, both ends inclusive, are selected.
HWY_INLINE SourceMask::Holds heldIn(const TakeJob& job, int x0, int y0, int x1, int y1)
{
    using Holds = SourceMask::Holds;
    const Rect &r = job.rect, &inner = job.inner;
    if (x0 >= inner.left && x1 < inner.right && y0 >= inner.top && y1 < inner.bottom) return Holds::All;
    if (r.isEmpty() || x1 < r.left || x0 >= r.right || y1 < r.top || y0 >= r.bottom) return Holds::None;
    if (!job.mask) return Holds::Some;
    const auto within = job.mask->holds(std::max(x0, r.left), std::max(y0, r.top), std::min(x1, r.right - 1),
                                        std::min(y1, r.bottom - 1));
    const bool reaches = x0 < r.left || x1 >= r.right || y0 < r.top || y1 >= r.bottom; // beyond the selection's box
    return within == Holds::All && reaches ? Holds::Some : within;
}

/// Classifies whole runs by the bounding box of their sources: selected, not selected, or to be tested one by one.
void takeRun(const TakeJob& job, const std::int32_t* sx, const std::int32_t* sy, int n, const Pixel* kept, Pixel* to)
{
    using Holds = SourceMask::Holds;
    const hn::ScalableTag<std::int32_t> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto colour = hn::Set(d, 0x00FFFFFF), staying = hn::Set(d, job.clean ? ~0x00FFFFFF : -1);
    const auto stride = hn::Set(d, job.stride);
    alignas(HWY_MAX_BYTES) std::int32_t indices[kPlaces], inside[kPlaces];
    auto left = hn::Load(d, sx), right = left, top = hn::Load(d, sy), bottom = top;
    for (int i = 0; i < n; i += lanes) {
        const auto x = hn::Load(d, sx + i), y = hn::Load(d, sy + i);
        left = hn::Min(left, x);
        right = hn::Max(right, x);
        top = hn::Min(top, y);
        bottom = hn::Max(bottom, y);
        hn::Store(hn::Add(hn::Mul(y, stride), x), d, indices + i);
    }
    const int x0 = hn::GetLane(hn::MinOfLanes(d, left)), x1 = hn::GetLane(hn::MaxOfLanes(d, right));
    const int y0 = hn::GetLane(hn::MinOfLanes(d, top)), y1 = hn::GetLane(hn::MaxOfLanes(d, bottom));
    const auto holds = heldIn(job, x0, y0, x1, y1);
    const auto whole = (n + lanes - 1) / lanes * lanes;
    if (n == kPlaces) prefetchTargets(kept, to, job.streams);
    if (n == kPlaces && holds != Holds::None) prefetchSources(job.origin, indices, sx[0]);
    const auto taken = [&](int i, auto old) HWY_ATTR {
        return hn::Or(hn::And(colour, loadComputed(d, job.origin, hn::Load(d, indices + i))), hn::AndNot(colour, old));
    };
    if (holds == Holds::None)
        mergePixels(n, kept, to, job.streams, [&](int, auto old) HWY_ATTR { return hn::And(staying, old); });
    else if (holds == Holds::All)
        mergePixels(n, kept, to, job.streams, taken);
    else {
        findSelected(job, sx, sy, whole, indices, inside);
        mergePixels(n, kept, to, job.streams, [&](int i, auto old) HWY_ATTR {
            const auto isInside = hn::MaskFromVec(hn::Load(d, inside + i));
            return hn::IfThenElse(isInside, taken(i, old), hn::And(staying, old));
        });
    }
}

void takeColumnsImpl(const SpanOf& s, const Pixel* source, const std::int32_t* columns, const std::int32_t* inside,
                     bool clean)
{
    const auto* words = reinterpret_cast<const std::int32_t*>(source);
    forPixels<std::uint8_t>(s, [&](auto d8, int x) HWY_ATTR {
        const hn::Repartition<std::int32_t, decltype(d8)> d;
        const auto colour = hn::Set(d, 0x00FFFFFF), staying = hn::Set(d, clean ? ~0x00FFFFFF : -1);
        const auto old = hn::BitCast(d, loadBytes(d8, s.from + x));
        const auto taken = hn::Or(hn::And(colour, loadScattered(d, words, columns + x)), hn::AndNot(colour, old));
        const auto isInside = hn::MaskFromVec(hn::LoadU(d, inside + x));
        return hn::BitCast(d8, hn::IfThenElse(isInside, taken, hn::And(staying, old)));
    });
}

void markWithinImpl(const std::int32_t* columns, int first, int end, int x0, int x1, std::int32_t* inside)
{
    const hn::ScalableTag<std::int32_t> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto before = hn::Set(d, first - 1), beyond = hn::Set(d, end);
    int x = x0;
    for (; x + lanes <= x1; x += lanes) {
        const auto v = hn::LoadU(d, columns + x);
        hn::StoreU(hn::VecFromMask(d, hn::And(hn::Gt(v, before), hn::Lt(v, beyond))), d, inside + x);
    }
    for (; x < x1; ++x) inside[x] = -(columns[x] >= first && columns[x] < end);
}

void takeRowImpl(const SpanOf& s, const Pixel* source)
{
    forPixels<std::uint8_t>(s, [&](auto d8, int x) HWY_ATTR {
        return withFourthOf(d8, loadBytes(d8, s.from + x), loadBytes(d8, source + x));
    });
}

void takeRowMirroredImpl(const SpanOf& s, const Pixel* source, int last)
{
    forPixels<std::uint8_t>(s, [&](auto d8, int x) HWY_ATTR {
        const hn::Repartition<std::uint32_t, decltype(d8)> d;
        const int lanes = static_cast<int>(hn::Lanes(d));
        const auto mirrored = hn::Reverse(d, hn::BitCast(d, loadBytes(d8, source + last - x - lanes + 1)));
        return withFourthOf(d8, loadBytes(d8, s.from + x), hn::BitCast(d8, mirrored));
    });
}

/// The words at scattered places, and those to the right of them.
template <class V> struct PairsOfWords {
    V left, right;
};
HWY_INLINE auto pairsAt(const std::int32_t* base, const std::int32_t* indices)
{
    const hn::ScalableTag<std::int32_t> d;
    const hn::ScalableTag<std::uint64_t> pairs;
    const auto first = hn::BitCast(d, loadScattered(pairs, base, indices));
    const auto last = hn::BitCast(d, loadScattered(pairs, base, indices + hn::Lanes(pairs)));
    return PairsOfWords<hn::Vec<decltype(d)>>{hn::ConcatEven(d, last, first), hn::ConcatOdd(d, last, first)};
}

/// Bilinear blends of three channels of four pixels each; see blendPixels.
std::uint64_t blendRow(const BlendJob& job, const std::int32_t* ix, const std::int32_t* iy, const float* fx,
                       const float* fy, int n, const Pixel* kept, Pixel* to)
{
    const hn::ScalableTag<std::int32_t> d;
    const hn::ScalableTag<float> singles;
    const int lanes = static_cast<int>(hn::Lanes(d)), whole = (n + lanes - 1) / lanes * lanes;
    const auto byte = hn::Set(d, 255);
    const auto width = hn::Set(d, job.width), height = hn::Set(d, job.height), stride = hn::Set(d, job.stride);
    const auto least = hn::Set(d, -1);
    alignas(HWY_MAX_BYTES) std::int32_t indices[kPlaces];
    const auto isInside = [&](int i) HWY_ATTR {
        const auto x = hn::LoadU(d, ix + i), y = hn::LoadU(d, iy + i);
        return hn::And(hn::And(hn::Gt(x, least), hn::Lt(x, width)), hn::And(hn::Gt(y, least), hn::Lt(y, height)));
    };
    for (int i = 0; i < whole; i += lanes) {
        const auto x = hn::LoadU(d, ix + i), y = hn::LoadU(d, iy + i);
        hn::Store(hn::IfThenElseZero(isInside(i), hn::Add(hn::Mul(y, stride), x)), d, indices + i);
    }
    if (n == kPlaces) {
        prefetchTargets(kept, to, job.streams);
        prefetchSources(job.origin, indices, indices[0]);
    }
    const bool streamed = isStreamed(job.streams, n, to);
    const auto fourth = [&](auto pixels) HWY_ATTR { return hn::AndNot(hn::Set(d, 0x00FFFFFF), pixels); };
    // Singles near 255 have steps of 2^-16; three of them add up here.
    const auto surely = hn::Set(singles, 0.5f - 1.0f / 8192);
    std::uint64_t doubtful = 0;
    for (int i = 0; i < n; i += lanes) {
        const auto upper = pairsAt(job.origin, indices + i), lower = pairsAt(job.origin + job.stride, indices + i);
        const auto p00 = upper.left, p10 = upper.right, p01 = lower.left, p11 = lower.right;
        const auto alongX = hn::LoadU(singles, fx + i), alongY = hn::LoadU(singles, fy + i);
        auto doubt = hn::Zero(singles);
        // The sum with this number has no fraction: it is rounded, ties to even, and its lowest byte is the result.
        const auto whole = hn::Set(singles, 12582912.0f);
        const auto blend = [&](auto from, auto to, auto part) {
            const auto v = hn::MulAdd(part, hn::Sub(to, from), from), sum = hn::Add(v, whole);
            doubt = hn::Max(doubt, hn::Abs(hn::Sub(v, hn::Sub(sum, whole))));
            return sum;
        };
        const auto channel = [&](auto shift) {
            const auto part = [&](auto p) {
                return hn::ConvertTo(singles, hn::And(hn::ShiftRight<decltype(shift)::value>(p), byte));
            };
            const auto left = hn::Sub(blend(part(p00), part(p01), alongY), whole);
            const auto right = hn::Sub(blend(part(p10), part(p11), alongY), whole);
            const auto sum = hn::BitCast(d, blend(left, right, alongX));
            return hn::ShiftLeft<decltype(shift)::value>(hn::And(sum, byte));
        };
        const auto blended =
            hn::Or(hn::Or(channel(std::integral_constant<int, 0>()), channel(std::integral_constant<int, 8>())),
                   channel(std::integral_constant<int, 16>()));
        const auto inside = isInside(i);
        doubtful |= laneBits(d, hn::And(hn::RebindMask(d, hn::Gt(doubt, surely)), inside)) << i;
        const auto colour = hn::IfThenElseZero(inside, blended);
        if (i + lanes <= n) {
            auto* target = reinterpret_cast<std::int32_t*>(to + i);
            const auto all =
                kept ? hn::Or(colour, fourth(hn::LoadU(d, reinterpret_cast<const std::int32_t*>(kept + i)))) : colour;
            streamed ? hn::Stream(all, d, target) : hn::StoreU(all, d, target);
            continue;
        }
        alignas(HWY_MAX_BYTES) Pixel last[HWY_MAX_BYTES / sizeof(Pixel)];
        hn::Store(colour, d, reinterpret_cast<std::int32_t*>(last));
        for (int j = i; j < n; ++j) {
            to[j] = last[j - i];
            if (kept) to[j].c[3] = kept[j].c[3];
        }
    }
    return doubtful;
}

/// Four by four pixels at a time; the row of `to` that x goes to is x * toStride, its pixels are the rows of `from`.
void turnFours(const TurnJob& job, int columns, int rows)
{
    const hn::FixedTag<std::uint32_t, 4> d;
    const hn::FixedTag<std::uint64_t, 2> pairs;
    const auto colour = hn::Set(d, 0xFFFFFF);
    for (int y = 0; y < rows; y += 4) {
        for (int j = 0; j < 4; ++j) // the rows lie too far apart for the processor to foresee them
            for (int x = 0; x < columns; x += kLinePixels)
                __builtin_prefetch(job.from + (y + j + kTurnAhead) * job.fromStride + x);
        for (int x = 0; x < columns; x += 4) {
            const auto row = [&](int j) {
                return hn::And(hn::LoadU(d, job.from + (y + j) * job.fromStride + x), colour);
            };
            const auto a = row(0), b = row(1), c = row(2), e = row(3);
            const auto abLow = hn::BitCast(pairs, hn::InterleaveLower(d, a, b));
            const auto abHigh = hn::BitCast(pairs, hn::InterleaveUpper(d, a, b));
            const auto ceLow = hn::BitCast(pairs, hn::InterleaveLower(d, c, e));
            const auto ceHigh = hn::BitCast(pairs, hn::InterleaveUpper(d, c, e));
            const auto store = [&](auto column, int j) {
                hn::StoreU(hn::BitCast(d, column), d, job.to + (x + j) * job.toStride + y);
            };
            store(hn::InterleaveLower(pairs, abLow, ceLow), 0);
            store(hn::InterleaveUpper(pairs, abLow, ceLow), 1);
            store(hn::InterleaveLower(pairs, abHigh, ceHigh), 2);
            store(hn::InterleaveUpper(pairs, abHigh, ceHigh), 3);
        }
    }
}

} // namespace HWY_NAMESPACE
} // namespace velara
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(takeRun);
HWY_EXPORT(takeColumnsImpl);
HWY_EXPORT(markWithinImpl);
HWY_EXPORT(takeRowImpl);
HWY_EXPORT(takeRowMirroredImpl);

SourcePixels::SourcePixels(const Bits& bits, const Region& region)
    : bits_(bits), rect_(region.bounds().intersected({0, 0, bits.width(), bits.height()})), marked_(false)
{
    for (int y = rect_.top; y < rect_.bottom && !marked_; ++y) {
        const auto spans = region.spans(y);
        marked_ = spans.size() != 1 || spans[0].x0 > rect_.left || spans[0].x1 < rect_.right;
    }
    if (marked_) mask_ = SourceMask(region, rect_, bits.width(), bits.height());
    inner_ = marked_ ? innerRectangle(region, rect_) : rect_;
}

namespace {

void takeFrom(const Bits& bits, const Rect& rect, const Rect& inner, const SourceMask* mask, std::int32_t* sx,
              std::int32_t* sy, int n, const Pixel* kept, bool clean, bool streams, Pixel* to)
{
    for (int i = n; i % kLongestVector != 0; ++i) {
        sx[i] = sx[n - 1];
        sy[i] = sy[n - 1];
    }
    const TakeJob job{reinterpret_cast<const std::int32_t*>(bits.row(0)),
                      static_cast<std::int32_t>(bits.stride()),
                      rect,
                      inner,
                      mask,
                      clean,
                      streams};
    HWY_DYNAMIC_DISPATCH(takeRun)(job, sx, sy, n, kept, to);
}

} // namespace

void SourcePixels::take(std::int32_t* sx, std::int32_t* sy, int n, const Pixel* kept, bool clean, Pixel* to) const
{
    takeFrom(bits_, rect_, inner_, marked_ ? &mask_ : nullptr, sx, sy, n, kept, clean,
             bits_.sizeInBytes() >= kPastTheCache, to);
}

void takePixels(const Bits& bits, std::int32_t* sx, std::int32_t* sy, int n, const Pixel* kept, Pixel* to)
{
    constexpr int kMargin = Bits::kMargin;
    const Rect all{-kMargin, -kMargin, bits.width() + kMargin, bits.height() + kMargin};
    takeFrom(bits, all, all, nullptr, sx, sy, n, kept, false, false, to);
}

void takeColumns(const SpanOf& span, const Pixel* source, const std::int32_t* columns, const std::int32_t* inside,
                 bool clean)
{
    HWY_DYNAMIC_DISPATCH(takeColumnsImpl)(span, source, columns, inside, clean);
}

void markWithin(const std::int32_t* columns, int first, int end, int x0, int x1, std::int32_t* inside)
{
    HWY_DYNAMIC_DISPATCH(markWithinImpl)(columns, first, end, x0, x1, inside);
}

void takeRow(const SpanOf& span, const Pixel* source) { HWY_DYNAMIC_DISPATCH(takeRowImpl)(span, source); }

void takeRowMirrored(const SpanOf& span, const Pixel* source, int last)
{
    HWY_DYNAMIC_DISPATCH(takeRowMirroredImpl)(span, source, last);
}

HWY_EXPORT(blendRow);

std::uint64_t blendPixels(const Bits& bits, const std::int32_t* ix, const std::int32_t* iy, const float* fx,
                          const float* fy, int n, const Pixel* kept, Pixel* to)
{
    const BlendJob job{reinterpret_cast<const std::int32_t*>(bits.row(0)), static_cast<std::int32_t>(bits.stride()),
                       bits.width(), bits.height(), bits.sizeInBytes() >= kPastTheCache};
    return HWY_DYNAMIC_DISPATCH(blendRow)(job, ix, iy, fx, fy, n, kept, to);
}

HWY_EXPORT(turnFours);

void turnPixels(const Bits& in, const WrittenRows& out, int x0, int x1, int y0, int y1)
{
    // Rows of the target are put together here and written as a whole: its cache lines are never read.
    alignas(64) Pixel turned[kTurnColumns][kTurnPitch];
    const int columns = (x1 - x0) / 4 * 4, rows = (y1 - y0) / 4 * 4;
    const TurnJob job{reinterpret_cast<const std::uint32_t*>(in.row(y0) + x0), in.stride(),
                      reinterpret_cast<std::uint32_t*>(turned[0]), kTurnPitch};
    HWY_DYNAMIC_DISPATCH(turnFours)(job, columns, rows);
    for (int y = y0; y < y1; ++y)
        for (int x = y < y0 + rows ? x0 + columns : x0; x < x1; ++x)
            turned[x - x0][y - y0] = withColour(in.at(x, y), Pixel{});
    const auto copy = in.sizeInBytes() >= kPastTheCache ? streamPixels : copyPixels;
    for (int x = x0; x < x1; ++x) copy(turned[x - x0], out.row(in.maxX() - x) + y0, 0, y1 - y0);
}

void blendPixel(const Pixel* upper, const Pixel* lower, double fx, double fy, Pixel& to)
{
    for (int c = 0; c < 3; ++c) {
        const int a = roundEven((1 - fy) * upper[0].c[c] + fy * lower[0].c[c]);
        const int b = roundEven((1 - fy) * upper[1].c[c] + fy * lower[1].c[c]);
        to.c[c] = clamp(roundEven((1 - fx) * a + fx * b));
    }
}

} // namespace velara
#endif
