// cBitFilter: the pixel engine. Holds one picture and a selection region and offers the named operations on it. A
// filter never changes the object: it returns a new buffer, and only `filter.setBits(filter.NAME(...))` changes the
// picture.
//
// Below the class stands the table of what presets, dialogs, the batch program, tests and benchmarks call by name.
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
    /// A picture turned in the middle of a black square of Side, at least its diagonal: what TileMask, ROTATE without
    /// Clean (Smooth: RotateSmooth) and BitsCrop to Part of the square give, in the memory of Part and without the
    /// square.
    void turnOnSquare(const Bits& Source, int Degrees, bool Smooth, int Side, const Rect& Part);
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

/// Names a method in a row.
template <auto Method> struct Does {
};

/// The operations by name. Each argument is "name:values:usual": values are "least..most" (with decimals for singles),
/// texts split by "|", or a word: colour (0x00BBGGRR; colour|-1 has none, too), column and row of the picture, side (a
/// width or height). Booleans and pictures are a name alone; the usual one of texts is the first. A template, so that
/// only the reader of the table compiles its calls; Row is Operation (operationRows.h).
// clang-format off
template <class Row> inline constexpr Row kOperationRows[] = {
    {"BitsBlack",           "",                                                         Does<&cBitFilter::BitsBlack>()},
    {"BitsCrop",            "Left:column:5,Top:row:5,Right:column:50,Bottom:row:30",    Does<&cBitFilter::BitsCrop>()},
    {"BitsCropMasked",      "Left:column:5,Top:row:5,Right:column:50,Bottom:row:30",    Does<&cBitFilter::BitsCropMasked>()},
    {"BitsResample",        "NewWidth:side:100,NewHeight:side:80",                      Does<&cBitFilter::BitsResample>()},
    {"BitsResize",          "NewWidth:side:100,NewHeight:side:80",                      Does<&cBitFilter::BitsResize>()},
    {"BitsRotate90",        "",                                                         Does<&cBitFilter::BitsRotate90>()},
    {"BitsTakeFromPicture", "Picture,Width:side:10,Height:side:10",                     Does<&cBitFilter::BitsTakeFromPicture>()},

    {"BRIGHTNESS",      "Level:-300..300:20",                                           Does<&cBitFilter::BRIGHTNESS>()},
    {"CONTRAST",        "Level:-150..300:10",                                           Does<&cBitFilter::CONTRAST>()},
    {"SATURATION",      "Level:-1500..1500:30",                                         Does<&cBitFilter::SATURATION>()},
    {"GammaCorrection", "Level:-120..120:-30",                                          Does<&cBitFilter::GammaCorrection>()},
    {"COLORIZE",        "Hue:-1.0..5.0:0.5,Saturation:0.0..1.0:0.25,Luminosity:0.0..1.0:1.0", Does<&cBitFilter::COLORIZE>()},
    {"GreyScale",       "",                                                             Does<&cBitFilter::GreyScale>()},
    {"OLDPHOTO",        "",                                                             Does<&cBitFilter::OLDPHOTO>()},
    {"Invert",          "",                                                             Does<&cBitFilter::Invert>()},
    {"KillChannel",     "KillRed,KillGreen,KillBlue",                                   Does<&cBitFilter::KillChannel>()},
    {"SpecialColors",   "KeepRed,KeepGreen,KeepBlue",                                   Does<&cBitFilter::SpecialColors>()},
    {"Threshold",       "Level:0..255:128",                                             Does<&cBitFilter::Threshold>()},
    {"Reduction",       "Level:0..300:31",                                              Does<&cBitFilter::Reduction>()},
    {"ShiftRGB",        "Red:-300..300:20,Green:-300..300:-30,Blue:-300..300:40",       Does<&cBitFilter::ShiftRGB>()},
    {"ISOLATE",         "Color:colour:0x4060A0,Fill:colour:0x20FF40,Tolerance:0..200:100", Does<&cBitFilter::ISOLATE>()},
    {"REPLACE",         "From:colour:0x506070,To:colour:0x2040F0,Tolerance:0..200:100", Does<&cBitFilter::REPLACE>()},
    {"ReplaceHS",       "From:colour:0x506070,To:colour:0x2040F0,HueTolerance:0..600:50,SatTolerance:0..100:50,ApplyTolerance:0..200:100", Does<&cBitFilter::ReplaceHS>()},
    {"ReplaceL",        "From:colour:0x506070,To:colour:0x2040F0,LumTolerance:0..100:50,ApplyTolerance:0..200:100", Does<&cBitFilter::ReplaceL>()},
    {"Shift",           "Color:colour:0x4060A0,Amount:-255..255:50,Tolerance:0..200:100", Does<&cBitFilter::Shift>()},
    {"RotateH",         "Offset:0..100:30,Saturation:0..100:100",                       Does<&cBitFilter::RotateH>()},
    {"RotateL",         "Offset:0..100:30,Steps:0..100:25",                             Does<&cBitFilter::RotateL>()},
    {"StretchH",        "Offset:0..100:30,Saturation:0..100:100,Stretch:0..100:40",     Does<&cBitFilter::StretchH>()},
    {"SwapRGB",         "SourceRed:0..3:0,SourceGreen:0..3:2,SourceBlue:0..3:1,InvertRed,InvertGreen,InvertBlue,KillRed:0..255:0,KillGreen:0..255:0,KillBlue:0..255:0", Does<&cBitFilter::SwapRGB>()},
    {"SwapBanks",       "Mode:-1..7:1",                                                 Does<&cBitFilter::SwapBanks>()},
    {"ClassyColors",    "Mode:-1..13:7",                                                Does<&cBitFilter::ClassyColors>()},
    {"PaletteApply",    "",                                                             Does<&cBitFilter::PaletteApply>()},
    {"Equalize",        "",                                                             Does<&cBitFilter::Equalize>()},

    {"SHARPEN",         "Level:0..100:30",                                              Does<&cBitFilter::SHARPEN>()},
    {"SOFTEN",          "Level:0..100:30",                                              Does<&cBitFilter::SOFTEN>()},
    {"EDGEENHANCE",     "Level:0..100:30",                                              Does<&cBitFilter::EDGEENHANCE>()},
    {"Blurs",           "Radius:0..2:1",                                                Does<&cBitFilter::Blurs>()},
    {"DILATE",          "",                                                             Does<&cBitFilter::DILATE>()},
    {"ERODE",           "",                                                             Does<&cBitFilter::ERODE>()},
    {"CONTOUR",         "Level:0..255:255,Background:colour:0x36E2D7",                  Does<&cBitFilter::CONTOUR>()},
    {"EMBOSS",          "Weight:0..50:10",                                              Does<&cBitFilter::EMBOSS>()},
    {"ENGRAVE",         "Weight:0..50:10",                                              Does<&cBitFilter::ENGRAVE>()},
    {"RELIEF",          "",                                                             Does<&cBitFilter::RELIEF>()},
    {"RankFilterN4",    "Mode:0..1:0",                                                  Does<&cBitFilter::RankFilterN4>()},
    {"RankFilterND",    "Mode:0..1:0",                                                  Does<&cBitFilter::RankFilterND>()},
    {"DIFFUSE",         "HorizontalRange:0..50:2,VerticalRange:0..50:2",                Does<&cBitFilter::DIFFUSE>()},
    {"MaskFilter",      "Mask:1 2 1/2 4 2/1 2 1|0 -1 0/-1 5 -1/0 -1 0|1 1 1 1 1/1 0 0 0 1/1 0 -9 0 1/1 0 0 0 1/1 2 3 4 5,Divisor:-4.0..40.0:16.0,AddRed:-255..255:0,AddGreen:-255..255:10,AddBlue:-255..255:0,Clip", Does<&cBitFilter::MaskFilter>()},

    {"ROTATE",          "Degrees:-400..400:30,Clean",                                   Does<&cBitFilter::ROTATE>()},
    {"RotateSmooth",    "Degrees:-400..400:30",                                         Does<&cBitFilter::RotateSmooth>()},
    {"Flip",            "Horizontal,Vertical",                                          Does<&cBitFilter::Flip>()},
    {"STRETCH",         "Horizontal:-210..210:40,Vertical:-100..100:40,Clean",          Does<&cBitFilter::STRETCH>()},
    {"FOLD",            "Horizontal:-100..100:40,Vertical:-100..100:40,Clean",          Does<&cBitFilter::FOLD>()},
    {"BEND",            "RadiusFactor:-200..200:50,Clean",                              Does<&cBitFilter::BEND>()},
    {"TWIRL",           "Level:-100..100:30,OffsetDegrees:-180..180:20,Clean",          Does<&cBitFilter::TWIRL>()},
    {"WAVES",           "Frequency:0..100:25,Amplitude:1..100:25,StartDegree:0..360:0", Does<&cBitFilter::WAVES>()},
    {"LENS",            "CenterX:0.0..1.0:0.5,CenterY:0.0..1.0:0.5,Radius:0.01..0.8:0.4,Magnify:0..130:50", Does<&cBitFilter::LENS>()},
    {"TILE",            "Factor:0..50:2",                                               Does<&cBitFilter::TILE>()},
    {"GLASS",           "Style:slanting|horizontal|vertical|squary|curtain,Mode:-1..5:0", Does<&cBitFilter::GLASS>()},

    {"Dissolve",        "",                                                             Does<&cBitFilter::Dissolve>()},
    {"PAINTING",        "",                                                             Does<&cBitFilter::PAINTING>()},
    {"PIXELIZE",        "Size:1..25:2",                                                 Does<&cBitFilter::PIXELIZE>()},
    {"Halftone",        "Radius:1..25:6,Definition:0..100:50,Intensity:0..100:50",      Does<&cBitFilter::Halftone>()},
    {"SKETCH",          "Level:-5..300:60,Mono,Color:colour:0x4060A0",                  Does<&cBitFilter::SKETCH>()},
    {"StuckiBW",        "Divisor:1..100:42",                                            Does<&cBitFilter::StuckiBW>()},
    {"THERMIQUE",       "",                                                             Does<&cBitFilter::THERMIQUE>()},
    {"XBLACK",          "",                                                             Does<&cBitFilter::XBLACK>()},
    {"PHOTOCOP",        "",                                                             Does<&cBitFilter::PHOTOCOP>()},

    {"Light",            "CenterX:0.0..1.0:0.5,CenterY:0.0..1.0:0.5,Radius:0.01..0.8:0.4,Intensity:0..500:250,Definition:0..100:50", Does<&cBitFilter::Light>()},
    {"NOISE",            "Amount:0..100:25,Equalized",                                  Does<&cBitFilter::NOISE>()},
    {"Scanlines",        "Level:0..255:128",                                            Does<&cBitFilter::Scanlines>()},
    {"Grid",             "HorizontalStep:0..250:25,VerticalStep:0..250:25,ForceMargins,Color:colour:0x4060A0,Opacity:0..255:128", Does<&cBitFilter::Grid>()},
    {"GradientLinear",   "X1:column:5,Y1:row:5,X2:column:50,Y2:row:30,Color1:colour|-1:0x0000FF,Color2:colour|-1:0xFF0000,Opacity:0..100:60,Repeat:0..30:1", Does<&cBitFilter::GradientLinear>()},
    {"GradientCircular", "X1:column:5,Y1:row:5,X2:column:50,Y2:row:30,Color1:colour|-1:0x0000FF,Color2:colour|-1:0xFF0000,Opacity:0..100:60,Repeat:0..30:1", Does<&cBitFilter::GradientCircular>()},
    {"Texturize",        "Texture",                                                     Does<&cBitFilter::Texturize>()},
    {"TileMask",         "Overlay,Left:column:5,Top:row:5,Tiled,Transparency:0..100:40,KeyColor:colour|-1:0", Does<&cBitFilter::TileMask>()},
};
// clang-format on

} // namespace velara
