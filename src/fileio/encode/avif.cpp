// AVIF by libheif's encoder libaom.
#include "fileio/encode/encoders.h"
#include <algorithm>
#include <array>
#include <libheif/heif.h>
#include <memory>

namespace velara::encode {

namespace {

constexpr int kSpeed = 6;                 // of 0 to 9
constexpr std::uint32_t kFineChroma = 90; // the quality from which the chroma has all pixels

struct Free {
    void operator()(heif_context* context) const { heif_context_free(context); }
    void operator()(heif_image* image) const { heif_image_release(image); }
    void operator()(heif_encoder* encoder) const { heif_encoder_release(encoder); }
    void operator()(heif_image_handle* handle) const { heif_image_handle_release(handle); }
};
template <class T> using Owned = std::unique_ptr<T, Free>;

bool did(const heif_error& error) { return error.code == heif_error_Ok; }

// --- The library's own planes, filled from the pixels: full range, by the matrix that BT.601 and JPEG have

constexpr int kBits = 20; // of the fractions
constexpr std::int64_t fixed(double value)
{
    return static_cast<std::int64_t>(value * (1 << kBits) + (value < 0 ? -0.5 : 0.5));
}

struct Weights {
    std::int64_t red, green, blue, added;
};
constexpr Weights kLight{fixed(0.299), fixed(0.587), fixed(1) - fixed(0.299) - fixed(0.587), 0};
constexpr Weights kBlueness{fixed(-0.299 / 1.772), fixed(0.299 / 1.772) - fixed(0.5), fixed(0.5), 128};
constexpr Weights kRedness{fixed(0.5), fixed(0.114 / 1.402) - fixed(0.5), fixed(-0.114 / 1.402), 128};

/// Of sums over 2^shift pixels.
std::uint8_t weighted(const Weights& by, const std::array<std::int64_t, 3>& sums, int shift)
{
    const std::int64_t parts =
        by.red * sums[0] + by.green * sums[1] + by.blue * sums[2] + (by.added << (kBits + shift));
    return static_cast<std::uint8_t>(
        std::clamp<std::int64_t>((parts + (1LL << (kBits + shift - 1))) >> (kBits + shift), 0, 255));
}

struct Plane {
    std::uint8_t* at = nullptr;
    int pitch = 0;
    std::uint8_t* row(int y) const { return at + std::ptrdiff_t{y} * pitch; }
};

/// Null: it can't be had.
Plane addPlane(heif_image* image, heif_channel channel, int width, int height)
{
    Plane plane;
    if (did(heif_image_add_plane(image, channel, width, height, 8)))
        plane.at = heif_image_get_plane(image, channel, &plane.pitch);
    return plane;
}

/// Every pixel's light, and the colour of each square of 2^halvings pixels a side, whose last ones may lie partly
/// outside: there the pixels at the edge count twice.
void fill(const Picture& picture, const Plane& light, const Plane& blueness, const Plane& redness, int halvings)
{
    const int width = static_cast<int>(picture.request.width), height = static_cast<int>(picture.request.height);
    const auto rowAt = [&](int y) { return picture.pixels + std::size_t(std::min(y, height - 1)) * width * 3; };
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* from = rowAt(y);
        for (int x = 0; x < width; ++x, from += 3) light.row(y)[x] = weighted(kLight, {from[0], from[1], from[2]}, 0);
    }
    const int side = 1 << halvings;
    for (int y = 0; y < height; y += side)
        for (int x = 0; x < width; x += side) {
            std::array<std::int64_t, 3> sums{};
            for (int i = 0; i < side; ++i)
                for (int j = 0; j < side; ++j)
                    for (int c = 0; c < 3; ++c) sums[c] += rowAt(y + i)[3 * std::min(x + j, width - 1) + c];
            blueness.row(y >> halvings)[x >> halvings] = weighted(kBlueness, sums, 2 * halvings);
            redness.row(y >> halvings)[x >> halvings] = weighted(kRedness, sums, 2 * halvings);
        }
}

bool hasFineChroma(const Request& request) { return request.quality >= kFineChroma; }

/// What the planes mean; the profile, if there is one, says it of the colours.
bool setColours(heif_image* image, const Picture& picture)
{
    const std::unique_ptr<heif_color_profile_nclx, void (*)(heif_color_profile_nclx*)> numbers(
        heif_nclx_color_profile_alloc(), heif_nclx_color_profile_free);
    if (!numbers) return false;
    const bool isSrgb = picture.profile.empty();
    numbers->color_primaries = isSrgb ? heif_color_primaries_ITU_R_BT_709_5 : heif_color_primaries_unspecified;
    numbers->transfer_characteristics =
        isSrgb ? heif_transfer_characteristic_IEC_61966_2_1 : heif_transfer_characteristic_unspecified;
    numbers->matrix_coefficients = heif_matrix_coefficients_ITU_R_BT_601_6;
    numbers->full_range_flag = 1;
    return did(heif_image_set_nclx_color_profile(image, numbers.get())) &&
           (isSrgb ||
            did(heif_image_set_raw_color_profile(image, "prof", picture.profile.data(), picture.profile.size())));
}

Owned<heif_image> imageOf(const Picture& picture)
{
    const int width = static_cast<int>(picture.request.width), height = static_cast<int>(picture.request.height);
    const int halvings = hasFineChroma(picture.request) ? 0 : 1;
    heif_image* made = nullptr;
    if (!did(heif_image_create(width, height, heif_colorspace_YCbCr, halvings ? heif_chroma_420 : heif_chroma_444,
                               &made)))
        return nullptr;
    Owned<heif_image> image(made);
    const int across = (width + halvings) >> halvings, down = (height + halvings) >> halvings;
    const Plane light = addPlane(made, heif_channel_Y, width, height);
    const Plane blueness = addPlane(made, heif_channel_Cb, across, down);
    const Plane redness = addPlane(made, heif_channel_Cr, across, down);
    if (!light.at || !blueness.at || !redness.at || !setColours(made, picture)) return nullptr;
    fill(picture, light, blueness, redness, halvings);
    return image;
}

/// Null when there is none.
const heif_encoder_descriptor* aomEncoder()
{
    const heif_encoder_descriptor* aom = nullptr;
    return heif_get_encoder_descriptors(heif_compression_AV1, "aom", &aom, 1) < 1 ? nullptr : aom;
}

Owned<heif_encoder> encoderFor(heif_context* context, const Request& request)
{
    const heif_encoder_descriptor* aom = aomEncoder();
    heif_encoder* made = nullptr;
    if (!aom || !did(heif_context_get_encoder(context, aom, &made))) return nullptr;
    Owned<heif_encoder> encoder(made);
    const bool isSet = did(heif_encoder_set_lossy_quality(made, static_cast<int>(request.quality))) &&
                       did(heif_encoder_set_parameter_integer(made, "speed", kSpeed)) &&
                       did(heif_encoder_set_parameter_integer(made, "threads", static_cast<int>(request.threads))) &&
                       did(heif_encoder_set_parameter_string(made, "chroma", hasFineChroma(request) ? "444" : "420"));
    return isSet ? std::move(encoder) : nullptr;
}

heif_error putOut(heif_context*, const void* bytes, std::size_t size, void*)
{
    return {put(bytes, size) ? heif_error_Ok : heif_error_Encoding_error, heif_suberror_Unspecified, ""};
}

} // namespace

bool prepareAvif() { return aomEncoder() != nullptr; }

bool encodeAvif(const Picture& picture)
{
    const Owned<heif_context> context(heif_context_alloc());
    Owned<heif_image> image = imageOf(picture);
    const Owned<heif_encoder> encoder = encoderFor(context.get(), picture.request);
    heif_image_handle* made = nullptr;
    if (!image || !encoder ||
        !did(heif_context_encode_image(context.get(), image.get(), encoder.get(), nullptr, &made)))
        return false;
    const Owned<heif_image_handle> handle(made);
    image.reset();
    const auto add = [&](auto* function, std::span<const std::uint8_t> bytes) {
        return bytes.empty() || did(function(context.get(), made, bytes.data(), static_cast<int>(bytes.size())));
    };
    heif_writer writer{1, putOut};
    return add(heif_context_add_exif_metadata, picture.exif) && add(heif_context_add_XMP_metadata, picture.xmp) &&
           did(heif_context_write(context.get(), &writer, nullptr));
}

} // namespace velara::encode
