#include "fileio/writers/webp/WebpEncoder.h"
#include <memory>
#include <webp/mux.h>

namespace velara {

WebpEncoder::WebpEncoder(const WebpForm& form) : form_(form)
{
    WebPConfigInit(&config_);
    WebPPictureInit(&picture_);
    WebPMemoryWriterInit(&bytes_);
}

WebpEncoder::~WebpEncoder()
{
    WebPDataClear(&muxed_);
    WebPMemoryWriterClear(&bytes_);
    WebPPictureFree(&picture_);
}

void WebpEncoder::setSize(int width, int height)
{
    picture_.use_argb = form_.lossless;
    picture_.width = width;
    picture_.height = height;
}

bool WebpEncoder::takeRgb(const std::uint8_t* pixels, int width, int height)
{
    setSize(width, height);
    return WebPPictureImportRGB(&picture_, pixels, width * 3) != 0;
}

bool WebpEncoder::takeBgrx(const std::uint8_t* pixels, int width, int height, int stride)
{
    setSize(width, height);
    return WebPPictureImportBGRX(&picture_, pixels, stride) != 0;
}

bool WebpEncoder::encode(const std::function<bool()>& goesOn)
{
    constexpr int kQualityPerLevel = 12; // lossless levels are 0 to 9
    if (form_.lossless && !WebPConfigLosslessPreset(&config_, form_.quality / kQualityPerLevel)) return false;
    if (!form_.lossless) config_.quality = static_cast<float>(form_.quality);
    picture_.writer = WebPMemoryWrite;
    picture_.custom_ptr = &bytes_;
    picture_.progress_hook = [](int, const WebPPicture* of) -> int {
        return (*static_cast<const std::function<bool()>*>(of->user_data))();
    };
    picture_.user_data = const_cast<std::function<bool()>*>(&goesOn);
    return WebPEncode(&config_, &picture_) != 0;
}

bool WebpEncoder::finish(std::span<const std::uint8_t> exif, std::span<const std::uint8_t> xmp,
                         std::span<const std::uint8_t> profile)
{
    if (exif.empty() && xmp.empty() && profile.empty()) return true;
    const std::unique_ptr<WebPMux, void (*)(WebPMux*)> mux(WebPMuxNew(), WebPMuxDelete);
    const WebPData image{bytes_.mem, bytes_.size};
    bool put = mux && WebPMuxSetImage(mux.get(), &image, 0) == WEBP_MUX_OK;
    const auto add = [&](const char* chunk, std::span<const std::uint8_t> of) {
        const WebPData data{of.data(), of.size()};
        put = put && (of.empty() || WebPMuxSetChunk(mux.get(), chunk, &data, 0) == WEBP_MUX_OK);
    };
    add("ICCP", profile);
    add("EXIF", exif);
    add("XMP ", xmp);
    return put && WebPMuxAssemble(mux.get(), &muxed_) == WEBP_MUX_OK;
}

std::span<const std::uint8_t> WebpEncoder::file() const
{
    return muxed_.bytes ? std::span(muxed_.bytes, muxed_.size) : std::span<const std::uint8_t>(bytes_.mem, bytes_.size);
}

} // namespace velara
