// Colours given by numbers (ITU-T H.273), as HEIF and AVIF have them, made into an ICC profile.
#include "fileio/decode/modern/modern.h"
#include <algorithm>
#include <lcms2.h>

namespace velara::decode {

namespace {

struct Primaries {
    int number;
    cmsCIExyY white;
    cmsCIExyYTRIPLE colours;
};
constexpr cmsCIExyY kD65{0.3127, 0.3290, 1};

// clang-format off
constexpr Primaries kPrimaries[] = {
    { 1, kD65,                 {{0.640, 0.330, 1}, {0.300, 0.600, 1}, {0.150, 0.060, 1}}}, // BT.709, sRGB
    { 5, kD65,                 {{0.640, 0.330, 1}, {0.290, 0.600, 1}, {0.150, 0.060, 1}}}, // BT.470 BG
    { 6, kD65,                 {{0.630, 0.340, 1}, {0.310, 0.595, 1}, {0.155, 0.070, 1}}}, // BT.601
    { 7, kD65,                 {{0.630, 0.340, 1}, {0.310, 0.595, 1}, {0.155, 0.070, 1}}}, // SMPTE 240M
    { 9, kD65,                 {{0.708, 0.292, 1}, {0.170, 0.797, 1}, {0.131, 0.046, 1}}}, // BT.2020
    {11, {0.314, 0.351, 1},    {{0.680, 0.320, 1}, {0.265, 0.690, 1}, {0.150, 0.060, 1}}}, // DCI-P3
    {12, kD65,                 {{0.680, 0.320, 1}, {0.265, 0.690, 1}, {0.150, 0.060, 1}}}, // Display P3
};

/// Parametric curve 4 of ICC: (aX + b)^gamma from d on, cX below.
struct Curve {
    int number;
    cmsFloat64Number gamma, a, b, c, d;
};
constexpr Curve kCurves[] = {
    { 4, 2.2, 1, 0, 0, 0},
    { 5, 2.8, 1, 0, 0, 0},
    { 8, 1.0, 1, 0, 0, 0},
    {13, 2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045},
};
// clang-format on
// The curves for television (1, 6, 14 and 15) are shown as sRGB's, as browsers do.
constexpr int kSrgb = 13, kOfTelevision[] = {1, 6, 14, 15};

} // namespace

std::vector<std::uint8_t> profileOf(int primaries, int transfer)
{
    if (std::ranges::find(kOfTelevision, transfer) != std::end(kOfTelevision)) transfer = kSrgb;
    const auto* where = std::ranges::find(kPrimaries, primaries, &Primaries::number);
    const auto* how = std::ranges::find(kCurves, transfer, &Curve::number);
    const bool isSrgb = primaries == 1 && transfer == kSrgb;
    if (isSrgb || where == std::end(kPrimaries) || how == std::end(kCurves)) return {};
    const cmsFloat64Number values[] = {how->gamma, how->a, how->b, how->c, how->d};
    cmsToneCurve* curve = cmsBuildParametricToneCurve(nullptr, 4, values);
    cmsToneCurve* const curves[] = {curve, curve, curve};
    cmsHPROFILE profile = curve ? cmsCreateRGBProfile(&where->white, &where->colours, curves) : nullptr;
    std::vector<std::uint8_t> bytes;
    cmsUInt32Number size = 0;
    if (profile && cmsSaveProfileToMem(profile, nullptr, &size)) {
        bytes.resize(size);
        if (!cmsSaveProfileToMem(profile, bytes.data(), &size)) bytes.clear();
    }
    if (profile) cmsCloseProfile(profile);
    if (curve) cmsFreeToneCurve(curve);
    return bytes;
}

} // namespace velara::decode
