#include "reduce/dither.h"
#include "pixels/NearestColours.h"
#include "pixels/Register.h"
#include "pixels/threads/Copies.h"
#include "pixels/threads/parallelFor.h"
#include "reduce/DotScreen.h"
#include <algorithm>
#include <span>

namespace velara {

namespace {

constexpr int kMostError =
    160; // a channel; the rest is dropped, so that colours outside the palette's gamut don't smear

class Work {
  public:
    Work(const Bits& bits, const Palette& palette, const ReduceProgress& progress)
        : bits_(bits), progress_(progress), colours_(pixelsOf(palette)),
          nearest_(colours_, Distance::Squares), picture_{bits.width(), bits.height(), {}, palette}
    {
        picture_.indices.resize(static_cast<std::size_t>(bits.width()) * static_cast<std::size_t>(bits.height()));
        for (const Pixel& p : colours_) lanes_.push_back(wide(p));
    }
    IndexedPicture take() { return std::move(picture_); }

    /// The entry nearest to what of(pixel) gives; pixels are independent.
    template <class Of> void eachPixel(Of of)
    {
        Copies<NearestColours> nearest([&] { return nearest_; });
        const auto row = [&](int y) {
            const Pixel* from = bits_.row(y);
            std::uint8_t* to = rowOf(y);
            nearest.lend([&](NearestColours& own) {
                for (int x = 0; x < bits_.width(); ++x) to[x] = static_cast<std::uint8_t>(own(of(from[x])));
            });
        };
        parallelFor(bits_.height(), turnsTogether(bits_.width()), row, [this](int y) { told(y); });
    }

    void screened(const DotMatrix& matrix, PaletteOf origin)
    {
        Copies<DotScreen> screens(
            [&, many = hasManyColours()] { return DotScreen(colours_, nearest_, matrix, origin, many); });
        const auto row = [&](int y) {
            screens.lend([&](DotScreen& own) { own.row(bits_.row(y), rowOf(y), bits_.width(), y); });
        };
        parallelFor(bits_.height(), turnsTogether(bits_.width()), row, [this](int y) { told(y); });
    }

    /// All of the error goes to the next row, shift columns to the right.
    void downwards(int shift)
    {
        const int width = bits_.width();
        std::vector<Lanes> errors(static_cast<std::size_t>(width)), next(errors);
        for (int y = 0; y < bits_.height(); ++y) {
            const Pixel* from = bits_.row(y);
            std::uint8_t* to = rowOf(y);
            const auto seedAt = [&](int x) { errors[std::size_t(x)] = seed(from[x], x + y); };
            for (int x = 0; y == 0 && x < width; ++x) seedAt(x);
            if (y > 0 && shift != 0) seedAt(shift > 0 ? 0 : width - 1); // where a diagonal begins
            for (int x = 0; x < width; ++x) {
                const Lanes error = put(to[x], x, y, errors[std::size_t(x)]);
                if (unsigned(x + shift) < unsigned(width)) next[std::size_t(x + shift)] = error;
            }
            std::swap(errors, next);
            told(y);
        }
    }

    /// Rows are independent; several are interleaved to hide the serial dependency along a row.
    void alongRows()
    {
        constexpr int kAbreast = 4;
        for (int y = 0; y < bits_.height(); y += kAbreast) {
            std::array<Lanes, kAbreast> errors;
            const int rows = std::min(kAbreast, bits_.height() - y);
            for (int i = 0; i < rows; ++i) errors[std::size_t(i)] = seed(bits_.row(y + i)[0], y + i);
            const auto along = [&](int count) {
                for (int x = 0; x < bits_.width(); ++x)
                    for (int i = 0; i < count; ++i)
                        errors[std::size_t(i)] = put(rowOf(y + i)[x], x, y + i, errors[std::size_t(i)]);
            };
            rows == kAbreast ? along(kAbreast) : along(rows);
            told(y + kAbreast - 1);
        }
    }

    /// Floyd-Steinberg weights: 7/16 to the next pixel, 3, 5 and 1 sixteenths below; rows of this parity run from right
    /// to left.
    void turning(int parity)
    {
        const int width = bits_.width();
        std::vector<Lanes> errors(static_cast<std::size_t>(width) + 2), next(errors); // one more at each end
        for (int y = 0; y < bits_.height(); ++y) {
            const bool back = y % 2 == parity;
            const int step = back ? -1 : 1, first = back ? width - 1 : 0;
            std::uint8_t* to = rowOf(y) + first;
            const Lanes* here = errors.data() + 1 + first;
            Lanes* below = next.data() + 1 + first;
            Lanes ahead{}, under{}, corner{}; // carried to the next pixel, the one below this, the one below the next
            for (int i = 0; i < width; ++i, to += step, here += step, below += step) {
                const Lanes error = put(*to, first + i * step, y, *here + ahead);
                const Lanes right = error * 7 >> 4, back3 = error * 3 >> 4, middle = error * 5 >> 4;
                below[-step] = under + back3;
                under = corner + middle;
                corner = error - right - back3 - middle;
                ahead = right;
            }
            below[-step] = under;
            std::swap(errors, next);
            told(y);
        }
    }

  private:
    /// So many that a mixture for each of them would take longer than it is worth.
    bool hasManyColours() const
    {
        constexpr int kMany = 1 << 14;
        std::vector<bool> known(1 << 24);
        int count = 0;
        for (int y = 0; y < bits_.height() && count < kMany; ++y)
            for (int x = 0; x < bits_.width(); ++x) {
                auto seen = known[channelBits(bits_.row(y)[x])];
                count += !seen;
                seen = true;
            }
        return count >= kMany;
    }
    static std::vector<Pixel> pixelsOf(const Palette& palette)
    {
        std::vector<Pixel> pixels;
        std::ranges::transform(palette, std::back_inserter(pixels), pixelFor);
        return pixels;
    }
    std::uint8_t* rowOf(int y)
    {
        return picture_.indices.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(bits_.width());
    }
    void told(int y) const
    {
        if (progress_ && y % 16 == 15) progress_(100 * y / bits_.height());
    }
    static bool isSame(Pixel a, Pixel b) { return channelBits(a) == channelBits(b); }
    /// The entry nearest to pixel plus error, and the new error. With an error, lookups are quantised to cubes of four
    /// levels: the loss is diffused with the rest, and the table stays in the cache. A plain place whose entry can't be
    /// told from it stays plain: no error comes in or goes out.
    Lanes put(std::uint8_t& to, int x, int y, Lanes error)
    {
        constexpr int kUnseen = 3; // squared distance: one level a channel
        const Pixel p = bits_.row(y)[x];
        if (isPlain(x, y)) {
            const int entry = nearest_(p);
            const Lanes off = wide(p) - lanes_[std::size_t(entry)], squares = off * off;
            if (squares[0] + squares[1] + squares[2] <= kUnseen) {
                to = static_cast<std::uint8_t>(entry);
                return Lanes{};
            }
        }
        const Lanes wanted = wide(p) + error;
        const Pixel shown = narrow(limited(wanted, 0, 255));
        const int entry = isSame(shown, p) ? nearest_(shown) : nearly(shown);
        to = static_cast<std::uint8_t>(entry);
        return limited(wanted - lanes_[std::size_t(entry)], -kMostError, kMostError);
    }
    /// The same colour all around, wider than the steps of a smooth ramp.
    bool isPlain(int x, int y) const
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
    int nearly(Pixel p)
    {
        const auto w = std::bit_cast<std::uint32_t>(p);
        std::uint16_t& known = nearly_[(w >> 2 & 63) | (w >> 4 & 63 << 6) | (w >> 6 & 63 << 12)];
        if (known == 0) [[unlikely]]
            known = static_cast<std::uint16_t>(1 + nearest_(std::bit_cast<Pixel>((w & 0xFCFCFC) | 0x020202)));
        return known - 1;
    }
    /// The error that a line of diffusion starts with. It varies evenly between plus and minus the first pixel's error,
    /// so that neighbouring lines don't produce the same pattern.
    Lanes seed(Pixel p, int line)
    {
        const Lanes error = wide(p) - lanes_[std::size_t(nearest_(p))];
        const int part = static_cast<int>(static_cast<std::uint32_t>(line) * 2654435769U >> 23) - 256; // golden ratio
        return error * part / 256;
    }

    const Bits& bits_;
    const ReduceProgress& progress_;
    std::vector<Pixel> colours_;
    std::vector<Lanes> lanes_;
    NearestColours nearest_;
    std::vector<std::uint16_t> nearly_ = std::vector<std::uint16_t>(64 * 64 * 64); // position + 1
    IndexedPicture picture_;
};

Pixel blackOrWhite(Pixel p)
{
    for (int channel = 0; channel < 3; ++channel) p.c[channel] = p.c[channel] < 128 ? 0 : 255;
    return p;
}

} // namespace

bool mixesColours(Dither dither)
{
    static constexpr Dither kMixing[] = {Dither::Ordered,      Dither::Haftone,    Dither::ForwardDiag,
                                         Dither::BackwardDiag, Dither::Horizontal, Dither::Vertical,
                                         Dither::Odd,          Dither::Even};
    return std::ranges::find(kMixing, dither) != std::end(kMixing);
}

IndexedPicture dithered(const Bits& bits, const Palette& palette, Dither dither, const ReduceProgress& progress,
                        PaletteOf origin)
{
    Work work(bits, palette, progress);
    switch (dither) {
    case Dither::Binary:
        work.eachPixel(blackOrWhite);
        break;
    case Dither::Ordered:
        work.screened(kDispersedDots, origin);
        break;
    case Dither::Haftone:
        work.screened(kClusteredDots, origin);
        break;
    case Dither::ForwardDiag:
        work.downwards(1);
        break;
    case Dither::BackwardDiag:
        work.downwards(-1);
        break;
    case Dither::Vertical:
        work.downwards(0);
        break;
    case Dither::Horizontal:
        work.alongRows();
        break;
    case Dither::Odd:
        work.turning(1);
        break;
    case Dither::Even:
        work.turning(0);
        break;
    case Dither::None:
    default:
        work.eachPixel([](Pixel p) { return p; });
    }
    return work.take();
}

} // namespace velara
