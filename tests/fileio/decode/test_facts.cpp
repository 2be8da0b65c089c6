// What becomes of a picture by the facts that its file carries: orientation and colours.
#include "fileio/decode/facts/colours.h"
#include "fileio/decode/facts/upright.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <lcms2.h>

namespace velara::decode {

namespace {

std::vector<std::uint8_t> bytesOf(const QByteArray& bytes) { return {bytes.begin(), bytes.end()}; }

/// A first directory of one entry, with its number in the entry itself.
QByteArray exif(bool little, int tag, int type, int value, int directory = 8)
{
    QByteArray bytes(little ? "II" : "MM");
    const auto put = [&](qint64 number, int count) {
        for (int i = 0; i < count; ++i) bytes.append(char(number >> 8 * (little ? i : count - 1 - i)));
    };
    put(42, 2), put(directory, 4), put(1, 2), put(tag, 2), put(type, 2), put(1, 4);
    put(value, type == 3 ? 2 : 4), put(0, type == 3 ? 6 : 4);
    return bytes;
}

/// The place of each stored pixel in its colour.
Decoded places(int width, int height)
{
    Decoded picture{width, height, [width](int y, Pixel* row) {
                        for (int x = 0; x < width; ++x) row[x] = {{std::uint8_t(x), std::uint8_t(y), 9, 0}};
                    }};
    return picture;
}

std::vector<Pixel> pixelsOf(const Decoded& picture)
{
    std::vector<Pixel> all(std::size_t(picture.width) * picture.height, Pixel{{1, 1, 1, 1}});
    for (int y = 0; y < picture.height; ++y) picture.row(y, all.data() + std::size_t(y) * picture.width);
    return all;
}

} // namespace

// Each orientation by its definition: the stored place of what is seen at x, y.
TEST(facts, APictureIsUpright)
{
    constexpr int W = 37, H = 19;
    struct Case {
        bool turned;
        std::pair<int, int> (*stored)(int x, int y);
    };
    const Case cases[] = {
        {false, [](int x, int y) { return std::pair(x, y); }},
        {false, [](int x, int y) { return std::pair(W - 1 - x, y); }},
        {false, [](int x, int y) { return std::pair(W - 1 - x, H - 1 - y); }},
        {false, [](int x, int y) { return std::pair(x, H - 1 - y); }},
        {true, [](int x, int y) { return std::pair(y, x); }},
        {true, [](int x, int y) { return std::pair(y, H - 1 - x); }},
        {true, [](int x, int y) { return std::pair(W - 1 - y, H - 1 - x); }},
        {true, [](int x, int y) { return std::pair(W - 1 - y, x); }},
    };
    for (int orientation = 1; orientation <= 8; ++orientation)
        for (const int way : {0, 1, 2, 3}) { // told by the container, by either byte order, by both
            const Case& wanted = cases[orientation - 1];
            Decoded picture = places(W, H);
            picture.carried.orientation = way == 0 || way == 3 ? orientation : 0;
            if (way > 0) picture.carried.exif = bytesOf(exif(way == 1, 0x112, 3, way == 3 ? 1 : orientation));
            picture = upright(std::move(picture));
            ASSERT_EQ(picture.width, wanted.turned ? H : W) << orientation;
            ASSERT_EQ(picture.height, wanted.turned ? W : H) << orientation;
            const std::vector<Pixel> got = pixelsOf(picture);
            for (int y = 0, i = 0; y < picture.height; ++y)
                for (int x = 0; x < picture.width; ++x, ++i) {
                    const auto [sx, sy] = wanted.stored(x, y);
                    ASSERT_EQ(got[std::size_t(i)], (Pixel{{std::uint8_t(sx), std::uint8_t(sy), 9, 0}}))
                        << orientation << " at " << x << ", " << y;
                }
        }
}

TEST(facts, AnOrientationIsReadWithinBounds)
{
    const QByteArray usual = exif(true, 0x112, 3, 6);
    const std::pair<QByteArray, int> cases[] = {
        {usual, 6},
        {exif(false, 0x112, 4, 8), 8},
        {exif(true, 0x112, 3, 0), 1},
        {exif(true, 0x112, 3, 9), 1},
        {exif(true, 0x112, 2, 6), 1},             // a text
        {exif(true, 0x111, 3, 6), 1},             // another tag
        {exif(true, 0x112, 3, 6, 0), 1},          // its directory is nowhere,
        {exif(true, 0x112, 3, 6, 0x7ffffff0), 1}, // or far outside
        {usual.left(usual.size() - 5), 1},        // cut in its only entry
        {"II", 1},
        {"Exif", 1},
    };
    for (const auto& [bytes, wanted] : cases)
        EXPECT_EQ(orientationOf({.exif = bytesOf(bytes)}), wanted) << bytes.toHex().toStdString();
}

// --- Colours

namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

struct Space {
    std::array<double, 6> primaries; // x and y of red, green and blue
    double gamma;                    // 0: sRGB's curve
    Matrix toSrgb;                   // of light; by the primaries, in double precision
};
constexpr Matrix kSame{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Space kSrgb{{0.64, 0.33, 0.30, 0.60, 0.15, 0.06}, 0, kSame}, kMac{kSrgb.primaries, 1.8, kSame};
constexpr Space kAdobe{{0.64, 0.33, 0.21, 0.71, 0.15, 0.06},
                       563.0 / 256,
                       {{{1.3983557, -0.3983557, 0}, {0, 1, 0}, {0, -0.042929, 1.042929}}}};
constexpr Space kP3{{0.68, 0.32, 0.265, 0.69, 0.15, 0.06},
                    0,
                    {{{1.2249402, -0.2249402, 0}, {-0.042057, 1.042057, 0}, {-0.0196376, -0.078636, 1.0982736}}}};
constexpr cmsCIExyY kWhite{0.3127, 0.3290, 1};
constexpr std::array<double, 5> kSrgbCurve{2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};

std::vector<std::uint8_t> bytesOf(cmsHPROFILE profile)
{
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    std::vector<std::uint8_t> bytes(size);
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsCloseProfile(profile);
    return bytes;
}

std::vector<std::uint8_t> profileOf(const Space& space)
{
    const auto& p = space.primaries;
    const cmsCIExyYTRIPLE primaries{{p[0], p[1], 1}, {p[2], p[3], 1}, {p[4], p[5], 1}};
    cmsToneCurve* curve = space.gamma > 0 ? cmsBuildGamma(nullptr, space.gamma)
                                          : cmsBuildParametricToneCurve(nullptr, 4, kSrgbCurve.data());
    cmsToneCurve* curves[] = {curve, curve, curve};
    const auto bytes = bytesOf(cmsCreateRGBProfile(&kWhite, &primaries, curves));
    cmsFreeToneCurve(curve);
    return bytes;
}

/// The levels, not rounded, that samples of 0 to 1 have in sRGB.
Triple wantedOf(const Space& space, const Triple& samples)
{
    Triple light{};
    for (std::size_t c = 0; c < 3; ++c) {
        const double v = samples[c];
        light[c] = space.gamma > 0 ? std::pow(v, space.gamma)
                   : v <= 0.04045  ? v / 12.92
                                   : std::pow((v + 0.055) / 1.055, 2.4);
    }
    Triple levels{};
    for (std::size_t r = 0; r < 3; ++r) {
        for (std::size_t c = 0; c < 3; ++c) levels[r] += space.toSrgb[r][c] * light[c];
        const double v = std::clamp(levels[r], 0.0, 1.0);
        levels[r] = 255 * (v <= 0.0031308 ? 12.92 * v : 1.055 * std::pow(v, 1 / 2.4) - 0.055);
    }
    return levels;
}

constexpr int kSide = 64;

/// Levels that go through all of a cube.
int levelAt(int x, int y, int c)
{
    return (x * (c == 0 ? 4 : c == 1 ? 3 : 1) + y * (c == 0 ? 1 : c == 1 ? 4 : 3)) & 255;
}

/// A sample as a part of the whole; those of 2 bytes lie between those of 1.
double partAt(int x, int y, int c, int bytes)
{
    return bytes == 2 ? (levelAt(x, y, c) * 256 + 77) / 65535.0 : levelAt(x, y, c) / 255.0;
}

/// With samples of 1 or 2 bytes, whose rows show something else; or 0: with rows alone.
Decoded levels(int bytes)
{
    Decoded picture{kSide, kSide, [flips = bytes ? 64 : 0](int y, Pixel* row) {
                        for (int x = 0; x < kSide; ++x) // blue, green, red
                            for (int c = 0; c < 4; ++c)
                                row[x].c[c] = c == 3 ? 0 : std::uint8_t(levelAt(x, y, 2 - c) ^ flips);
                    }};
    if (bytes > 0)
        picture.samples = {3, bytes, [bytes](int y, void* row) {
                               for (int i = 0; i < 3 * kSide; ++i) {
                                   const double part = partAt(i / 3, y, i % 3, bytes);
                                   if (bytes == 1)
                                       static_cast<std::uint8_t*>(row)[i] = std::uint8_t(std::lround(part * 255));
                                   if (bytes == 2)
                                       static_cast<std::uint16_t*>(row)[i] = std::uint16_t(std::lround(part * 65535));
                               }
                           }};
    return picture;
}

void expectNear(const Decoded& picture, const Space& space, int bytes, const char* what)
{
    double worst = 0;
    const std::vector<Pixel> got = pixelsOf(picture);
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x) {
            Triple samples{};
            for (int c = 0; c < 3; ++c) samples[std::size_t(c)] = partAt(x, y, c, bytes);
            const Triple wanted = wantedOf(space, samples);
            const Pixel& p = got[std::size_t(y * kSide + x)];
            for (int c = 0; c < 3; ++c) worst = std::max(worst, std::abs(p.c[2 - c] - wanted[std::size_t(c)]));
            ASSERT_EQ(p.c[3], 0);
        }
    EXPECT_LE(worst, 1) << what;
}

/// Inks of which each takes its part of the light, as a table of five steps each.
std::vector<std::uint8_t> profileOfInks()
{
    cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr), lab = cmsCreateLab4Profile(nullptr);
    cmsHPROFILE srgb = cmsCreate_sRGBProfile();
    cmsSetDeviceClass(profile, cmsSigOutputClass);
    cmsSetColorSpace(profile, cmsSigCmykData);
    cmsSetPCS(profile, cmsSigLabData);
    cmsHTRANSFORM toLab = cmsCreateTransform(srgb, TYPE_RGB_16, lab, TYPE_LabV2_16, INTENT_RELATIVE_COLORIMETRIC, 0);
    cmsPipeline* pipeline = cmsPipelineAlloc(nullptr, 4, 3);
    cmsStage* table = cmsStageAllocCLut16bit(nullptr, 5, 4, 3, nullptr);
    cmsStageSampleCLut16bit(
        table,
        [](const cmsUInt16Number in[], cmsUInt16Number out[], void* with) {
            cmsUInt16Number rgb[3];
            for (int c = 0; c < 3; ++c) rgb[c] = cmsUInt16Number((65535.0 - in[c]) * (65535.0 - in[3]) / 65535.0);
            cmsDoTransform(with, rgb, out, 1);
            return 1;
        },
        toLab, 0);
    cmsPipelineInsertStage(pipeline, cmsAT_BEGIN, table);
    cmsWriteTag(profile, cmsSigAToB0Tag, pipeline);
    cmsPipelineFree(pipeline);
    cmsDeleteTransform(toLab);
    cmsCloseProfile(lab);
    cmsCloseProfile(srgb);
    return bytesOf(profile);
}

std::vector<std::uint8_t> profileOfGreys(double gamma)
{
    cmsToneCurve* curve = cmsBuildGamma(nullptr, gamma);
    const auto bytes = bytesOf(cmsCreateGrayProfile(&kWhite, curve));
    cmsFreeToneCurve(curve);
    return bytes;
}

} // namespace

TEST(facts, APictureIsInItsColours)
{
    for (const auto& [space, name] : {std::pair(kAdobe, "Adobe RGB"), std::pair(kP3, "Display P3")})
        for (const int bytes : {0, 1, 2}) {
            Decoded picture = levels(bytes);
            picture.carried.profile = profileOf(space);
            convertToSrgb(picture);
            expectNear(picture, space, bytes, name);
            if (bytes != 1 || space.gamma == 0) continue;
            picture = levels(1); // as a PNG says it
            picture.carried.gamma = 1 / space.gamma;
            picture.carried.chromaticities = {kWhite.x, kWhite.y};
            std::ranges::copy(space.primaries, picture.carried.chromaticities.begin() + 2);
            convertToSrgb(picture);
            expectNear(picture, space, 1, "gAMA and cHRM");
        }
    Decoded mac = levels(1);
    mac.carried.gamma = 1 / 1.8;
    convertToSrgb(mac);
    expectNear(mac, kMac, 1, "gAMA");
}

TEST(facts, InksAndGreysHaveProfilesToo)
{
    Decoded inks = levels(1);
    inks.samples = {4, 1, [](int, void* row) {
                        const std::uint8_t some[] = {0,   0, 0, 0, 255, 0,   0, 0, 0,   255,
                                                     255, 0, 0, 0, 0,   255, 0, 0, 128, 64};
                        std::ranges::copy(some, static_cast<std::uint8_t*>(row));
                        std::fill_n(static_cast<std::uint8_t*>(row) + sizeof some, 4 * kSide - sizeof some, 0);
                    }};
    inks.carried.profile = profileOfInks();
    convertToSrgb(inks);
    const std::vector<Pixel> got = pixelsOf(inks);
    const Pixel wanted[] = {
        {{255, 255, 255, 0}}, {{255, 255, 0, 0}}, {{0, 0, 255, 0}}, {{0, 0, 0, 0}}, {{95, 191, 191, 0}}};
    for (std::size_t i = 0; i < std::size(wanted); ++i)
        for (int c = 0; c < 4; ++c) EXPECT_NEAR(got[i].c[c], wanted[i].c[c], 3) << "ink " << i << ", " << c;

    Decoded greys{256, 1, [](int, Pixel* row) {
                      for (int x = 0; x < 256; ++x) row[x] = {{std::uint8_t(x), std::uint8_t(x), std::uint8_t(x), 0}};
                      row[7] = {{7, 8, 9, 0}}; // is none
                  }};
    greys.carried.profile = profileOfGreys(1.8);
    convertToSrgb(greys);
    const std::vector<Pixel> grey = pixelsOf(greys);
    for (int x = 0; x < 256; ++x)
        for (int c = 0; c < 3; ++c)
            EXPECT_NEAR(grey[std::size_t(x)].c[c],
                        x == 7 ? 7 + c : wantedOf(kMac, {x / 255.0, x / 255.0, x / 255.0})[0], 1.01)
                << x;
}

// Whatever a file says of its colours that isn't of use leaves every bit of them alone.
TEST(facts, APictureIsReadAsStored)
{
    auto cut = profileOf(kP3), vast = cut, broken = cut;
    cut.resize(cut.size() / 2);
    vast.resize(40 << 20);
    std::fill(broken.begin() + 128, broken.end(), std::uint8_t{0xff});
    auto places = std::array<double, 8>{0.31271, 0.32899, 0.64, 0.33, 0.30, 0.60, 0.15, 0.06};
    const Carried cases[] = {
        {},
        {.profile = profileOf(kSrgb)},
        {.profile = bytesOf(cmsCreate_sRGBProfile())},
        {.gamma = 0.45455},
        {.gamma = 0.45455, .chromaticities = places},
        {.profile = cut},
        {.profile = broken},
        {.profile = vast},
        {.profile = profileOfInks()},
        {.gamma = 1e-9},
        {.gamma = 0.45455, .chromaticities = {0.3, 0.3, 0, 0, 0, 0, 0, 0}},
        {.gamma = 0.45455, .chromaticities = {0.3, 0.3, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5}},
    };
    const std::vector<Pixel> stored = pixelsOf(levels(1));
    for (const Carried& carried : cases) {
        Decoded picture = levels(&carried == &cases[1] ? 2 : 1);
        picture.carried = carried;
        convertToSrgb(picture);
        const std::vector<Pixel> got = pixelsOf(picture);
        for (std::size_t i = 0; i < got.size(); ++i)
            ASSERT_EQ(got[i], stored[i]) << "case " << &carried - cases << ", pixel " << i;
    }
}

} // namespace velara::decode
