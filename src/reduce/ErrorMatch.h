// The entry of a palette for a pixel and the error that comes in with it, and the error that goes out.
#pragma once
#include "pixels/nearest/NearestColours.h"
#include <algorithm>
#include <array>

namespace velara {

/// Changes as it is used: each thread has its own. The picture must outlive it.
class ErrorMatch {
  public:
    /// nearest: of the same colours, by squared distance.
    ErrorMatch(const Bits& bits, const std::vector<Pixel>& colours, const NearestColours& nearest)
        : bits_(bits), nearest_(nearest)
    {
        for (const Pixel& p : colours) {
            const auto word = [](int v) { return static_cast<std::int16_t>(v); };
            lanes_.push_back(wide(p));
            colours_.push_back({p.c[0], p.c[1], p.c[2], 0});
            sevens_.push_back({word(7 * p.c[0]), word(7 * p.c[1]), word(7 * p.c[2]), 0});
        }
    }

    /// The entry nearest to pixel plus errors, and the new error; late is what the pixel before it gives, which is
    /// added last, as everything waits for it. With an error, lookups are quantised to cubes of four levels: the loss
    /// is diffused with the rest, and the table stays in the cache. A plain place whose entry can't be told from it
    /// stays plain: no error comes in or goes out.
    [[gnu::always_inline]] Lanes put(std::uint8_t& to, int x, int y, Lanes error, Lanes late = Lanes{})
    {
        constexpr int kUnseen = 3; // squared distance: one level a channel
        const Pixel* const row = bits_.row(y);
        const Pixel p = row[x];
        if (isSame(p, row[std::max(x - 1, 0)]) && isPlain(x, y)) {
            const int entry = nearest_(p);
            const Lanes off = wide(p) - lanes_[std::size_t(entry)], squares = off * off;
            if (squares[0] + squares[1] + squares[2] <= kUnseen) {
                to = static_cast<std::uint8_t>(entry);
                return Lanes{};
            }
        }
        const Lanes wanted = wide(p) + error + late;
        const Pixel shown = narrowLimited(wanted);
        const int entry = isSame(shown, p) ? nearest_(shown) : nearly(shown);
        to = static_cast<std::uint8_t>(entry);
        return limited(wanted - lanes_[std::size_t(entry)], -kMostError, kMostError);
    }
    /// The new error, and seven sixteenths of it. The fourth lanes are 0.
    struct Left {
        Words error, seven;
    };
    /// put() for the usual pixel, without a call, so that a loop keeps all in registers, and with the fewest steps from
    /// late to left.seven. False: nothing has been done.
    [[gnu::always_inline]] bool putQuickly(std::uint8_t& to, int x, int y, Words error, Words late, Left& left) const
    {
        const Pixel* const row = bits_.row(y);
        const auto p = std::bit_cast<Pixel>(channelBits(row[x]));
        const Words wanted = wordsOf(p) + error + late;
        const Pixel shown = narrowLimited(wanted);
        const std::uint32_t cell = cellOf(shown);
        if (isSame(p, row[std::max(x - 1, 0)]) || isSame(shown, p) || !isKnown(cell)) return false;
        const std::uint8_t entry = nearly_[cell];
        const Words off = wanted - fourWordsAt(colours_[entry].data());
        if (anyBeyond(off, kMostError)) return false;
        to = entry;
        left = {off, (wanted * 7 - fourWordsAt(sevens_[entry].data())) >> 4};
        return true;
    }
    /// The same for any pixel.
    Left putAny(std::uint8_t& to, int x, int y, Words error, Words late)
    {
        const Words left = threeWordsOf(put(to, x, y, lanesOf(error), lanesOf(late)));
        return {left, left * 7 >> 4};
    }
    /// The error that a line of diffusion starts with. It varies evenly between plus and minus the first pixel's error,
    /// so that neighbouring lines don't produce the same pattern.
    Lanes seed(Pixel p, int line)
    {
        const Lanes error = wide(p) - lanes_[std::size_t(nearest_(p))];
        const int part = static_cast<int>(static_cast<std::uint32_t>(line) * 2654435769U >> 23) - 256; // golden ratio
        return error * part / 256;
    }

  private:
    static constexpr int kMostError =
        160; // a channel; the rest is dropped, so that colours outside the palette's gamut don't smear

    static bool isSame(Pixel a, Pixel b) { return channelBits(a) == channelBits(b); }
    /// The same colour all around, wider than the steps of a smooth ramp.
    [[gnu::noinline]] bool isPlain(int x, int y) const
    {
        const Pixel p = bits_.row(y)[x];
        for (const int reach : {1, 6}) {
            const int left = std::max(x - reach, 0), right = std::min(x + reach, bits_.width() - 1);
            const int above = std::max(y - reach, 0), below = std::min(y + reach, bits_.height() - 1);
            if (!isSame(p, bits_.row(y)[left]) || !isSame(p, bits_.row(y)[right]) || !isSame(p, bits_.row(above)[x]) ||
                !isSame(p, bits_.row(below)[x]))
                return false;
        }
        return true;
    }
    static std::uint32_t cellOf(Pixel p)
    {
        const auto w = std::bit_cast<std::uint32_t>(p);
        return (w >> 2 & 63) | (w >> 4 & 63 << 6) | (w >> 6 & 63 << 12);
    }
    bool isKnown(std::uint32_t cell) const { return known_[cell / 64] >> cell % 64 & 1; }
    int nearly(Pixel p)
    {
        const std::uint32_t cell = cellOf(p);
        if (!isKnown(cell)) [[unlikely]] {
            const auto middle = std::bit_cast<Pixel>((channelBits(p) & 0xFCFCFC) | 0x020202);
            nearly_[cell] = static_cast<std::uint8_t>(nearest_(middle));
            known_[cell / 64] |= std::uint64_t{1} << cell % 64;
        }
        return nearly_[cell];
    }

    const Bits& bits_;
    std::vector<Lanes> lanes_;
    std::vector<std::array<std::int16_t, 4>> colours_, sevens_; // the same as words, and seven times
    NearestColours nearest_;
    std::vector<std::uint8_t> nearly_ = std::vector<std::uint8_t>(64 * 64 * 64); // the known ones, a bit each:
    std::vector<std::uint64_t> known_ = std::vector<std::uint64_t>(64 * 64);
};

} // namespace velara
