// Painter: the operations that change pixels of a document directly, in picture coordinates. None of them repaints,
// marks Changed or takes a snapshot. Without a picture nothing happens.
//
// Only pixels of the working region that lie inside the picture are written, never the margin and never the fourth
// byte. Colours are 0x00BBGGRR. Opacity, strength, percent, density and softness are percentages 0 to 100; where a
// value beyond gives no byte, RuntimeError(Overflow). Size is the diameter of a round dab: r = round(size / 2), pixels
// with dx*dx + dy*dy <= r*r. Sources have the layout of Bits and are read with their margin where a rule asks for it.
#pragma once
#include "paint/DoneBits.h"
#include "paint/TouchedTiles.h"
#include "pixels/Bits.h"
#include "pixels/random.h"
#include "region/cBitRegion.h"
#include <array>
#include <functional>
#include <utility>
#include <vector>

namespace velara {

class Painter {
  public:
    /// All three outlive the painter. What is written is marked in touched.
    Painter(Bits& bits, const cBitRegion& region, TouchedTiles& touched)
        : bits_(bits), selection_(region), touched_(touched)
    {
    }

    /// -1 without a picture, 0 outside of it.
    Colour BitsGetPixel(int x, int y) const;

    /// The source with its upper left corner at x, y; pixels equal to key are skipped, -1 is no key. Sources and
    /// overlaps of one column or row are not painted. Without useRegion the whole picture may be written.
    void BitsPaint(int x, int y, const Bits& source, Colour key, int opacity, bool useRegion);
    /// The same, skipping source pixels with a fourth byte of 255.
    void BitsPaintPreMasked(int x, int y, const Bits& source, int opacity, bool useRegion);
    /// The source as ink of one colour: channel 0 from 0 (opaque) to 190 (nothing).
    void BitsBWMask(int x, int y, const Bits& mask, Colour colour, int opacity);

    /// Antialiased, one pixel thick, in overlapping half steps that accumulate.
    void BitsLine(int x1, int y1, int x2, int y2, Colour colour, int opacity);
    void BitsRectangle(int x1, int y1, int x2, int y2, Colour colour, int opacity);
    /// A regular polygon; fewer than one side draws nothing.
    void BitsPolygon(int centreX, int centreY, int cornerX, int cornerY, int sides, Colour colour, int opacity);
    void BitsEllipse(int centreX, int centreY, int radiusX, int radiusY, Colour colour, int opacity);

    // Dabs that change a pixel only once between two calls of CreateDoneBitsTable.
    void BitsBrush(int x, int y, int size, int opacity, Colour colour);
    void BitsBrightness(int x, int y, int size, int percent, bool lighten);
    /// The source tiled from the picture's corner, its first margin column and row included.
    void BitsMasked(int x, int y, const Bits& source, int size, int opacity);
    void BitsSharpen(int x, int y, int size, int strength);
    /// With repeat also pixels that are done.
    void BitsSoften(int x, int y, int size, int strength, bool repeat);
    /// The dab of a BrushMode; nothing for Stamp and unknown modes. BitsBrushLine places it again and again, a tenth of
    /// size apart: size from 1, coordinates at most 32767 apart.
    void BitsBrushDab(int x, int y, int size, int strength, Colour colour, int mode);
    void BitsBrushLine(int x1, int y1, int x2, int y2, int size, int strength, Colour colour, int mode);
    void BitsMaskedLine(int x1, int y1, int x2, int y2, int size, int opacity, const Bits& source);

    /// Random drops that accumulate. DivisionByZero below size 2.
    void BitsAirbrush(int x, int y, int size, int opacity, int density, int softness, Colour colour);

    /// Flood fill of the 4-connected area around x, y whose summed channel differences from that pixel are at most
    /// tolerance. Done pixels are walls. Fill colours within 9 of the seed in all channels change the seed only.
    /// Nothing happens outside of the picture.
    void BitsFill(int x, int y, Colour colour, int tolerance, int opacity);
    /// The same with the source tiled from the picture's corner, two margin columns and rows included.
    void BitsFillTexture(int x, int y, const Bits& source, int tolerance, int opacity);

    void CreateDoneBitsTable() { done_.reset(bits_.width(), bits_.height()); }
    /// Restarts the random numbers of BitsAirbrush.
    void setRandomSeed(std::uint64_t seed)
    {
        random_ = Random(seed);
        drawn_ = 0;
    }
    /// Bounding rectangle of what was written since the last call.
    Rect takeTouched() { return std::exchange(changed_, {}); }

  private:
    using Table = std::array<std::uint8_t, 256>;
    using Tables = std::array<Table, 3>; // new value by channel and old value
    using Dab = std::function<void(int x, int y)>;
    struct Ink; // what a line is drawn with

    /// The region to work in. Begins every operation that writes.
    const Region& working() { return begin(selection_.working()); }
    const Region& begin(const Region& region);
    void touch(int y, int x0, int x1);

    /// [source][old]: byte(source * opacity + old * (1 - opacity)). Kept until the next other opacity.
    const Table* blend(int opacity);
    void blendRun(const Pixel* from, Pixel* to, int count, int opacity, const Table* table);
    void applyTables(const Tables& tables, int y, int x0, int x1);

    template <class Row> void eachDiscRow(const Region& region, int x, int y, int size, Row row);
    template <class Row> void eachFreshRun(const Region& region, int x, int y, int size, Row row);
    template <class Kernel> void eachDabPixel(int y, int x0, int x1, Kernel kernel);
    Dab brushDab(int size, int opacity, Colour colour);
    Dab brightnessDab(int size, int percent, bool lighten);
    Dab maskedDab(int size, int opacity, const Bits& source);
    Dab softenDab(int size, int strength, bool repeat);
    Dab sharpenDab(int size, int strength);
    Dab dabOf(int mode, int size, int strength, Colour colour);
    static void alongLine(int x1, int y1, int x2, int y2, int size, const Dab& place);

    template <class Row> void paste(int x, int y, const Bits& source, const Region& region, Row row);
    void plot(Ink& ink, double& px, double& py);

    struct Seed;
    template <class Writer> void flood(const Seed& seed, int tolerance, const Region& region, Writer write);

    Bits& bits_;
    const cBitRegion& selection_;
    TouchedTiles& touched_;
    DoneBits done_;
    Rect changed_;
    Random random_{0x5EED};
    std::uint32_t drawn_ = 0; // random numbers so far
    int blendOpacity_ = -1;
    std::vector<Table> blend_;
};

} // namespace velara
