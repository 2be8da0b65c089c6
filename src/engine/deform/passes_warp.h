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

/// Some rows of a box in tiles: tile(x0, x1, y0, y1) for the columns x0..x1-1 and rows y0..y1-1.
template <class Tile> void inTiles(const Box& box, int y0, int y1, Tile&& tile)
{
    for (int x0 = box.xmin; x0 <= box.xmax; x0 += kPlaces) tile(x0, std::min(x0 + kPlaces, box.xmax + 1), y0, y1);
}

/// The targets of the box inside the picture, in tiles of the given number of rows. tile(target rows, x0, x1, y0, y1)
/// writes all four bytes of each pixel of its columns x0..x1-1 and rows y0..y1-1; pixels outside of the box are copied.
template <class Tile> Bits cBitFilter::eachTile(int rows, Tile&& tile)
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
        inTiles(box, y0, y1, [&](int x0, int x1, int top, int bottom) { tile(to, x0, x1, top, bottom); });
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
    return eachTile(rows, [&](const WrittenRows& out, int x0, int x1, int y0, int y1) {
        alignas(64) std::int32_t sx[kPlaces], sy[kPlaces];
        for (int y = y0; y < y1; ++y) {
            map(y, x0, x1 - x0, sx, sy);
            source.take(sx, sy, x1 - x0, in.row(y) + x0, Clean, out.row(y) + x0);
        }
    });
}

} // namespace velara
