// Rotates a picture centred in a black square. The square may have a hundred times the picture's pixels, so it is never
// made: its pixels are the picture's, and black elsewhere.
#include "engine/deform/passes_warp.h"

namespace velara {

namespace {

constexpr Pixel kBlack[kPlaces] = {};

class Square {
  public:
    Square(const Bits& picture, int degrees, int side)
        : picture_(picture), source_(picture, Region::rectangle(0, 0, picture.width(), picture.height())), side_(side),
          left_((side - picture.width()) / 2), top_((side - picture.height()) / 2), turn_(side - 1, side - 1, degrees)
    {
    }
    /// The n targets from (x0, y) of the square, nearest pixel. Targets whose source is outside of the square are kept.
    void takeNearest(int x0, int y, int n, Pixel* to) const
    {
        alignas(64) std::int32_t sx[kPlaces], sy[kPlaces];
        turn_.nearest(x0, y, n, sx, sy);
        const bool leaves = !holds(sx[0], sy[0]) || !holds(sx[n - 1], sy[n - 1]); // sources of a run are collinear
        moveToPicture(sx, sy, n);
        source_.take(sx, sy, n, kBlack, true, to);
        for (int i = 0; leaves && i < n; ++i)
            if (!holds(sx[i] + left_, sy[i] + top_)) to[i] = at(x0 + i - left_, y - top_);
    }
    /// The same, bilinear. Sources outside of the square are black.
    void takeBlended(int x0, int y, int n, Pixel* to) const
    {
        std::int32_t ix[kPlaces], iy[kPlaces];
        float fx[kPlaces], fy[kPlaces];
        turn_.split(x0, y, n, ix, iy, fx, fy);
        moveToPicture(ix, iy, n);
        const auto [x1, x2] = std::minmax(ix[0], ix[n - 1]);
        const auto [y1, y2] = std::minmax(iy[0], iy[n - 1]);
        if (x2 < -1 || y2 < -1 || x1 >= picture_.width() || y1 >= picture_.height())
            return copyPixels(kBlack, to, 0, n);
        eachPlace(blendPixels(picture_, ix, iy, fx, fy, n, nullptr, to), n,
                  [&](int i) { blend(ix[i], iy[i], fx[i], fy[i], to[i]); });
        if (x1 >= 0 && y1 >= 0 && x2 < picture_.maxX() && y2 < picture_.maxY()) return;
        for (int i = 0; i < n; ++i) // the picture's edge blends with its black surroundings, not with its margin
            if (isEdge(ix[i], picture_.maxX()) || isEdge(iy[i], picture_.maxY()))
                blend(ix[i], iy[i], fx[i], fy[i], to[i]);
    }

  private:
    bool holds(int x, int y) const { return x >= 0 && y >= 0 && x < side_ && y < side_; }
    static bool isEdge(int at, int last) { return at == -1 || at == last; }
    void moveToPicture(std::int32_t* x, std::int32_t* y, int n) const
    {
        for (int i = 0; i < n; ++i) {
            x[i] -= left_;
            y[i] -= top_;
        }
    }
    /// The square's pixel at a position relative to the picture.
    Pixel at(int x, int y) const
    {
        const bool isInside = x >= 0 && y >= 0 && x < picture_.width() && y < picture_.height();
        return isInside ? withColour(picture_.at(x, y), Pixel{}) : Pixel{};
    }
    void blend(int x, int y, float fx, float fy, Pixel& to) const
    {
        const Pixel upper[] = {at(x, y), at(x + 1, y)}, lower[] = {at(x, y + 1), at(x + 1, y + 1)};
        to = {};
        if (holds(x + left_, y + top_)) blendPixel(upper, lower, fx, fy, to);
    }

    const Bits& picture_;
    SourcePixels source_;
    int side_, left_, top_;
    Turn turn_;
};

} // namespace

void cBitFilter::turnOnSquare(const Bits& Source, int Degrees, bool Smooth, int Side, const Rect& Part)
{
    const Bits in = Source;
    if (in.isNull()) throw RuntimeError(Fault::OutOfRange);
    checkSize(Part.width(), Part.height());
    const Square square(in, Degrees, Side);
    Bits out = Bits::uninitialized(Part.width(), Part.height());
    clearMargin(out);
    const WrittenRows rows(out);
    eachPiece(0, out.height(), {kPlaces}, out, [&](int top, int bottom) {
        inTiles({0, out.maxX(), 0, out.maxY()}, top, bottom, rows, [&](int x0, int n, int y) {
            Pixel* to = rows.row(y) + x0;
            Smooth ? square.takeBlended(Part.left + x0, Part.top + y, n, to)
                   : square.takeNearest(Part.left + x0, Part.top + y, n, to);
        });
    });
    bits_ = out;
    report(100);
}

} // namespace velara
