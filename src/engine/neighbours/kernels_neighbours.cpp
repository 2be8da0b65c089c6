#include "engine/neighbours/kernels_neighbours.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/neighbours/kernels_neighbours.cpp"
#include <hwy/foreach_target.h>

#include "engine/pixels-inl.h"
#include <algorithm>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

/// The 16-bit tag of a byte tag.
template <class D8> using Shorts = hn::Repartition<std::int16_t, D8>;

/// 8*c - S8, nine pixels being the sum of three columns. The columns are summed once for a run of pixels: three loads a
/// vector, in place of nine of which six cross cache lines.
class RingDifference {
  public:
    explicit RingDifference(SpanOf s) : s_(s) {}

    template <class D> HWY_INLINE Halves<hn::Vec<D>> at(D d, int x)
    {
        using V = hn::Vec<D>;
        const auto nine = [&](const Halves<V>& sum) HWY_ATTR {
            return each(tap(d, s_.from + x).split(), sum,
                        [](V c, V v) HWY_ATTR { return hn::Sub(hn::Add(hn::ShiftLeft<3>(c), c), v); });
        };
        const int n = static_cast<int>(hn::Lanes(d)) / 2;
        if constexpr (hn::MaxLanes(D()) < hn::MaxLanes(hn::ScalableTag<std::int16_t>())) { // at the ends of a span
            const auto sum = column(d, x - 1) + column(d, x) + column(d, x + 1);
            return nine(sum.split());
        } else {
            if (x >= end_) sumColumns(d, x, n);
            const auto three = [&](const std::int16_t* sums) HWY_ATTR {
                const std::int16_t* p = sums + 2 * (x - begin_);
                return hn::Add(hn::Add(hn::LoadU(d, p - 2), hn::LoadU(d, p)), hn::LoadU(d, p + 2));
            };
            return nine(Halves<V>{three(even_), three(odd_)});
        }
    }

  private:
    static constexpr int kRun = 256;

    template <class D> HWY_INLINE Taps<hn::Vec<D>> column(D d, int x) const
    {
        const Pixel* p = s_.from + x;
        return tap(d, p - s_.stride) + tap(d, p) + tap(d, p + s_.stride);
    }
    /// Those of the pixels from x on, and of a vector on either side.
    template <class D> HWY_INLINE void sumColumns(D d, int x, int n)
    {
        begin_ = x - n;
        end_ = x + std::min(kRun, (s_.x1 - x) / n * n);
        for (int i = begin_; i < end_ + n; i += n) {
            const auto sum = column(d, i).split();
            hn::StoreU(sum.even, d, even_ + 2 * (i - begin_));
            hn::StoreU(sum.odd, d, odd_ + 2 * (i - begin_));
        }
    }

    const SpanOf s_;
    int begin_ = 0, end_ = s_.x0; // of the run
    alignas(HWY_MAX_BYTES) std::int16_t even_[2 * kRun + HWY_MAX_BYTES], odd_[2 * kRun + HWY_MAX_BYTES];
};

/// N + S + E + W - 4*c.
template <class D> HWY_INLINE auto crossDifference(D d, const Pixel* p, std::ptrdiff_t stride)
{
    const auto four = (tap(d, p - 1) + tap(d, p + 1)) + (tap(d, p - stride) + tap(d, p + stride));
    return (four - tap(d, p).template times<2>()).split();
}

template <class Difference> HWY_INLINE void weightedBy(SpanOf s, Weighted w, Difference difference)
{
    forPixels<std::uint8_t>(s, [&](auto d8, int x) HWY_ATTR {
        const Shorts<decltype(d8)> d;
        const hn::RebindToUnsigned<decltype(d)> du;
        using V = hn::Vec<decltype(d)>;
        const Pixel* p = s.from + x;
        const auto factor = hn::Set(d, static_cast<std::int16_t>(2 * w.factor));
        const auto bias = hn::Set(d, w.divisor.twiceBias), back = hn::Set(d, w.divisor.bias);
        const auto divided = each(difference(d, x), [&](V v) HWY_ATTR {
            const auto u = hn::BitCast(du, hn::Add(hn::Mul(v, factor), bias));
            const auto high = hn::MulHigh(u, hn::Set(du, w.divisor.multiplier));
            return hn::Sub(hn::BitCast(d, hn::ShiftRightSame(high, w.divisor.shift)), back);
        });
        const auto sum = each(tap(d, p).split(), divided, [](V a, V b) HWY_ATTR { return hn::Add(a, b); });
        return withFourthOf(d8, loadBytes(d8, p), clampedToBytes(d8, sum));
    });
}

void weighted(SpanOf s, Weighted w)
{
    if (w.neighbours == Neighbours::Ring) {
        RingDifference ring(s);
        weightedBy(s, w, [&](auto d, int x) HWY_ATTR { return ring.at(d, x); });
    } else {
        weightedBy(s, w, [&](auto d, int x) HWY_ATTR { return crossDifference(d, s.from + x, s.stride); });
    }
}

void ring(SpanOf s, int radius)
{
    const auto meanAt = [&](auto d8, int x) HWY_ATTR {
        const Shorts<decltype(d8)> d;
        using V = hn::Vec<decltype(d)>;
        const Pixel* p = s.from + x;
        const Pixel *up = p - radius * s.stride, *down = p + radius * s.stride;
        const auto sides = [&](const Pixel* q) HWY_ATTR { return tap(d, q - radius) + tap(d, q + radius); };
        const auto sum = (sides(up) + tap(d, up)) + (sides(down) + tap(d, down)) + sides(p);
        const auto mean = each(sum.split(), [](V v) HWY_ATTR { return hn::ShiftRight<3>(v); });
        return withFourthOf(d8, loadBytes(d8, p), joined(d8, mean));
    };
    forPixels<std::uint8_t, kHalfALine>(s, meanAt, radius + 1);
}

void contour(SpanOf s, int thriceLevel, std::uint32_t background)
{
    RingDifference ring(s);
    forPixels<std::uint8_t>(s, [&](auto d8, int x) HWY_ATTR {
        const Shorts<decltype(d8)> d;
        const hn::Repartition<std::int32_t, decltype(d8)> d32;
        using V = hn::Vec<decltype(d)>;
        const Pixel* p = s.from + x;
        const auto white = hn::Set(d, std::int16_t{255});
        const auto v = each(ring.at(d, x), [&](V e) HWY_ATTR { // at most 255 where e <= 0
            return hn::Max(hn::Add(hn::Min(e, hn::Zero(d)), white), hn::Zero(d));
        });
        const auto edge = hn::Lt(sumOfChannels(d, v), hn::Set(d32, thriceLevel));
        const auto flat = hn::Set(d32, static_cast<std::int32_t>(background));
        const auto kept = hn::IfThenElse(edge, hn::BitCast(d32, joined(d8, v)), flat);
        return withFourthOf(d8, loadBytes(d8, p), hn::BitCast(d8, kept));
    });
}

void emboss(SpanOf s, Relieved r)
{
    forPixels<std::uint8_t>(s, [&](auto d8, int x) HWY_ATTR {
        const Shorts<decltype(d8)> d;
        const hn::RebindToUnsigned<decltype(d)> du;
        const hn::Repartition<std::int32_t, decltype(d8)> d32;
        using V = hn::Vec<decltype(d)>;
        const auto i16 = [&](int v) HWY_ATTR { return hn::Set(d, static_cast<std::int16_t>(v)); };
        const Pixel* p = s.from + x;
        const Pixel* next = p + s.stride + 1;
        const auto difference = (r.sign > 0 ? tap(d, p) - tap(d, next) : tap(d, next) - tap(d, p)).split();
        const auto lit = each(difference, [&](V v) HWY_ATTR {
            const auto n = hn::Add(hn::Mul(hn::Abs(v), i16(r.weight)), i16(r.half));
            // 52429 / 2^19 is a tenth, exact for all n below 2^16
            const auto high = hn::MulHigh(hn::BitCast(du, n), hn::Set(du, std::uint16_t{52429}));
            auto rounded = hn::BitCast(d, hn::ShiftRight<3>(high));
            if (r.evenTies) {
                const auto tie = hn::VecFromMask(d, hn::Eq(hn::Mul(rounded, i16(10)), n));
                rounded = hn::Sub(rounded, hn::And(hn::And(tie, rounded), i16(1)));
            }
            const auto negative = hn::BroadcastSignBit(v);
            return hn::Abs(hn::Add(hn::Sub(hn::Xor(rounded, negative), negative), i16(128)));
        });
        const auto sum = hn::BitCast(du, sumOfChannels(d, lit));
        // 21846 / 2^16 is a third, exact for all sums below 2^15
        const auto third = hn::BitCast(d32, hn::MulHigh(sum, hn::Set(du, std::uint16_t{21846})));
        const auto grey = hn::Min(third, hn::Set(d32, 255));
        const auto three = hn::Or(grey, hn::Or(hn::ShiftLeft<8>(grey), hn::ShiftLeft<16>(grey)));
        return withFourthOf(d8, loadBytes(d8, p), hn::BitCast(d8, three));
    });
}

void relief(SpanOf s)
{
    forPixels<std::uint8_t, kHalfALine>(s, [&](auto d8, int x) HWY_ATTR {
        const Shorts<decltype(d8)> d;
        using V = hn::Vec<decltype(d)>;
        const Pixel* p = s.from + x;
        const auto once = [&](std::ptrdiff_t offset) HWY_ATTR { return tap(d, p + offset); };
        const auto corners = (once(-s.stride - 1) - once(s.stride + 1)).template times<1>();
        const auto sides = (once(-s.stride) + once(-1)) - (once(s.stride) + once(1));
        const auto v = each((corners + sides + once(0)).split(), [&](V sum) HWY_ATTR {
            const auto half = hn::ShiftRight<1>(hn::Sub(sum, hn::BroadcastSignBit(sum))); // toward zero
            return hn::Add(half, hn::Set(d, std::int16_t{50}));
        });
        const auto blue = hn::BitCast(d8, hn::Set(hn::Repartition<std::uint32_t, decltype(d8)>(), 0xFFu));
        return hn::Or(hn::And(blue, loadBytes(d8, p)), hn::AndNot(blue, clampedToBytes(d8, v)));
    });
}

void sketch(SpanOf s, int threshold, std::uint32_t on, std::uint32_t off, bool offKeeps)
{
    RingDifference ring(s);
    forPixels<std::uint8_t>(s, [&](auto d8, int x) HWY_ATTR {
        const Shorts<decltype(d8)> d;
        const hn::Repartition<std::int32_t, decltype(d8)> d32;
        const Pixel* p = s.from + x;
        const auto edges = sumOfChannels(d, ring.at(d, x));
        const auto source = hn::BitCast(d32, loadBytes(d8, p));
        const auto otherwise = offKeeps ? source : hn::Set(d32, static_cast<std::int32_t>(off));
        const auto colour = hn::IfThenElse(hn::Lt(edges, hn::Set(d32, threshold)), otherwise,
                                           hn::Set(d32, static_cast<std::int32_t>(on)));
        return withFourthOf(d8, hn::BitCast(d8, source), hn::BitCast(d8, colour));
    });
}

const NeighbourKernels& neighbourKernelTable()
{
    static constexpr NeighbourKernels table = {weighted, ring, contour, emboss, relief, sketch};
    return table;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(neighbourKernelTable);
const NeighbourKernels& neighbourKernels() { return HWY_DYNAMIC_DISPATCH(neighbourKernelTable)(); }

} // namespace velara
#endif
