// The calling patterns of the filters that move pixels: tile by tile, so that sources and targets stay in the cache.
#pragma once
#include "engine/deform/kernels_place.h"
#include "engine/deform/kernels_warp.h"
#include "engine/passes.h"
#include "pixels/numbers.h"
#include <array>
#include <bit>
#include <cmath>

namespace velara {

/// The three channels of colour with the fourth byte of kept.
inline Pixel withColour(Pixel colour, Pixel kept)
{
    constexpr std::uint32_t kColour = 0xFFFFFF; // as one word, so that the compiler vectorises it
    const auto word = std::bit_cast<std::uint32_t>(colour) & kColour;
    return std::bit_cast<Pixel>(word | (std::bit_cast<std::uint32_t>(kept) & ~kColour));
}

constexpr std::uint64_t kAllPlaces = ~std::uint64_t(0);

/// Calls place(i) for each set bit i of places below n.
template <class Place> void eachPlace(std::uint64_t places, int n, Place&& place)
{
    for (; places != 0; places &= places - 1)
        if (const int i = std::countr_zero(places); i < n) place(i);
}

/// Splits x0..x1-1 into runs: run(first, n) with n <= kPlaces.
template <class Run> void eachRun(int x0, int x1, Run&& run)
{
    for (int x = x0; x < x1; x += kPlaces) run(x, std::min(kPlaces, x1 - x));
}

/// A rotation about the centre of a picture, cosine and sine rounded to single.
struct Turn {
    int cx, cy;
    float cs, sn;

    Turn(int maxX, int maxY, int degrees)
        : cx(maxX / 2), cy(maxY / 2), cs(static_cast<float>(std::cos(degrees * kDegreesToRadians))),
          sn(static_cast<float>(std::sin(degrees * kDegreesToRadians)))
    {
    }
    /// The rounded sources of the n <= kPlaces targets from (x0, y).
    void nearest(int x0, int y, int n, std::int32_t* sx, std::int32_t* sy) const
    {
        const double dx = x0 - cx, dy = y - cy;
        if (straightPlaces({dx * cs - dy * sn + cx, dx * sn + dy * cs + cy, cs, sn}, n, sx, sy)) return;
        lineOfPlaces(dx, cs, -(dy * sn), cx, n, sx);
        lineOfPlaces(dx, sn, dy * cs, cy, n, sy);
    }
    /// The same as floor and fraction.
    void split(int x0, int y, int n, std::int32_t* ix, std::int32_t* iy, float* fx, float* fy) const
    {
        const double dx = x0 - cx, dy = y - cy;
        lineOfSplitPlaces(dx, cs, -(dy * sn), cx, n, ix, fx);
        lineOfSplitPlaces(dx, sn, dy * cs, cy, n, iy, fy);
    }
};

/// Some rows of a box in tiles, a row of a tile at a time: run(x0, n, y) with n <= kPlaces. But for the ends of a row
/// all runs are of kPlaces targets and begin at a cache line of `to`.
template <class Run> void inTiles(const Box& box, int y0, int y1, const WrittenRows& to, Run&& run)
{
    constexpr int kLine = 64 / sizeof(Pixel);
    for (int x = box.xmin; x < box.xmax + kLine; x += kPlaces)
        for (int y = y0; y < y1; ++y) {
            const int first =
                x - static_cast<int>(reinterpret_cast<std::uintptr_t>(to.row(y) + x) / sizeof(Pixel) % kLine);
            const int x0 = std::max(first, box.xmin), x1 = std::min(first + kPlaces, box.xmax + 1);
            if (x0 < x1) run(x0, x1 - x0, y);
        }
}

/// The targets of the box inside the picture, in bands of so many rows: band(box, y0, y1, to) writes all four bytes of
/// the box's pixels in the rows y0 to y1-1; pixels outside of the box are copied.
template <class Band> Bits cBitFilter::eachBand(int rows, Band&& band)
{
    const Bits in = bits_;
    const Box box = insidePicture(GetBounds(0), in);
    if (box.isEmpty()) {
        report(100);
        return in;
    }
    Bits out = Bits::uninitialized(in.width(), in.height());
    copyRows(in, out, -Bits::kMargin, box.ymin);
    const WrittenRows to(out);
    eachPiece(box.ymin, box.ymax + 1, {rows, box.ymin}, in, [&](int y0, int y1) {
        band(box, y0, y1, to);
        for (int y = y0; y < y1; ++y) {
            copyPixels(in.row(y), to.row(y), -Bits::kMargin, box.xmin);
            copyPixels(in.row(y), to.row(y), box.xmax + 1, in.width() + Bits::kMargin);
        }
    });
    copyRows(in, out, box.ymax + 1, in.height() + Bits::kMargin);
    report(100);
    return out;
}

/// The same in tiles of the given number of rows: run(target row, x0, n, y) writes n <= kPlaces pixels from (x0, y) on.
template <class Run> Bits cBitFilter::eachTile(int rows, Run&& run)
{
    return eachBand(rows, [&](const Box& box, int y0, int y1, const WrittenRows& to) {
        inTiles(box, y0, y1, to, [&](int x0, int n, int y) { run(to.row(y), x0, n, y); });
    });
}

/// Each target of the box takes the pixel at the source position of map, if the region contains that position;
/// otherwise it becomes black with Clean and is kept without. map(y, x0, n, sx, sy) computes the sources of the n <=
/// kPlaces targets from (x0, y). Tiles of one row suit sources close to their targets.
template <class Map> Bits cBitFilter::eachSource(bool Clean, Map&& map, int rows)
{
    const Bits in = bits_;
    const SourcePixels source(in, region_);
    return eachTile(rows, [&](Pixel* to, int x0, int n, int y) {
        alignas(64) std::int32_t sx[kPlaces], sy[kPlaces];
        map(y, x0, n, sx, sy);
        source.take(sx, sy, n, in.row(y) + x0, Clean, to + x0);
    });
}

/// Runs of a tile whose sources are known, but for some that are in doubt: too few in one run to fill vectors.
struct Unsettled {
    static constexpr int kRuns = 16;

    struct Run {
        alignas(64) std::int32_t sx[kPlaces], sy[kPlaces];
        int x0, n, y;
    };
    struct Place {
        int run, i;
    };
    std::array<Run, kRuns> runs;
    std::array<Place, kRuns * kPlaces> places;
    int count = 0, doubts = 0; // of runs and of places

    /// Calls settle(xs, ys, n, sx, sy) for at most kPlaces targets at a time; the arrays are padded by the last one.
    template <class Settle> void settleAll(Settle&& settle)
    {
        alignas(64) std::int32_t xs[kPlaces], ys[kPlaces], sx[kPlaces], sy[kPlaces];
        for (int first = 0; first < doubts; first += kPlaces) {
            const int n = std::min(kPlaces, doubts - first);
            const Place* const part = places.data() + first;
            for (int j = 0; j < kPlaces; ++j) {
                const Place& p = part[std::min(j, n - 1)];
                xs[j] = runs[std::size_t(p.run)].x0 + p.i;
                ys[j] = runs[std::size_t(p.run)].y;
            }
            settle(xs, ys, n, sx, sy);
            for (int j = 0; j < n; ++j) {
                runs[std::size_t(part[j].run)].sx[part[j].i] = sx[j];
                runs[std::size_t(part[j].run)].sy[part[j].i] = sy[j];
            }
        }
        doubts = 0;
    }
};

/// eachSource where map returns a bit for each place in doubt. settle(xs, ys, n, sx, sy) computes those of the n <=
/// kPlaces targets (xs, ys), of several runs.
template <class Map, class Settle> Bits cBitFilter::eachSettledSource(bool Clean, Map&& map, Settle&& settle)
{
    const Bits in = bits_;
    const SourcePixels source(in, region_);
    return eachBand(kPlaces, [&](const Box& box, int y0, int y1, const WrittenRows& to) {
        Unsettled some;
        const auto take = [&] {
            some.settleAll(settle);
            for (int i = 0; i < some.count; ++i) {
                auto& run = some.runs[std::size_t(i)];
                source.take(run.sx, run.sy, run.n, in.row(run.y) + run.x0, Clean, to.row(run.y) + run.x0);
            }
            some.count = 0;
        };
        inTiles(box, y0, y1, to, [&](int x0, int n, int y) {
            auto& run = some.runs[std::size_t(some.count)];
            run.x0 = x0, run.n = n, run.y = y;
            eachPlace(map(y, x0, n, run.sx, run.sy), n, [&](int i) {
                some.places[std::size_t(some.doubts++)] = {some.count, i};
            });
            if (++some.count == Unsettled::kRuns) take();
        });
        take();
    });
}

} // namespace velara
