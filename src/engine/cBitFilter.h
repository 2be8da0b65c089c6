// cBitFilter: the pixel engine. Holds one picture and a selection region and offers the named operations on it. A
// filter never changes the object: it returns a new buffer, and only `filter.setBits(filter.NAME(...))` changes the
// picture.
//
// Below the class is the table of what presets, dialogs, the batch program, tests and benchmarks call by name.
//
// Colours are 0x00BBGGRR. Channels of a pixel: 0 blue, 1 green, 2 red. An empty region changes nothing. Every filter
// raises Progress 100 at its end and a percentage at most every 10 ms before; a RuntimeError is passed on to the
// caller.
#pragma once
#include "pixels/Bits.h"
#include "pixels/random.h"
#include "region/Region.h"
#include <functional>
#include <string>
#include <vector>

namespace velara {

enum class RankWindow;

struct Disc;

class cBitFilter {
  public:
    /// Percent done, raised at most once a row, on the thread that runs the filter. May throw Cancelled to end the
    /// filter.
    std::function<void(int)> Progress;
    /// Milliseconds of a clock that wraps around; steady_clock unless replaced.
    std::function<std::uint32_t()> clock;

    cBitFilter();

    const Bits& bits() const { return bits_; }
    void setBits(Bits bits) { bits_ = std::move(bits); }
    int BitsWidth() const { return bits_.width(); }
    int BitsHeight() const { return bits_.height(); }
    const Region& BitsRegion() const { return region_; }
    void setBitsRegion(Region region) { region_ = std::move(region); }
    static constexpr std::uint64_t kRandomSeed = 0x9E3779B97F4A7C15u;
    /// Seeds the random numbers of NOISE and DIFFUSE; a new object starts at kRandomSeed. Each use takes the next seed.
    void setRandomSeed(std::uint64_t seed) { randomSeed_ = seed; }
    std::uint64_t randomSeed() const { return randomSeed_; }

    // --- In place (cBitFilter_geometry.cpp, _resize.cpp). Source is usually bits() itself. Sizes below 1, above 32767
    // a side or above 256 Mi pixels raise OutOfRange.
    /// All four bytes of the region's pixels become 0.
    void BitsBlack();
    /// Crops to the rectangle of Source, clipped to this object's present size. Empty or not within Source: OutOfRange.
    void BitsCrop(const Bits& Source, int Left, int Top, int Right, int Bottom);
    /// The same, clipped to Source's size; pixels outside of the region become 0, 0, 0 with a fourth byte of 255.
    void BitsCropMasked(const Bits& Source, int Left, int Top, int Right, int Bottom);
    /// Bilinear resize. The last column and row blend with the margin.
    void BitsResample(const Bits& Source, int NewWidth, int NewHeight);
    /// Nearest-neighbour resize.
    void BitsResize(const Bits& Source, int NewWidth, int NewHeight);
    /// A quarter turn: the pixel (x, y) goes to (y, maxX-x).
    void BitsRotate90(const Bits& Source);
    /// Rotates a picture centred in a black square of Side, at least its diagonal: the result of TileMask, ROTATE
    /// without Clean (Smooth: RotateSmooth) and BitsCrop to Part of the square, using the memory of Part only and never
    /// making the square.
    void turnOnSquare(const Bits& Source, int Degrees, bool Smooth, int Side, const Rect& Part);
    /// The upper left Width by Height pixels of Picture, black where it is smaller. A null Picture changes nothing. By
    /// value: it is an argument of the operation, not the source that operationRows.h hands over.
    void BitsTakeFromPicture(Bits Picture, int Width, int Height);

    // Unit, range and usual value of each argument are in the rows below; here is what a filter does with them. c is a
    // channel's value; results are clamped to 0..255 and rounded half to even unless noted. The "mean" of a pixel is
    // (blue + green + red) \ 3, \ being division that truncates toward zero. Formulas and constants are this program's
    // own unless a source is named.

    // --- Colour filters (cBitFilter_colour.cpp, _tone.cpp, _distance.cpp, _hsl.cpp, _palette.cpp). Each pixel by
    // itself. Tolerances: the squared distance d2 of two colours, over blue, green and red, is compared with T =
    // (Tolerance*1.275)^2 + 1; 0 matches the exact colour only, 100 half of a channel's range.
    /// c + Level; 0 changes nothing.
    Bits BRIGHTNESS(int Level);
    /// (c-M)*(Level+100)/100 + M, M being the mean of the whole picture. A channel that overflows passes half of the
    /// excess to each of the others, which preserves the hue. 0 changes nothing, -100 gives M, lower levels invert.
    Bits CONTRAST(int Level);
    /// c + (c-mean)*Level/100. 0 changes nothing, -100 gives grey, lower levels the opposite hue.
    Bits SATURATION(int Level);
    /// 255*(c/255)^(1/g), g = (Level+100)/100. 0 changes nothing; -100 and below give black.
    Bits GammaCorrection(int Level);
    /// The pixel's brightness at a fixed hue and saturation (mHSLRGB.h): lightness = mean/255*Luminosity, unrounded.
    Bits COLORIZE(float Hue, float Saturation, float Luminosity);
    /// 0.707 green + 0.071 blue + 0.222 red, which weights green more than the 0.587 of television (ITU-R BT.601).
    Bits GreyScale();
    /// Green and red become the grey of GreyScale, blue is kept: blue against yellow.
    Bits OLDPHOTO();
    /// 255 - c.
    Bits Invert();
    /// The named channels become 0.
    Bits KillChannel(bool KillRed, bool KillGreen, bool KillBlue);
    /// The channels that are not named become 0.
    Bits SpecialColors(bool KeepRed, bool KeepGreen, bool KeepBlue);
    /// Black where the mean is at most Level, else white.
    Bits Threshold(int Level);
    /// To the nearest multiple of Level+1. 0 changes nothing, 255 leaves 0 and 255.
    Bits Reduction(int Level);
    /// c + the amount of its channel.
    Bits ShiftRGB(int Red, int Green, int Blue);
    /// Fill where d2 to Color is T or more: colours near Color are kept. No blending.
    Bits ISOLATE(Colour Color, Colour Fill, int Tolerance);
    /// Where d2 to From is at most T: blended toward To by 1 - d2/T.
    Bits REPLACE(Colour From, Colour To, int Tolerance);
    /// REPLACE where hue and saturation are within their tolerances, too. Hue is not treated as circular: -0.9 and 4.9
    /// are far apart.
    Bits ReplaceHS(Colour From, Colour To, int HueTolerance, int SatTolerance, int ApplyTolerance);
    /// REPLACE where the means differ by at most 2.55*LumTolerance, too.
    Bits ReplaceL(Colour From, Colour To, int LumTolerance, int ApplyTolerance);
    /// Where d2 to Color is below T: c + Amount, blended by 1 - d2/T.
    Bits Shift(Colour Color, int Amount, int Tolerance);
    /// Rotates the hue, scales the saturation. Offset 0 or 100 with Saturation 100 changes nothing but rounding.
    Bits RotateH(int Offset, int Saturation);
    /// Grey by a sine of brightness: 127.5*sin(v*Steps/2.5 + Offset/10) + 127.5, v the grey of GreyScale in 0..1.
    Bits RotateL(int Offset, int Steps);
    /// False colours: the mean L in 0..1 gives the hue 3*sin(L*Stretch/10) + Offset/16.67; the picture's own hue is
    /// ignored.
    Bits StretchH(int Offset, int Saturation, int Stretch);
    /// Each channel of the result from a channel of the pixel (0 blue, 1 green, 2 red, 3 the fourth byte), complemented
    /// if Invert is set, then with the bits of Kill cleared. Sources above 3 raise OutOfRange.
    Bits SwapRGB(int SourceRed, int SourceGreen, int SourceBlue, bool InvertRed, bool InvertGreen, bool InvertBlue,
                 int KillRed, int KillGreen, int KillBlue);
    /// Blue, green, red become: 1 green, red, blue; 2 red, blue, green; 3 green, blue, red; 4 red, green, blue; 5 blue,
    /// red, green. Other modes change nothing.
    Bits SwapBanks(int Mode);
    /// One of the colour recipes 0..3, 6..8, 10 and 11 (cBitFilter_classy.cpp); other modes change nothing.
    Bits ClassyColors(int Mode);
    /// Nearest colours of the palette box, with 11/16 of the error diffused to the right and below. The diffused error
    /// is stored in this object's own picture.
    Bits PaletteApply();
    /// Two straight lines that move the median of the whole picture's luminance (nearly ITU-R BT.601) to 128.
    /// DivisionByZero for a median of 1 or 255.
    Bits Equalize();
    /// Maximum, minimum and truncated average of the means of all pixels; 0, 255 and 0 without a picture.
    int GetLMax() const;
    int GetLMin() const;
    int GetLMed() const;

    // --- Neighbourhood filters (cBitFilter_neighbours.cpp, _mask.cpp, _rank.cpp, _diffuse.cpp). They read the margin
    // at the picture's edge. S8 is the sum of the eight neighbours; integer arithmetic.
    /// (c*(124-Level) - 2*S8) \ (108-Level): 0 weak, 100 strong; 108 raises DivisionByZero. The outermost pixels of the
    /// region's box are kept.
    Bits SHARPEN(int Level);
    /// (c*k + the four side neighbours) \ (k+4), k = 101-Level: 0 weak, 100 strong; 105 raises DivisionByZero. The
    /// outermost pixels of the region's box are kept.
    Bits SOFTEN(int Level);
    /// (c*(Level+9) - S8) \ (Level+1): 0 strong, 100 weak; -1 raises DivisionByZero.
    Bits EDGEENHANCE(int Level);
    /// The mean of the eight pixels at that distance, horizontally, vertically and diagonally, without the centre. 0
    /// changes nothing. A ring beyond the two pixels of margin raises OutOfRange.
    Bits Blurs(int Radius);
    /// The maximum of 3 by 3 pixels.
    Bits DILATE();
    /// The minimum of 3 by 3 pixels.
    Bits ERODE();
    /// 8*c - S8 + 255 where its mean is below Level, else Background. 0 gives Background everywhere; 255 wherever it is
    /// flat.
    Bits CONTOUR(int Level, Colour Background);
    /// Grey: the mean of |(c - its lower right neighbour)*Weight/10 + 128| over the channels. 0 gives flat 128. The
    /// last column and row repeat the ones before.
    Bits EMBOSS(int Weight);
    /// EMBOSS with the sign of the difference reversed.
    Bits ENGRAVE(int Weight);
    /// The kernel 2 1 0 / 1 1 -1 / 0 -1 -2, \ 2, + 50, on green, red and the fourth byte; blue is kept.
    Bits RELIEF();
    /// The minimum (0) or maximum (1) of the pixel and its four side neighbours; with 0 the outermost pixels of the
    /// region's box are kept. Other modes give black.
    Bits RankFilterN4(int Mode);
    /// The same with the four diagonal neighbours.
    Bits RankFilterND(int Mode);
    /// Each pixel of the region's box takes a random one around it, if that one lies in the region. 0, 0 changes
    /// nothing.
    Bits DIFFUSE(int HorizontalRange, int VerticalRange);
    /// Convolution: the sum \ Divisor + the channel's addend. Mask is square, Mask[i][j] with i along y, centred on the
    /// pixel. Clip skips pixels whose mask would extend beyond the picture. Divisor 0 raises DivisionByZero.
    Bits MaskFilter(const std::vector<std::vector<int>>& Mask, double Divisor, int AddRed, int AddGreen, int AddBlue,
                    bool Clip);

    // --- Deformations (cBitFilter_deform.cpp, _warp.cpp, _glass.cpp, _crossing.cpp). Each target pixel of the region's
    // box takes the pixel nearest to a source position. If the source is outside of the region the target becomes black
    // with Clean, else it is kept. dx, dy are relative to the centre (maxX \ 2, maxY \ 2).
    /// Rotated about the centre, counterclockwise for positive degrees. 0 changes nothing.
    Bits ROTATE(int Degrees, bool Clean);
    /// ROTATE with bilinear interpolation; black outside of the picture, whatever the region.
    Bits RotateSmooth(int Degrees);
    /// Mirrors the whole picture, not only the region.
    Bits Flip(bool Horizontal, bool Vertical);
    /// Source = centre + (dx, dy)*(percent/100 + 1): positive values shrink the picture, negative ones enlarge it,
    /// below -100 it is mirrored. 0 changes nothing.
    Bits STRETCH(int Horizontal, int Vertical, bool Clean);
    /// Each axis is scaled by the position on the other one, like a sheet in perspective. 0 changes nothing. A picture
    /// of one column or row raises DivisionByZero.
    Bits FOLD(int Horizontal, int Vertical, bool Clean);
    /// Polar coordinates: the bottom row becomes the centre, the columns become rays. The radius is scaled by
    /// RadiusFactor/100 + 2; at -200 everything is the bottom row.
    Bits BEND(int RadiusFactor, bool Clean);
    /// Rotated by OffsetDegrees, plus Level/10 radians per half width of distance from the centre. 0, 0 changes nothing
    /// but rounding.
    Bits TWIRL(int Level, int OffsetDegrees, bool Clean);
    /// Rows displaced by a sine of Amplitude/4 pixels, Frequency degrees a row; the region is tested at the target.
    /// Frequency 0 moves all rows alike.
    Bits WAVES(int Frequency, int Amplitude, int StartDegree);
    /// A sphere of that radius viewed from (150-Magnify)/150 of the radius: its middle is enlarged. 0 changes nothing,
    /// from 150 on the middle is one pixel. A source beyond the margin raises OutOfRange.
    Bits LENS(float CenterX, float CenterY, float Radius, int Magnify);
    /// Factor by Factor small copies of the whole picture; the region is tested at the target. 0 raises DivisionByZero.
    Bits TILE(int Factor);
    /// Sources displaced by sines, cosines and tangents of the column, the row or the pixel's index, taken as radians
    /// (cBitFilter_glass.cpp has the styles and modes). With an unknown style or mode every source is (0, 0).
    Bits GLASS(const std::string& Style, int Mode);

    // --- Stylising filters and generators (cBitFilter_stylise.cpp, _quadrants.cpp, _cells.cpp, _stucki.cpp,
    // _generate.cpp, _gradient.cpp, _overlay.cpp)
    /// Edge-preserving smoothing (Kuwahara, 1976): a channel takes the mean of the one of the four 3 by 3 windows at
    /// the pixel's corners that deviates least from its mean; ties go to the first.
    Bits Dissolve();
    /// The same without the lower right window, which looks like brush strokes.
    Bits PAINTING();
    /// Squares of their mean colour, aligned to the picture's corner. 1 changes nothing, 0 raises DivisionByZero.
    Bits PIXELIZE(int Size);
    /// Coloured dots on black, each its cell's mean times (Intensity+100)/100, darker toward the rim. Definition widens
    /// the dots. Radius 0 raises DivisionByZero.
    Bits Halftone(int Radius, int Definition, int Intensity);
    /// Where (8*c - S8, summed over the channels, + 765) \ 3 is above Level: white on black with Mono, else Color on
    /// the picture.
    Bits SKETCH(int Level, bool Mono, Colour Color);
    /// Black and white, thresholded at the whole picture's mean, by error diffusion with the kernel of P. Stucki
    /// (1981). 10/Divisor of the error is diffused; 0 raises DivisionByZero.
    Bits StuckiBW(int Divisor);
    /// The strongest channel alone; a tie for the strongest leaves the pixel unchanged.
    Bits THERMIQUE();
    /// All channels above 127: black; all below 128: white; mixed pixels are kept.
    Bits XBLACK();
    /// XBLACK with white and black exchanged.
    Bits PHOTOCOP();
    /// A disc of light: c + (1 - (1-Definition/100)*distance/radius)*Intensity. Definition 0 fades to the rim, 100 has
    /// a hard edge. A radius of 0 changes nothing.
    Bits Light(float CenterX, float CenterY, float Radius, int Intensity, int Definition);
    /// c + a random number of -Amount..Amount+1, the same for all channels if Equalized, else one each. 0 may still add
    /// 1.
    Bits NOISE(int Amount, bool Equalized);
    /// c - Level on every second row of the region's box.
    Bits Scanlines(int Level);
    /// Lines across the region's box; with ForceMargins on the picture's last row and column, too. Steps below 1:
    /// OutOfRange.
    Bits Grid(int HorizontalStep, int VerticalStep, bool ForceMargins, Colour Color, int Opacity);
    /// A ramp from Color1 at the first point to Color2 at the second and beyond; -1 is the pixel's own colour. Repeat
    /// above 1 gives bands by a squared sine. Two equal points change nothing.
    Bits GradientLinear(int X1, int Y1, int X2, int Y2, Colour Color1, Colour Color2, int Opacity, int Repeat);
    /// The same by the distance from the first point.
    Bits GradientCircular(int X1, int Y1, int X2, int Y2, Colour Color1, Colour Color2, int Opacity, int Repeat);
    /// c * texture/128, tiled over the region's box; the texture's blue channel is used. OutOfRange for a texture of
    /// one row or column.
    Bits Texturize(const Bits& Texture);
    /// Overlay at (Left, Top), once or tiled, blended by Transparency; pixels of KeyColor are skipped, -1: none are.
    Bits TileMask(const Bits& Overlay, int Left, int Top, bool Tiled, int Transparency, Colour KeyColor);

    /// The region's bounding box moved inward by Margin, not clipped to the picture.
    Box GetBounds(int Margin) const;
    /// Angle of (X, Y) in radians, in (-pi/2, 3 pi/2); for X = 0 it is pi/2 when Y > 0, else -pi/2.
    static float Angle(int X, int Y);

  private:
    /// Rows that one thread works on at once: so many, counted from origin. Alone: in order, on the caller's thread.
    struct Cut {
        std::int64_t rows = 1, origin = 0;
        bool alone = false;
    };
    // The calling patterns; their bodies are in passes.h. All cores work in them. A kernel is shared by the threads, so
    // it writes nothing that it has captured.
    template <class Kernel> Bits eachSpan(int margin, Kernel&& kernel, Cut cut = {});
    template <class Make> Bits eachSpanOf(int margin, Cut cut, Make&& make);
    template <class Row> std::int64_t sumOfRows(const Bits& in, Row&& row);
    /// piece(a, b) for the rows a to b-1, of the rows y0 to y1-1 of a picture; then, in order, progress of its rows.
    void eachPiece(int y0, int y1, Cut cut, const Bits& picture, const std::function<void(int a, int b)>& piece);
    Bits rankFilter(int Mode, RankWindow window);
    template <class Band> Bits eachBand(int rows, Band&& band);
    template <class Run> Bits eachTile(int rows, Run&& run);
    template <class Map> Bits eachSource(bool Clean, Map&& map, int rows = 64);
    template <class Map, class Settle> Bits eachSettledSource(bool Clean, Map&& map, Settle&& settle);
    /// eachSource for the sources (columns[x], rows[y]).
    Bits eachCrossing(bool Clean, const std::vector<std::int32_t>& columns, const std::vector<std::int32_t>& rows);
    template <class Kernel> Bits eachOfDisc(const Disc& disc, double limit, Kernel&& kernel);
    void crop(const Bits& Source, const Rect& rectangle, bool masked);
    void progressDue(std::int64_t done, std::int64_t of);
    void report(int percent);
    /// The generator for one run of a filter.
    Random nextRandom();

    Bits bits_;
    Region region_;
    std::uint32_t lastProgress_ = 0;
    std::uint64_t randomSeed_ = kRandomSeed;
};

/// Names a method in a row.
template <auto Method> struct Does {
};

/// The operations by name. Each argument is "name:values:usual = meaning". values are "least..most" (with decimals for
/// singles), texts separated by "|", or a word: colour (0x00BBGGRR; colour|-1 allows none, too), column and row of the
/// picture, side (a width or height in pixels). They may go beyond those of the dialogs, to be tested, too. Booleans
/// and pictures have no values; the usual text is the first. The meaning names the unit and what the ends do, without
/// commas. A template, so that its calls are compiled only where the table is read; Row is Operation (operationRows.h).
// clang-format off
template <class Row> inline constexpr Row kOperationRows[] = {
    {"BitsBlack",           "",                                                         Does<&cBitFilter::BitsBlack>()},
    {"BitsCrop",            "Left:column:5 = first column,Top:row:5 = first row,"
                            "Right:column:50 = column after the last,Bottom:row:30 = row after the last", Does<&cBitFilter::BitsCrop>()},
    {"BitsCropMasked",      "Left:column:5 = first column,Top:row:5 = first row,"
                            "Right:column:50 = column after the last,Bottom:row:30 = row after the last", Does<&cBitFilter::BitsCropMasked>()},
    {"BitsResample",        "NewWidth:side:100 = pixels,NewHeight:side:80 = pixels",    Does<&cBitFilter::BitsResample>()},
    {"BitsResize",          "NewWidth:side:100 = pixels,NewHeight:side:80 = pixels",    Does<&cBitFilter::BitsResize>()},
    {"BitsRotate90",        "",                                                         Does<&cBitFilter::BitsRotate90>()},
    {"BitsTakeFromPicture", "Picture = its upper left part is taken,Width:side:10 = pixels,Height:side:10 = pixels", Does<&cBitFilter::BitsTakeFromPicture>()},

    {"BRIGHTNESS",      "Level:-300..300:20 = levels added; 0 changes nothing",         Does<&cBitFilter::BRIGHTNESS>()},
    {"CONTRAST",        "Level:-150..300:10 = percent added to the contrast; -100 is flat grey", Does<&cBitFilter::CONTRAST>()},
    {"SATURATION",      "Level:-1500..1500:30 = percent added to the saturation; -100 is grey", Does<&cBitFilter::SATURATION>()},
    {"GammaCorrection", "Level:-120..120:-30 = gamma is (Level+100)/100; -100 is black", Does<&cBitFilter::GammaCorrection>()},
    {"COLORIZE",        "Hue:-1.0..5.0:0.5 = sixths of a turn from red,"
                        "Saturation:0.0..1.0:0.25 = 0 grey to 1 pure,"
                        "Luminosity:0.0..1.0:1.0 = factor of the brightness",           Does<&cBitFilter::COLORIZE>()},
    {"GreyScale",       "",                                                             Does<&cBitFilter::GreyScale>()},
    {"OLDPHOTO",        "",                                                             Does<&cBitFilter::OLDPHOTO>()},
    {"Invert",          "",                                                             Does<&cBitFilter::Invert>()},
    {"KillChannel",     "KillRed = red becomes 0,KillGreen = green becomes 0,KillBlue = blue becomes 0", Does<&cBitFilter::KillChannel>()},
    {"SpecialColors",   "KeepRed = else red becomes 0,KeepGreen = else green becomes 0,KeepBlue = else blue becomes 0", Does<&cBitFilter::SpecialColors>()},
    {"Threshold",       "Level:0..255:128 = brightest level that becomes black",        Does<&cBitFilter::Threshold>()},
    {"Reduction",       "Level:0..300:31 = levels are rounded to multiples of Level+1; 0 changes nothing", Does<&cBitFilter::Reduction>()},
    {"ShiftRGB",        "Red:-300..300:20 = levels added,Green:-300..300:-30 = levels added,Blue:-300..300:40 = levels added", Does<&cBitFilter::ShiftRGB>()},
    {"ISOLATE",         "Color:colour:0x4060A0 = what is near it stays,Fill:colour:0x20FF40 = takes the place of the rest,"
                        "Tolerance:0..200:100 = percent of half a channel's range; 0 is the exact colour", Does<&cBitFilter::ISOLATE>()},
    {"REPLACE",         "From:colour:0x506070 = what is near it is replaced,To:colour:0x2040F0 = by this,"
                        "Tolerance:0..200:100 = percent of half a channel's range; 0 is the exact colour", Does<&cBitFilter::REPLACE>()},
    {"ReplaceHS",       "From:colour:0x506070 = what is near it is replaced,To:colour:0x2040F0 = by this,"
                        "HueTolerance:0..600:50 = hundredths of a sixth of a turn,SatTolerance:0..100:50 = percent,"
                        "ApplyTolerance:0..200:100 = percent of half a channel's range; 0 is the exact colour", Does<&cBitFilter::ReplaceHS>()},
    {"ReplaceL",        "From:colour:0x506070 = what is near it is replaced,To:colour:0x2040F0 = by this,"
                        "LumTolerance:0..100:50 = percent of brightness,"
                        "ApplyTolerance:0..200:100 = percent of half a channel's range; 0 is the exact colour", Does<&cBitFilter::ReplaceL>()},
    {"Shift",           "Color:colour:0x4060A0 = what is near it is shifted,Amount:-255..255:50 = levels added,"
                        "Tolerance:0..200:100 = percent of half a channel's range; 0 is the exact colour", Does<&cBitFilter::Shift>()},
    {"RotateH",         "Offset:0..100:30 = percent of a turn of the hue,Saturation:0..100:100 = percent kept; 0 is grey", Does<&cBitFilter::RotateH>()},
    {"RotateL",         "Offset:0..100:30 = phase of the sine in tenths of a radian,"
                        "Steps:0..100:25 = its frequency: Steps/2.5 radians from black to white", Does<&cBitFilter::RotateL>()},
    {"StretchH",        "Offset:0..100:30 = percent of a turn of the hue,Saturation:0..100:100 = percent; 0 is grey,"
                        "Stretch:0..100:40 = tenths of a radian of hue from black to white", Does<&cBitFilter::StretchH>()},
    {"SwapRGB",         "SourceRed:0..3:0 = channel: 0 blue; 1 green; 2 red; 3 the fourth byte,SourceGreen:0..3:2 = channel as for red,"
                        "SourceBlue:0..3:1 = channel as for red,InvertRed = 255 less it,InvertGreen = 255 less it,InvertBlue = 255 less it,"
                        "KillRed:0..255:0 = bits that are taken away,KillGreen:0..255:0 = bits that are taken away,KillBlue:0..255:0 = bits that are taken away", Does<&cBitFilter::SwapRGB>()},
    {"SwapBanks",       "Mode:-1..7:1 = order of the channels: 1 to 5; others change nothing", Does<&cBitFilter::SwapBanks>()},
    {"ClassyColors",    "Mode:-1..13:7 = recipe: 0 to 3; 6 to 8; 10; 11; others change nothing", Does<&cBitFilter::ClassyColors>()},
    {"PaletteApply",    "",                                                             Does<&cBitFilter::PaletteApply>()},
    {"Equalize",        "",                                                             Does<&cBitFilter::Equalize>()},

    {"SHARPEN",         "Level:0..100:30 = 0 weak to 100 strong",                       Does<&cBitFilter::SHARPEN>()},
    {"SOFTEN",          "Level:0..100:30 = 0 weak to 100 strong",                       Does<&cBitFilter::SOFTEN>()},
    {"EDGEENHANCE",     "Level:0..100:30 = 0 strong to 100 weak",                       Does<&cBitFilter::EDGEENHANCE>()},
    {"Blurs",           "Radius:0..2:1 = pixels; 0 changes nothing",                    Does<&cBitFilter::Blurs>()},
    {"DILATE",          "",                                                             Does<&cBitFilter::DILATE>()},
    {"ERODE",           "",                                                             Does<&cBitFilter::ERODE>()},
    {"CONTOUR",         "Level:0..255:255 = edges darker than this show; 0 is none,Background:colour:0x36E2D7 = of all else", Does<&cBitFilter::CONTOUR>()},
    {"EMBOSS",          "Weight:0..50:10 = tenths of the difference; 0 is flat grey",   Does<&cBitFilter::EMBOSS>()},
    {"ENGRAVE",         "Weight:0..50:10 = tenths of the difference; 0 is flat grey",   Does<&cBitFilter::ENGRAVE>()},
    {"RELIEF",          "",                                                             Does<&cBitFilter::RELIEF>()},
    {"RankFilterN4",    "Mode:0..1:0 = 0 darkest; 1 brightest",                         Does<&cBitFilter::RankFilterN4>()},
    {"RankFilterND",    "Mode:0..1:0 = 0 darkest; 1 brightest",                         Does<&cBitFilter::RankFilterND>()},
    {"DIFFUSE",         "HorizontalRange:0..50:2 = pixels from left to right,VerticalRange:0..50:2 = pixels from top to bottom", Does<&cBitFilter::DIFFUSE>()},
    {"MaskFilter",      "Mask:1 2 1/2 4 2/1 2 1|0 -1 0/-1 5 -1/0 -1 0|1 1 1 1 1/1 0 0 0 1/1 0 -9 0 1/1 0 0 0 1/1 2 3 4 5 = weights; rows split by slashes,"
                        "Divisor:-4.0..40.0:16.0 = of the sum; not 0,AddRed:-255..255:0 = levels added,AddGreen:-255..255:10 = levels added,"
                        "AddBlue:-255..255:0 = levels added,Clip = leaves the picture's edge alone", Does<&cBitFilter::MaskFilter>()},

    {"ROTATE",          "Degrees:-400..400:30 = to the left; below 0 to the right,Clean = sources outside give black", Does<&cBitFilter::ROTATE>()},
    {"RotateSmooth",    "Degrees:-400..400:30 = to the left; below 0 to the right",     Does<&cBitFilter::RotateSmooth>()},
    {"Flip",            "Horizontal = left and right exchanged,Vertical = top and bottom exchanged", Does<&cBitFilter::Flip>()},
    {"STRETCH",         "Horizontal:-210..210:40 = percent; above 0 shrinks; below 0 enlarges,Vertical:-100..100:40 = percent as before,Clean = sources outside give black", Does<&cBitFilter::STRETCH>()},
    {"FOLD",            "Horizontal:-100..100:40 = percent at the edge; 0 is none,Vertical:-100..100:40 = percent at the edge; 0 is none,Clean = sources outside give black", Does<&cBitFilter::FOLD>()},
    {"BEND",            "RadiusFactor:-200..200:50 = percent added to twice the radius,Clean = sources outside give black", Does<&cBitFilter::BEND>()},
    {"TWIRL",           "Level:-100..100:30 = tenths of a radian at half the width,OffsetDegrees:-180..180:20 = degrees for all,Clean = sources outside give black", Does<&cBitFilter::TWIRL>()},
    {"WAVES",           "Frequency:0..100:25 = degrees a row,Amplitude:1..100:25 = quarters of a pixel,StartDegree:0..360:0 = degrees at the top row", Does<&cBitFilter::WAVES>()},
    {"LENS",            "CenterX:0.0..1.0:0.5 = part of the width,CenterY:0.0..1.0:0.5 = part of the height,"
                        "Radius:0.01..0.8:0.4 = part of the longer side,Magnify:0..130:50 = 0 nothing to 130 strong", Does<&cBitFilter::LENS>()},
    {"TILE",            "Factor:0..50:2 = copies a side",                               Does<&cBitFilter::TILE>()},
    {"GLASS",           "Style:slanting|horizontal|vertical|squary|curtain = way of the waves,Mode:-1..5:0 = from 0: variant of the style", Does<&cBitFilter::GLASS>()},

    {"Dissolve",        "",                                                             Does<&cBitFilter::Dissolve>()},
    {"PAINTING",        "",                                                             Does<&cBitFilter::PAINTING>()},
    {"PIXELIZE",        "Size:1..25:2 = pixels a side; 1 changes nothing",              Does<&cBitFilter::PIXELIZE>()},
    {"Halftone",        "Radius:1..25:6 = pixels of a dot,Definition:0..100:50 = pixels added to its reach,Intensity:0..100:50 = percent brighter", Does<&cBitFilter::Halftone>()},
    {"SKETCH",          "Level:-5..300:60 = edges above it are drawn; flat ones have 255,Mono = white on black,Color:colour:0x4060A0 = of the lines without Mono", Does<&cBitFilter::SKETCH>()},
    {"StuckiBW",        "Divisor:1..100:42 = 10 diffuses all of the error; more diffuses less", Does<&cBitFilter::StuckiBW>()},
    {"THERMIQUE",       "",                                                             Does<&cBitFilter::THERMIQUE>()},
    {"XBLACK",          "",                                                             Does<&cBitFilter::XBLACK>()},
    {"PHOTOCOP",        "",                                                             Does<&cBitFilter::PHOTOCOP>()},

    {"Light",            "CenterX:0.0..1.0:0.5 = part of the width,CenterY:0.0..1.0:0.5 = part of the height,Radius:0.01..0.8:0.4 = part of the longer side,"
                         "Intensity:0..500:250 = levels added in the middle,Definition:0..100:50 = percent of it at the rim", Does<&cBitFilter::Light>()},
    {"NOISE",            "Amount:0..100:25 = levels up or down,Equalized = the same for all channels", Does<&cBitFilter::NOISE>()},
    {"Scanlines",        "Level:0..255:128 = levels taken away",                        Does<&cBitFilter::Scanlines>()},
    {"Grid",             "HorizontalStep:0..250:25 = pixels,VerticalStep:0..250:25 = pixels,ForceMargins = also lines at the last column and row,"
                         "Color:colour:0x4060A0 = of the lines,Opacity:0..255:128 = 0 invisible to 255 opaque", Does<&cBitFilter::Grid>()},
    {"GradientLinear",   "X1:column:5 = where Color1 is,Y1:row:5 = where Color1 is,X2:column:50 = where Color2 is,Y2:row:30 = where Color2 is,"
                         "Color1:colour|-1:0x0000FF = -1 is the pixel's own,Color2:colour|-1:0xFF0000 = -1 is the pixel's own,"
                         "Opacity:0..100:60 = percent,Repeat:0..30:1 = 1 is a ramp; more are bands", Does<&cBitFilter::GradientLinear>()},
    {"GradientCircular", "X1:column:5 = middle,Y1:row:5 = middle,X2:column:50 = on the circle of Color2,Y2:row:30 = on the circle of Color2,"
                         "Color1:colour|-1:0x0000FF = -1 is the pixel's own,Color2:colour|-1:0xFF0000 = -1 is the pixel's own,"
                         "Opacity:0..100:60 = percent,Repeat:0..30:1 = 1 is a ramp; more are rings", Does<&cBitFilter::GradientCircular>()},
    {"Texturize",        "Texture = its blue channel over 128 is the factor",           Does<&cBitFilter::Texturize>()},
    {"TileMask",         "Overlay = laid over,Left:column:5 = of its first column,Top:row:5 = of its first row,Tiled = repeated to the right and below,"
                         "Transparency:0..100:40 = percent; 100 is invisible,KeyColor:colour|-1:0 = is left out; -1 is none", Does<&cBitFilter::TileMask>()},
};
// clang-format on

} // namespace velara
