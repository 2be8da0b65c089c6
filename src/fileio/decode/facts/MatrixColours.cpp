#include "fileio/decode/facts/MatrixColours.h"
#include <algorithm>
#include <cmath>
#include <lcms2.h>

namespace velara::decode {

namespace {

using Matrix = std::array<std::array<double, 3>, 3>; // rows

constexpr cmsTagSignature kPrimaries[] = {cmsSigRedColorantTag, cmsSigGreenColorantTag, cmsSigBlueColorantTag};
constexpr cmsTagSignature kCurves[] = {cmsSigRedTRCTag, cmsSigGreenTRCTag, cmsSigBlueTRCTag};

/// Whether all tags are there.
bool readMatrix(cmsHPROFILE profile, Matrix& matrix)
{
    for (std::size_t c = 0; c < 3; ++c) {
        const auto* place = static_cast<const cmsCIEXYZ*>(cmsReadTag(profile, kPrimaries[c]));
        if (!place || !cmsReadTag(profile, kCurves[c])) return false;
        matrix[0][c] = place->X;
        matrix[1][c] = place->Y;
        matrix[2][c] = place->Z;
    }
    return true;
}

/// By Cramer's rule; false when there is none.
bool invert(const Matrix& m, Matrix& inverse)
{
    const auto minor = [&](std::size_t r, std::size_t c) {
        const std::size_t r1 = (r + 1) % 3, r2 = (r + 2) % 3, c1 = (c + 1) % 3, c2 = (c + 2) % 3;
        return m[r1][c1] * m[r2][c2] - m[r1][c2] * m[r2][c1];
    };
    const double whole = m[0][0] * minor(0, 0) + m[0][1] * minor(0, 1) + m[0][2] * minor(0, 2);
    if (!std::isfinite(whole) || whole == 0) return false;
    for (std::size_t r = 0; r < 3; ++r)
        for (std::size_t c = 0; c < 3; ++c) inverse[r][c] = minor(c, r) / whole;
    return true;
}

double srgbOf(double light) { return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055; }

} // namespace

std::shared_ptr<const MatrixColours> MatrixColours::of(void* profile, void* srgb, int bytes)
{
    Matrix primaries{}, ours{}, inverse{};
    const bool isMatrix = cmsGetColorSpace(profile) == cmsSigRgbData && cmsGetPCS(profile) == cmsSigXYZData &&
                          !cmsIsTag(profile, cmsSigAToB0Tag) && !cmsIsTag(profile, cmsSigAToB1Tag);
    if (!isMatrix || !readMatrix(profile, primaries) || !readMatrix(srgb, ours) || !invert(ours, inverse)) return {};
    std::shared_ptr<MatrixColours> colours(new MatrixColours);
    const std::size_t most = bytes == 1 ? 255 : 65535;
    for (std::size_t c = 0; c < 3; ++c) {
        const auto* curve = static_cast<const cmsToneCurve*>(cmsReadTag(profile, kCurves[c]));
        for (std::size_t i = 0; i <= most; ++i) {
            const float light = cmsEvalToneCurveFloat(curve, static_cast<float>(double(i) / double(most)));
            colours->linear_[c].push_back(std::isfinite(light) ? std::clamp(light, 0.0F, 1.0F) : 0.0F);
        }
        for (std::size_t to = 0; to < 3; ++to) {
            double part = 0;
            for (std::size_t k = 0; k < 3; ++k) part += inverse[to][k] * primaries[k][c];
            if (!std::isfinite(part)) return {};
            colours->columns_[c][to] = static_cast<float>(std::clamp(part, -1e6, 1e6) * kSteps);
        }
    }
    for (int i = 0; i <= kSteps; ++i)
        colours->levels_[static_cast<std::size_t>(i)] =
            static_cast<std::uint8_t>(std::lround(255 * std::clamp(srgbOf(double(i) / kSteps), 0.0, 1.0)));
    return colours;
}

inline void MatrixColours::put(Light light, Pixel& to) const
{
    constexpr float kMost = kSteps;
    const Light half = {0.5F, 0.5F, 0.5F, 0.5F}, most = {kMost, kMost, kMost, kMost}, zero = {};
    light += half;
    light = light < most ? light : most;
    light = light > zero ? light : zero;
    using Whole = int __attribute__((vector_size(16)));
    const auto step = __builtin_convertvector(light, Whole);
    for (int c = 0; c < 3; ++c) to.c[2 - c] = levels_[static_cast<std::size_t>(step[c])];
}

void MatrixColours::convert(const Pixel* from, Pixel* to, int count) const
{
    const float *red = linear_[0].data(), *green = linear_[1].data(), *blue = linear_[2].data();
    const Light r = columns_[0], g = columns_[1], b = columns_[2];
    for (int x = 0; x < count; ++x)
        put(r * red[from[x].c[2]] + g * green[from[x].c[1]] + b * blue[from[x].c[0]], to[x]);
}

template <class Sample> void MatrixColours::convertSamples(const Sample* from, Pixel* to, int count) const
{
    const float *red = linear_[0].data(), *green = linear_[1].data(), *blue = linear_[2].data();
    const Light r = columns_[0], g = columns_[1], b = columns_[2];
    for (int x = 0; x < count; ++x, from += 3) put(r * red[from[0]] + g * green[from[1]] + b * blue[from[2]], to[x]);
}

template void MatrixColours::convertSamples(const std::uint8_t* from, Pixel* to, int count) const;
template void MatrixColours::convertSamples(const std::uint16_t* from, Pixel* to, int count) const;

} // namespace velara::decode
