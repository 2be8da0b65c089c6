#include "engine/rowsAround.h"
#include "seams/findRow.h"

namespace velara {

namespace {

struct Reach {
    std::string_view operation;
    int rows;
};

constexpr Reach kReaches[] = {
    {"BRIGHTNESS", 0},    {"SATURATION", 0},   {"GammaCorrection", 0}, {"COLORIZE", 0},  {"GreyScale", 0},
    {"OLDPHOTO", 0},      {"Invert", 0},       {"KillChannel", 0},     {"Threshold", 0}, {"Reduction", 0},
    {"SpecialColors", 0}, {"ShiftRGB", 0},     {"ISOLATE", 0},         {"REPLACE", 0},   {"ReplaceHS", 0},
    {"ReplaceL", 0},      {"Shift", 0},        {"RotateH", 0},         {"RotateL", 0},   {"StretchH", 0},
    {"SwapRGB", 0},       {"SwapBanks", 0},    {"THERMIQUE", 0},       {"XBLACK", 0},    {"PHOTOCOP", 0},
    {"SHARPEN", 1},       {"SOFTEN", 1},       {"EDGEENHANCE", 1},     {"DILATE", 1},    {"ERODE", 1},
    {"RankFilterN4", 1},  {"RankFilterND", 1}, {"CONTOUR", 1},         {"EMBOSS", 1},    {"ENGRAVE", 1},
    {"RELIEF", 1},        {"SKETCH", 1},       {"Blurs", 2},
};

} // namespace

std::optional<int> rowsAround(const Operation& operation)
{
    const Reach* found = findRow(kReaches, operation.name, &Reach::operation);
    return found ? std::optional(found->rows) : std::nullopt;
}

} // namespace velara
