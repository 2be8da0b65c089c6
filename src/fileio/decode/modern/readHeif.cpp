// HEIC, HEIF and AVIF by libheif, which crops and turns the picture as the file says.
#include "fileio/decode/modern/LateLibrary.h"
#include "fileio/decode/modern/modern.h"
#include <algorithm>
#include <cstring>
#include <libheif/heif.h>
#include <string_view>

/// libheif has its HEVC decoder start a thread. velara-decode exports this function, which takes the place of the
/// decoder's own: without threads it works in the calling one.
extern "C" int de265_start_worker_threads(void*, int) { return 0; }

namespace velara::decode {

namespace {

struct Heif {
    LateLibrary late{VELARA_LIBHEIF};
    VELARA_LATE(heif_init);
    VELARA_LATE(heif_context_alloc);
    VELARA_LATE(heif_context_free);
    VELARA_LATE(heif_context_set_max_decoding_threads);
    VELARA_LATE(heif_context_set_maximum_image_size_limit);
    VELARA_LATE(heif_context_read_from_memory_without_copy);
    VELARA_LATE(heif_context_get_number_of_top_level_images);
    VELARA_LATE(heif_context_get_list_of_top_level_image_IDs);
    VELARA_LATE(heif_context_get_primary_image_ID);
    VELARA_LATE(heif_context_get_image_handle);
    VELARA_LATE(heif_image_handle_release);
    VELARA_LATE(heif_image_handle_get_width);
    VELARA_LATE(heif_image_handle_get_height);
    VELARA_LATE(heif_image_handle_has_alpha_channel);
    VELARA_LATE(heif_image_handle_get_luma_bits_per_pixel);
    VELARA_LATE(heif_image_handle_get_raw_color_profile_size);
    VELARA_LATE(heif_image_handle_get_raw_color_profile);
    VELARA_LATE(heif_image_handle_get_nclx_color_profile);
    VELARA_LATE(heif_nclx_color_profile_free);
    VELARA_LATE(heif_image_handle_get_list_of_metadata_block_IDs);
    VELARA_LATE(heif_image_handle_get_metadata_type);
    VELARA_LATE(heif_image_handle_get_metadata_content_type);
    VELARA_LATE(heif_image_handle_get_metadata_size);
    VELARA_LATE(heif_image_handle_get_metadata);
    VELARA_LATE(heif_decode_image);
    VELARA_LATE(heif_image_release);
    VELARA_LATE(heif_image_get_width);
    VELARA_LATE(heif_image_get_height);
    VELARA_LATE(heif_image_get_bits_per_pixel_range);
    VELARA_LATE(heif_image_get_plane_readonly);
};

const Heif& heif()
{
    static const Heif functions;
    return functions;
}

using Context = std::shared_ptr<heif_context>;
using Handle = std::shared_ptr<heif_image_handle>;
using Image = std::shared_ptr<heif_image>;

/// The images by number: the primary one first.
std::vector<heif_item_id> imagesOf(heif_context* context)
{
    std::vector<heif_item_id> images(
        static_cast<std::size_t>(std::max(0, heif().heif_context_get_number_of_top_level_images(context))));
    images.resize(static_cast<std::size_t>(std::max(0, heif().heif_context_get_list_of_top_level_image_IDs(
                                                           context, images.data(), static_cast<int>(images.size())))));
    heif_item_id primary = 0;
    if (heif().heif_context_get_primary_image_ID(context, &primary).code == heif_error_Ok)
        std::ranges::stable_partition(images, [&](heif_item_id id) { return id == primary; });
    return images;
}

std::vector<std::uint8_t> coloursOf(const heif_image_handle* handle)
{
    const std::size_t size = heif().heif_image_handle_get_raw_color_profile_size(handle);
    std::vector<std::uint8_t> profile(size <= kMostCarried ? size : 0);
    if (!profile.empty() &&
        heif().heif_image_handle_get_raw_color_profile(handle, profile.data()).code == heif_error_Ok)
        return profile;
    heif_color_profile_nclx* numbers = nullptr;
    if (heif().heif_image_handle_get_nclx_color_profile(handle, &numbers).code != heif_error_Ok || !numbers) return {};
    profile = profileOf(numbers->color_primaries, numbers->transfer_characteristics);
    heif().heif_nclx_color_profile_free(numbers);
    return profile;
}

std::vector<std::uint8_t> block(const heif_image_handle* handle, heif_item_id id)
{
    const std::size_t size = heif().heif_image_handle_get_metadata_size(handle, id);
    std::vector<std::uint8_t> bytes(size <= kMostCarried ? size : 0);
    if (bytes.empty() || heif().heif_image_handle_get_metadata(handle, id, bytes.data()).code != heif_error_Ok)
        return {};
    return bytes;
}

Carried carriedBy(const heif_image_handle* handle)
{
    constexpr int kMostBlocks = 64;
    const auto is = [](const char* given, std::string_view wanted) { return given && wanted == given; };
    Carried carried;
    carried.orientation = 1;
    carried.profile = coloursOf(handle);
    heif_item_id ids[kMostBlocks];
    const int count = heif().heif_image_handle_get_list_of_metadata_block_IDs(handle, nullptr, ids, kMostBlocks);
    for (int i = 0; i < count; ++i) {
        if (is(heif().heif_image_handle_get_metadata_type(handle, ids[i]), "Exif"))
            carried.exif = exifFrom(block(handle, ids[i]), 4); // after an offset
        else if (is(heif().heif_image_handle_get_metadata_content_type(handle, ids[i]), "application/rdf+xml"))
            carried.xmp = block(handle, ids[i]);
    }
    return carried;
}

/// Levels from 0 to most, stretched to 16 bits.
std::vector<std::uint16_t> stretched(std::uint32_t most)
{
    std::vector<std::uint16_t> levels(most + 1);
    for (std::uint64_t level = 0; level <= most; ++level)
        levels[level] = static_cast<std::uint16_t>((level * 65535 + most / 2) / most);
    return levels;
}

/// Rows of 10 or 12 bits.
void deepRows(Decoded& picture, const Image& image, const std::uint8_t* plane, std::size_t stride, int channels)
{
    const int bits = heif().heif_image_get_bits_per_pixel_range(image.get(), heif_channel_interleaved);
    const std::uint32_t most = (1U << std::clamp(bits, 9, 16)) - 1;
    const auto level = [levels = stretched(most), most](std::uint32_t part) { return levels[std::min(part, most)]; };
    giveDeepRows(picture, [image, plane, stride, channels, level, most, width = picture.width](int y, auto* to) {
        const auto* from = reinterpret_cast<const std::uint16_t*>(plane + stride * static_cast<std::size_t>(y));
        for (int x = 0; x < width; ++x, from += channels, to += 3) {
            const std::uint32_t alpha = channels == 4 ? std::min<std::uint32_t>(from[3], most) : most;
            for (int c = 0; c < 3; ++c)
                to[c] = level(alpha == most ? from[c] : overWhite(std::min<std::uint32_t>(from[c], most), alpha, most));
        }
    });
}

Decoded pixelsOf(const Image& image, bool isDeep, int channels)
{
    int stride = 0;
    const std::uint8_t* plane = heif().heif_image_get_plane_readonly(image.get(), heif_channel_interleaved, &stride);
    Decoded picture;
    picture.width = heif().heif_image_get_width(image.get(), heif_channel_interleaved);
    picture.height = heif().heif_image_get_height(image.get(), heif_channel_interleaved);
    if (!plane || stride < picture.width * channels * (isDeep ? 2 : 1)) return {};
    if (!Bits::sizeAllowed(picture.width, picture.height)) return refused(kTooBig);
    const auto line = static_cast<std::size_t>(stride);
    if (isDeep) {
        deepRows(picture, image, plane, line, channels);
        return picture;
    }
    picture.row = [image, plane, line, channels, width = picture.width](int y, Pixel* row) {
        const std::uint8_t* from = plane + line * static_cast<std::size_t>(y);
        if (channels == 3) return takeRow24(from, row, width);
        for (int x = 0; x < width; ++x, from += 4) row[x] = rgbaOverWhite(from);
    };
    return picture;
}

Decoded decoded(const heif_image_handle* handle)
{
    const bool isDeep = heif().heif_image_handle_get_luma_bits_per_pixel(handle) > 8;
    const int channels = heif().heif_image_handle_has_alpha_channel(handle) ? 4 : 3;
    constexpr heif_chroma kForms[2][2] = {{heif_chroma_interleaved_RGB, heif_chroma_interleaved_RGBA},
                                          {heif_chroma_interleaved_RRGGBB_LE, heif_chroma_interleaved_RRGGBBAA_LE}};
    const int width = heif().heif_image_handle_get_width(handle), height = heif().heif_image_handle_get_height(handle);
    if (width < 1 || height < 1) return {};
    if (!Bits::sizeAllowed(width, height)) return refused(kTooBig);
    sizeFound(width, height, channels * (isDeep ? 16 : 8));
    heif_image* image = nullptr;
    const heif_error error =
        heif().heif_decode_image(handle, &image, heif_colorspace_RGB, kForms[isDeep][channels - 3], nullptr);
    const Image owned(image, heif().heif_image_release);
    if (error.code == heif_error_Memory_allocation_error) return refused(kTooMuchMemory);
    return error.code == heif_error_Ok && owned ? pixelsOf(owned, isDeep, channels) : Decoded{};
}

} // namespace

Needs prepareHeif()
{
    if (heif().late.complete()) heif().heif_init(nullptr); // loads its decoders
    return Needs::Solitude;
}

Decoded readHeif(FileBytes& file)
{
    if (!heif().late.complete()) return refused("the library that reads HEIF and AVIF pictures (libheif) is missing");
    const Context context(heif().heif_context_alloc(), heif().heif_context_free);
    if (!context) return refused(kTooMuchMemory);
    heif().heif_context_set_max_decoding_threads(context.get(), 0);
    heif().heif_context_set_maximum_image_size_limit(context.get(), Bits::kMostASide);
    if (heif()
            .heif_context_read_from_memory_without_copy(context.get(), file.bytes().data(), file.size(), nullptr)
            .code != heif_error_Ok)
        return {};
    const std::vector<heif_item_id> images = imagesOf(context.get());
    const int pages = static_cast<int>(images.size());
    if (wantedPage >= pages) return pages == 0 ? Decoded{} : noSuchPage(pages);
    heif_image_handle* found = nullptr;
    const heif_error error =
        heif().heif_context_get_image_handle(context.get(), images[static_cast<std::size_t>(wantedPage)], &found);
    const Handle handle(found, heif().heif_image_handle_release);
    if (error.code != heif_error_Ok || !handle) return {};
    Decoded picture = decoded(handle.get());
    picture.carried = carriedBy(handle.get());
    picture.carried.pages = pages;
    return picture;
}

} // namespace velara::decode
