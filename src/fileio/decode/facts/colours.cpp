#include "fileio/decode/facts/colours.h"
#include "fileio/decode/facts/MatrixColours.h"
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <lcms2.h>
#include <memory>

namespace velara::decode {

namespace {

constexpr std::size_t kMostProfile = std::size_t{16} << 20;

struct Close {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
struct Delete {
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using Profile = std::unique_ptr<void, Close>;
using Transform = std::shared_ptr<void>;

cmsHPROFILE srgb()
{
    static const Profile profile(cmsCreate_sRGBProfile());
    return profile.get();
}

Profile opened(const std::vector<std::uint8_t>& bytes)
{
    if (bytes.empty() || bytes.size() > kMostProfile) return {};
    Profile profile(cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size())));
    const auto kind = profile ? cmsGetDeviceClass(profile.get()) : cmsProfileClassSignature{};
    const bool isOfPictures = kind == cmsSigInputClass || kind == cmsSigDisplayClass || kind == cmsSigOutputClass ||
                              kind == cmsSigColorSpaceClass;
    return isOfPictures ? std::move(profile) : Profile();
}

// --- PNG's own words for colours

constexpr std::array<double, 8> kSrgbPlaces{0.3127, 0.3290, 0.64, 0.33, 0.30, 0.60, 0.15, 0.06}; // white, red ...
constexpr double kUsualGamma = 0.45455;

bool areUsual(const std::array<double, 8>& places)
{
    return std::ranges::equal(places, kSrgbPlaces, [](double a, double b) { return std::abs(a - b) < 0.005; });
}

/// Null when they are sRGB's, absent or senseless.
Profile ofGammaAndPlaces(const Carried& carried)
{
    const bool hasGamma = carried.gamma > 0.01 && carried.gamma < 10;
    const bool hasPlaces = std::ranges::any_of(carried.chromaticities, [](double v) { return v != 0; });
    const std::array<double, 8>& p = hasPlaces ? carried.chromaticities : kSrgbPlaces;
    const bool gammaIsUsual = !hasGamma || std::abs(carried.gamma / kUsualGamma - 1) < 0.05;
    for (std::size_t i = 0; i < p.size(); i += 2)
        if (!(p[i] >= 0 && p[i] <= 1 && p[i + 1] > 0.001 && p[i + 1] <= 1)) return {};
    if (gammaIsUsual && areUsual(p)) return {};

    constexpr std::array<cmsFloat64Number, 5> kSrgbCurve{2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    cmsToneCurve* curve = hasGamma ? cmsBuildGamma(nullptr, 1 / carried.gamma)
                                   : cmsBuildParametricToneCurve(nullptr, 4, kSrgbCurve.data());
    const cmsCIExyY white{p[0], p[1], 1};
    const cmsCIExyYTRIPLE primaries{{p[2], p[3], 1}, {p[4], p[5], 1}, {p[6], p[7], 1}};
    const std::array<cmsToneCurve*, 3> curves{curve, curve, curve};
    Profile profile(curve ? cmsCreateRGBProfile(&white, &primaries, curves.data()) : nullptr);
    if (curve) cmsFreeToneCurve(curve);
    return profile;
}

// --- Conversions: `count` pixels from one form to another

using Convert = std::function<void(const void* from, Pixel* to, int count)>;

Transform transformOf(cmsHPROFILE profile, cmsUInt32Number form, cmsUInt32Number flags)
{
    return {cmsCreateTransform(profile, form, srgb(), TYPE_BGRA_8, INTENT_RELATIVE_COLORIMETRIC,
                               cmsFLAGS_BLACKPOINTCOMPENSATION | flags),
            [](void* transform) {
                if (transform) Delete()(transform);
            }};
}

/// Null when the library can't.
Convert byLibrary(cmsHPROFILE profile, cmsUInt32Number form, cmsUInt32Number flags = 0)
{
    const Transform transform = transformOf(profile, form, flags);
    if (!transform) return {};
    return [transform](const void* from, Pixel* to, int count) {
        cmsDoTransform(transform.get(), from, to, static_cast<cmsUInt32Number>(count));
    };
}

/// What a row of red, green and blue is made of: pixels, which may be converted in place, or samples.
enum class Form { Pixels, Bytes, Words };

Convert ofColours(cmsHPROFILE profile, Form form)
{
    constexpr cmsUInt32Number kForms[] = {TYPE_BGRA_8, TYPE_RGB_8, TYPE_RGB_16};
    const auto matrix = MatrixColours::of(profile, srgb(), form == Form::Words ? 2 : 1);
    if (!matrix) return byLibrary(profile, kForms[static_cast<int>(form)]);
    return [matrix, form](const void* from, Pixel* to, int count) {
        if (form == Form::Pixels) matrix->convert(static_cast<const Pixel*>(from), to, count);
        if (form == Form::Bytes) matrix->convert(static_cast<const std::uint8_t*>(from), to, count);
        if (form == Form::Words) matrix->convert(static_cast<const std::uint16_t*>(from), to, count);
    };
}

/// No more than a level off at any of 17 steps of each colour.
bool changesNothing(const Convert& convert)
{
    constexpr int kSteps = 17, kApart = 255 / (kSteps - 1);
    std::vector<Pixel> before, after;
    for (int i = 0; i < kSteps * kSteps * kSteps; ++i) {
        const auto level = [&](int step) { return static_cast<std::uint8_t>(step % kSteps * kApart); };
        before.push_back({{level(i), level(i / kSteps), level(i / kSteps / kSteps), 0}});
    }
    after = before;
    convert(before.data(), after.data(), static_cast<int>(before.size()));
    return std::ranges::equal(before, after, [](const Pixel& a, const Pixel& b) {
        return std::abs(a.c[0] - b.c[0]) <= 1 && std::abs(a.c[1] - b.c[1]) <= 1 && std::abs(a.c[2] - b.c[2]) <= 1;
    });
}

// --- Pictures by what they are made of

/// The picture's rows are made of its samples from now on.
void convertSamples(Decoded& picture, const Convert& convert)
{
    if (!convert) return;
    const std::size_t bytes = std::size_t(picture.samples.channels) * picture.samples.bytes * picture.width;
    picture.row = [convert, width = picture.width, samples = picture.samples,
                   line = std::vector<std::uint16_t>((bytes + 1) / 2)](int y, Pixel* row) mutable {
        samples.row(y, line.data());
        std::fill_n(row, width, Pixel{});
        convert(line.data(), row, width);
    };
}

void convertColours(Decoded& picture, cmsHPROFILE profile)
{
    const Convert convert = ofColours(profile, Form::Pixels);
    if (!convert || changesNothing(convert)) return;
    if (picture.samples.row)
        return convertSamples(picture, ofColours(profile, picture.samples.bytes == 2 ? Form::Words : Form::Bytes));
    picture.row = [convert, width = picture.width, stored = std::move(picture.row)](int y, Pixel* row) {
        stored(y, row);
        convert(row, row, width);
    };
}

void convertInks(Decoded& picture, cmsHPROFILE profile)
{
    convertSamples(picture, byLibrary(profile, picture.samples.bytes == 2 ? TYPE_CMYK_16 : TYPE_CMYK_8));
}

/// A profile of greys speaks of grey pixels alone.
void convertGreys(Decoded& picture, cmsHPROFILE profile)
{
    const Convert convert = byLibrary(profile, TYPE_GRAY_8, cmsFLAGS_NOOPTIMIZE); // exact near black
    if (!convert) return;
    std::array<std::uint8_t, 256> levels{};
    std::array<Pixel, 256> greys{};
    for (std::size_t i = 0; i < levels.size(); ++i) levels[i] = static_cast<std::uint8_t>(i);
    convert(levels.data(), greys.data(), 256);
    bool changes = false;
    for (int i = 0; i < 256; ++i) changes |= std::abs(greys[static_cast<std::size_t>(i)].c[1] - i) > 1;
    if (!changes) return;
    picture.row = [greys, width = picture.width, stored = std::move(picture.row)](int y, Pixel* row) {
        stored(y, row);
        for (int x = 0; x < width; ++x)
            if (row[x].c[0] == row[x].c[1] && row[x].c[1] == row[x].c[2]) row[x] = greys[row[x].c[0]];
    };
}

// --- Profiles for the files that stored pixels are saved to

QByteArray bytesOf(cmsHPROFILE profile)
{
    cmsUInt32Number size = 0;
    if (!cmsSaveProfileToMem(profile, nullptr, &size)) return {};
    QByteArray bytes(static_cast<qsizetype>(size), '\0');
    return cmsSaveProfileToMem(profile, bytes.data(), &size) ? bytes : QByteArray();
}

/// The same greys, as red, green and blue: what is saved has three channels. Null where they are sRGB's.
Profile inColours(cmsHPROFILE greys)
{
    auto* curve = static_cast<cmsToneCurve*>(cmsReadTag(greys, cmsSigGrayTRCTag));
    const auto& p = kSrgbPlaces;
    const cmsCIExyY white{p[0], p[1], 1};
    const cmsCIExyYTRIPLE primaries{{p[2], p[3], 1}, {p[4], p[5], 1}, {p[6], p[7], 1}};
    const std::array<cmsToneCurve*, 3> curves{curve, curve, curve};
    return Profile(curve ? cmsCreateRGBProfile(&white, &primaries, curves.data()) : nullptr);
}

/// The high bytes of its samples.
void showSamples(Decoded& picture)
{
    const std::size_t step = picture.samples.bytes;
    const bool isLow = std::endian::native == std::endian::little; // the high byte is the second one
    picture.row = [samples = picture.samples, step, high = step == 2 && isLow ? 1U : 0U,
                   line = std::vector<std::uint16_t>(3 * std::size_t(picture.width))](int y, Pixel* row) mutable {
        samples.row(y, line.data());
        const auto* from = reinterpret_cast<const std::uint8_t*>(line.data()) + high;
        for (std::size_t x = 0; x < line.size() / 3; ++x, from += 3 * step)
            row[x] = {{from[2 * step], from[step], from[0], 0}};
    };
}

} // namespace

void prepareColours() { srgb(); }

void convertToSrgb(Decoded& picture)
{
    if (!picture.ok()) return;
    Profile profile = opened(picture.carried.profile);
    if (picture.carried.profile.empty()) profile = ofGammaAndPlaces(picture.carried);
    if (profile) {
        const bool isOfInks = picture.samples.row && picture.samples.channels == 4;
        const auto space = cmsGetColorSpace(profile.get());
        if (space == cmsSigCmykData && isOfInks) convertInks(picture, profile.get());
        if (space == cmsSigRgbData && !isOfInks) convertColours(picture, profile.get());
        if (space == cmsSigGrayData && !isOfInks) convertGreys(picture, profile.get());
    }
    picture.samples = {};
}

QByteArray profileOfStored(Decoded& picture)
{
    constexpr std::size_t kMost = std::size_t{4} << 20;
    const std::vector<std::uint8_t>& stored = picture.carried.profile;
    const bool isOfInks = picture.samples.row && picture.samples.channels == 4;
    if (!picture.ok() || stored.size() > kMost || isOfInks) return {};
    Carried places = picture.carried;
    places.gamma = 0; // the reader has corrected the pixels by it
    Profile profile = stored.empty() ? ofGammaAndPlaces(places) : opened(stored);
    const bool isGrey = profile && cmsGetColorSpace(profile.get()) == cmsSigGrayData;
    if (isGrey) profile = inColours(profile.get());
    if (!profile || cmsGetColorSpace(profile.get()) != cmsSigRgbData) return {};
    const Convert convert = ofColours(profile.get(), Form::Pixels);
    if (!convert || changesNothing(convert)) return {};
    if (stored.empty() || isGrey) return bytesOf(profile.get());
    if (picture.samples.row) showSamples(picture);
    return {reinterpret_cast<const char*>(stored.data()), static_cast<qsizetype>(stored.size())};
}

QString nameOfProfile(const std::vector<std::uint8_t>& bytes)
{
    constexpr cmsUInt32Number kMost = 200;
    const Profile profile = opened(bytes);
    std::array<wchar_t, kMost> name{};
    if (!profile || cmsGetProfileInfo(profile.get(), cmsInfoDescription, "en", "US", name.data(), sizeof name) == 0)
        return {};
    name.back() = 0;
    return QString::fromWCharArray(name.data()).simplified();
}

} // namespace velara::decode
