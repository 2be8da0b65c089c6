#include "commands/filterDialogs.h"
#include "engine/operationRows.h"
#include "pixels/mHSLRGB.h"
#include "pixels/numbers.h"
#include <QString>
#include <algorithm>
#include <limits>

namespace velara {

namespace {

using E = FilterExtra;
using A = FilterArgs;

constexpr auto kTwoWells = E::SourceWell | E::TargetWell | E::PickColour;

float fractionOfSide(const A& a) { return static_cast<float>(quotient(a.value[0], a.longerSide)); }

constexpr double kAsInRow = std::numeric_limits<double>::quiet_NaN();

/// A slider over the whole range of the operation's parameter, initially at its usual value unless given.
constexpr FilterSlider of(const char* caption, std::string_view parameter, double byDefault = kAsInRow)
{
    return {caption, parameter, kAsInRow, kAsInRow, byDefault};
}
/// A slider over a part of the range.
constexpr FilterSlider within(const char* caption, std::string_view parameter, double least, double most,
                              double byDefault)
{
    return {caption, parameter, least, most, byDefault};
}
/// A slider in units of its own.
constexpr FilterSlider free(const char* caption, double least, double most, double byDefault)
{
    return {caption, "", least, most, byDefault};
}

constexpr std::array<std::string_view, 2> opens(std::string_view word = "", std::string_view other = "")
{
    return {word, other};
}

// clang-format off
constexpr FilterRow kTold[] = { // number, title, operation, sliders, option, extras, arguments, words {, place in the menus}
    { 0, "Color [Colorize]", "COLORIZE", {{free("Hue", 0, 100, 0), free("Saturation", 0, 100, 50), free("Luminosity", 0, 100, 100)}}, nullptr, E::None,
      [](const A& a) { return Arguments{HueFromScale(roundEven(a.value[0] * 2.4)) / 40.0f, static_cast<float>(a.value[1] / 100.0), static_cast<float>(a.value[2] / 100.0)}; }, opens("COLORIZE")},
    { 1, "Adjust [Brightness]", "BRIGHTNESS", {{within("Level", "Level", -100, 250, 0)}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens("LIGHTCUSTOM", "BRIGHTNESS")},
    { 2, "Adjust [Contrast]", "CONTRAST", {{within("Level", "Level", -100, 250, 0)}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens("CONTRAST")},
    { 3, "Adjust [Saturation]", "SATURATION", {{within("Level", "Level", -100, 250, 0)}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens("CUSTOMSATURATION")},
    { 4, "Adjust [Gamma correction]", "GammaCorrection", {{{"Gamma", "Level", 0, 2, 1, 0.01, 2, true}}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens("GAMMA"), {"EFFECTS", "Gamma Correction", "adjustcurves"}},
    { 5, "Definition [Diffuse]", "DIFFUSE", {{of("Horizontal range", "HorizontalRange"), of("Vertical range", "VerticalRange")}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0], a.value[1]}; }, opens("CUSTOMDIFFUSE")},
    { 6, "Adjust [Blur]", "Blurs", {{of("Level", "Radius", 0)}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens("CUSTOMBLUR")},
    { 7, "Definition [Halftone]", "Halftone", {{of("Radius", "Radius", 1), of("Definition", "Definition"), of("Intensity", "Intensity", 0)}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0], a.value[1], a.value[2]}; }, opens("HAFTONE")},
    { 8, "Definition [Pixelaze]", "PIXELIZE", {{of("Pixel size", "Size")}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens("PIXELIZE")},
    { 9, "Edges [Emboss]", "EMBOSS", {{of("Weight", "Weight")}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens("CUSTOMEMBOSS")},
    {10, "Edges [Engrave]", "ENGRAVE", {{of("Weight", "Weight")}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens("CUSTOMENGRAVE")},
    {11, "Edges [Contour]", "CONTOUR", {{of("Weight", "Level")}}, nullptr, E::TargetWell,
      [](const A& a) { return Arguments{a.value[0], a.colour[1]}; }, opens("CUSTOMCONTOUR")},
    {12, "Edges [Sketch]", "SKETCH", {{within("Weight", "Level", 0, 255, 255)}}, "B/W", E::TargetWell,
      [](const A& a) { return Arguments{a.value[0], a.option, a.colour[1]}; }, opens("SKETCH")},
    {13, "Edges [Threshold]", "Threshold", {{of("Cut value", "Level")}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens()},
    {14, "Color [Isolate]", "ISOLATE", {{of("Tolerance", "Tolerance")}}, nullptr, kTwoWells,
      [](const A& a) { return Arguments{a.colour[0], a.colour[1], a.value[0]}; }, opens("ISOLATE")},
    {15, "Color [Reduction]", "Reduction", {{within("Level", "Level", 0, 255, 0)}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens()},
    {16, "Color [Replace]", "REPLACE", {{of("Tolerance", "Tolerance")}}, nullptr, kTwoWells,
      [](const A& a) { return Arguments{a.colour[0], a.colour[1], a.value[0]}; }, opens("REPLACE"), {"REPLACE", "Colors"}},
    {17, "Color [Replace Hue/Sat.]", "ReplaceHS", {{within("Hue Tolerance", "HueTolerance", 0, 100, 50), of("Sat. Tolerance", "SatTolerance"), of("Apply Tolerance", "ApplyTolerance")}}, nullptr, kTwoWells,
      [](const A& a) { return Arguments{a.colour[0], a.colour[1], a.value[0], a.value[1], a.value[2]}; }, opens("REPLACEHUESAT"), {"REPLACE", "Hue && Saturation"}},
    {18, "Color [Replace Lum.]", "ReplaceL", {{of("Lum. Tolerance", "LumTolerance"), of("Apply Tolerance", "ApplyTolerance")}}, nullptr, kTwoWells,
      [](const A& a) { return Arguments{a.colour[0], a.colour[1], a.value[0], a.value[1]}; }, opens("REPLACELUMINOUS"), {"REPLACE", "Luminous"}},
    {19, "Adjust [Sharpen]", "SHARPEN", {{of("Level", "Level", 0)}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens("CUSTOMSHARPEN")},
    {20, "Adjust [Soften]", "SOFTEN", {{of("Level", "Level", 0)}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens("CUSTOMSOFTEN")},
    {21, "Color [Shift]", "Shift", {{of("Shift", "Amount", 0), of("Tolerance", "Tolerance")}}, nullptr, E::SourceWell | E::PickColour,
      [](const A& a) { return Arguments{a.colour[0], a.value[0], a.value[1]}; }, opens("SHIFT")},
    {22, "Color [Hue rotation]", "RotateH", {{of("Offset", "Offset", 0), of("Saturation", "Saturation")}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0], a.value[1]}; }, opens("HUEROTATION"), {"COLORS", "Hue Rotation"}},
    {23, "Color [Grey rotation]", "RotateL", {{of("Offset", "Offset", 0), of("Steps", "Steps")}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0], a.value[1]}; }, opens("GREYROTATION"), {"COLORS", "Grey Rotation"}},
    {24, "Color [Hue stretch]", "StretchH", {{of("Offset", "Offset", 0), of("Saturation", "Saturation"), of("Stretch factor", "Stretch", 0)}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0], a.value[1], a.value[2]}; }, opens("HUESTRETCH")},
    {25, "Color [RGB levels]", "ShiftRGB", {{within("Red", "Red", -255, 255, 0), within("Green", "Green", -255, 255, 0), within("Blue", "Blue", -255, 255, 0)}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0], a.value[1], a.value[2]}; }, opens("RGBLEVELS")},
    {26, "Color [RGB banks]", "SwapRGB", {}, nullptr, E::Banks,
      [](const A& a) { return Arguments{a.channel[0], a.channel[1], a.channel[2], a.invert[0], a.invert[1], a.invert[2], a.kill[0] * 255, a.kill[1] * 255, a.kill[2] * 255}; }, opens("RGBBANKS")},
    {27, "Deformation [Lens]", "LENS", {{free("Diameter", 1, 100, 50), within("Magnify factor", "Magnify", 0, 100, 50)}}, nullptr, E::PickCentre,
      [](const A& a) { return Arguments{a.centerX, a.centerY, fractionOfSide(a), a.value[1]}; }, opens("LENS"), {"SHAPES", "Lens", "lensdistortion"}},
    {28, "Deformation [Waves]", "WAVES", {{of("Frequency", "Frequency"), of("Amplitude", "Amplitude"), of("Start degree", "StartDegree")}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0], a.value[1], a.value[2]}; }, opens("WAVES"), {"SHAPES", "Waves", ":waves"}},
    {29, "Deformation [Bend]", "BEND", {{of("Radius factor", "RadiusFactor", 0)}}, "Clean back", E::None,
      [](const A& a) { return Arguments{a.value[0], a.option}; }, opens("BEND"), {"SHAPES", "Bend"}},
    {30, "Deformation [Fold]", "FOLD", {{of("Horizontal factor", "Horizontal", 0), of("Vertical factor", "Vertical", 0)}}, "Clean back", E::None,
      [](const A& a) { return Arguments{a.value[0], a.value[1], a.option}; }, opens("FOLD"), {"SHAPES", "Fold"}},
    {31, "Deformation [Rotate]", "ROTATE", {{within("Degrees", "Degrees", -180, 180, 0)}}, "Clean back", E::None,
      [](const A& a) { return Arguments{a.value[0], a.option}; }, opens("ROTATE"), {"SHAPES", "Rotate"}},
    {32, "Deformation [Stretch]", "STRETCH", {{within("Horizontal factor", "Horizontal", -100, 100, 0), of("Vertical factor", "Vertical", 0)}}, "Clean back", E::None,
      [](const A& a) { return Arguments{a.value[0], a.value[1], a.option}; }, opens("STRETCH"), {"SHAPES", "Stretch"}},
    {33, "Deformation [Tile]", "TILE", {{within("Factor", "Factor", 2, 50, 2)}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens("TILE"), {"SHAPES", "Tile"}},
    {34, "Deformation [Twirl]", "TWIRL", {{of("Level", "Level", 0), of("Offset degrees", "OffsetDegrees", 0)}}, "Clean back", E::None,
      [](const A& a) { return Arguments{a.value[0], a.value[1], a.option}; }, opens("TWIRL"), {"SHAPES", "Twirl"}},
    {35, "Special [Grid]", "Grid", {{within("Horizontal step", "HorizontalStep", 1, 250, 25), within("Vertical step", "VerticalStep", 1, 250, 25), of("Opacity", "Opacity")}}, "Force margins", E::TargetWell,
      [](const A& a) { return Arguments{a.value[0], a.value[1], a.option, a.colour[1], a.value[2]}; }, opens("ADDGRID"), {"ADD", "Grid", "view-grid"}},
    {36, "Special [Light]", "Light", {{free("Extension", 1, 100, 50), of("Intensity", "Intensity"), of("Definition", "Definition", 0)}}, nullptr, E::PickCentre,
      [](const A& a) { return Arguments{a.centerX, a.centerY, fractionOfSide(a), a.value[1], a.value[2]}; }, opens("LENSFLARE"), {"ADD", "Flare", "lensautofix"}},
    {37, "Special [Noise]", "NOISE", {{of("Intensity", "Amount")}}, "Equalized", E::None,
      [](const A& a) { return Arguments{a.value[0], a.option}; }, opens("CUSTOMNOISE", "ADDNOISE"), {"ADD", "Noise", ":noise"}},
    {38, "Special [Scanlines]", "Scanlines", {{of("Opacity", "Level")}}, nullptr, E::None,
      [](const A& a) { return Arguments{a.value[0]}; }, opens("ADDSCANLINES"), {"ADD", "Scanlines", ":scanlines"}},
    {39, "Behind Glass", "GLASS", {}, nullptr, E::Glass,
      [](const A& a) { return Arguments{a.style, a.mode}; }, opens("CUSTOMGLASS")},
    {40, "Behind Curtain", "GLASS", {}, nullptr, E::Curtain,
      [](const A& a) { return Arguments{std::string("curtain"), a.mode}; }, opens("CUSTOMCURTAIN")},
};
// clang-format on

constexpr const Operation* operationOf(const FilterRow& row)
{
    return std::ranges::find(kOperationRows<Operation>, row.operation, &Operation::name);
}
constexpr bool hasOperation(const FilterRow& row) { return operationOf(row) != std::end(kOperationRows<Operation>); }
static_assert(std::ranges::all_of(kTold, hasOperation),
              "a filter's dialog without its operation: add the row to kOperationRows in src/engine/cBitFilter.h");

/// Fills in what the rows take from the operation's row; a slider beyond its parameter's range does not compile.
consteval auto filled(std::array<FilterRow, std::size(kTold)> all)
{
    for (FilterRow& row : all) {
        const ParameterList& parameters = operationOf(row)->parameters;
        for (FilterSlider& s : row.sliders) {
            if (s.parameter.empty()) continue;
            const Parameter& p = *std::ranges::find(parameters, s.parameter, &Parameter::name);
            if (&p == parameters.end())
                throw std::invalid_argument("a slider without a parameter in src/engine/cBitFilter.h");
            const auto take = [](double& value, double otherwise) { value = value == value ? value : otherwise; };
            take(s.least, p.least);
            take(s.most, p.most);
            take(s.byDefault, p.typical);
            const double centre = s.centred ? s.most / s.step * 0.5 : 0;
            if (s.least / s.step - centre < p.least || s.most / s.step - centre > p.most)
                throw std::invalid_argument("a slider outside of its operation's range");
        }
    }
    return all;
}
constexpr auto kRows = filled(std::to_array(kTold));

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
    return true;
}
static_assert(isSound(),
              "src/commands/filterDialogs.cpp: numbers in order, sliders in range and used from the first on, "
              "a word opens one row");

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

Bits FilterRow::call(cBitFilter& filter, const FilterArgs& args) const
{
    operationOf(*this)->call(filter, arguments(args));
    return filter.bits();
}

std::span<const FilterRow> filterRows() { return kRows; }

const FilterRow* findFilterRow(std::string_view word)
{
    if (word.empty()) return nullptr;
    const auto found =
        std::ranges::find_if(kRows, [word](const FilterRow& row) { return std::ranges::count(row.words, word) > 0; });
    return found == kRows.end() ? nullptr : &*found;
}

} // namespace velara
