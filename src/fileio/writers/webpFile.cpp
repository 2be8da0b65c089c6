// WebP by libwebp, which is asked for its progress and ends where it is told so.
#include "fileio/cameraData.h"
#include "fileio/writers/pictureFiles.h"
#include <memory>
#include <webp/encode.h>
#include <webp/mux.h>

namespace velara {

namespace {

/// A picture of the library, and the bytes that it becomes. They are kept until the end: the library goes back in them.
struct WebpEncoder {
    WebPConfig config;
    WebPPicture picture;
    WebPMemoryWriter bytes;
    WebPData muxed{};

    WebpEncoder()
    {
        WebPConfigInit(&config);
        WebPPictureInit(&picture);
        WebPMemoryWriterInit(&bytes);
    }
    ~WebpEncoder()
    {
        WebPDataClear(&muxed);
        WebPMemoryWriterClear(&bytes);
        WebPPictureFree(&picture);
    }
    WebpEncoder(const WebpEncoder&) = delete;
    WebpEncoder& operator=(const WebpEncoder&) = delete;

    bool encode(const Bits& bits, const WebpForm& form, ByteSink& to);
    bool mux(const CameraData& camera);
};

bool WebpEncoder::encode(const Bits& bits, const WebpForm& form, ByteSink& to)
{
    if (form.lossless && !WebPConfigLosslessPreset(&config, form.quality / 12)) return false; // its levels are 0 to 9
    if (!form.lossless) config.quality = static_cast<float>(form.quality);
    picture.use_argb = form.lossless;
    picture.width = bits.width();
    picture.height = bits.height();
    picture.writer = WebPMemoryWrite;
    picture.custom_ptr = &bytes;
    picture.progress_hook = [](int, const WebPPicture* of) -> int {
        return static_cast<ByteSink*>(of->user_data)->goesOn();
    };
    picture.user_data = &to;
    return WebPPictureImportBGRX(&picture, bits.row(0)->c, static_cast<int>(bits.stride() * 4)) &&
           WebPEncode(&config, &picture);
}

/// Puts the picture and what the camera wrote into a container.
bool WebpEncoder::mux(const CameraData& camera)
{
    const std::unique_ptr<WebPMux, void (*)(WebPMux*)> file(WebPMuxNew(), WebPMuxDelete);
    const WebPData image{bytes.mem, bytes.size};
    bool put = file && WebPMuxSetImage(file.get(), &image, 0) == WEBP_MUX_OK;
    const auto add = [&](const char* chunk, const QByteArray& of) {
        const WebPData data{reinterpret_cast<const std::uint8_t*>(of.constData()), static_cast<std::size_t>(of.size())};
        put = put && (of.isEmpty() || WebPMuxSetChunk(file.get(), chunk, &data, 0) == WEBP_MUX_OK);
    };
    add("ICCP", camera.profile);
    add("EXIF", camera.exif);
    add("XMP ", camera.xmp);
    return put && WebPMuxAssemble(file.get(), &muxed) == WEBP_MUX_OK;
}

} // namespace

bool fitsWebp(const Bits& picture)
{
    return picture.width() <= WEBP_MAX_DIMENSION && picture.height() <= WEBP_MAX_DIMENSION;
}

bool writeWebp(const Bits& picture, const WebpForm& form, ByteSink& to, const CameraData& carried)
{
    const CameraData camera = inExif(carried);
    WebpEncoder encoder;
    if (!fitsWebp(picture) || !encoder.encode(picture, form, to)) return false;
    if (camera.exif.isEmpty() && camera.xmp.isEmpty() && camera.profile.isEmpty())
        return to.write(encoder.bytes.mem, encoder.bytes.size);
    return encoder.mux(camera) && to.write(encoder.muxed.bytes, encoder.muxed.size);
}

} // namespace velara
