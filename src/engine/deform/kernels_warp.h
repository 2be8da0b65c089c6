// Vector kernels of the filters that move pixels.
#pragma once
#include "engine/SpanOf.h"
#include "engine/deform/SourceMask.h"
#include "pixels/Bits.h"
#include "pixels/threads/WrittenRows.h"
#include "region/Region.h"
#include <cstdint>

namespace velara {

/// The selected pixels of a picture, readable in any order by position.
class SourcePixels {
  public:
    /// Region pixels outside of the picture count as not selected.
    SourcePixels(const Bits& bits, const Region& region);

    /// The n <= kPlaces pixels at (sx, sy) where those are selected; elsewhere black if clean, else kept. The fourth
    /// byte is always that of kept. The arrays are padded in place to whole vectors.
    void take(std::int32_t* sx, std::int32_t* sy, int n, const Pixel* kept, bool clean, Pixel* to) const;

    /// The selection inside the picture is exactly rect().
    bool isRectangle() const { return !marked_; }
    const Rect& rect() const { return rect_; }

  private:
    Bits bits_;
    Rect rect_;  // of the selection inside the picture
    Rect inner_; // a large one of selected pixels only, for most of the questions
    bool marked_;
    SourceMask mask_; // with marked_
};

/// The n <= kPlaces pixels at (sx, sy), inside the picture or its margin, with the fourth bytes of kept. The arrays are
/// padded in place to whole vectors.
void takePixels(const Bits& bits, std::int32_t* sx, std::int32_t* sy, int n, const Pixel* kept, Pixel* to);

/// For x0..x1-1 the pixels of source at columns[x] where inside[x] is -1; where it is 0, black if clean, else kept. The
/// span's from holds the kept pixels and the fourth bytes.
void takeColumns(const SpanOf& span, const Pixel* source, const std::int32_t* columns, const std::int32_t* inside,
                 bool clean);

/// inside[x] for x0..x1-1: -1 where columns[x] lies within first..end-1, else 0.
void markWithin(const std::int32_t* columns, int first, int end, int x0, int x1, std::int32_t* inside);

/// For x0..x1-1 the colour of source[x] with the span's fourth bytes.
void takeRow(const SpanOf& span, const Pixel* source);

/// The same mirrored: x takes the colour of source[last - x].
void takeRowMirrored(const SpanOf& span, const Pixel* source, int last);

/// The n <= 64 targets of a bilinear warp: blended along columns first, and rounded. ix, iy and fx, fy are the floor
/// and the fraction of a position. The fourth byte is that of kept, or 0 when kept is null. Positions outside of the
/// picture give black. Returns a bit for each target to be recomputed.
std::uint64_t blendPixels(const Bits& bits, const std::int32_t* ix, const std::int32_t* iy, const float* fx,
                          const float* fy, int n, const Pixel* kept, Pixel* to);

/// The same blend of one target, exactly; the fourth byte is kept.
void blendPixel(const Pixel* upper, const Pixel* lower, double fx, double fy, Pixel& to);

/// The columns x0..x1-1 and rows y0..y1-1 of in, rotated a quarter turn: (x, y) goes to (y, maxX-x) with a fourth byte
/// of 0. At most kTurnColumns columns and kTurnRows rows.
constexpr int kTurnColumns = 64, kTurnRows = 256;
void turnPixels(const Bits& in, const WrittenRows& out, int x0, int x1, int y0, int y1);

} // namespace velara
