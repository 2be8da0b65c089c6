#include "tools/dialogTrials.h"
#include <stdexcept>

namespace velara {

namespace {

constexpr int kPreviewSide = 300;
constexpr Colour kBlack = colourOf(0, 0, 0), kWhite = colourOf(255, 255, 255);
// Colours that the sample picture has.
constexpr Colour kRoof = colourOf(150, 58, 48), kMeadow = colourOf(60, 116, 42), kSky = colourOf(90, 128, 190);

/// What a dialog has beside sliders and colours.
struct More {
    bool option = false;
    float centerX = 0.5f, centerY = 0.5f;
    const char* style = "slanting";
    int mode = 0;
    std::array<int, 3> channel{2, 1, 0};
    std::array<bool, 3> invert{}, kill{};
};

struct TrialRow {
    int number;
    std::array<int, 3> value; // as the filter gets them: a centred slider's from its middle
    std::array<Colour, 2> colour = {kBlack, kWhite};
    More more = {};
};

constexpr More kOption{.option = true};

// clang-format off
constexpr TrialRow kTrials[] = { // number of the dialog, sliders, colours, more
    { 0, {60, 50, 100}},                                             // Colorize
    { 1, {60}},                                                      // Brightness
    { 2, {60}},                                                      // Contrast
    { 3, {100}},                                                     // Saturation
    { 4, {-50}},                                                     // Gamma
    { 5, {30, 6}},                                                   // Diffuse
    { 6, {2}},                                                       // Blur
    { 7, {4, 50, 40}},                                               // Halftone
    { 8, {10}},                                                      // Pixelize
    { 9, {20}},                                                      // Emboss
    {10, {45}},                                                      // Engrave
    {11, {200}, {kBlack, colourOf(255, 240, 200)}},                  // Contour
    {12, {40}, {kBlack, colourOf(70, 40, 120)}, kOption},            // Sketch
    {13, {100}},                                                     // Threshold
    {14, {70}, {kMeadow, kWhite}},                                   // Isolate
    {15, {63}},                                                      // Reduction
    {16, {80}, {kRoof, colourOf(40, 60, 220)}},                      // Replace
    {17, {20, 60, 120}, {kMeadow, colourOf(240, 160, 30)}},          // Replace hue and saturation
    {18, {30, 150}, {kSky, colourOf(120, 20, 120)}},                 // Replace luminosity
    {19, {60}},                                                      // Sharpen
    {20, {100}},                                                     // Soften
    {21, {90, 150}, {kSky, kWhite}},                                 // Shift
    {22, {33, 100}},                                                 // Hue rotation
    {23, {40, 60}},                                                  // Grey rotation
    {24, {20, 80, 40}},                                              // Hue stretch
    {25, {60, -20, -80}},                                            // RGB levels
    {26, {}, {kBlack, kWhite}, {.channel = {1, 0, 2}, .invert = {false, true, false}, .kill = {false, false, true}}}, // RGB banks
    {27, {60, 80}, {kBlack, kWhite}, {.centerX = 0.3f, .centerY = 0.62f}},              // Lens
    {28, {3, 60, 90}},                                               // Waves
    {29, {120}, {kBlack, kWhite}, kOption},                          // Bend
    {30, {60, -40}, {kBlack, kWhite}, kOption},                      // Fold
    {31, {30}, {kBlack, kWhite}, kOption},                           // Rotate
    {32, {60, 30}, {kBlack, kWhite}, kOption},                       // Stretch
    {33, {4}},                                                       // Tile
    {34, {40, 20}, {kBlack, kWhite}, kOption},                       // Twirl
    {35, {60, 40, 200}, {kBlack, colourOf(255, 255, 0)}, kOption},   // Grid
    {36, {80, 400, 20}, {kBlack, kWhite}, {.centerX = 0.75f, .centerY = 0.22f}},        // Light
    {37, {60}, {kBlack, kWhite}, kOption},                           // Noise
    {38, {220}},                                                     // Scanlines
    {39, {}, {kBlack, kWhite}, {.style = "squary", .mode = 2}},      // Glass
    {40, {}, {kBlack, kWhite}, {.mode = 3}},                         // Curtain
};
// clang-format on

} // namespace

FilterArgs trialArgs(const FilterRow& row, DialogTrial trial)
{
    FilterArgs args = row.defaults();
    args.colour = {kWhite, kBlack};
    args.longerSide = kPreviewSide;
    if (trial == DialogTrial::AsItOpens) return args;
    for (const TrialRow& t : kTrials)
        if (t.number == row.number) {
            args.value = t.value;
            args.colour = t.colour;
            args.option = t.more.option;
            args.centerX = t.more.centerX, args.centerY = t.more.centerY;
            args.style = t.more.style;
            args.mode = t.more.mode;
            args.channel = t.more.channel;
            args.invert = t.more.invert;
            args.kill = t.more.kill;
            return args;
        }
    throw std::invalid_argument("no trial of " + std::string(row.title));
}

} // namespace velara
