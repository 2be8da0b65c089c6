#include "reduce/mixing/kernels_mixing.h"
#include <algorithm>
#include <bit>
#include <limits>
#include <utility>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "reduce/mixing/kernels_mixing.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "pixels/lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using Singles = hn::CappedTag<float, MixingCandidates::kCount>;
using Words = hn::RebindToSigned<Singles>;

/// A mixture under way: minimises the squared error of the mean plus the seen share of the variance, by moving parts
/// from the entry with the steepest cost to the one with the least. Entries are numbered among the candidates.
class Mixing {
  public:
    /// With the nearest entry.
    void begin(const MixingCandidates& candidates, Pixel p, Contrast contrast)
    {
        const Singles d;
        const auto& channels = candidates.channels;
        candidates_ = &candidates;
        for (std::size_t i = 0; i < kCount; i += hn::Lanes(d)) {
            const auto from = [&](std::size_t c)
                                  HWY_ATTR { return hn::Sub(hn::Load(d, &channels[c][i]), hn::Set(d, float(p.c[c]))); };
            const auto o0 = from(0), o1 = from(1), o2 = from(2);
            hn::Store(o0, d, &off_[0][i]);
            hn::Store(o1, d, &off_[1][i]);
            hn::Store(o2, d, &off_[2][i]);
            hn::Store(hn::Add(hn::Add(hn::Mul(o0, o0), hn::Mul(o1, o1)), hn::Mul(o2, o2)), d, &far_[i]);
        }
        used_.fill(kNone);
        used_[0] = least([&](std::size_t i) HWY_ATTR { return hn::Load(d, &far_[i]); });
        parts_.fill(0);
        parts_[0] = kParts;
        for (std::size_t c = 0; c < 3; ++c) mean_[c] = kParts * off_[c][used_[0]];
        count_ = 1;
        const float ratio = contrast.close / candidates.apart[used_[0]];
        closeness_ = ratio * ratio / (1 + ratio * ratio);
        seen_ = contrast.seen + (kMostSeen - contrast.seen) * closeness_;
        stepsLeft_ = kParts;
        isLast_ = false;
    }

    /// Finds the entries, and then makes the mean as exact as their contrast allows. False when there is no more to do.
    bool step()
    {
        if (stepsLeft_-- > 0 && gather()) return true;
        if (isLast_) return false;
        seen_ = kMostSeen * closeness_ + kLeastSeen;
        stepsLeft_ = kParts;
        return isLast_ = true;
    }

    MixedParts result()
    {
        balance(kMostSeen * closeness_);
        MixedParts mixed{.entries = {}, .parts = {}, .count = count_};
        for (std::size_t u = 0; u < count_; ++u) {
            mixed.entries[u] = static_cast<std::uint8_t>(used_[u]);
            mixed.parts[u] = static_cast<std::uint8_t>(parts_[u]);
        }
        return mixed;
    }

  private:
    /// Brings in the entry of the least cost, at the expense of the costliest, if that helps.
    bool gather()
    {
        const Singles d;
        alignas(64) std::array<float, kCount + 1> slopes;
        const auto [weight, pull] = pullOf(seen_);
        const auto p0 = hn::Set(d, pull[0]), p1 = hn::Set(d, pull[1]), p2 = hn::Set(d, pull[2]);
        const auto share = hn::Set(d, seen_);
        const std::int32_t best = least([&](std::size_t i) HWY_ATTR {
            const auto along = hn::Add(hn::Mul(p0, hn::Load(d, &off_[0][i])), hn::Mul(p1, hn::Load(d, &off_[1][i])));
            const auto slope =
                hn::Add(hn::Add(along, hn::Mul(p2, hn::Load(d, &off_[2][i]))), hn::Mul(share, hn::Load(d, &far_[i])));
            hn::Store(slope, d, &slopes[i]);
            return slope;
        });
        slopes[kNone] = std::numeric_limits<float>::lowest();
        const std::size_t from = steepest(slopes.data()), to = placeOf(best);
        if (to == kMost) return false;
        const float wanted = (slopes[used_[from]] - slopes[best]) / (weight * std::max(apart(best, used_[from]), 1.0F));
        if (wanted < 0.5F) return false;
        shift(from, to, best, std::min(int(wanted + 0.5F), parts_[from]));
        return true;
    }
    /// Evens out the parts of the entries there are: the best pair each time.
    void balance(float seen)
    {
        std::array<std::array<float, kMost>, kMost> distances{}; // of the entries from one another, 1 at the least
        std::size_t known = 0;
        for (int step = 0; step < kParts && count_ > 1; ++step) {
            const auto [weight, pull] = pullOf(seen);
            for (std::size_t a = 0; known != count_ && a < count_; ++a)
                for (std::size_t b = 0; b < count_; ++b) distances[a][b] = std::max(apart(used_[a], used_[b]), 1.0F);
            known = count_;
            std::array<float, kMost> slopes;
            for (std::size_t u = 0; u < count_; ++u) slopes[u] = slope(used_[u], pull, seen);
            std::size_t from = 0, to = 0;
            float most = 0, wanted = 0;
            for (std::size_t a = 0; a < count_; ++a)
                for (std::size_t b = 0; b < count_; ++b) {
                    const float gain = slopes[a] - slopes[b], cost = weight * distances[a][b];
                    if (gain * gain <= most * cost || gain < 0.5F * cost) continue;
                    most = gain * gain / cost;
                    wanted = gain / cost;
                    from = a;
                    to = b;
                }
            if (most == 0) return;
            shift(from, to, used_[to], std::min(int(wanted + 0.5F), parts_[from]));
        }
    }

    static constexpr std::size_t kCount = MixingCandidates::kCount, kMost = MixedParts::kMost;
    static constexpr int kParts = MixedParts::kParts, kBits = 5; // of a candidate's number
    static constexpr std::int32_t kNone = kCount;
    static_assert(kCount == 1 << kBits);
    template <class T> using Used = hn::CappedTag<T, kMost>;

    /// The candidate of the least cost, in steps; its number in the low bits breaks ties. costs(i): of a vector.
    template <class Costs> static std::int32_t least(Costs costs)
    {
        const Singles d;
        const Words words;
        const auto steps = hn::Set(d, 32.0F); // of a cost that are told apart
        auto best = hn::Set(words, std::int32_t{0x7FFFFFFF});
        for (std::size_t i = 0; i < kCount; i += hn::Lanes(d)) {
            const auto cost = hn::ShiftLeft<kBits>(hn::ConvertTo(words, hn::Mul(costs(i), steps)));
            best = hn::Min(best, hn::Add(cost, countedFrom(words, std::int32_t(i))));
        }
        return hn::GetLane(hn::MinOfLanes(words, best)) & (kCount - 1);
    }
    // Both without branches, which nobody foresees and which the steps of other mixtures would wait for.
    /// The first used entry of the greatest slope.
    std::size_t steepest(const float* slopes) const
    {
        const Used<float> d;
        const auto of = [&](std::size_t u) HWY_ATTR {
            return loadScattered(d, reinterpret_cast<const std::int32_t*>(slopes), &used_[u]);
        };
        auto most = of(0);
        for (std::size_t u = hn::Lanes(d); u < kMost; u += hn::Lanes(d)) most = hn::Max(most, of(u));
        most = hn::MaxOfLanes(d, most);
        return firstOf([&](std::size_t u) HWY_ATTR { return hn::Eq(of(u), most); }, d);
    }
    /// Where an entry is among the used ones, or behind them; kMost where there is no place for it.
    std::size_t placeOf(std::int32_t entry) const
    {
        const Used<std::int32_t> d;
        const auto wanted = hn::Set(d, entry), end = hn::Set(d, std::int32_t(count_));
        const auto is = [&](std::size_t u) HWY_ATTR {
            const auto isEnd = hn::Eq(countedFrom(d, std::int32_t(u)), end);
            return hn::Eq(hn::IfThenElse(isEnd, wanted, hn::Load(d, &used_[u])), wanted);
        };
        return firstOf(is, d);
    }
    /// The first place where a vector of places from u on is(u); kMost for none.
    template <class Is, class D> static std::size_t firstOf(Is is, D d)
    {
        std::size_t first = kMost;
        for (std::size_t u = kMost; u > 0;) {
            u -= hn::Lanes(d);
            const auto at = hn::FindFirstTrue(d, is(u));
            first = at >= 0 ? u + std::size_t(at) : first;
        }
        return first;
    }
    float slope(std::int32_t i, const std::array<float, 3>& pull, float seen) const
    {
        return pull[0] * off_[0][i] + pull[1] * off_[1][i] + pull[2] * off_[2][i] + seen * far_[i];
    }
    float apart(std::int32_t a, std::int32_t b) const
    {
        float sum = 0;
        for (const auto& channel : candidates_->channels) sum += (channel[a] - channel[b]) * (channel[a] - channel[b]);
        return sum;
    }
    std::pair<float, std::array<float, 3>> pullOf(float seen) const
    {
        const float weight = 2 * (1 - seen) / kParts;
        return {weight, {mean_[0] * weight, mean_[1] * weight, mean_[2] * weight}};
    }
    void shift(std::size_t from, std::size_t to, std::int32_t entry, int moved)
    {
        used_[to] = entry;
        count_ += to == count_;
        parts_[to] += moved;
        parts_[from] -= moved;
        for (std::size_t c = 0; c < 3; ++c) mean_[c] += float(moved) * (off_[c][used_[to]] - off_[c][used_[from]]);
        if (parts_[from] > 0) return;
        --count_;
        used_[from] = used_[count_];
        parts_[from] = parts_[count_];
        used_[count_] = kNone;
        parts_[count_] = 0;
    }

    static constexpr float kMostSeen = 0.5F, kLeastSeen = 0.01F;

    const MixingCandidates* candidates_;
    alignas(64) std::array<MixingCandidates::Each, 3> off_; // of the candidates from the colour
    alignas(64) MixingCandidates::Each far_;                // squared distance
    alignas(32) std::array<std::int32_t, kMost> used_;      // kNone beyond count_
    std::array<int, kMost> parts_;                          // 0 beyond count_
    std::size_t count_;
    std::array<float, 3> mean_; // its distance from the colour, times kParts
    float closeness_, seen_;
    int stepsLeft_;
    bool isLast_;
};

/// Some mixtures abreast: each step of one waits for the one before it.
void mixImpl(const MixingCandidates* const* candidates, const Pixel* colours, int n, Contrast contrast,
             MixedParts* mixed)
{
    constexpr int kAbreast = 4;
    std::array<Mixing, kAbreast> mixings;
    std::array<int, kAbreast> which;
    int begun = 0, abreast = 0;
    const auto begin = [&](std::size_t k) {
        which[k] = begun;
        mixings[k].begin(*candidates[begun], colours[begun], contrast);
        ++begun;
    };
    while (abreast < std::min(n, kAbreast)) begin(std::size_t(abreast++));
    while (abreast > 0)
        for (int k = 0; k < abreast; ++k) {
            const auto at = std::size_t(k);
            if (HWY_LIKELY(mixings[at].step())) continue;
            mixed[which[at]] = mixings[at].result();
            if (begun < n) {
                begin(at);
            } else if (--abreast > k) {
                mixings[at] = mixings[std::size_t(abreast)];
                which[at] = which[std::size_t(abreast)];
            }
        }
}

void cellsImpl(const Pixel* from, int n, std::uint32_t sequence, std::uint32_t step, std::uint32_t* cells)
{
    const hn::ScalableTag<std::uint32_t> d;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto byte = hn::Set(d, 0xFFu);
    const auto levels = hn::Set(d, MixtureCells::kLevels);
    auto place = hn::Add(hn::Set(d, sequence), hn::Mul(countedFrom(d, 0u), hn::Set(d, step)));
    const auto next = hn::Set(d, step * std::uint32_t(lanes));
    for (int i = 0; i < n; i += lanes) {
        Pixel rest[HWY_MAX_BYTES / sizeof(Pixel)] = {};
        if (i + lanes > n) std::copy_n(from + i, n - i, rest);
        const Pixel* const p = i + lanes > n ? rest : from + i;
        const auto pixels = hn::LoadU(d, reinterpret_cast<const std::uint32_t*>(p)), up = hn::ShiftRight<30>(place);
        const auto level = [&](auto channel)
                               HWY_ATTR { return hn::ShiftRight<2>(hn::Add(hn::And(channel, byte), up)); };
        const auto upper =
            hn::Add(hn::Mul(level(hn::ShiftRight<16>(pixels)), levels), level(hn::ShiftRight<8>(pixels)));
        hn::StoreU(hn::Add(hn::Mul(upper, levels), level(pixels)), d, cells + i);
        place = hn::Add(place, next);
    }
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(mixImpl);
HWY_EXPORT(cellsImpl);

void mix(const MixingCandidates* const* candidates, const Pixel* colours, int n, Contrast contrast, MixedParts* mixed)
{
    HWY_DYNAMIC_DISPATCH(mixImpl)(candidates, colours, n, contrast, mixed);
}

void MixtureCells::of(const Pixel* from, int n, std::uint32_t sequence, std::uint32_t step, std::uint32_t* cells)
{
    HWY_DYNAMIC_DISPATCH(cellsImpl)(from, n, sequence, step, cells);
}

} // namespace velara
#endif
