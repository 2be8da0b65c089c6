#include "fileio/decode/facts/screenTable.h"
#include "fileio/load/ColourTablePicture.h"
#include <cstdlib>
#include <lcms2.h>
#include <memory>

namespace velara::decode {

namespace {

struct Close {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
struct Delete {
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using Profile = std::unique_ptr<void, Close>;
using Words = std::vector<std::uint16_t>; // red, green, blue and so on

/// The colours of the table themselves.
Words evenColours()
{
    Words words;
    words.reserve(std::size_t{3} * kTableSide * kTableSide * kTableSide);
    const auto level = [](int i) { return static_cast<std::uint16_t>(i * 65535 / (kTableSide - 1)); };
    for (int r = 0; r < kTableSide; ++r)
        for (int g = 0; g < kTableSide; ++g)
            for (int b = 0; b < kTableSide; ++b)
                for (const int i : {r, g, b}) words.push_back(level(i));
    return words;
}

/// Nowhere half a level of eight bits.
bool areAlike(const Words& a, const Words& b)
{
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::abs(a[i] - b[i]) > 128) return false;
    return true;
}

} // namespace

Decoded screenTable(const FileBytes& file)
{
    const Profile profile(
        cmsOpenProfileFromMem(file.bytes().data(), static_cast<cmsUInt32Number>(file.bytes().size())));
    if (!profile || cmsGetDeviceClass(profile.get()) != cmsSigDisplayClass ||
        cmsGetColorSpace(profile.get()) != cmsSigRgbData)
        return refused("it is no profile of a screen");
    const Profile srgb(cmsCreate_sRGBProfile());
    const std::unique_ptr<void, Delete> transform(cmsCreateTransform(srgb.get(), TYPE_RGB_16, profile.get(),
                                                                     TYPE_RGB_16, INTENT_RELATIVE_COLORIMETRIC,
                                                                     cmsFLAGS_BLACKPOINTCOMPENSATION));
    if (!transform) return refused("its profile can't be used");
    const Words even = evenColours();
    const auto words = std::make_shared<Words>(even.size());
    cmsDoTransform(transform.get(), even.data(), words->data(), static_cast<cmsUInt32Number>(even.size() / 3));
    if (areAlike(even, *words)) return refused("it is sRGB");
    Decoded picture;
    picture.width = kTableWidth;
    picture.height = kTableHeight;
    picture.row = [words](int y, Pixel* row) {
        const int shift = y < kTableSide ? 8 : 0;
        const std::uint16_t* from = words->data() + std::size_t(y % kTableSide) * kTableWidth * 3;
        const auto part = [&](int i) { return static_cast<std::uint8_t>(from[i] >> shift); };
        for (int x = 0; x < kTableWidth; ++x, from += 3) row[x] = {{part(2), part(1), part(0), 0}};
    };
    return picture;
}

} // namespace velara::decode
