#include "filters/kernels_warp.h"
#include "filters/passes.h"

#ifndef VELARA_KERNELS_WARP_TYPES
#define VELARA_KERNELS_WARP_TYPES
namespace velara {

struct TakeJob {
    const std::int32_t* origin; // of pixel (0, 0), as words
    std::int32_t stride;
    Rect rect;
    bool marked, clean;
};

} // namespace velara
#endif

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filters/kernels_warp.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

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
        const auto found = hn::GatherIndex(d, job.origin, hn::Add(hn::Mul(sourceY, stride), sourceX));
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

} // namespace velara
#endif
