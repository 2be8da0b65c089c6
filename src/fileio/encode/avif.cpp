// AVIF by libheif's encoder libaom.
#include "fileio/encode/encoders.h"
#include <cstring>
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

Owned<heif_image> imageOf(const Picture& picture)
{
    const int width = static_cast<int>(picture.request.width), height = static_cast<int>(picture.request.height);
    heif_image* made = nullptr;
    if (!did(heif_image_create(width, height, heif_colorspace_RGB, heif_chroma_interleaved_RGB, &made))) return nullptr;
    Owned<heif_image> image(made);
    int pitch = 0;
    if (!did(heif_image_add_plane(made, heif_channel_interleaved, width, height, 8))) return nullptr;
    std::uint8_t* to = heif_image_get_plane(made, heif_channel_interleaved, &pitch);
    const std::size_t bytes = std::size_t{picture.request.width} * 3;
    for (int y = 0; to && y < height; ++y)
        std::memcpy(to + std::ptrdiff_t{y} * pitch, picture.pixels + bytes * std::size_t(y), bytes);
    if (!picture.profile.empty() &&
        !did(heif_image_set_raw_color_profile(made, "prof", picture.profile.data(), picture.profile.size())))
        return nullptr;
    return to ? std::move(image) : nullptr;
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
    const bool isSet =
        did(heif_encoder_set_lossy_quality(made, static_cast<int>(request.quality))) &&
        did(heif_encoder_set_parameter_integer(made, "speed", kSpeed)) &&
        did(heif_encoder_set_parameter_integer(made, "threads", static_cast<int>(request.threads))) &&
        did(heif_encoder_set_parameter_string(made, "chroma", request.quality < kFineChroma ? "420" : "444"));
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
