// The calling patterns of the filters that move pixels: tile by tile, so that sources and targets stay in the cache.
#pragma once
#include "engine/deform/kernels_place.h"
#include "engine/deform/kernels_warp.h"
#include "engine/passes.h"
#include "pixels/numbers.h"
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

/// The targets of the box inside the picture, in tiles of the given number of rows. run(target row, x0, n, y) writes
/// all four bytes of n <= kPlaces pixels from (x0, y) on; pixels outside of the box are copied.
template <class Run> Bits cBitFilter::eachTile(int rows, Run&& run)
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
        inTiles(box, y0, y1, to, [&](int x0, int n, int y) { run(to.row(y), x0, n, y); });
        for (int y = y0; y < y1; ++y) {
            copyPixels(in.row(y), to.row(y), -Bits::kMargin, box.xmin);
            copyPixels(in.row(y), to.row(y), box.xmax + 1, in.width() + Bits::kMargin);
        }
    });
    copyRows(in, out, box.ymax + 1, in.height() + Bits::kMargin);
    report(100);
    return out;
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

} // namespace velara
