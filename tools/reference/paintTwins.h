// The paint primitives once more, written literally, pixel by pixel with a point test, to compare the fast ones with.
#pragma once
#include "pixels/Bits.h"
#include "pixels/random.h"
#include "region/Region.h"
#include <vector>

namespace velara {

struct PaintTwin {
    Bits bits;
    Region limit, region; // the whole picture; the working region
    std::vector<std::vector<bool>> done;
    Random random{1};
    std::uint32_t drawn = 0;

    void CreateDoneBitsTable();
    void BitsPaint(int x, int y, const Bits& source, Colour key, int opacity, bool useRegion);
    void BitsPaintPreMasked(int x, int y, const Bits& source, int opacity, bool useRegion);
    void BitsBWMask(int x, int y, const Bits& mask, Colour colour, int opacity);
    void BitsLine(int x1, int y1, int x2, int y2, Colour colour, int opacity);
    void BitsRectangle(int x1, int y1, int x2, int y2, Colour colour, int opacity);
    void BitsPolygon(int cx, int cy, int x, int y, int sides, Colour colour, int opacity);
    void BitsEllipse(int cx, int cy, int rx, int ry, Colour colour, int opacity);
    void BitsBrush(int x, int y, int size, int opacity, Colour colour);
    void BitsBrightness(int x, int y, int size, int percent, bool lighten);
    void BitsMasked(int x, int y, const Bits& source, int size, int opacity);
    void BitsSharpen(int x, int y, int size, int strength);
    void BitsSoften(int x, int y, int size, int strength, bool repeat);
    void BitsBrushLine(int x1, int y1, int x2, int y2, int size, int strength, Colour colour, int mode);
    void BitsMaskedLine(int x1, int y1, int x2, int y2, int size, int opacity, const Bits& source);
    void BitsAirbrush(int x, int y, int size, int opacity, int density, int softness, Colour colour);
    void BitsFill(int x, int y, Colour colour, int tolerance, int opacity);
    void BitsFillTexture(int x, int y, const Bits& source, int tolerance, int opacity);

  private:
    bool inside(int x, int y) const { return limit.contains(x, y); }
    template <class Body> void disc(int x, int y, int size, Body body);
    template <class Body> void overlap(int x, int y, const Bits& source, const Region& test, Body body);
    template <class Body> void alongLine(int x1, int y1, int x2, int y2, int size, Body body);
    void plot(double& px, double& py, Colour colour, int opacity);
    template <class Accept> void queue(int x, int y, const Pixel& seed, int tolerance, Accept accept);
};

} // namespace velara
