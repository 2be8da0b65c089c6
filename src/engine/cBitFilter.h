// cBitFilter: the pixel engine. Holds one picture and a selection region and offers the named operations on it. A
// filter never changes the object: it returns a new buffer, and only `filter.setBits(filter.NAME(...))` changes the
// picture.
//
// Colours are 0x00BBGGRR. Channels of a pixel: 0 blue, 1 green, 2 red. Without a region nothing is changed. Every
// filter raises Progress 100 at its end and a percentage at most every 10 ms before; a RuntimeError passes to the
// caller.
#pragma once
#include "pixels/Bits.h"
#include "pixels/random.h"
#include "region/Region.h"
#include <QImage>
#include <functional>
#include <string>
#include <vector>

namespace velara {

enum class RankWindow;

struct Disc;

class cBitFilter {
  public:
    /// Percent done, raised at most once a row. May yield, and may throw Cancelled to end the filter.
    std::function<void(int)> Progress;
    /// Milliseconds that wrap; steady_clock unless replaced.
    std::function<std::uint32_t()> clock;

    cBitFilter();

    const Bits& bits() const { return bits_; }
    void setBits(Bits bits) { bits_ = std::move(bits); }
    int BitsWidth() const { return bits_.width(); }
    int BitsHeight() const { return bits_.height(); }
    const Region& BitsRegion() const { return region_; }
    void setBitsRegion(Region region) { region_ = std::move(region); }
    static constexpr std::uint64_t kRandomSeed = 0x9E3779B97F4A7C15u;
    /// Restarts the random numbers of NOISE and DIFFUSE; a new object starts at kRandomSeed. Each use takes the next
    /// seed.
    void setRandomSeed(std::uint64_t seed) { randomSeed_ = seed; }
    std::uint64_t randomSeed() const { return randomSeed_; }

    // --- In place (cBitFilter_geometry.cpp, _resize.cpp). Source is usually bits() itself. Sizes that are below 1,
    // above 32767 a side or above 256 Mi pixels raise OutOfRange.
    /// All four bytes of the region's pixels become 0.
    void BitsBlack();
    /// The rectangle, cut to this object's present size, out of Source. Empty or not within Source: OutOfRange.
    void BitsCrop(const Bits& Source, int Left, int Top, int Right, int Bottom);
    /// The same, cut to Source's size; pixels outside of the region become 0, 0, 0 with a fourth byte of 255.
    void BitsCropMasked(const Bits& Source, int Left, int Top, int Right, int Bottom);
    /// Bilinear resize. The last column and row blend with the margin.
    void BitsResample(const Bits& Source, int NewWidth, int NewHeight);
    /// Nearest-neighbour resize.
    void BitsResize(const Bits& Source, int NewWidth, int NewHeight);
    /// A quarter turn: the pixel (x, y) goes to (y, maxX-x).
    void BitsRotate90(const Bits& Source);
    /// The upper left Width by Height pixels of Picture, black where it is smaller. A null Picture changes nothing.
    void BitsTakeFromPicture(const QImage& Picture, int Width, int Height);

    // --- Colour filters (cBitFilter_colour.cpp, _tone.cpp, _distance.cpp, _hsl.cpp, _palette.cpp)
    Bits BRIGHTNESS(int Level);                                   // Level added
    Bits CONTRAST(int Level);                                     // around the picture's mean
    Bits SATURATION(int Level);                                   // percent
    Bits GammaCorrection(int Level);                              // (Level+100)/100 is gamma
    Bits COLORIZE(float Hue, float Saturation, float Luminosity); // scales of mHSLRGB
    Bits GreyScale();
    Bits OLDPHOTO();
    Bits Invert();
    Bits KillChannel(bool KillRed, bool KillGreen, bool KillBlue);
    Bits SpecialColors(bool KeepRed, bool KeepGreen, bool KeepBlue);
    Bits Threshold(int Level);
    Bits Reduction(int Level);
    Bits ShiftRGB(int Red, int Green, int Blue);
    Bits ISOLATE(Colour Color, Colour Fill, int Tolerance);
    Bits REPLACE(Colour From, Colour To, int Tolerance);
    Bits ReplaceHS(Colour From, Colour To, int HueTolerance, int SatTolerance, int ApplyTolerance);
    Bits ReplaceL(Colour From, Colour To, int LumTolerance, int ApplyTolerance);
    Bits Shift(Colour Color, int Amount, int Tolerance);
    Bits RotateH(int Offset, int Saturation);
    Bits RotateL(int Offset, int Steps);
    Bits StretchH(int Offset, int Saturation, int Stretch);
    Bits SwapRGB(int SourceRed, int SourceGreen, int SourceBlue, bool InvertRed, bool InvertGreen, bool InvertBlue,
                 int KillRed, int KillGreen, int KillBlue);
    Bits SwapBanks(int Mode);
    Bits ClassyColors(int Mode);
    Bits PaletteApply(); // diffuses its error into this object's own picture
    Bits Equalize();
    int GetLMax() const;
    int GetLMin() const;
    int GetLMed() const;

    // --- Neighbourhood filters (cBitFilter_neighbours.cpp, _rank.cpp)
    Bits SHARPEN(int Level);
    Bits SOFTEN(int Level);
    Bits EDGEENHANCE(int Level);
    Bits Blurs(int Radius);
    Bits DILATE();
    Bits ERODE();
    Bits CONTOUR(int Level, Colour Background);
    Bits EMBOSS(int Weight);
    Bits ENGRAVE(int Weight);
    Bits RELIEF();
    Bits RankFilterN4(int Mode);
    Bits RankFilterND(int Mode);
    Bits DIFFUSE(int HorizontalRange, int VerticalRange);
    /// Mask is square, Mask[i][j] with i along y.
    Bits MaskFilter(const std::vector<std::vector<int>>& Mask, double Divisor, int AddRed, int AddGreen, int AddBlue,
                    bool Clip);

    // --- Deformations (cBitFilter_deform.cpp, _warp.cpp, _glass.cpp)
    Bits ROTATE(int Degrees, bool Clean);
    Bits RotateSmooth(int Degrees);
    Bits Flip(bool Horizontal, bool Vertical);
    Bits STRETCH(int Horizontal, int Vertical, bool Clean);
    Bits FOLD(int Horizontal, int Vertical, bool Clean);
    Bits BEND(int RadiusFactor, bool Clean);
    Bits TWIRL(int Level, int OffsetDegrees, bool Clean);
    Bits WAVES(int Frequency, int Amplitude, int StartDegree);
    Bits LENS(float CenterX, float CenterY, float Radius, int Magnify);
    Bits TILE(int Factor);
    Bits GLASS(const std::string& Style, int Mode);

    // --- Stylising filters and generators (cBitFilter_stylise.cpp, _cells.cpp, _generate.cpp)
    Bits Dissolve();
    Bits PAINTING();
    Bits PIXELIZE(int Size);
    Bits Halftone(int Radius, int Definition, int Intensity);
    Bits SKETCH(int Level, bool Mono, Colour Color);
    Bits StuckiBW(int Divisor);
    Bits THERMIQUE();
    Bits XBLACK();
    Bits PHOTOCOP();
    Bits Light(float CenterX, float CenterY, float Radius, int Intensity, int Definition);
    Bits NOISE(int Amount, bool Equalized);
    Bits Scanlines(int Level);
    Bits Grid(int HorizontalStep, int VerticalStep, bool ForceMargins, Colour Color, int Opacity);
    Bits GradientLinear(int X1, int Y1, int X2, int Y2, Colour Color1, Colour Color2, int Opacity, int Repeat);
    Bits GradientCircular(int X1, int Y1, int X2, int Y2, Colour Color1, Colour Color2, int Opacity, int Repeat);
    Bits Texturize(const Bits& Texture);
    Bits TileMask(const Bits& Overlay, int Left, int Top, bool Tiled, int Transparency, Colour KeyColor);

    /// The region's bounding box moved inward by Margin. Not cut to the picture.
    Box GetBounds(int Margin) const;
    /// Direction of (X, Y) in (-pi/2, 3 pi/2); for X = 0 it is pi/2 when Y > 0, else -pi/2.
    static float Angle(int X, int Y);

  private:
    // The calling patterns; passes.h has their bodies.
    template <class Kernel> Bits eachSpan(int margin, Kernel&& kernel);
    template <class RowFunction> void eachRow(const Bits& in, RowFunction&& row);
    Bits rankFilter(int Mode, RankWindow window);
    template <class Tile> Bits eachTile(int rows, Tile&& tile);
    template <class Map> Bits eachSource(bool Clean, Map&& map, int rows = 64);
    /// eachSource for the sources (columns[x], rows[y]).
    Bits eachCrossing(bool Clean, const std::vector<std::int32_t>& columns, const std::vector<std::int32_t>& rows);
    template <class Kernel> Bits eachOfDisc(const Disc& disc, double limit, Kernel&& kernel);
    void crop(const Bits& Source, const Rect& rectangle, bool masked);
    void progressDue(std::int64_t done, std::int64_t of);
    void report(int percent);
    /// The numbers of one run of a filter.
    Random nextRandom();

    Bits bits_;
    Region region_;
    std::uint32_t lastProgress_ = 0;
    std::uint64_t randomSeed_ = kRandomSeed;
};

} // namespace velara
