// The cameras' own formats by LibRaw: at full size, in sRGB by the camera's white balance, turned by the library.
#include "fileio/decode/modern/modern.h"
#include <libraw/libraw.h>

namespace velara::decode {

namespace {

/// Sets what the development depends on.
void choose(libraw_output_params_t& how)
{
    how.use_camera_wb = 1;
    how.output_bps = 16;
    how.output_color = 1; // sRGB
    how.gamm[0] = 1 / 2.4;
    how.gamm[1] = 12.92;
    how.half_size = 0;
}

struct Developed {
    std::vector<std::uint16_t> samples; // red, green, blue
    int width = 0, height = 0;
};

Decoded pixelsOf(std::shared_ptr<Developed> developed)
{
    Decoded picture;
    picture.width = developed->width;
    picture.height = developed->height;
    giveDeepRows(picture, [developed = std::move(developed)](int y, std::uint16_t* to) {
        const std::size_t line = 3 * static_cast<std::size_t>(developed->width);
        std::copy_n(developed->samples.data() + line * static_cast<std::size_t>(y), line, to);
    });
    return picture;
}

QString faultOf(int error) { return error == LIBRAW_UNSUFFICIENT_MEMORY ? QString(kTooMuchMemory) : QString(); }

} // namespace

Decoded readRaw(FileBytes& file)
{
    const auto raw = std::make_unique<LibRaw>();
    choose(raw->imgdata.params);
    int damages = 0;
    raw->set_dataerror_handler([](void* count, const char*, auto) { ++*static_cast<int*>(count); }, &damages);
    if (const int error = raw->open_buffer(file.bytes().data(), file.size())) return refused(faultOf(error));
    const libraw_image_sizes_t& sizes = raw->imgdata.sizes;
    const bool isTurned = (sizes.flip & 4) != 0;
    const int across = isTurned ? sizes.height : sizes.width, down = isTurned ? sizes.width : sizes.height;
    if (across < 1 || down < 1) return {};
    if (!Bits::sizeAllowed(across, down)) return refused(kTooBig);
    sizeFound(across, down, 16); // a sample a pixel before the colours are found between them
    if (const int error = raw->unpack()) return refused(faultOf(error));
    if (const int error = raw->dcraw_process()) return refused(faultOf(error));
    const auto developed = std::make_shared<Developed>();
    int colours = 0, bits = 0;
    raw->get_mem_image_format(&developed->width, &developed->height, &colours, &bits);
    if (bits != 16 || (colours != 1 && colours != 3)) return {};
    if (!Bits::sizeAllowed(developed->width, developed->height)) return refused(kTooBig);
    const std::size_t pixels = static_cast<std::size_t>(developed->width) * static_cast<std::size_t>(developed->height);
    developed->samples.resize(pixels * 3);
    if (raw->copy_mem_image(developed->samples.data(), developed->width * colours * 2, 0) != 0) return {};
    if (colours == 1)
        for (std::size_t i = pixels; i-- > 0;)
            std::fill_n(developed->samples.data() + 3 * i, 3, std::uint16_t(developed->samples[i]));
    Decoded picture = pixelsOf(developed);
    picture.carried.orientation = 1;
    picture.carried.xmp = carriedBytes(raw->imgdata.idata.xmpdata, raw->imgdata.idata.xmplen);
    if (damages > 0) picture.reason = kCutOff;
    return picture;
}

} // namespace velara::decode
