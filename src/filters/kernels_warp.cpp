#include "filters/kernels_warp.h"
#include "filters/numbers.h"
#include "filters/passes_warp.h"
#include <type_traits>

#ifndef VELARA_KERNELS_WARP_TYPES
#define VELARA_KERNELS_WARP_TYPES
namespace velara {

struct TakeJob {
    const std::int32_t* origin; // of pixel (0, 0), as words
    std::int32_t stride;
    Rect rect;
    bool marked, clean;
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
};

} // namespace velara
#endif

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/kernels_warp.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "filters/lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace velara {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

/// A word a lane; the lanes whose source is not selected read the pixel (left, top) and drop it.
void takeRow(const TakeJob& job, const std::int32_t* sx, const std::int32_t* sy, int n, const Pixel* kept, Pixel* to)
{
    const hn::ScalableTag<std::int32_t> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto colour = hn::Set(d, 0x00FFFFFF), staying = hn::Set(d, job.clean ? ~0x00FFFFFF : -1);
    const auto left = hn::Set(d, job.rect.left), right = hn::Set(d, job.rect.right);
    const auto top = hn::Set(d, job.rect.top), bottom = hn::Set(d, job.rect.bottom);
    const auto one = hn::Set(d, 1);
    const auto stride = hn::Set(d, job.stride);
    const auto step = [&](int i, const Pixel* from, Pixel* target) {
        const auto x = hn::Load(d, sx + i), y = hn::Load(d, sy + i);
        auto inside = hn::And(hn::And(hn::Gt(x, hn::Sub(left, one)), hn::Lt(x, right)),
                              hn::And(hn::Gt(y, hn::Sub(top, one)), hn::Lt(y, bottom)));
        const auto sourceX = hn::IfThenElse(inside, x, left), sourceY = hn::IfThenElse(inside, y, top);
        const auto found = loadEach(d, job.origin, hn::Add(hn::Mul(sourceY, stride), sourceX));
        if (job.marked) inside = hn::And(inside, hn::Ne(hn::AndNot(colour, found), hn::Zero(d)));
        const auto old = hn::LoadU(d, reinterpret_cast<const std::int32_t*>(from));
        const auto taken = hn::Or(hn::And(colour, found), hn::AndNot(colour, old));
        hn::StoreU(hn::IfThenElse(inside, taken, hn::And(staying, old)), d, reinterpret_cast<std::int32_t*>(target));
    };
    int i = 0;
    for (; i + lanes <= n; i += lanes) step(i, kept + i, to + i);
    if (i < n) {
        Pixel tail[HWY_MAX_BYTES / sizeof(Pixel)] = {};
        copyPixels(kept + i, tail, 0, n - i);
        step(i, tail, tail);
        copyPixels(tail, to + i, 0, n - i);
    }
}

/// Blends of three channels of four pixels each; see blendPixels.
std::uint64_t blendRow(const BlendJob& job, const std::int32_t* ix, const std::int32_t* iy, const float* fx,
                       const float* fy, int n, const Pixel* kept, Pixel* to)
{
    const hn::ScalableTag<std::int32_t> d;
    const hn::ScalableTag<float> singles;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto zero = hn::Zero(d), byte = hn::Set(d, 255);
    const auto width = hn::Set(d, job.width), height = hn::Set(d, job.height), stride = hn::Set(d, job.stride);
    const auto least = hn::Set(d, -1);
    // Singles near 255 have steps of 2^-16; three of them add up here.
    const auto surely = hn::Set(singles, 0.5f - 1.0f / 8192);
    std::uint64_t doubtful = 0;
    for (int i = 0; i < n; i += lanes) {
        const auto x = hn::LoadU(d, ix + i), y = hn::LoadU(d, iy + i);
        const auto inside =
            hn::And(hn::And(hn::Gt(x, least), hn::Lt(x, width)), hn::And(hn::Gt(y, least), hn::Lt(y, height)));
        const auto upper = hn::Add(hn::Mul(hn::IfThenElse(inside, y, zero), stride), hn::IfThenElse(inside, x, zero));
        const auto lower = hn::Add(upper, stride);
        const auto p00 = loadEach(d, job.origin, upper), p10 = loadEach(d, job.origin + 1, upper);
        const auto p01 = loadEach(d, job.origin, lower), p11 = loadEach(d, job.origin + 1, lower);
        const auto alongX = hn::LoadU(singles, fx + i), alongY = hn::LoadU(singles, fy + i);
        auto doubt = hn::Zero(singles);
        const auto blend = [&](auto from, auto to, auto part) {
            const auto v = hn::MulAdd(part, hn::Sub(to, from), from);
            const auto rounded = hn::Round(v);
            doubt = hn::Max(doubt, hn::Abs(hn::Sub(v, rounded)));
            return rounded;
        };
        const auto channel = [&](auto shift) {
            const auto part = [&](auto p) {
                return hn::ConvertTo(singles, hn::And(hn::ShiftRight<decltype(shift)::value>(p), byte));
            };
            const auto left = blend(part(p00), part(p01), alongY), right = blend(part(p10), part(p11), alongY);
            return hn::ShiftLeft<decltype(shift)::value>(hn::ConvertTo(d, blend(left, right, alongX)));
        };
        const auto blended =
            hn::Or(hn::Or(channel(std::integral_constant<int, 0>()), channel(std::integral_constant<int, 8>())),
                   channel(std::integral_constant<int, 16>()));
        doubtful |= laneBits(d, hn::And(hn::RebindMask(d, hn::Gt(doubt, surely)), inside)) << i;
        alignas(64) std::int32_t result[HWY_MAX_BYTES / 4];
        hn::Store(hn::IfThenElseZero(inside, blended), d, result);
        const int count = std::min(lanes, n - i);
        std::memcpy(to + i, result, sizeof(Pixel) * static_cast<std::size_t>(count));
        if (kept)
            for (int j = i; j < i + count; ++j) to[j].c[3] = kept[j].c[3];
    }
    return doubtful;
}

/// Four by four pixels: from and to are to the first one, in pixels from row to row; the target's rows run upward.
void turnFours(const TurnJob& job, int columns, int rows)
{
    const hn::FixedTag<std::uint32_t, 4> d;
    const hn::FixedTag<std::uint64_t, 2> pairs;
    const auto colour = hn::Set(d, 0xFFFFFF);
    for (int x = 0; x < columns; x += 4)
        for (int y = 0; y < rows; y += 4) {
            const auto row = [&](int j) {
                return hn::And(hn::LoadU(d, job.from + (y + j) * job.fromStride + x), colour);
            };
            const auto a = row(0), b = row(1), c = row(2), e = row(3);
            const auto abLow = hn::BitCast(pairs, hn::InterleaveLower(d, a, b));
            const auto abHigh = hn::BitCast(pairs, hn::InterleaveUpper(d, a, b));
            const auto ceLow = hn::BitCast(pairs, hn::InterleaveLower(d, c, e));
            const auto ceHigh = hn::BitCast(pairs, hn::InterleaveUpper(d, c, e));
            const auto store = [&](auto column, int j) {
                hn::StoreU(hn::BitCast(d, column), d, job.to - (x + j) * job.toStride + y);
            };
            store(hn::InterleaveLower(pairs, abLow, ceLow), 0);
            store(hn::InterleaveUpper(pairs, abLow, ceLow), 1);
            store(hn::InterleaveLower(pairs, abHigh, ceHigh), 2);
            store(hn::InterleaveUpper(pairs, abHigh, ceHigh), 3);
        }
}

} // namespace HWY_NAMESPACE
} // namespace velara
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(takeRow);

SourcePixels::SourcePixels(const Bits& bits, const Region& region)
    : bits_(bits), rect_(region.bounds().intersected({0, 0, bits.width(), bits.height()})), marked_(false)
{
    for (int y = rect_.top; y < rect_.bottom && !marked_; ++y) {
        const auto spans = region.spans(y);
        marked_ = spans.size() != 1 || spans[0].x0 > rect_.left || spans[0].x1 < rect_.right;
    }
    if (!marked_) return;
    Bits marked = Bits::uninitialized(bits.width(), bits.height());
    for (int y = rect_.top; y < rect_.bottom; ++y) {
        Pixel* to = marked.row(y);
        for (int x = rect_.left; x < rect_.right; ++x) to[x].c[3] = 0;
        for (const Span s : region.spans(y)) {
            const int x0 = std::max(s.x0, rect_.left), x1 = std::min(s.x1, rect_.right);
            copyPixels(bits.row(y), to, x0, x1);
            for (int x = x0; x < x1; ++x) to[x].c[3] = 1;
        }
    }
    bits_ = marked;
}

void SourcePixels::take(const std::int32_t* sx, const std::int32_t* sy, int n, const Pixel* kept, bool clean,
                        Pixel* to) const
{
    if (rect_.isEmpty()) {
        for (int i = 0; i < n; ++i) {
            to[i] = kept[i];
            if (clean) std::memset(to[i].c, 0, 3);
        }
        return;
    }
    const TakeJob job{reinterpret_cast<const std::int32_t*>(bits_.row(0)), static_cast<std::int32_t>(bits_.stride()),
                      rect_, marked_, clean};
    HWY_DYNAMIC_DISPATCH(takeRow)(job, sx, sy, n, kept, to);
}

HWY_EXPORT(blendRow);

std::uint64_t blendPixels(const Bits& bits, const std::int32_t* ix, const std::int32_t* iy, const float* fx,
                          const float* fy, int n, const Pixel* kept, Pixel* to)
{
    const BlendJob job{reinterpret_cast<const std::int32_t*>(bits.row(0)), static_cast<std::int32_t>(bits.stride()),
                       bits.width(), bits.height()};
    return HWY_DYNAMIC_DISPATCH(blendRow)(job, ix, iy, fx, fy, n, kept, to);
}

HWY_EXPORT(turnFours);

void turnPixels(const Bits& in, Bits& out, int x0, int x1, int y0, int y1)
{
    const int columns = (x1 - x0) / 4 * 4, rows = (y1 - y0) / 4 * 4;
    const TurnJob job{reinterpret_cast<const std::uint32_t*>(in.row(y0) + x0), in.stride(),
                      reinterpret_cast<std::uint32_t*>(out.row(in.maxX() - x0) + y0), out.stride()};
    HWY_DYNAMIC_DISPATCH(turnFours)(job, columns, rows);
    for (int y = y0; y < y1; ++y)
        for (int x = y < y0 + rows ? x0 + columns : x0; x < x1; ++x)
            out.at(y, in.maxX() - x) = withColour(in.at(x, y), Pixel{});
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
