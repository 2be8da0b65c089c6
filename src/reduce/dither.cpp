#include "reduce/dither.h"
#include "pixels/Register.h"
#include "pixels/nearest/NearestColours.h"
#include "pixels/threads/Copies.h"
#include "pixels/threads/inWaves.h"
#include "pixels/threads/parallelFor.h"
#include "reduce/ErrorMatch.h"
#include "reduce/mixing/DotScreen.h"
#include <algorithm>
#include <span>
#include <utility>

namespace velara {

namespace {

constexpr int kFollowing = 256; // columns, from one look at the row above to the next

class Work {
  public:
    Work(const Bits& bits, const Palette& palette, const ReduceProgress& progress)
        : bits_(bits), progress_(progress), colours_(pixelsOf(palette)),
          nearest_(colours_, Distance::Squares), picture_{bits.width(), bits.height(), {}, palette}
    {
        picture_.indices.resize(static_cast<std::size_t>(bits.width()) * static_cast<std::size_t>(bits.height()));
    }
    IndexedPicture take() { return std::move(picture_); }

    /// The entries nearest to the pixels that of(row, line) gives for a row: its own, or those that it writes to line.
    template <class Of> void eachRow(Of of)
    {
        struct Own {
            NearestColours nearest;
            std::vector<Pixel> line;
        };
        if (threadCount() > 1) nearest_.expect(fewPixels());
        Copies<Own> copies([&] { return Own{nearest_, std::vector<Pixel>(std::size_t(bits_.width()))}; });
        const auto row = [&](int y) {
            copies.lend([&](Own& own) { own.nearest.entries(of(bits_.row(y), own.line), rowOf(y), bits_.width()); });
        };
        parallelFor(bits_.height(), turnsTogether(bits_.width()), row, [this](int y) { told(y); });
    }

    void screened(const DotMatrix& matrix, PaletteOf origin)
    {
        const DotScreen screen(bits_, colours_, matrix, origin, progress_);
        const auto row = [&](int y) { screen.row(bits_.row(y), rowOf(y), bits_.width(), y); };
        parallelFor(bits_.height(), turnsTogether(bits_.width()), row, [this](int y) { told(y); });
    }

    /// All of the error goes to the next row, shift columns to the right. Rows follow one another.
    void downwards(int shift)
    {
        const int width = bits_.width(), shown = threadCount() + 1;
        const auto columns = static_cast<std::size_t>(width);
        std::vector<std::vector<Lanes>> errors(static_cast<std::size_t>(shown), std::vector<Lanes>(columns)); // of rows
        const int together = std::clamp(turnsTogether(1), 1, kFollowing);
        const auto row = [&](int y, ErrorMatch& match, Wave& wave) {
            std::vector<Lanes>& here = errors[std::size_t(y % shown)];
            Lanes* const next = errors[std::size_t((y + 1) % shown)].data();
            const auto seedAt = [&](int x) { here[std::size_t(x)] = match.seed(bits_.row(y)[x], x + y); };
            for (int x = 0; y == 0 && x < width; ++x) seedAt(x);
            if (y > 0 && shift != 0) seedAt(shift > 0 ? 0 : width - 1); // where a diagonal begins
            std::uint8_t* to = rowOf(y);
            for (int x0 = 0; x0 < width; x0 += together) {
                const int x1 = std::min(x0 + together, width);
                if (!wave.follow(y, std::min(x1 - std::min(shift, 0), width))) return;
                for (int x = x0; x < x1; ++x) {
                    const Lanes error = match.put(to[x], x, y, here[std::size_t(x)]);
                    if (unsigned(x + shift) < unsigned(width)) next[x + shift] = error;
                }
                wave.reach(y, x1);
            }
        };
        Copies<ErrorMatch> matches([this] { return newMatch(); });
        inWaves(
            bits_.height(), width,
            [&](int y, Wave& wave) { matches.lend([&](ErrorMatch& own) { row(y, own, wave); }); },
            [this](int y) { told(y); });
    }

    /// Rows are independent; several are interleaved to hide the serial dependency along a row.
    void alongRows()
    {
        constexpr int kAbreast = 4;
        const auto group = [&](int y, ErrorMatch& match) {
            std::array<Lanes, kAbreast> errors;
            const int rows = std::min(kAbreast, bits_.height() - y);
            for (int i = 0; i < rows; ++i) errors[std::size_t(i)] = match.seed(bits_.row(y + i)[0], y + i);
            const auto along = [&](int count) {
                for (int x = 0; x < bits_.width(); ++x)
                    for (int i = 0; i < count; ++i)
                        errors[std::size_t(i)] = match.put(rowOf(y + i)[x], x, y + i, errors[std::size_t(i)]);
            };
            rows == kAbreast ? along(kAbreast) : along(rows);
        };
        Copies<ErrorMatch> matches([this] { return newMatch(); });
        parallelFor((bits_.height() + kAbreast - 1) / kAbreast, turnsTogether(kAbreast * bits_.width()),
                    [&](int i) { matches.lend([&](ErrorMatch& own) { group(i * kAbreast, own); }); },
                    [this](int i) { told(i * kAbreast + kAbreast - 1); });
    }

    /// Floyd-Steinberg weights: 7/16 to the next pixel, 3, 5 and 1 sixteenths below; rows of this parity run from right
    /// to left. On one thread: a row begins where the one above it ends, so no two rows can be under way.
    void turning(int parity)
    {
        ErrorMatch match = newMatch();
        const int width = bits_.width();
        using Stored = std::array<std::int16_t, 4>;
        std::vector<Stored> errors(static_cast<std::size_t>(width) + 2), next(errors); // one more at each end
        for (int y = 0; y < bits_.height(); ++y) {
            const bool back = y % 2 == parity;
            const int step = back ? -1 : 1, first = back ? width - 1 : 0;
            std::uint8_t* to = rowOf(y) + first;
            const Stored* here = errors.data() + 1 + first;
            Stored* below = next.data() + 1 + first;
            Words ahead{}, under{}, corner{}; // carried to the next pixel, the one below this, the one below the next
            int i = 0;
            const auto spread = [&](const ErrorMatch::Left& left) {
                const Words back3 = left.error * 3 >> 4, middle = left.error * 5 >> 4;
                putFour(under + back3, below[-step].data());
                under = corner + middle;
                corner = left.error - left.seven - back3 - middle;
                ahead = left.seven;
                ++i, to += step, here += step, below += step;
            };
            while (i < width) {
                ErrorMatch::Left left;
                while (i < width && match.putQuickly(*to, first + i * step, y, fourWordsAt(here->data()), ahead, left))
                    spread(left);
                if (i < width) spread(match.putAny(*to, first + i * step, y, fourWordsAt(here->data()), ahead));
            }
            putFour(under, below[-step].data());
            std::swap(errors, next);
            told(y);
        }
    }

  private:
    /// From all over a big picture, none of a small one.
    std::vector<Pixel> fewPixels() const
    {
        constexpr int kStep = 32;
        std::vector<Pixel> pixels;
        for (int y = kStep / 2; y < bits_.height(); y += kStep)
            for (int x = kStep / 2; x < bits_.width(); x += kStep) pixels.push_back(bits_.row(y)[x]);
        return pixels;
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
    ErrorMatch newMatch() const { return ErrorMatch(bits_, colours_, nearest_); }

    const Bits& bits_;
    const ReduceProgress& progress_;
    std::vector<Pixel> colours_;
    NearestColours nearest_;
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
        work.eachRow([](const Pixel* row, std::vector<Pixel>& line) {
            std::transform(row, row + line.size(), line.begin(), blackOrWhite);
            return std::as_const(line).data();
        });
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
        work.eachRow([](const Pixel* row, std::vector<Pixel>&) { return row; });
    }
    return work.take();
}

} // namespace velara
