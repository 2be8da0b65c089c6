// WebP by libwebp. Of an animation one frame, composed on its canvas with the frames before it.
#include "fileio/decode/modern/modern.h"
#include <algorithm>
#include <limits>
#include <webp/decode.h>
#include <webp/demux.h>

namespace velara::decode {

namespace {

template <class T, void (*release)(T*)> struct Release {
    void operator()(T* object) const { release(object); }
};
using Demuxer = std::unique_ptr<WebPDemuxer, Release<WebPDemuxer, WebPDemuxDelete>>;
using Animation = std::shared_ptr<WebPAnimDecoder>;

std::vector<std::uint8_t> chunk(const WebPDemuxer* demuxer, const char* name)
{
    WebPChunkIterator found{};
    std::vector<std::uint8_t> bytes;
    if (WebPDemuxGetChunk(demuxer, name, 1, &found)) bytes = carriedBytes(found.chunk.bytes, found.chunk.size);
    WebPDemuxReleaseChunkIterator(&found);
    return bytes;
}

Carried carriedBy(const WebPDemuxer* demuxer)
{
    Carried carried;
    carried.profile = chunk(demuxer, "ICCP");
    carried.exif = exifFrom(chunk(demuxer, "EXIF"));
    carried.xmp = chunk(demuxer, "XMP ");
    carried.pages = static_cast<int>(
        std::clamp<std::uint32_t>(WebPDemuxGetI(demuxer, WEBP_FF_FRAME_COUNT), 1, std::numeric_limits<int>::max()));
    return carried;
}

Decoded pixelsOf(std::shared_ptr<std::uint8_t> rgba, int width, int height, Carried carried)
{
    Decoded picture;
    picture.width = width;
    picture.height = height;
    picture.carried = std::move(carried);
    picture.row = [rgba = std::move(rgba), width](int y, Pixel* row) {
        const std::uint8_t* from = rgba.get() + std::size_t{4} * static_cast<std::size_t>(width) * std::size_t(y);
        for (int x = 0; x < width; ++x, from += 4) row[x] = rgbaOverWhite(from);
    };
    return picture;
}

/// The file's bytes as far as they are there: a picture that is cut off shows its upper part.
Decoded readStill(const WebPData& data, const WebPBitstreamFeatures& features, Carried carried)
{
    const auto size = std::size_t{4} * std::size_t(features.width) * std::size_t(features.height);
    std::shared_ptr<std::uint8_t> rgba(new std::uint8_t[size], std::default_delete<std::uint8_t[]>());
    std::fill_n(rgba.get(), size, std::uint8_t{255});
    const std::unique_ptr<WebPIDecoder, Release<WebPIDecoder, WebPIDelete>> decoder(
        WebPINewRGB(MODE_RGBA, rgba.get(), size, 4 * features.width));
    if (!decoder) return refused(kTooMuchMemory);
    const VP8StatusCode status = WebPIUpdate(decoder.get(), data.bytes, data.size);
    if (status == VP8_STATUS_OUT_OF_MEMORY) return refused(kTooMuchMemory);
    int rows = 0;
    if (!WebPIDecGetRGB(decoder.get(), &rows, nullptr, nullptr, nullptr) || rows == 0) return {};
    Decoded picture = pixelsOf(std::move(rgba), features.width, features.height, std::move(carried));
    if (status != VP8_STATUS_OK) picture.reason = kCutOff;
    return picture;
}

Decoded readFrame(const WebPData& data, int width, int height, Carried carried)
{
    WebPAnimDecoderOptions options;
    WebPAnimDecoderOptionsInit(&options);
    options.color_mode = MODE_RGBA;
    options.use_threads = 0;
    const Animation animation(WebPAnimDecoderNew(&data, &options), WebPAnimDecoderDelete);
    std::uint8_t* canvas = nullptr;
    int when = 0;
    if (!animation) return {};
    if (wantedPage >= carried.pages) return noSuchPage(carried.pages);
    for (int i = 0; i <= wantedPage; ++i)
        if (!WebPAnimDecoderGetNext(animation.get(), &canvas, &when)) return {};
    return pixelsOf({animation, canvas}, width, height, std::move(carried));
}

} // namespace

Decoded readWebp(FileBytes& file)
{
    const WebPData data{file.bytes().data(), file.size()};
    WebPBitstreamFeatures features{};
    if (WebPGetFeatures(data.bytes, data.size, &features) != VP8_STATUS_OK) return {};
    if (!Bits::sizeAllowed(features.width, features.height)) return refused(kTooBig);
    sizeFound(features.width, features.height, features.has_alpha ? 32 : 24);
    WebPDemuxState state{};
    const Demuxer demuxer(WebPDemuxPartial(&data, &state));
    Carried carried = demuxer ? carriedBy(demuxer.get()) : Carried();
    return features.has_animation ? readFrame(data, features.width, features.height, std::move(carried))
                                  : readStill(data, features, std::move(carried));
}

} // namespace velara::decode
