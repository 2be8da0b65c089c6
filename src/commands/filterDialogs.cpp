#include "commands/filterDialogs.h"
#include "pixels/mHSLRGB.h"
#include "pixels/numbers.h"
#include <QString>
#include <algorithm>

namespace velara {

namespace {

using E = FilterExtra;
using F = cBitFilter;
using A = FilterArgs;

constexpr auto kTwoWells = E::SourceWell | E::TargetWell | E::PickColour;

float fractionOfSide(const A& a) { return static_cast<float>(quotient(a.value[0], a.longerSide)); }

constexpr FilterSlider whole(const char* caption, double least, double most, double byDefault)
{
    return {caption, least, most, byDefault};
}

constexpr std::array<std::string_view, 2> opens(std::string_view word = "", std::string_view other = "")
{
    return {word, other};
}

// clang-format off
constexpr FilterRow kRows[] = { // number, title, sliders, option, extras, call, words
    { 0, "Color [Colorize]", {{whole("Hue", 0, 100, 0), whole("Saturation", 0, 100, 50), whole("Luminosity", 0, 100, 100)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.COLORIZE(HueFromScale(roundEven(a.value[0] * 2.4)) / 40.0f, static_cast<float>(a.value[1] / 100.0), static_cast<float>(a.value[2] / 100.0)); }, opens("COLORIZE")},
    { 1, "Adjust [Brightness]", {{whole("Level", -100, 250, 0)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.BRIGHTNESS(a.value[0]); }, opens("LIGHTCUSTOM", "BRIGHTNESS")},
    { 2, "Adjust [Contrast]", {{whole("Level", -100, 250, 0)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.CONTRAST(a.value[0]); }, opens("CONTRAST")},
    { 3, "Adjust [Saturation]", {{whole("Level", -100, 250, 0)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.SATURATION(a.value[0]); }, opens("CUSTOMSATURATION")},
    { 4, "Adjust [Gamma correction]", {{{"Gamma", 0, 2, 1, 0.01, 2, true}}}, nullptr, E::None,
      [](F& f, const A& a) { return f.GammaCorrection(a.value[0]); }, opens("GAMMA")},
    { 5, "Definition [Diffuse]", {{whole("Horizontal range", 0, 50, 2), whole("Vertical range", 0, 50, 2)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.DIFFUSE(a.value[0], a.value[1]); }, opens("CUSTOMDIFFUSE")},
    { 6, "Adjust [Blur]", {{whole("Level", 0, 2, 0)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.Blurs(a.value[0]); }, opens("CUSTOMBLUR")},
    { 7, "Definition [Halftone]", {{whole("Radius", 1, 25, 1), whole("Definition", 0, 100, 50), whole("Intensity", 0, 100, 0)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.Halftone(a.value[0], a.value[1], a.value[2]); }, opens("HAFTONE")},
    { 8, "Definition [Pixelaze]", {{whole("Pixel size", 1, 25, 2)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.PIXELIZE(a.value[0]); }, opens("PIXELIZE")},
    { 9, "Edges [Emboss]", {{whole("Weight", 0, 50, 10)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.EMBOSS(a.value[0]); }, opens("CUSTOMEMBOSS")},
    {10, "Edges [Engrave]", {{whole("Weight", 0, 50, 10)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.ENGRAVE(a.value[0]); }, opens("CUSTOMENGRAVE")},
    {11, "Edges [Contour]", {{whole("Weight", 0, 255, 255)}}, nullptr, E::TargetWell,
      [](F& f, const A& a) { return f.CONTOUR(a.value[0], a.colour[1]); }, opens("CUSTOMCONTOUR")},
    {12, "Edges [Sketch]", {{whole("Weight", 0, 255, 255)}}, "B/W", E::TargetWell,
      [](F& f, const A& a) { return f.SKETCH(a.value[0], a.option, a.colour[1]); }, opens("SKETCH")},
    {13, "Edges [Threshold]", {{whole("Cut value", 0, 255, 128)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.Threshold(a.value[0]); }, opens()},
    {14, "Color [Isolate]", {{whole("Tolerance", 0, 200, 100)}}, nullptr, kTwoWells,
      [](F& f, const A& a) { return f.ISOLATE(a.colour[0], a.colour[1], a.value[0]); }, opens("ISOLATE")},
    {15, "Color [Reduction]", {{whole("Level", 0, 255, 0)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.Reduction(a.value[0]); }, opens()},
    {16, "Color [Replace]", {{whole("Tolerance", 0, 200, 100)}}, nullptr, kTwoWells,
      [](F& f, const A& a) { return f.REPLACE(a.colour[0], a.colour[1], a.value[0]); }, opens("REPLACE")},
    {17, "Color [Replace Hue/Sat.]", {{whole("Hue Tolerance", 0, 100, 50), whole("Sat. Tolerance", 0, 100, 50), whole("Apply Tolerance", 0, 200, 100)}}, nullptr, kTwoWells,
      [](F& f, const A& a) { return f.ReplaceHS(a.colour[0], a.colour[1], a.value[0], a.value[1], a.value[2]); }, opens("REPLACEHUESAT")},
    {18, "Color [Replace Lum.]", {{whole("Lum. Tolerance", 0, 100, 50), whole("Apply Tolerance", 0, 200, 100)}}, nullptr, kTwoWells,
      [](F& f, const A& a) { return f.ReplaceL(a.colour[0], a.colour[1], a.value[0], a.value[1]); }, opens("REPLACELUMINOUS")},
    {19, "Adjust [Sharpen]", {{whole("Level", 0, 100, 0)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.SHARPEN(a.value[0]); }, opens("CUSTOMSHARPEN")},
    {20, "Adjust [Soften]", {{whole("Level", 0, 100, 0)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.SOFTEN(a.value[0]); }, opens("CUSTOMSOFTEN")},
    {21, "Color [Shift]", {{whole("Shift", -255, 255, 0), whole("Tolerance", 0, 200, 100)}}, nullptr, E::SourceWell | E::PickColour,
      [](F& f, const A& a) { return f.Shift(a.colour[0], a.value[0], a.value[1]); }, opens("SHIFT")},
    {22, "Color [Hue rotation]", {{whole("Offset", 0, 100, 0), whole("Saturation", 0, 100, 100)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.RotateH(a.value[0], a.value[1]); }, opens("HUEROTATION")},
    {23, "Color [Grey rotation]", {{whole("Offset", 0, 100, 0), whole("Steps", 0, 100, 25)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.RotateL(a.value[0], a.value[1]); }, opens("GREYROTATION")},
    {24, "Color [Hue stretch]", {{whole("Offset", 0, 100, 0), whole("Saturation", 0, 100, 100), whole("Stretch factor", 0, 100, 0)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.StretchH(a.value[0], a.value[1], a.value[2]); }, opens("HUESTRETCH")},
    {25, "Color [RGB levels]", {{whole("Red", -255, 255, 0), whole("Green", -255, 255, 0), whole("Blue", -255, 255, 0)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.ShiftRGB(a.value[0], a.value[1], a.value[2]); }, opens("RGBLEVELS")},
    {26, "Color [RGB banks]", {}, nullptr, E::Banks,
      [](F& f, const A& a) { return f.SwapRGB(a.channel[0], a.channel[1], a.channel[2], a.invert[0], a.invert[1], a.invert[2], a.kill[0] * 255, a.kill[1] * 255, a.kill[2] * 255); }, opens("RGBBANKS")},
    {27, "Deformation [Lens]", {{whole("Diameter", 1, 100, 50), whole("Magnify factor", 0, 100, 50)}}, nullptr, E::PickCentre,
      [](F& f, const A& a) { return f.LENS(a.centerX, a.centerY, fractionOfSide(a), a.value[1]); }, opens("LENS")},
    {28, "Deformation [Waves]", {{whole("Frequency", 0, 100, 25), whole("Amplitude", 1, 100, 25), whole("Start degree", 0, 360, 0)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.WAVES(a.value[0], a.value[1], a.value[2]); }, opens("WAVES")},
    {29, "Deformation [Bend]", {{whole("Radius factor", -200, 200, 0)}}, "Clean back", E::None,
      [](F& f, const A& a) { return f.BEND(a.value[0], a.option); }, opens("BEND")},
    {30, "Deformation [Fold]", {{whole("Horizontal factor", -100, 100, 0), whole("Vertical factor", -100, 100, 0)}}, "Clean back", E::None,
      [](F& f, const A& a) { return f.FOLD(a.value[0], a.value[1], a.option); }, opens("FOLD")},
    {31, "Deformation [Rotate]", {{whole("Degrees", -180, 180, 0)}}, "Clean back", E::None,
      [](F& f, const A& a) { return f.ROTATE(a.value[0], a.option); }, opens("ROTATE")},
    {32, "Deformation [Stretch]", {{whole("Horizontal factor", -100, 100, 0), whole("Vertical factor", -100, 100, 0)}}, "Clean back", E::None,
      [](F& f, const A& a) { return f.STRETCH(a.value[0], a.value[1], a.option); }, opens("STRETCH")},
    {33, "Deformation [Tile]", {{whole("Factor", 2, 50, 2)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.TILE(a.value[0]); }, opens("TILE")},
    {34, "Deformation [Twirl]", {{whole("Level", -100, 100, 0), whole("Offset degrees", -180, 180, 0)}}, "Clean back", E::None,
      [](F& f, const A& a) { return f.TWIRL(a.value[0], a.value[1], a.option); }, opens("TWIRL")},
    {35, "Special [Grid]", {{whole("Horizontal step", 1, 250, 25), whole("Vertical step", 1, 250, 25), whole("Opacity", 0, 255, 128)}}, "Force margins", E::TargetWell,
      [](F& f, const A& a) { return f.Grid(a.value[0], a.value[1], a.option, a.colour[1], a.value[2]); }, opens("ADDGRID")},
    {36, "Special [Light]", {{whole("Extension", 1, 100, 50), whole("Intensity", 0, 500, 250), whole("Definition", 0, 100, 0)}}, nullptr, E::PickCentre,
      [](F& f, const A& a) { return f.Light(a.centerX, a.centerY, fractionOfSide(a), a.value[1], a.value[2]); }, opens("LENSFLARE")},
    {37, "Special [Noise]", {{whole("Intensity", 0, 100, 25)}}, "Equalized", E::None,
      [](F& f, const A& a) { return f.NOISE(a.value[0], a.option); }, opens("CUSTOMNOISE", "ADDNOISE")},
    {38, "Special [Scanlines]", {{whole("Opacity", 0, 255, 128)}}, nullptr, E::None,
      [](F& f, const A& a) { return f.Scanlines(a.value[0]); }, opens("ADDSCANLINES")},
    {39, "Behind Glass", {}, nullptr, E::Glass,
      [](F& f, const A& a) { return f.GLASS(a.style, a.mode); }, opens("CUSTOMGLASS")},
    {40, "Behind Curtain", {}, nullptr, E::Curtain,
      [](F& f, const A& a) { return f.GLASS("curtain", a.mode); }, opens("CUSTOMCURTAIN")},
};
// clang-format on

constexpr bool inRange(const FilterSlider& s)
{
    return !s.used() || (s.least <= s.byDefault && s.byDefault <= s.most && s.least < s.most && s.step > 0);
}
consteval bool isSound()
{
    int number = 0;
    for (const FilterRow& row : kRows) {
        if (row.number != number++ || !std::ranges::all_of(row.sliders, inRange)) return false;
        const bool hasControls = row.sliders[0].used() || row.extras != E::None;
        if (!hasControls || (row.sliders[2].used() && !row.sliders[1].used())) return false;
        for (const auto word : row.words)
            for (const FilterRow& other : kRows)
                if (!word.empty() && &other != &row && std::ranges::count(other.words, word) > 0) return false;
    }
    return number == 41;
}
static_assert(isSound(), "numbers in order, sliders in range and used from the first on, a word opens one row");

} // namespace

int FilterSlider::minimum() const { return roundEven(quotient(least, step)); }
int FilterSlider::maximum() const { return roundEven(quotient(most, step)); }
int FilterSlider::initial() const { return roundEven(quotient(byDefault, step)); }
int FilterSlider::centre() const { return centred ? roundEven(most / step * 0.5) : 0; }
QString FilterSlider::text(int position) const { return QString::number(position * step, 'f', decimals); }

FilterArgs FilterRow::defaults() const
{
    FilterArgs args;
    for (std::size_t i = 0; i < sliders.size(); ++i)
        if (sliders[i].used()) args.value[i] = sliders[i].initial() - sliders[i].centre();
    return args;
}

std::span<const FilterRow> filterRows() { return kRows; }

const FilterRow* findFilterRow(std::string_view word)
{
    if (word.empty()) return nullptr;
    const auto* found =
        std::ranges::find_if(kRows, [word](const FilterRow& row) { return std::ranges::count(row.words, word) > 0; });
    return found == std::end(kRows) ? nullptr : found;
}

} // namespace velara
