#include "support/argumentRanges.h"
#include <algorithm>
#include <stdexcept>

namespace velara {

std::span<const ArgumentRange> argumentRanges()
{
    constexpr double kWhite = 0xFFFFFF;
    // clang-format off
    static const std::vector<ArgumentRange> all = { // operation, parameter, low, high, typical
        // ranges of single operations first
        {"BRIGHTNESS",      "Level",         -300, 300,  20},
        {"CONTRAST",        "Level",         -150, 300,  10},
        {"SATURATION",      "Level",         -150, 300,  30},
        {"GammaCorrection", "Level",         -120, 120, -30},
        {"Reduction",       "Level",            0, 300,  31},
        {"ClassyColors",    "Mode",            -1,  13,   7},
        {"SwapBanks",       "Mode",            -1,   7,   1},
        {"COLORIZE",        "Hue",           -1.0, 5.0, 0.5},
        {"COLORIZE",        "Saturation",     0.0, 1.0, 0.25},
        {"COLORIZE",        "Luminosity",     0.0, 1.0, 1.0},
        {"ShiftRGB",        "Red",           -300, 300,  20},
        {"ShiftRGB",        "Green",         -300, 300, -30},
        {"ShiftRGB",        "Blue",          -300, 300,  40},
        {"SwapRGB",         "KillRed",          0, 255,   0},
        {"SwapRGB",         "KillGreen",        0, 255,   0},
        {"SwapRGB",         "KillBlue",         0, 255,   0},
        {"Blurs",           "Radius",           0,   2,   1},
        {"CONTOUR",         "Level",            0, 255, 200},
        {"EMBOSS",          "Weight",           0,  50,  10},
        {"ENGRAVE",         "Weight",           0,  50,  10},
        {"SKETCH",          "Level",           -5, 300,  60},
        {"RankFilterN4",    "Mode",             0,   1,   0},
        {"RankFilterND",    "Mode",             0,   1,   0},
        {"BitsTakeFromPicture", "Width",        1,  40,  10},
        {"BitsTakeFromPicture", "Height",       1,  40,  10},
        {"MaskFilter",      "Mask",             0,   0,   0, {"1 2 1/2 4 2/1 2 1", "0 -1 0/-1 5 -1/0 -1 0", "1 1 1 1 1/1 0 0 0 1/1 0 -9 0 1/1 0 0 0 1/1 2 3 4 5"}},
        {"MaskFilter",      "Divisor",         -4,  40,  16},
        {"MaskFilter",      "AddRed",        -255, 255,   0},
        {"MaskFilter",      "AddGreen",      -255, 255,  10},
        {"MaskFilter",      "AddBlue",       -255, 255,   0},
        {"STRETCH",         "Horizontal",    -210, 210,  40},
        {"STRETCH",         "Vertical",      -100, 100,  40},
        {"FOLD",            "Horizontal",    -100, 100,  40},
        {"FOLD",            "Vertical",      -100, 100,  40},
        {"BEND",            "RadiusFactor",  -200, 200,  50},
        {"TWIRL",           "Level",         -100, 100,  30},
        {"TWIRL",           "OffsetDegrees", -180, 180,  20},
        {"WAVES",           "Frequency",        0, 100,  30},
        {"WAVES",           "Amplitude",        1, 100,  40},
        {"WAVES",           "StartDegree",      0, 360,   0},
        {"LENS",            "Magnify",          0, 130,  60},
        {"TILE",            "Factor",           0,  50,   4},
        {"GLASS",           "Style",            0,   0,   0, {"slanting", "horizontal", "vertical", "squary", "curtain", "frosted"}},
        {"GLASS",           "Mode",            -1,   5,   0},
        {"Light",           "Intensity",        0, 500, 200},
        {"Light",           "Definition",       0, 100,  50},
        {"NOISE",           "Amount",           0, 100,  20},
        {"DIFFUSE",         "HorizontalRange",  0,  50,   5},
        {"DIFFUSE",         "VerticalRange",    0,  50,  10},
        {"Scanlines",       "Level",            0, 255,  30},
        {"Grid",            "HorizontalStep",   0,  40,  20},
        {"Grid",            "VerticalStep",     0,  40,  20},
        {"Grid",            "Opacity",          0, 255, 100},
        {"PIXELIZE",        "Size",             1,  25,   8},
        {"Halftone",        "Radius",           1,  25,   6},
        {"Halftone",        "Definition",       0, 100,  50},
        {"Halftone",        "Intensity",        0, 100,  50},
        {"StuckiBW",        "Divisor",          1, 100,  42},
        // by the parameter's name
        {"", "CenterX",         0,      1, 0.5},
        {"", "CenterY",         0,      1, 0.5},
        {"", "Radius",        0.01,   0.8, 0.4},
        {"", "X1",             -5,     60,   5},
        {"", "Y1",             -5,     40,   5},
        {"", "X2",             -5,     60,  50},
        {"", "Y2",             -5,     40,  30},
        {"", "Repeat",          0,     30,   1},
        {"", "Level",           0,    100,  30},
        {"", "Color",           0, kWhite, 0x4060A0},
        {"", "Fill",            0, kWhite, 0x20FF40},
        {"", "From",            0, kWhite, 0x506070},
        {"", "To",              0, kWhite, 0x2040F0},
        {"", "Background",      0, kWhite, 0x36E2D7},
        {"", "KeyColor",       -1, kWhite, 0},
        {"", "Color1",         -1, kWhite, 0x0000FF},
        {"", "Color2",         -1, kWhite, 0xFF0000},
        {"", "Tolerance",       0,    200,  40},
        {"", "HueTolerance",    0,    600,  60},
        {"", "SatTolerance",    0,    100,  30},
        {"", "LumTolerance",    0,    100,  20},
        {"", "ApplyTolerance",  0,    200,  60},
        {"", "Amount",       -255,    255,  50},
        {"", "Offset",          0,    100,  30},
        {"", "Saturation",      0,    100,  80},
        {"", "Stretch",         0,    100,  40},
        {"", "Steps",           0,    100,  40},
        {"", "SourceRed",       0,      2,   0},
        {"", "SourceGreen",     0,      2,   2},
        {"", "SourceBlue",      0,      2,   1},
        {"", "Degrees",      -400,    400,  30},
        {"", "Left",          -10,     60,   5},
        {"", "Top",           -10,     40,   5},
        {"", "Right",         -10,     60,  50},
        {"", "Bottom",        -10,     40,  30},
        {"", "NewWidth",        1,    200, 100},
        {"", "NewHeight",       1,     80,  80},
        {"", "Transparency",    0,    100,  40},
        {"", "Opacity",         0,    100,  60},
    };
    // clang-format on
    return all;
}

const ArgumentRange& rangeOf(const Operation& operation, const Parameter& parameter)
{
    for (const std::string_view name : {operation.name, std::string_view()})
        for (const ArgumentRange& range : argumentRanges())
            if (range.operation == name && range.parameter == parameter.name) return range;
    throw std::invalid_argument("no argument range for " + std::string(parameter.name) + " of " +
                                std::string(operation.name));
}

namespace {

template <class Function> Arguments eachArgument(const Operation& operation, Function make)
{
    Arguments arguments;
    for (const Parameter& parameter : operation.parameters) arguments.push_back(make(parameter));
    return arguments;
}

Argument numeric(ArgumentType type, double v)
{
    if (type == ArgumentType::Integer) return static_cast<int>(v);
    return v;
}

Bits smallPicture(std::mt19937& random)
{
    Bits bits(static_cast<int>(1 + random() % 12), static_cast<int>(1 + random() % 12));
    std::generate_n(bits.data(), bits.sizeInBytes(), [&] { return static_cast<std::uint8_t>(random()); });
    return bits;
}

} // namespace

Arguments typicalArguments(const Operation& operation)
{
    std::mt19937 random(1);
    return eachArgument(operation, [&](const Parameter& parameter) -> Argument {
        if (parameter.type == ArgumentType::Boolean) return true;
        if (parameter.type == ArgumentType::Picture) return smallPicture(random);
        const ArgumentRange& range = rangeOf(operation, parameter);
        if (parameter.type == ArgumentType::Text) return range.texts.at(0);
        return numeric(parameter.type, range.typical);
    });
}

Arguments randomArguments(const Operation& operation, std::mt19937& random)
{
    return eachArgument(operation, [&](const Parameter& parameter) -> Argument {
        if (parameter.type == ArgumentType::Boolean) return random() % 2 == 0;
        if (parameter.type == ArgumentType::Picture) return smallPicture(random);
        const ArgumentRange& range = rangeOf(operation, parameter);
        if (parameter.type == ArgumentType::Text) return range.texts.at(random() % range.texts.size());
        const auto kind = random() % 8;
        if (kind < 2) return numeric(parameter.type, kind == 0 ? range.low : range.high);
        if (parameter.type == ArgumentType::Integer)
            return std::uniform_int_distribution<int>(int(range.low), int(range.high))(random);
        return std::uniform_real_distribution<double>(range.low, range.high)(random);
    });
}

} // namespace velara
