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

using Singles = hn::ScalableTag<float>;
using Words = hn::RebindToSigned<Singles>;
using V = hn::Vec<Singles>;
constexpr std::size_t kLanes = hn::MaxLanes(Singles());
using OfLanes = std::array<float, kLanes>;
constexpr std::size_t kCount = MixingCandidates::kCount, kMost = MixedParts::kMost;
constexpr int kParts = MixedParts::kParts;
constexpr float kMostSeen = 0.5F, kLeastSeen = 0.01F;

/// What a part moved to an entry adds to the cost: by how far that brings the mean (pull), and by the seen share of its
/// own squared distance.
template <class D, class W> HWY_INLINE W slopeOf(D, W p0, W p1, W p2, W seen, W o0, W o1, W o2, W far)
{
    const auto along = hn::Add(hn::Mul(p0, o0), hn::Mul(p1, o1));
    return hn::Add(hn::Add(along, hn::Mul(p2, o2)), hn::Mul(seen, far));
}

/// The entries of one mixture.
class Entries {
  public:
    struct Entry {
        std::array<float, 3> off; // from the colour
        float far;                // squared
        int number, parts;
    };
    /// mean: its distance from the colour, times kParts.
    explicit Entries(const std::array<float, 3>& mean) : mean_(mean) {}
    void add(const Entry& entry)
    {
        for (std::size_t c = 0; c < 3; ++c) off_[c][count_] = entry.off[c];
        far_[count_] = entry.far;
        numbers_[count_] = static_cast<std::uint8_t>(entry.number);
        parts_[count_++] = entry.parts;
    }
    /// Evens out the parts: the best pair each time.
    void balance(float seen)
    {
        std::size_t known = 0;
        for (int step = 0; step < kParts && count_ > 1; ++step) {
            const float weight = 2 * (1 - seen) / kParts;
            if (std::exchange(known, count_) != count_) measure();
            weigh(weight, seen);
            std::size_t from = 0, to = 0;
            float most = 0, wanted = 0;
            for (std::size_t a = 0; a < count_; ++a)
                for (std::uint64_t left = worthMoving(a, weight); left != 0; left &= left - 1) {
                    const auto b = std::size_t(std::countr_zero(left));
                    const float gain = slopes_[a] - slopes_[b], cost = weight * distances_[a][b];
                    if (gain * gain <= most * cost) continue;
                    most = gain * gain / cost;
                    wanted = gain / cost;
                    from = a;
                    to = b;
                }
            if (most == 0) return;
            shift(from, to, std::min(int(wanted + 0.5F), parts_[from]));
        }
    }
    MixedParts result() const
    {
        MixedParts mixed{.entries = numbers_, .parts = {}, .count = count_};
        for (std::size_t u = 0; u < kMost; ++u) mixed.parts[u] = static_cast<std::uint8_t>(parts_[u]);
        return mixed;
    }

  private:
    using D = hn::CappedTag<float, kMost>;
    using Each = std::array<float, kMost>;

    /// The distances of the entries from one another.
    void measure()
    {
        const D d;
        for (std::size_t a = 0; a < count_; ++a)
            for (std::size_t b = 0; b < kMost; b += hn::Lanes(d)) {
                const auto square = [&](const Each& off) HWY_ATTR {
                    const auto apart = hn::Sub(hn::Set(d, off[a]), hn::Load(d, &off[b]));
                    return hn::Mul(apart, apart);
                };
                const auto sum = hn::Add(hn::Add(square(off_[0]), square(off_[1])), square(off_[2]));
                hn::Store(hn::Max(sum, hn::Set(d, 1)), d, &distances_[a][b]);
            }
    }
    /// What a part of each entry costs; nobody moves one to a place beyond the last entry.
    void weigh(float weight, float seen)
    {
        const D d;
        const auto pull = [&](std::size_t c) HWY_ATTR { return hn::Set(d, mean_[c] * weight); };
        const auto p0 = pull(0), p1 = pull(1), p2 = pull(2), share = hn::Set(d, seen), end = hn::Set(d, float(count_));
        for (std::size_t u = 0; u < kMost; u += hn::Lanes(d)) {
            const auto slope = slopeOf(d, p0, p1, p2, share, hn::Load(d, &off_[0][u]), hn::Load(d, &off_[1][u]),
                                       hn::Load(d, &off_[2][u]), hn::Load(d, &far_[u]));
            const auto lives = hn::Lt(countedFrom(d, float(u)), end);
            hn::Store(hn::IfThenElse(lives, slope, hn::Set(d, std::numeric_limits<float>::max())), d, &slopes_[u]);
        }
    }
    /// The entries, as bits, to which half a part of entry a or more would be moved.
    std::uint64_t worthMoving(std::size_t a, float weight) const
    {
        const D d;
        const auto half = hn::Set(d, 0.5F), slope = hn::Set(d, slopes_[a]);
        std::uint64_t bits = 0;
        for (std::size_t b = 0; b < kMost; b += hn::Lanes(d)) {
            const auto gain = hn::Sub(slope, hn::Load(d, &slopes_[b]));
            const auto cost = hn::Mul(hn::Set(d, weight), hn::Load(d, &distances_[a][b]));
            bits |= laneBits(d, hn::Ge(gain, hn::Mul(half, cost))) << b;
        }
        return bits;
    }
    void shift(std::size_t from, std::size_t to, int moved)
    {
        parts_[to] += moved;
        parts_[from] -= moved;
        for (std::size_t c = 0; c < 3; ++c) mean_[c] += float(moved) * (off_[c][to] - off_[c][from]);
        if (parts_[from] > 0) return;
        --count_;
        for (Each& channel : off_) channel[from] = channel[count_];
        far_[from] = far_[count_];
        numbers_[from] = numbers_[count_];
        parts_[from] = parts_[count_];
        numbers_[count_] = 0;
        parts_[count_] = 0;
    }

    alignas(32) std::array<Each, 3> off_{};
    alignas(32) Each far_{}, slopes_;
    alignas(32) std::array<Each, kMost> distances_; // 1 at the least
    std::array<std::uint8_t, kMost> numbers_{};
    std::array<int, kMost> parts_{};
    std::size_t count_ = 0;
    std::array<float, 3> mean_;
};

/// Mixtures under way, one a lane, each at a step of its own: minimises the squared error of the mean plus the seen
/// share of the variance, by moving parts from the entry with the steepest cost to the candidate with the least. All
/// numbers but costs are whole, so that they are exact in single precision.
class Mixings {
  public:
    /// With the nearest entry.
    void begin(std::size_t lane, const MixingCandidates& candidates, Pixel p, Contrast contrast)
    {
        std::size_t nearest = 0;
        float least = std::numeric_limits<float>::max();
        for (std::size_t i = 0; i < kCount; ++i) {
            float far = 0;
            for (std::size_t c = 0; c < 3; ++c) {
                const float off = candidates.channels[c][i] - float(p.c[c]);
                off_[i][c][lane] = off;
                far += off * off;
            }
            off_[i][kFar][lane] = far;
            nearest = far < least ? i : nearest;
            least = std::min(far, least);
        }
        for (std::size_t f = 0; f <= kFar; ++f) slots_[0][f][lane] = off_[nearest][f][lane];
        slots_[0][kNumber][lane] = float(nearest);
        slots_[0][kPartsOf][lane] = kParts;
        for (std::size_t c = 0; c < 3; ++c) mean_[c][lane] = kParts * off_[nearest][c][lane];
        count_[lane] = 1;
        const float ratio = contrast.close / candidates.apart[nearest];
        closeness_[lane] = ratio * ratio / (1 + ratio * ratio);
        seen_[lane] = contrast.seen + (kMostSeen - contrast.seen) * closeness_[lane];
        stepsLeft_[lane] = kParts;
        last_ &= ~(std::uint64_t{1} << lane);
    }

    /// Finds the entries, and then makes the mean as exact as their contrast allows. The lanes where there is no more
    /// to do, as bits.
    std::uint64_t step()
    {
        const std::uint64_t stopped = gather(), ended = stopped & last_;
        for (std::uint64_t left = stopped & ~last_; left != 0; left &= left - 1) {
            const auto lane = std::size_t(std::countr_zero(left));
            seen_[lane] = kMostSeen * closeness_[lane] + kLeastSeen;
            stepsLeft_[lane] = kParts;
        }
        last_ |= stopped;
        return ended;
    }

    MixedParts result(std::size_t lane) const
    {
        Entries entries({mean_[0][lane], mean_[1][lane], mean_[2][lane]});
        for (std::size_t u = 0; u < std::size_t(count_[lane]); ++u) {
            const auto field = [&](std::size_t f) { return slots_[u][f][lane]; };
            entries.add({.off = {field(0), field(1), field(2)},
                         .far = field(kFar),
                         .number = int(field(kNumber)),
                         .parts = int(field(kPartsOf))});
        }
        entries.balance(kMostSeen * closeness_[lane]);
        return entries.result();
    }

  private:
    // Of an entry: its distance from the colour in each channel, that squared, its number, its parts.
    static constexpr std::size_t kFar = 3, kNumber = 4, kPartsOf = 5, kFields = 6;

    /// What a part costs, see slopeOf.
    struct Weights {
        V weight, seen, pull[3];

        HWY_INLINE V slope(const V* entry) const
        {
            return slopeOf(Singles(), pull[0], pull[1], pull[2], seen, entry[0], entry[1], entry[2], entry[kFar]);
        }
    };
    /// Which parts would move where; places are numbers of slots.
    struct Move {
        V count, from[kFields], fromAt, steepest; // the first of the steepest
        V best[kFields], bestAt;                  // its slot, or the one behind all
        V last[kFields], lastAt;
    };

    static HWY_INLINE V load(const OfLanes& from) { return hn::Load(Singles(), from.data()); }
    static HWY_INLINE void store(V v, OfLanes& to) { hn::Store(v, Singles(), to.data()); }

    /// Brings in the entry of the least cost, at the expense of the costliest, if that helps; the lanes where it
    /// doesn't.
    std::uint64_t gather()
    {
        const Singles d;
        const auto one = hn::Set(d, 1), half = hn::Set(d, 0.5F);
        Weights weights;
        weights.seen = load(seen_);
        weights.weight = hn::Div(hn::Mul(hn::Set(d, 2), hn::Sub(one, weights.seen)), hn::Set(d, kParts));
        for (std::size_t c = 0; c < 3; ++c) weights.pull[c] = hn::Mul(load(mean_[c]), weights.weight);
        Move move;
        findBest(weights, move);
        findOthers(weights, move);
        const auto square = [](V a, V b) HWY_ATTR { return hn::Mul(hn::Sub(a, b), hn::Sub(a, b)); };
        const auto apart =
            hn::Max(hn::Add(hn::Add(square(move.best[0], move.from[0]), square(move.best[1], move.from[1])),
                            square(move.best[2], move.from[2])),
                    one);
        const auto wanted = hn::Div(hn::Sub(move.steepest, weights.slope(move.best)), hn::Mul(weights.weight, apart));
        const auto left = load(stepsLeft_);
        const auto fits = hn::And(hn::Lt(move.bestAt, hn::Set(d, float(kMost))), hn::Gt(left, hn::Zero(d)));
        const auto helps = hn::And(hn::Ge(wanted, half), fits);
        store(hn::Sub(left, one), stepsLeft_);
        const auto moved = hn::Min(hn::Trunc(hn::Add(wanted, half)), move.from[kPartsOf]);
        carryOut(move, hn::IfThenElseZero(helps, moved));
        return laneBits(d, hn::Not(helps));
    }

    /// The first candidate of the least cost, in whole steps, which the weights are multiplied with, as that is exact.
    HWY_INLINE void findBest(const Weights& weights, Move& move) const
    {
        const Singles d;
        const Words words;
        const auto steps = hn::Set(d, 32); // of a cost that are told apart
        const auto p0 = hn::Mul(weights.pull[0], steps), p1 = hn::Mul(weights.pull[1], steps),
                   p2 = hn::Mul(weights.pull[2], steps), share = hn::Mul(weights.seen, steps);
        auto least = hn::Set(d, std::numeric_limits<float>::max()), number = hn::Zero(d);
        for (std::size_t i = 0; i < kCount; ++i) {
            const auto& off = off_[i];
            const auto cost =
                hn::Trunc(slopeOf(d, p0, p1, p2, share, load(off[0]), load(off[1]), load(off[2]), load(off[kFar])));
            number = hn::IfThenElse(hn::Lt(cost, least), hn::Set(d, float(i)), number);
            least = hn::Min(least, cost);
        }
        constexpr int kPlaceBits = std::countr_zero(4 * kLanes); // of a candidate's numbers
        const auto place = hn::Add(hn::ShiftLeft<kPlaceBits>(hn::ConvertTo(words, number)), countedFrom(words, 0));
        for (std::size_t f = 0; f <= kFar; ++f) move.best[f] = loadEach(d, off_[0][f].data(), place);
        move.best[kNumber] = number;
    }

    /// The first of the steepest ones, the last one, and where the best one is or would be.
    HWY_INLINE void findOthers(const Weights& weights, Move& move) const
    {
        const Singles d;
        const auto one = hn::Set(d, 1);
        auto at = hn::Zero(d);
        move.count = load(count_);
        move.lastAt = hn::Sub(move.count, one);
        move.steepest = hn::Set(d, std::numeric_limits<float>::lowest());
        move.bestAt = move.count;
        move.fromAt = move.best[kPartsOf] = hn::Zero(d);
        for (std::size_t f = 0; f < kFields; ++f) move.from[f] = move.last[f] = hn::Zero(d);
        for (std::size_t u = 0; u < kMost; ++u, at = hn::Add(at, one)) {
            V slot[kFields];
            for (std::size_t f = 0; f < kFields; ++f) slot[f] = load(slots_[u][f]);
            const auto cost = weights.slope(slot);
            const auto lives = hn::Lt(at, move.count), isLast = hn::Eq(at, move.lastAt);
            const auto isSteeper = hn::And(lives, hn::Gt(cost, move.steepest));
            const auto isBest = hn::And(lives, hn::Eq(slot[kNumber], move.best[kNumber]));
            move.steepest = hn::IfThenElse(isSteeper, cost, move.steepest);
            move.fromAt = hn::IfThenElse(isSteeper, at, move.fromAt);
            move.bestAt = hn::IfThenElse(isBest, at, move.bestAt);
            move.best[kPartsOf] = hn::IfThenElse(isBest, slot[kPartsOf], move.best[kPartsOf]);
            for (std::size_t f = 0; f < kFields; ++f) {
                move.from[f] = hn::IfThenElse(isSteeper, slot[f], move.from[f]);
                move.last[f] = hn::IfThenElse(isLast, slot[f], move.last[f]);
            }
        }
    }

    /// moved: parts, 0 where nothing is done. Where nothing is left of an entry, the last one takes its place.
    HWY_INLINE void carryOut(Move& move, V moved)
    {
        const Singles d;
        const auto one = hn::Set(d, 1), zero = hn::Zero(d), nowhere = hn::Set(d, -1);
        for (std::size_t c = 0; c < 3; ++c)
            store(hn::Add(load(mean_[c]), hn::Mul(moved, hn::Sub(move.best[c], move.from[c]))), mean_[c]);
        move.best[kPartsOf] = hn::Add(move.best[kPartsOf], moved);
        move.from[kPartsOf] = hn::Sub(move.from[kPartsOf], moved);
        const auto isDone = hn::Gt(moved, zero);
        const auto isGone = hn::And(isDone, hn::Eq(move.from[kPartsOf], zero));
        const auto isNew = hn::And(isDone, hn::Eq(move.bestAt, move.count));
        const auto isBestLast = hn::Ge(move.bestAt, move.lastAt);
        for (std::size_t f = 0; f < kFields; ++f) {
            const auto last = hn::IfThenElse(isBestLast, move.best[f], move.last[f]);
            move.from[f] = hn::IfThenElse(isGone, last, move.from[f]);
        }
        const auto bestAt = hn::IfThenElse(isDone, move.bestAt, nowhere);
        const auto fromAt = hn::IfThenElse(isDone, move.fromAt, nowhere);
        auto at = zero;
        for (std::size_t u = 0; u < kMost; ++u, at = hn::Add(at, one)) {
            const auto isBest = hn::Eq(at, bestAt), isFrom = hn::Eq(at, fromAt);
            for (std::size_t f = 0; f < kFields; ++f) {
                OfLanes& slot = slots_[u][f];
                store(hn::IfThenElse(isFrom, move.from[f], hn::IfThenElse(isBest, move.best[f], load(slot))), slot);
            }
        }
        const auto more = hn::Add(move.count, hn::IfThenElseZero(isNew, one));
        store(hn::Sub(more, hn::IfThenElseZero(isGone, one)), count_);
    }

    // of the candidates from the colour, and that squared:
    alignas(64) std::array<std::array<OfLanes, 4>, kCount> off_{};
    alignas(64) std::array<std::array<OfLanes, kFields>, kMost> slots_{}; // the entries in use come first
    alignas(64) std::array<OfLanes, 3> mean_{};                           // its distance from the colour, times kParts
    alignas(64) OfLanes count_{}, seen_{}, stepsLeft_{}, closeness_{};
    std::uint64_t last_ = 0; // the lanes that make the mean exact
};

/// A lane goes on with the next colour as soon as it has ended.
void mixImpl(const MixingCandidates* const* candidates, const Pixel* colours, int n, Contrast contrast,
             MixedParts* mixed)
{
    Mixings mixings;
    std::array<int, kLanes> which;
    std::uint64_t busy = 0;
    int begun = 0;
    const auto begin = [&](std::size_t lane) {
        mixings.begin(lane, *candidates[begun], colours[begun], contrast);
        which[lane] = begun++;
        busy |= std::uint64_t{1} << lane;
    };
    for (std::size_t lane = 0; lane < kLanes && begun < n; ++lane) begin(lane);
    while (busy != 0)
        for (std::uint64_t ended = mixings.step() & busy; ended != 0; ended &= ended - 1) {
            const auto lane = std::size_t(std::countr_zero(ended));
            mixed[which[lane]] = mixings.result(lane);
            busy &= ~(std::uint64_t{1} << lane);
            if (begun < n) begin(lane);
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
        __builtin_prefetch(from + i + 1024);
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
