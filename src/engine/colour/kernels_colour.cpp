#include "engine/colour/kernels_colour.h"
#include "pixels/numbers.h"
#include <algorithm>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "engine/colour/kernels_colour.cpp"
#include <hwy/foreach_target.h>

#include "engine/colour/colours-inl.h"
#include "pixels/lanes-inl.h"
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace velara::HWY_NAMESPACE {

void channels(const SpanOf& s, const ChannelMap& map)
{
    forPixels<std::uint8_t>(s, [&](auto d, int x) HWY_ATTR {
        const hn::Repartition<std::uint32_t, decltype(d)> d32;
        const auto block = hn::And(hn::Iota(d, 0), hn::Set(d, 0x0C));
        const auto from = hn::Or(block, hn::BitCast(d, hn::Set(d32, map.from)));
        const auto moved = hn::BitCast(d32, hn::TableLookupBytes(loadBytes(d, s.from + x), from));
        return hn::BitCast(d, hn::Xor(hn::And(moved, hn::Set(d32, map.keep)), hn::Set(d32, map.flip)));
    });
}

void add(const SpanOf& s, std::uint32_t plus, std::uint32_t minus)
{
    forPixels<std::uint8_t>(s, [&](auto d, int x) HWY_ATTR {
        const hn::Repartition<std::uint32_t, decltype(d)> d32;
        const auto more = hn::SaturatedAdd(loadBytes(d, s.from + x), hn::BitCast(d, hn::Set(d32, plus)));
        return hn::SaturatedSub(more, hn::BitCast(d, hn::Set(d32, minus)));
    });
}

#if HWY_TARGET == HWY_AVX3_DL

struct TableRows {
    explicit TableRows(const std::uint8_t* entries) { std::memcpy(rows, entries, sizeof rows); }
    alignas(64) std::uint8_t rows[256];
};

/// table[byte] of each byte: look-ups in 128 entries.
template <class D8> HWY_INLINE hn::Vec<D8> lookedUp(D8 d, hn::Vec<D8> source, const TableRows& table)
{
    constexpr bool isFull = hn::MaxLanes(d) == 64; // or a pixel in a register of 16 bytes
    const hn::ScalableTag<std::uint8_t> full;
    __m512i index;
    if constexpr (isFull)
        index = source.raw;
    else
        index = _mm512_castsi128_si512(source.raw);
    const auto of128 = [&](const std::uint8_t* rows) HWY_ATTR {
        return _mm512_permutex2var_epi8(hn::Load(full, rows).raw, index, hn::Load(full, rows + 64).raw);
    };
    const __m512i found =
        _mm512_mask_blend_epi8(_mm512_movepi8_mask(index), of128(table.rows), of128(table.rows + 128));
    if constexpr (isFull)
        return hn::Vec<D8>{found};
    else
        return hn::Vec<D8>{_mm512_castsi512_si128(found)};
}

#elif HWY_TARGET == HWY_SSE4

/// A table for each channel, with its entries at their place in the pixel.
struct TableRows {
    explicit TableRows(const std::uint8_t* entries)
    {
        for (int c = 0; c < 3; ++c)
            for (std::size_t i = 0; i < 256; ++i) of[c][i] = std::uint32_t(entries[i]) << 8 * c;
    }
    std::uint32_t operator[](std::uint64_t pixel) const
    {
        return of[0][pixel & 255] | of[1][pixel >> 8 & 255] | of[2][pixel >> 16 & 255];
    }
    std::uint32_t of[3][256];
};

/// table[byte] of each channel; the fourth bytes are 0. Single look-ups: those in sixteen entries by vectors of 16
/// bytes take twice as long.
template <class D8> HWY_INLINE hn::Vec<D8> lookedUp(D8 d, hn::Vec<D8> source, const TableRows& table)
{
    if constexpr (hn::MaxLanes(d) == 16) {
        const hn::Repartition<std::uint64_t, D8> d64;
        const auto two = [&](std::uint64_t pixels) { return table[pixels] | std::uint64_t(table[pixels >> 32]) << 32; };
        const auto pixels = hn::BitCast(d64, source);
        const auto first = hn::Set(d64, two(hn::GetLane(pixels)));
        return hn::BitCast(d, hn::InsertLane(first, 1, two(hn::ExtractLane(pixels, 1))));
    } else {
        const hn::Repartition<std::uint32_t, D8> one;
        return hn::BitCast(d, hn::Set(one, table[hn::GetLane(hn::BitCast(one, source))]));
    }
}

#else

/// A table of 256 bytes in rows of sixteen, every other one as its difference from the one before.
struct TableRows {
    explicit TableRows(const std::uint8_t* entries)
    {
        for (std::size_t i = 0; i < 256; ++i)
            rows[i] = static_cast<std::uint8_t>(entries[i] ^ (i & 16 ? entries[i - 16] : 0));
    }
    alignas(64) std::uint8_t rows[256];
};

/// table[byte] of each byte. Look-ups in sixteen entries by the low half of a byte; its high half then selects among
/// them bit by bit, the lowest one by adding a difference or none.
template <class D8> HWY_INLINE hn::Vec<D8> lookedUp(D8 d, hn::Vec<D8> source, const TableRows& table)
{
    const auto bit = [&](int b) HWY_ATTR {
        const auto one = hn::Set(d, static_cast<std::uint8_t>(1 << b));
        return hn::Eq(hn::And(source, one), one);
    };
    const auto bit5 = bit(5), bit6 = bit(6), bit7 = bit(7);
    const auto low = hn::And(source, hn::Set(d, 15)), lowOrNone = hn::IfThenElse(bit(4), low, hn::Set(d, 0x80));
    const auto sixteen = [&](int i, auto index) HWY_ATTR {
        if constexpr (hn::MaxLanes(d) > 16)
            return hn::TableLookupBytesOr0(hn::LoadDup128(d, table.rows + 16 * i), index);
        else
            return hn::TableLookupBytesOr0(hn::Load(hn::FixedTag<std::uint8_t, 16>(), table.rows + 16 * i), index);
    };
    const auto two = [&](int i) HWY_ATTR { return hn::Xor(sixteen(i, low), sixteen(i + 1, lowOrNone)); };
    const auto four = [&](int i) HWY_ATTR { return hn::IfThenElse(bit5, two(i + 2), two(i)); };
    const auto eight = [&](int i) HWY_ATTR { return hn::IfThenElse(bit6, four(i + 4), four(i)); };
    return hn::IfThenElse(bit7, eight(8), eight(0));
}

#endif

void table(const SpanOf& s, const std::uint8_t* entries)
{
    const TableRows rows(entries);
    forPixels<std::uint8_t>(s, [&](auto d, int x) VELARA_INLINED {
        const auto source = loadBytes(d, s.from + x);
        return withFourthOf(d, source, lookedUp(d, source, rows));
    });
}

/// Passes each channel's excess on until all are bytes; bytes stay as they are. Lanes of 32 or 64 bits.
template <class D, class V> HWY_INLINE void balance(D d, V& b, V& g, V& r)
{
    const auto zero = hn::Zero(d), most = hn::Set(d, 255), notByte = hn::Set(d, ~255);
    const auto pass = [&](V& from, V& one, V& other) HWY_ATTR {
        const auto limited = hn::Min(hn::Max(from, zero), most);
        const auto excess = hn::Sub(from, limited);
        const auto half = hn::ShiftRight<1>(hn::Add(excess, hn::And(hn::Set(d, 1), hn::BroadcastSignBit(excess))));
        from = limited;
        one = hn::Add(one, half);
        other = hn::Add(other, half);
    };
    while (!hn::AllTrue(d, hn::Eq(hn::And(hn::Or(hn::Or(b, g), r), notByte), zero))) {
        const auto brightest = hn::Max(hn::Max(b, g), r), darkest = hn::Min(hn::Min(b, g), r);
        const auto black = hn::Lt(brightest, hn::Set(d, 1)), white = hn::Gt(darkest, hn::Set(d, 254));
        for (V* v : {&b, &g, &r}) *v = hn::IfThenElse(white, most, hn::IfThenZeroElse(black, *v));
        pass(b, g, r);
        pass(g, r, b);
        pass(r, b, g);
    }
}

void stretch(const SpanOf& s, const StretchTable& to)
{
    const TableRows limited(to.limited.data());
    forPixels<std::uint8_t>(s, [&](auto d, int x) VELARA_INLINED {
        const hn::Repartition<std::int32_t, decltype(d)> d32;
        const auto source = loadBytes(d, s.from + x);
        const auto result = withFourthOf(d, source, lookedUp(d, source, limited));
        const auto above = hn::Sub(source, hn::Set(d, to.low)); // low, in bytes that wrap around
        const auto within = hn::Eq(hn::Min(above, hn::Set(d, static_cast<std::uint8_t>(to.high - to.low))), above);
        const auto colour = hn::Set(d32, 0xFFFFFF);
        const auto leaves = hn::Ne(hn::AndNot(hn::BitCast(d32, hn::VecFromMask(d, within)), colour), hn::Zero(d32));
        if (HWY_LIKELY(hn::AllFalse(d32, leaves))) return result;
        if (to.isWide)
            return redone(d, result, leaves, [&](int i) {
                const hn::CappedTag<std::int64_t, 1> one;
                Pixel p = s.from[x + i];
                auto b = hn::Set(one, to.entries[p.c[0]]), g = hn::Set(one, to.entries[p.c[1]]),
                     r = hn::Set(one, to.entries[p.c[2]]);
                balance(one, b, g, r);
                for (int c = 0; c < 3; ++c)
                    p.c[c] = static_cast<std::uint8_t>(hn::GetLane(c == 0 ? b : c == 1 ? g : r));
                return p;
            });
        const auto v = hn::BitCast(d32, source);
        auto b = loadComputed(d32, to.entries.data(), channel<0>(d32, v)),
             g = loadComputed(d32, to.entries.data(), channel<1>(d32, v)),
             r = loadComputed(d32, to.entries.data(), channel<2>(d32, v));
        balance(d32, b, g, r);
        return withFourthOf(d, source, joined(d, d32, b, g, r));
    });
}

void threshold(const SpanOf& s, int bound)
{
    forPixels<std::uint8_t>(s, [&](auto d, int x) HWY_ATTR {
        const hn::Repartition<std::int32_t, decltype(d)> d32;
        const auto source = loadBytes(d, s.from + x);
        const auto white = hn::VecFromMask(d32, hn::Gt(sumOf(d32, hn::BitCast(d32, source)), hn::Set(d32, bound)));
        return withFourthOf(d, source, hn::BitCast(d, white));
    });
}

/// floor((sum + 500) / 1000) for sums of 0..255000: an eighth of it divided by 125, exact in 16 bits.
template <class D32, class V> HWY_INLINE V thousandths(D32 d32, V sum)
{
    const hn::Repartition<std::uint16_t, D32> d16;
    const auto eighth = hn::ShiftRight<3>(hn::Add(sum, hn::Set(d32, 500)));
    const auto high = hn::MulHigh(hn::BitCast(d16, eighth), hn::Set(d16, 33555));
    return hn::BitCast(d32, hn::ShiftRight<6>(high));
}

/// round(value(pixel)) in the bytes that keep doesn't cover; weights are those of value. Exact halves are redone in
/// double.
template <class Value> HWY_INLINE void greyBy(const SpanOf& s, std::uint32_t keep, const Weights& weights, Value value)
{
    forPixels<std::uint8_t>(s, [&](auto d, int x) HWY_ATTR {
        const hn::Repartition<std::int32_t, decltype(d)> d32;
        const auto source = hn::BitCast(d32, loadBytes(d, s.from + x));
        const auto kept = hn::Set(d32, static_cast<std::int32_t>(keep));
        const auto sum = weighed(d32, source, weights);
        const auto v = thousandths(d32, sum);
        const auto all = hn::Or(hn::Or(v, hn::ShiftLeft<8>(v)), hn::ShiftLeft<16>(v));
        const auto result = hn::BitCast(d, hn::Or(hn::And(kept, source), hn::AndNot(kept, all)));
        const hn::Repartition<std::int16_t, decltype(d)> d16;
        const auto whole = plusPairs(d32, hn::BitCast(d16, v), hn::Set(d16, 1000), hn::Zero(d32));
        const auto tie = hn::Eq(hn::Add(sum, hn::Set(d32, 500)), whole);
        return redone(d, result, tie, [&](int i) {
            Pixel p = s.from[x + i];
            const std::uint8_t g = toByte(value(p));
            for (int c = 0; c < 3; ++c)
                if (!(keep >> 8 * c & 255)) p.c[c] = g;
            return p;
        });
    });
}

void grey(const SpanOf& s, std::uint32_t keep)
{
    greyBy(s, keep, kGreyWeights, [](const Pixel& p) { return greyOf(p); });
}

void brightness(const Pixel* from, int n, Pixel* out)
{
    // in runs too short for non-temporal stores, since they are read at once
    for (int x = 0; x < n; x += kStreamFrom / 2)
        greyBy({from, 0, out, x, std::min(n, x + kStreamFrom / 2)}, kFourthByte, kBrightnessWeights,
               [](const Pixel& p) { return brightnessOf(p); });
}

void bySum(const SpanOf& s, const std::uint32_t* table)
{
    forPixels<std::uint8_t>(s, [&](auto d, int x) HWY_ATTR {
        const hn::Repartition<std::int32_t, decltype(d)> d32;
        const auto source = loadBytes(d, s.from + x);
        const auto sum = sumOf(d32, hn::BitCast(d32, source));
        const auto colour = loadComputed(d32, reinterpret_cast<const std::int32_t*>(table), sum);
        return withFourthOf(d, source, hn::BitCast(d, colour));
    });
}

void saturate(const SpanOf& s, float k, bool roundsSum)
{
    const auto run = [&](auto roundsAll) HWY_ATTR {
        forPixels<std::uint8_t>(s, [&](auto d, int x) HWY_ATTR {
            const hn::Repartition<std::int32_t, decltype(d)> d32;
            const hn::Repartition<float, decltype(d)> df;
            const hn::Repartition<std::uint16_t, decltype(d)> d16;
            const auto source = loadBytes(d, s.from + x);
            const auto v = hn::BitCast(d32, source);
            const auto third = hn::BitCast(d32, hn::MulHigh(hn::BitCast(d16, sumOf(d32, v)), hn::Set(d16, 21846)));
            const auto strengthen = [&](auto c) HWY_ATTR {
                const auto away = hn::Mul(hn::ConvertTo(df, hn::Sub(c, third)), hn::Set(df, k));
                const auto to = roundsAll() ? rounded(d32, hn::Add(away, hn::ConvertTo(df, c))).whole
                                            : hn::Add(rounded(d32, away).whole, c);
                return hn::Min(hn::Max(to, hn::Zero(d32)), hn::Set(d32, 255));
            };
            const auto c0 = strengthen(channel<0>(d32, v)), c1 = strengthen(channel<1>(d32, v)),
                       c2 = strengthen(channel<2>(d32, v));
            return withFourthOf(d, source, joined(d, d32, c0, c1, c2));
        });
    };
    if (roundsSum)
        run([] { return std::true_type(); });
    else
        run([] { return std::false_type(); });
}

void byGreySum(const SpanOf& s, const std::uint16_t* greys, const std::function<std::uint8_t(const Pixel&)>& redo)
{
    forPixels<std::uint8_t>(s, [&](auto d, int x) HWY_ATTR {
        const hn::Repartition<std::int32_t, decltype(d)> d32;
        const auto bytes = loadBytes(d, s.from + x);
        const auto offset = hn::ShiftLeft<1>(weighed(d32, hn::BitCast(d32, bytes), kGreyWeights));
        const auto two = hn::GatherOffset(d32, reinterpret_cast<const std::int32_t*>(greys), offset);
        const auto v = hn::And(two, hn::Set(d32, 0xFFFF));
        const auto again = hn::Eq(v, hn::Set(d32, int{kGreyInDoubt}));
        return redone(d, withFourthOf(d, bytes, joined(d, d32, v, v, v)), again, [&](int i) {
            const std::uint8_t grey = redo(s.from[x + i]);
            return Pixel{{grey, grey, grey, s.from[x + i].c[3]}};
        });
    });
}

std::uint32_t sumOfThirds(const Pixel* from, int n)
{
    const hn::ScalableTag<std::int32_t> d32;
    const hn::Repartition<std::uint16_t, decltype(d32)> d16;
    const int lanes = static_cast<int>(hn::Lanes(d32));
    auto total = hn::Zero(d32);
    int i = 0;
    for (; i + lanes <= n; i += lanes) {
        const auto sum = sumOf(d32, hn::LoadU(d32, reinterpret_cast<const std::int32_t*>(from + i)));
        total = hn::Add(total, hn::BitCast(d32, hn::MulHigh(hn::BitCast(d16, sum), hn::Set(d16, 21846))));
    }
    auto all = static_cast<std::uint32_t>(hn::GetLane(hn::SumOfLanes(d32, total)));
    for (; i < n; ++i) all += static_cast<std::uint32_t>((from[i].c[0] + from[i].c[1] + from[i].c[2]) / 3);
    return all;
}

void copyPast(const Pixel* from, Pixel* to, int n)
{
    forPixels<std::uint8_t>({from, 0, to, 0, n}, [&](auto d, int x) HWY_ATTR { return loadBytes(d, from + x); });
}

const ColourKernels& colourKernelTable()
{
    static constexpr ColourKernels kernels = {channels, add,      table,     stretch,    threshold,   grey,
                                              bySum,    saturate, byGreySum, brightness, sumOfThirds, copyPast};
    return kernels;
}

} // namespace velara::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace velara {

HWY_EXPORT(colourKernelTable);
const ColourKernels& colourKernels() { return HWY_DYNAMIC_DISPATCH(colourKernelTable)(); }

} // namespace velara
#endif
