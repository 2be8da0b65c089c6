#include "engine/deform/kernels_place.h"
#include "pixels/numbers.h"
#include <cmath>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/deform/kernels_place.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "pixels/lanes-inl.h"
#include <hwy/contrib/math/math-inl.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using Singles = hn::ScalableTag<float>;
using Words = hn::ScalableTag<std::int32_t>;
using Doubles = hn::ScalableTag<double>;
using HalfWords = hn::Rebind<std::int32_t, Doubles>; // as many words as there are doubles

/// Where v is within tolerance of a half, so that rounding might go either way.
template <class V> auto nearHalf(V v, V rounded, V half, V tolerance)
{
    return hn::Gt(hn::Abs(hn::Sub(v, rounded)), hn::Sub(half, tolerance));
}

/// v rounded to the nearest even, for |v| < 2^22: the sum with a number that leaves no room for a fraction. As a
/// single, and as a word that is too large by kExcess.
template <class V, class W> struct Rounded {
    static constexpr std::int32_t kExcess = 0x4B400000;
    V value;
    W word;
};
template <class V> HWY_INLINE auto rounded(Singles d, V v)
{
    using W = hn::Vec<Words>;
    const auto large = hn::BitCast(d, hn::Set(Words(), Rounded<V, W>::kExcess)); // 1.5 * 2^23
    const auto sum = hn::Add(v, large);
    return Rounded<V, W>{hn::Sub(sum, large), hn::BitCast(Words(), sum)};
}
constexpr std::int32_t kExcess = Rounded<hn::Vec<Singles>, hn::Vec<Words>>::kExcess;

void lineOfPlacesImpl(double d, double factor, double shift, double centre, int n, std::int32_t* places)
{
    const Doubles doubles;
    const HalfWords words;
    const int lanes = static_cast<int>(hn::Lanes(doubles));
    auto at = countedFrom(doubles, d);
    const auto step = hn::Set(doubles, static_cast<double>(lanes));
    const auto f = hn::Set(doubles, factor), s = hn::Set(doubles, shift), c = hn::Set(doubles, centre);
    for (int i = 0; i < n; i += lanes) {
        const auto place = hn::Add(hn::Add(hn::Mul(at, f), s), c);
        hn::StoreU(hn::DemoteTo(words, hn::Round(place)), words, places + i);
        at = hn::Add(at, step);
    }
}

/// Positions in whole numbers of a 2^24th. The places of an axis are whole + (part + i * step) / 2^24.
struct FixedLine {
    static constexpr int kBits = 24;
    // What the steps' rounding adds up to, half of it a place, and the rounding of doubles.
    static constexpr std::int32_t kTolerance = kPlaces / 2 + 2;

    std::int32_t whole, part, step;
    FixedLine(double first, double perPlace) : step(static_cast<std::int32_t>(std::lrint(perPlace * (1 << kBits))))
    {
        const std::int64_t at = std::llrint(first * (1 << kBits)) + (1 << (kBits - 1)) + kTolerance;
        whole = static_cast<std::int32_t>(at >> kBits);
        part = static_cast<std::int32_t>(at & ((1 << kBits) - 1));
    }
};

bool straightPlacesImpl(const Straight& line, int n, std::int32_t* sx, std::int32_t* sy)
{
    const Words d;
    const hn::ScalableTag<std::uint32_t> du;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const FixedLine x(line.x, line.stepX), y(line.y, line.stepY);
    const auto wholeX = hn::Set(d, x.whole), wholeY = hn::Set(d, y.whole);
    const auto first = [&](const FixedLine& axis) HWY_ATTR {
        return hn::Add(hn::Mul(countedFrom(d, 0), hn::Set(d, axis.step)), hn::Set(d, axis.part));
    };
    auto atX = first(x), atY = first(y);
    const auto stepX = hn::Set(d, x.step * lanes), stepY = hn::Set(d, y.step * lanes);
    const auto fraction = [&](auto at) HWY_ATTR { return hn::BitCast(du, hn::ShiftLeft<32 - FixedLine::kBits>(at)); };
    auto least = hn::Set(du, ~0U); // of the fractions, in the upper bits
    for (int i = 0; i < n; i += lanes) {
        hn::StoreU(hn::Add(hn::ShiftRight<FixedLine::kBits>(atX), wholeX), d, sx + i);
        hn::StoreU(hn::Add(hn::ShiftRight<FixedLine::kBits>(atY), wholeY), d, sy + i);
        least = hn::Min(least, hn::Min(fraction(atX), fraction(atY)));
        atX = hn::Add(atX, stepX);
        atY = hn::Add(atY, stepY);
    }
    constexpr std::uint32_t kClose = (2 * FixedLine::kTolerance + 1) << (32 - FixedLine::kBits);
    return hn::GetLane(hn::MinOfLanes(du, least)) >= kClose;
}

void lineOfSplitPlacesImpl(double d, double factor, double shift, double centre, int n, std::int32_t* places,
                           float* beyond)
{
    const Doubles doubles;
    const HalfWords words;
    const hn::Rebind<float, Doubles> singles;
    const int lanes = static_cast<int>(hn::Lanes(doubles));
    const auto f = hn::Set(doubles, factor), s = hn::Set(doubles, shift), c = hn::Set(doubles, centre);
    for (int i = 0; i < n; i += lanes) {
        const auto at = countedFrom(doubles, d + i);
        const auto place = hn::Add(hn::Add(hn::Mul(at, f), s), c);
        const auto floor = hn::Floor(place);
        hn::StoreU(hn::DemoteTo(words, floor), words, places + i);
        hn::StoreU(hn::DemoteTo(singles, hn::Sub(place, floor)), singles, beyond + i);
    }
}

void productsToPlacesImpl(const double* factors, double d, double centre, int n, std::int32_t* places)
{
    const Doubles doubles;
    const HalfWords words;
    const int lanes = static_cast<int>(hn::Lanes(doubles));
    const auto by = hn::Set(doubles, d), c = hn::Set(doubles, centre);
    for (int i = 0; i < n; i += lanes) {
        const auto place = hn::Add(hn::Mul(hn::LoadU(doubles, factors + i), by), c);
        hn::StoreU(hn::DemoteTo(words, hn::Round(place)), words, places + i);
    }
}

std::uint64_t twirlPlacesImpl(const Twirl& twirl, int x0, int y, int n, std::int32_t* sx, std::int32_t* sy)
{
    const Singles d;
    const Words words;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto half = hn::Set(d, 0.5f), least = hn::Set(d, 1e-6f);
    const hn::ScalableTag<std::uint64_t> pairs;
    const auto perRadiusLeft = hn::Set(d, twirl.toleranceLeft), perRadiusRight = hn::Set(d, twirl.toleranceRight);
    const auto ofRadius = hn::Set(d, 2e-7f);
    const auto missing = hn::Set(d, static_cast<float>(3.14159265358979 - 3.141592025756836)); // of pi, to the left
    const auto dy = hn::Set(d, static_cast<float>(y - twirl.cy)), dy2 = hn::Mul(dy, dy);
    const auto excess = hn::Set(words, kExcess);
    const auto cx = hn::Set(words, twirl.cx - kExcess), cy = hn::Set(words, twirl.cy - kExcess);
    alignas(HWY_MAX_BYTES) float radii[kPlaces];
    alignas(HWY_MAX_BYTES) std::int32_t entries[kPlaces]; // of the table
    for (int i = 0; i < n; i += lanes) {                  // by itself, so that no load waits for a store
        const auto dx = hn::ConvertTo(d, countedFrom(words, x0 + i - twirl.cx));
        const auto radius = hn::Sqrt(hn::MulAdd(dx, dx, dy2));
        hn::Store(radius, d, radii + i);
        hn::Store(hn::ShiftLeft<1>(hn::Sub(rounded(d, radius).word, excess)), words, entries + i);
    }
    const auto* turns = reinterpret_cast<const std::int32_t*>(twirl.turns);
    std::uint64_t doubtful = 0;
    for (int i = 0; i < n; i += lanes) {
        const auto dx = hn::ConvertTo(d, countedFrom(words, x0 + i - twirl.cx));
        const auto radius = hn::Load(d, radii + i), r = rounded(d, radius).value;
        const auto scale = hn::Div(r, hn::Max(radius, half));
        const auto first = hn::BitCast(d, loadScattered(pairs, turns, entries + i));
        const auto last = hn::BitCast(d, loadScattered(pairs, turns, entries + i + lanes / 2));
        const auto c = hn::ConcatEven(d, last, first), s = hn::ConcatOdd(d, last, first);
        const auto turnedX = hn::Mul(scale, hn::NegMulAdd(dy, s, hn::Mul(dx, c)));
        const auto turnedY = hn::Mul(scale, hn::MulAdd(dy, c, hn::Mul(dx, s)));
        const auto isLeft = hn::Lt(dx, hn::Zero(d));
        const auto back = hn::IfThenElseZero(isLeft, missing);
        const auto ox = hn::MulAdd(back, turnedY, turnedX), oy = hn::NegMulAdd(back, turnedX, turnedY);
        const auto roundX = rounded(d, ox), roundY = rounded(d, oy);
        const auto isRight = hn::Gt(dx, hn::Zero(d)); // the column between has the larger error, too
        const auto tolerance = hn::MulAdd(r, hn::IfThenElse(isRight, perRadiusRight, perRadiusLeft), least);
        const auto doubt =
            hn::Or(hn::Or(nearHalf(ox, roundX.value, half, tolerance), nearHalf(oy, roundY.value, half, tolerance)),
                   nearHalf(radius, r, half, hn::MulAdd(r, ofRadius, least)));
        hn::StoreU(hn::Add(roundX.word, cx), words, sx + i);
        hn::StoreU(hn::Add(roundY.word, cy), words, sy + i);
        doubtful |= laneBits(d, doubt) << i;
    }
    return doubtful;
}

std::uint64_t twirlPlacesExactlyImpl(const ExactTwirl& twirl, const std::int32_t* dx, const std::int32_t* dy, int n,
                                     std::int32_t* sx, std::int32_t* sy)
{
    const Doubles d;
    const HalfWords words;
    const hn::Rebind<float, Doubles> singles;
    const hn::RebindToSigned<Doubles> indices;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto zero = hn::Zero(d), one = hn::Set(d, 1.0), half = hn::Set(d, 0.5);
    const auto k = hn::Set(d, twirl.k), pi = hn::Set(d, double{kPi}), missing = hn::Set(d, twirl.missing);
    const auto ofAngle = hn::Set(d, 4e-15); // three last places of half a turn, and its sum
    const auto sure = hn::Set(d, 0.5 - ExactTwirl::kTolerance);
    const auto single = [&](auto v) HWY_ATTR { return hn::PromoteTo(d, hn::DemoteTo(singles, v)); };
    std::uint64_t doubtful = 0;
    for (int i = 0; i < n; i += lanes) {
        const auto x = hn::PromoteTo(d, hn::LoadU(words, dx + i)), y = hn::PromoteTo(d, hn::LoadU(words, dy + i));
        const auto radius = hn::Sqrt(hn::Add(hn::Mul(x, x), hn::Mul(y, y))), r = hn::Round(radius);
        const auto entry = hn::ShiftLeft<1>(hn::ConvertTo(indices, r));
        const auto c = hn::GatherIndex(d, twirl.turns, entry), s = hn::GatherIndex(d, twirl.turns + 1, entry);
        const auto scale = hn::Div(r, hn::Max(radius, half));
        const auto turnedX = hn::Mul(scale, hn::Sub(hn::Mul(x, c), hn::Mul(y, s)));
        const auto turnedY = hn::Mul(scale, hn::Add(hn::Mul(x, s), hn::Mul(y, c)));
        // The definition's angle is a single, and so is its sum with what is added.
        const auto isLeft = hn::Lt(x, zero);
        const auto angle = hn::Add(hn::Atan(d, hn::Div(y, x)), hn::IfThenElseZero(isLeft, pi));
        const auto rounded = single(angle);
        const auto isClear = hn::Eq(single(hn::Sub(angle, ofAngle)), single(hn::Add(angle, ofAngle)));
        const auto sum = hn::Sub(rounded, hn::Mul(r, k));
        const auto by =
            hn::Sub(hn::Add(hn::Sub(rounded, angle), hn::Sub(single(sum), sum)), hn::IfThenElseZero(isLeft, missing));
        const auto less = hn::Sub(one, hn::Mul(half, hn::Mul(by, by)));
        const auto ox = hn::Sub(hn::Mul(turnedX, less), hn::Mul(turnedY, by));
        const auto oy = hn::Add(hn::Mul(turnedY, less), hn::Mul(turnedX, by));
        const auto roundX = hn::Round(ox), roundY = hn::Round(oy);
        const auto farthest = hn::Max(hn::Abs(hn::Sub(ox, roundX)), hn::Abs(hn::Sub(oy, roundY)));
        const auto settled =
            hn::And(hn::And(hn::Lt(farthest, sure), isClear), hn::And(hn::Ne(x, zero), hn::Gt(r, zero)));
        hn::StoreU(hn::Add(hn::DemoteTo(words, roundX), hn::Set(words, twirl.cx)), words, sx + i);
        hn::StoreU(hn::Add(hn::DemoteTo(words, roundY), hn::Set(words, twirl.cy)), words, sy + i);
        doubtful |= laneBits(d, hn::Not(settled)) << i;
    }
    return doubtful;
}

/// atan of 0..1, within 2e-7.
template <class D, class V> V arcTangent(D d, V v)
{
    // atan(v) = pi/8 + atan((v - t) / (1 + t v)) with t = tan(pi/8): the argument of the series stays below 0.4143.
    const auto t = hn::Set(d, 0.41421356f);
    const auto a = hn::Div(hn::Sub(v, t), hn::MulAdd(t, v, hn::Set(d, 1.0f)));
    const auto a2 = hn::Mul(a, a);
    auto series = hn::Set(d, 1.0f / 15);
    for (const float term : {-1.0f / 13, 1.0f / 11, -1.0f / 9, 1.0f / 7, -1.0f / 5, 1.0f / 3})
        series = hn::MulAdd(series, a2, hn::Set(d, term));
    return hn::Add(hn::NegMulAdd(hn::Mul(series, a2), a, a), hn::Set(d, 0.39269908f));
}

std::uint64_t bendPlacesImpl(const Bend& bend, int x0, int y, int n, std::int32_t* sx, std::int32_t* sy)
{
    const Singles d;
    const Words words;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto half = hn::Set(d, 0.5f), zero = hn::Zero(d);
    const auto excess = hn::Set(words, kExcess);
    const auto toleranceX = hn::Set(d, bend.toleranceX), toleranceY = hn::Set(d, bend.toleranceY);
    const auto perRadius = hn::Set(d, bend.tolerancePerRadius);
    const float down = static_cast<float>(y - bend.cy);
    const auto dy = hn::Set(d, down), dy2 = hn::Mul(dy, dy), absY = hn::Abs(dy);
    const auto maxY = hn::Set(d, static_cast<float>(bend.maxY)), k = hn::Set(d, bend.k);
    const auto perRadian = hn::Set(d, static_cast<float>(bend.maxX / 6.283184051513672));
    // Below the centre the angle counts from 0 to the left and from two pi to the right, above it around pi.
    const auto ofLeft = hn::Set(d, down < 0 ? 3.141592f : 0.0f), ofRight = hn::Set(d, down < 0 ? 3.141592f : 6.283184f);
    const auto signs = hn::Set(d, down < 0 ? -1.0f : 1.0f);
    std::uint64_t doubtful = 0;
    for (int i = 0; i < n; i += lanes) {
        const auto dx = hn::ConvertTo(d, countedFrom(words, x0 + i - bend.cx));
        const auto absX = hn::Abs(dx);
        const auto least = hn::Min(absX, absY), most = hn::Max(absX, absY);
        const auto atan = arcTangent(d, hn::Div(least, hn::Max(most, half)));
        const auto fromDown = hn::IfThenElse(hn::Gt(absX, absY), hn::Sub(hn::Set(d, 1.57079633f), atan), atan);
        const auto right = hn::Gt(dx, zero);
        const auto turned = hn::Mul(fromDown, hn::IfThenElse(right, hn::Neg(signs), signs));
        const auto x = hn::Mul(hn::Add(hn::IfThenElse(right, ofRight, ofLeft), turned), perRadian);
        const auto radius = hn::Sqrt(hn::MulAdd(dx, dx, dy2)), height = hn::NegMulAdd(radius, k, maxY);
        const auto roundX = rounded(d, x), roundY = rounded(d, height);
        const auto doubt =
            hn::Or(hn::Or(nearHalf(x, roundX.value, half, toleranceX),
                          nearHalf(height, roundY.value, half, hn::MulAdd(radius, perRadius, toleranceY))),
                   hn::Eq(most, zero));
        hn::StoreU(hn::Sub(roundX.word, excess), words, sx + i);
        hn::StoreU(hn::Sub(roundY.word, excess), words, sy + i);
        doubtful |= laneBits(d, doubt) << i;
    }
    return doubtful;
}

std::uint64_t waveOffsetsImpl(const WaveTables& wave, double ofSine, double ofCosine, float weight, int n,
                              std::int32_t* offsets)
{
    const Singles d;
    const Words words;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const auto half = hn::Set(d, 0.5f), tolerance = hn::Set(d, weight * 1e-6f);
    const auto excess = hn::Set(words, kExcess);
    const auto sine = hn::Set(d, static_cast<float>(-weight * ofSine));
    const auto cosine = hn::Set(d, static_cast<float>(-weight * ofCosine));
    std::uint64_t doubtful = 0;
    for (int i = 0; i < n; i += lanes) {
        const auto offset =
            hn::MulAdd(cosine, hn::LoadU(d, wave.sine + i), hn::Mul(sine, hn::LoadU(d, wave.cosine + i)));
        const auto whole = rounded(d, offset);
        hn::StoreU(hn::Sub(whole.word, excess), words, offsets + i);
        doubtful |= laneBits(d, nearHalf(offset, whole.value, half, tolerance)) << i;
    }
    return doubtful;
}

bool lensPlacesImpl(const Lens& lens, int x0, int y, int n, std::int32_t* sx, std::int32_t* sy)
{
    const Doubles d;
    const HalfWords words;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const double down = static_cast<double>(y) - lens.cy;
    const auto oy2 = hn::Set(d, down * down), pulledY = hn::Round(hn::Set(d, lens.depth * down));
    const auto square = hn::Set(d, lens.radius * lens.radius), depth = hn::Set(d, lens.depth);
    const auto cx = hn::Set(d, static_cast<double>(lens.cx)), cy = hn::Set(d, static_cast<double>(lens.cy));
    const auto left = hn::Set(d, static_cast<double>(lens.within.left));
    const auto right = hn::Set(d, static_cast<double>(lens.within.right - 1));
    const auto top = hn::Set(d, static_cast<double>(lens.within.top));
    const auto bottom = hn::Set(d, static_cast<double>(lens.within.bottom - 1));
    const auto fits = hn::Set(d, 2147483647.0);
    auto safe = hn::Le(hn::Abs(pulledY), fits);
    for (int i = 0; i < n; i += lanes) {
        // The last vector repeats the last pixel, as positions beyond it may lie outside of the disc.
        const auto at =
            hn::Min(countedFrom(d, static_cast<double>(x0 + i)), hn::Set(d, static_cast<double>(x0 + n - 1)));
        const auto ox = hn::Sub(at, cx);
        const auto z = hn::Round(hn::Sqrt(hn::Sub(hn::Sub(square, hn::Mul(ox, ox)), oy2)));
        const auto pulledX = hn::Round(hn::Mul(depth, ox));
        // A quotient of 32-bit integers in double never rounds up to an integer.
        const auto fromX = hn::Add(hn::Trunc(hn::Div(pulledX, z)), cx);
        const auto fromY = hn::Add(hn::Trunc(hn::Div(pulledY, z)), cy);
        safe = hn::And(safe, hn::And(hn::Ge(z, hn::Set(d, 1.0)), hn::Le(hn::Abs(pulledX), fits)));
        safe = hn::And(safe, hn::And(hn::And(hn::Ge(fromX, left), hn::Le(fromX, right)),
                                     hn::And(hn::Ge(fromY, top), hn::Le(fromY, bottom))));
        hn::StoreU(hn::DemoteTo(words, fromX), words, sx + i);
        hn::StoreU(hn::DemoteTo(words, fromY), words, sy + i);
    }
    return hn::AllTrue(d, safe);
}

/// The same in singles: see Lens::pulled. No quotient of numbers below 2^24 rounds up to an integer.
bool lensPlacesInSingleImpl(const Lens& lens, int x0, int y, int n, std::int32_t* sx, std::int32_t* sy)
{
    const Singles d;
    const Words words;
    const int lanes = static_cast<int>(hn::Lanes(d));
    const int down = y - lens.cy;
    const auto room = hn::Set(words, static_cast<std::int32_t>(lens.radius * lens.radius) - down * down);
    const auto pulledY = hn::Set(d, static_cast<float>(roundToEven(lens.depth * down)));
    const auto cx = hn::Set(words, lens.cx), cy = hn::Set(words, lens.cy), last = hn::Set(words, x0 + n - 1 - lens.cx);
    const auto left = hn::Set(words, lens.within.left), right = hn::Set(words, lens.within.right - 1);
    const auto top = hn::Set(words, lens.within.top), bottom = hn::Set(words, lens.within.bottom - 1);
    auto outside = hn::Zero(words);
    for (int i = 0; i < n; i += lanes) {
        const auto ox = hn::Min(countedFrom(words, x0 + i - lens.cx), last);
        const auto square = hn::Sub(room, hn::Mul(ox, ox));
        // The root of a whole number is never a half, but its single may be: z^2 - z < square <= z^2 + z.
        const auto root = hn::NearestInt(hn::Sqrt(hn::ConvertTo(d, square)));
        const auto least = hn::Mul(root, hn::Sub(root, hn::Set(words, 1)));
        const auto below = hn::VecFromMask(words, hn::Gt(hn::Add(least, hn::Set(words, 1)), square));
        const auto above = hn::VecFromMask(words, hn::Gt(square, hn::Add(least, hn::Add(root, root))));
        const auto height = hn::Sub(hn::Add(root, below), above);
        const auto z = hn::ConvertTo(d, height);
        const auto pulledX = hn::LoadU(d, lens.pulled + (x0 + i - lens.cx));
        const auto fromX = hn::Add(hn::ConvertTo(words, hn::Div(pulledX, z)), cx);
        const auto fromY = hn::Add(hn::ConvertTo(words, hn::Div(pulledY, z)), cy);
        const auto limitedX = hn::Min(hn::Max(fromX, left), right), limitedY = hn::Min(hn::Max(fromY, top), bottom);
        outside = hn::Or(outside, hn::Or(hn::Xor(fromX, limitedX), hn::Xor(fromY, limitedY)));
        outside = hn::Or(outside, hn::VecFromMask(words, hn::Lt(height, hn::Set(words, 1))));
        hn::StoreU(fromX, words, sx + i);
        hn::StoreU(fromY, words, sy + i);
    }
    return hn::AllTrue(words, hn::Eq(outside, hn::Zero(words)));
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(lineOfPlacesImpl);
HWY_EXPORT(straightPlacesImpl);
HWY_EXPORT(lineOfSplitPlacesImpl);
HWY_EXPORT(productsToPlacesImpl);
HWY_EXPORT(twirlPlacesImpl);
HWY_EXPORT(twirlPlacesExactlyImpl);
HWY_EXPORT(bendPlacesImpl);
HWY_EXPORT(waveOffsetsImpl);
HWY_EXPORT(lensPlacesImpl);
HWY_EXPORT(lensPlacesInSingleImpl);

void lineOfPlaces(double d, double factor, double shift, double centre, int n, std::int32_t* places)
{
    HWY_DYNAMIC_DISPATCH(lineOfPlacesImpl)(d, factor, shift, centre, n, places);
}

bool straightPlaces(const Straight& line, int n, std::int32_t* sx, std::int32_t* sy)
{
    constexpr double kLongest = 1.98; // kPlaces of them fit in 32 bits
    return std::abs(line.stepX) < kLongest && std::abs(line.stepY) < kLongest &&
           HWY_DYNAMIC_DISPATCH(straightPlacesImpl)(line, n, sx, sy);
}

void lineOfSplitPlaces(double d, double factor, double shift, double centre, int n, std::int32_t* places, float* beyond)
{
    HWY_DYNAMIC_DISPATCH(lineOfSplitPlacesImpl)(d, factor, shift, centre, n, places, beyond);
}

void productsToPlaces(const double* factors, double d, double centre, int n, std::int32_t* places)
{
    HWY_DYNAMIC_DISPATCH(productsToPlacesImpl)(factors, d, centre, n, places);
}

std::uint64_t twirlPlaces(const Twirl& twirl, int x0, int y, int n, std::int32_t* sx, std::int32_t* sy)
{
    return HWY_DYNAMIC_DISPATCH(twirlPlacesImpl)(twirl, x0, y, n, sx, sy);
}

std::uint64_t twirlPlacesExactly(const ExactTwirl& twirl, const std::int32_t* dx, const std::int32_t* dy, int n,
                                 std::int32_t* sx, std::int32_t* sy)
{
    return HWY_DYNAMIC_DISPATCH(twirlPlacesExactlyImpl)(twirl, dx, dy, n, sx, sy);
}

std::uint64_t bendPlaces(const Bend& bend, int x0, int y, int n, std::int32_t* sx, std::int32_t* sy)
{
    return HWY_DYNAMIC_DISPATCH(bendPlacesImpl)(bend, x0, y, n, sx, sy);
}

bool lensPlaces(const Lens& lens, int x0, int y, int n, std::int32_t* sx, std::int32_t* sy)
{
    return lens.pulled ? HWY_DYNAMIC_DISPATCH(lensPlacesInSingleImpl)(lens, x0, y, n, sx, sy)
                       : HWY_DYNAMIC_DISPATCH(lensPlacesImpl)(lens, x0, y, n, sx, sy);
}

WaveTables::WaveTables()
{
    for (int i = 0; i < kPlaces; ++i) {
        sine[i] = static_cast<float>(std::sin(static_cast<double>(i)));
        cosine[i] = static_cast<float>(std::cos(static_cast<double>(i)));
    }
}

std::uint64_t waveOffsets(const WaveTables& wave, double sine, double cosine, float weight, int n,
                          std::int32_t* offsets)
{
    return HWY_DYNAMIC_DISPATCH(waveOffsetsImpl)(wave, sine, cosine, weight, n, offsets);
}

} // namespace velara
#endif
