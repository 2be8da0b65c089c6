// JPEG XL by libjxl: one frame, turned by the library, in sRGB where the file leaves the choice.
#include "fileio/decode/cage/Helpers.h"
#include "fileio/decode/modern/LateLibrary.h"
#include "fileio/decode/modern/modern.h"
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <jxl/decode.h>

namespace velara::decode {

namespace {

struct Jxl {
    LateLibrary late{VELARA_LIBJXL};
    VELARA_LATE(JxlDecoderCreate);
    VELARA_LATE(JxlDecoderDestroy);
    VELARA_LATE(JxlDecoderSubscribeEvents);
    VELARA_LATE(JxlDecoderSetParallelRunner);
    VELARA_LATE(JxlDecoderSetInput);
    VELARA_LATE(JxlDecoderCloseInput);
    VELARA_LATE(JxlDecoderProcessInput);
    VELARA_LATE(JxlDecoderGetBasicInfo);
    VELARA_LATE(JxlDecoderSetUnpremultiplyAlpha);
    VELARA_LATE(JxlDecoderSkipFrames);
    VELARA_LATE(JxlDecoderSetPreferredColorProfile);
    VELARA_LATE(JxlDecoderGetColorAsEncodedProfile);
    VELARA_LATE(JxlDecoderGetICCProfileSize);
    VELARA_LATE(JxlDecoderGetColorAsICCProfile);
    VELARA_LATE(JxlDecoderImageOutBufferSize);
    VELARA_LATE(JxlDecoderSetImageOutBuffer);
    VELARA_LATE(JxlDecoderFlushImage);
    VELARA_LATE(JxlDecoderSetDecompressBoxes);
    VELARA_LATE(JxlDecoderGetBoxType);
    VELARA_LATE(JxlDecoderSetBoxBuffer);
    VELARA_LATE(JxlDecoderReleaseBoxBuffer);
};

const Jxl& jxl()
{
    static const Jxl functions;
    return functions;
}

using Decoder = std::unique_ptr<JxlDecoder, void (*)(JxlDecoder*)>;

/// The library's work by all threads that there are.
JxlParallelRetCode together(void*, void* work, JxlParallelRunInit init, JxlParallelRunFunction each,
                            std::uint32_t first, std::uint32_t end)
{
    if (first >= end) return 0;
    if (const JxlParallelRetCode fault = init(work, threadsTogether())) return fault;
    runTogether(first, end, [&](std::uint32_t item, unsigned thread) { each(work, item, thread); });
    return 0;
}

Decoder decoderOf(const FileBytes& file, int events)
{
    Decoder decoder(jxl().JxlDecoderCreate(nullptr), jxl().JxlDecoderDestroy);
    if (!decoder) throw std::bad_alloc();
    jxl().JxlDecoderSetParallelRunner(decoder.get(), together, nullptr);
    jxl().JxlDecoderSubscribeEvents(decoder.get(), events);
    jxl().JxlDecoderSetInput(decoder.get(), file.bytes().data(), file.size());
    jxl().JxlDecoderCloseInput(decoder.get());
    return decoder;
}

/// The contents of a box, which arrive piece by piece.
class Box {
  public:
    void begin(JxlDecoder* decoder, std::vector<std::uint8_t>* to)
    {
        end(decoder);
        to_ = to;
        if (to_) enlarge(decoder, 0);
    }
    /// False when the box is longer than anything we keep.
    bool more(JxlDecoder* decoder)
    {
        if (!to_) return false;
        const std::size_t filled = to_->size() - jxl().JxlDecoderReleaseBoxBuffer(decoder);
        if (filled > kMostCarried) return false;
        enlarge(decoder, filled);
        return true;
    }
    void end(JxlDecoder* decoder)
    {
        if (to_) to_->resize(to_->size() - jxl().JxlDecoderReleaseBoxBuffer(decoder));
        to_ = nullptr;
    }

  private:
    void enlarge(JxlDecoder* decoder, std::size_t filled)
    {
        constexpr std::size_t kPiece = 64 << 10;
        to_->resize(filled + std::max(filled, kPiece));
        jxl().JxlDecoderSetBoxBuffer(decoder, to_->data() + filled, to_->size() - filled);
    }
    std::vector<std::uint8_t>* to_ = nullptr;
};

/// Reads the boxes beside the picture, and counts its frames without decoding them.
Carried carriedBy(const FileBytes& file)
{
    const Decoder decoder = decoderOf(file, JXL_DEC_BOX | JXL_DEC_FRAME);
    jxl().JxlDecoderSetDecompressBoxes(decoder.get(), JXL_TRUE);
    Carried carried;
    carried.orientation = 1;
    std::vector<std::uint8_t> exif;
    Box box;
    int frames = 0;
    JxlBoxType type{};
    for (bool goOn = true; goOn;) {
        switch (jxl().JxlDecoderProcessInput(decoder.get())) {
        case JXL_DEC_FRAME:
            ++frames;
            break;
        case JXL_DEC_BOX:
            goOn = jxl().JxlDecoderGetBoxType(decoder.get(), type, JXL_TRUE) == JXL_DEC_SUCCESS;
            box.begin(decoder.get(), std::memcmp(type, "Exif", 4) == 0   ? &exif
                                     : std::memcmp(type, "xml ", 4) == 0 ? &carried.xmp
                                                                         : nullptr);
            break;
        case JXL_DEC_BOX_NEED_MORE_OUTPUT:
            goOn = box.more(decoder.get());
            break;
        default:
            goOn = false;
        }
    }
    box.end(decoder.get());
    carried.exif = exifFrom(std::move(exif), 4); // after an offset
    carried.pages = std::max(frames, 1);
    return carried;
}

constexpr double kUsualGamma = 0.45455; // what a PNG without colours of its own says, and means sRGB by it

/// Asks for sRGB, which the library gives where the file has its own colours (XYB) or sRGB; elsewhere the samples are
/// as stored, and this is their profile. Empty: sRGB.
std::vector<std::uint8_t> chooseColours(JxlDecoder* decoder, const JxlPixelFormat& format, const JxlBasicInfo& info)
{
    JxlColorEncoding wanted{};
    wanted.color_space = info.num_color_channels == 1 ? JXL_COLOR_SPACE_GRAY : JXL_COLOR_SPACE_RGB;
    wanted.white_point = JXL_WHITE_POINT_D65;
    wanted.primaries = JXL_PRIMARIES_SRGB;
    wanted.transfer_function = JXL_TRANSFER_FUNCTION_SRGB;
    wanted.rendering_intent = JXL_RENDERING_INTENT_RELATIVE;
    if (!info.uses_original_profile) jxl().JxlDecoderSetPreferredColorProfile(decoder, &wanted);
    JxlColorEncoding given{};
    if (jxl().JxlDecoderGetColorAsEncodedProfile(decoder, &format, JXL_COLOR_PROFILE_TARGET_DATA, &given) ==
            JXL_DEC_SUCCESS &&
        given.white_point == wanted.white_point &&
        (given.transfer_function == wanted.transfer_function ||
         (given.transfer_function == JXL_TRANSFER_FUNCTION_GAMMA && std::abs(given.gamma - kUsualGamma) < 0.002)) &&
        (given.primaries == wanted.primaries || given.color_space == JXL_COLOR_SPACE_GRAY))
        return {};
    std::size_t size = 0;
    if (jxl().JxlDecoderGetICCProfileSize(decoder, &format, JXL_COLOR_PROFILE_TARGET_DATA, &size) != JXL_DEC_SUCCESS ||
        size > kMostCarried)
        return {};
    std::vector<std::uint8_t> profile(size);
    const bool isThere = jxl().JxlDecoderGetColorAsICCProfile(decoder, &format, JXL_COLOR_PROFILE_TARGET_DATA,
                                                              profile.data(), size) == JXL_DEC_SUCCESS;
    return isThere ? profile : std::vector<std::uint8_t>();
}

/// Zeros at first, which cost nothing until they are written over.
using Buffer = std::shared_ptr<std::uint8_t>;
Buffer bufferOf(std::size_t size)
{
    Buffer buffer(static_cast<std::uint8_t*>(std::calloc(size, 1)), std::free);
    if (!buffer) throw std::bad_alloc();
    return buffer;
}

void giveRows(Decoded& picture, const Buffer& buffer, const JxlPixelFormat& format)
{
    const auto channels = static_cast<int>(format.num_channels);
    const std::size_t line = static_cast<std::size_t>(picture.width) * format.num_channels;
    if (format.data_type == JXL_TYPE_UINT8) {
        picture.row = [buffer, line, channels, width = picture.width](int y, Pixel* row) {
            const std::uint8_t* from = buffer.get() + line * static_cast<std::size_t>(y);
            if (channels == 3) return takeRow24(from, row, width);
            for (int x = 0; x < width; ++x, from += 4) row[x] = rgbaOverWhite(from);
        };
        return;
    }
    giveDeepRows(picture, [buffer, line, channels, width = picture.width](int y, std::uint16_t* to) {
        const auto* from = reinterpret_cast<const std::uint16_t*>(buffer.get()) + line * static_cast<std::size_t>(y);
        for (int x = 0; x < width; ++x, from += channels, to += 3)
            for (int c = 0; c < 3; ++c)
                to[c] = static_cast<std::uint16_t>(channels == 4 ? overWhite(from[c], from[3], 65535) : from[c]);
    });
}

/// The pixels of the wanted frame; without the carried facts but the profile.
Decoded pixelsOf(const FileBytes& file)
{
    const Decoder decoder = decoderOf(file, JXL_DEC_BASIC_INFO | JXL_DEC_COLOR_ENCODING | JXL_DEC_FULL_IMAGE);
    jxl().JxlDecoderSetUnpremultiplyAlpha(decoder.get(), JXL_TRUE);
    jxl().JxlDecoderSkipFrames(decoder.get(), static_cast<std::size_t>(wantedPage));
    JxlBasicInfo info{};
    JxlPixelFormat format{3, JXL_TYPE_UINT8, JXL_NATIVE_ENDIAN, 0};
    Buffer buffer;
    Decoded picture;
    for (;;) {
        const JxlDecoderStatus status = jxl().JxlDecoderProcessInput(decoder.get());
        std::size_t size = 0;
        if (status == JXL_DEC_BASIC_INFO) {
            if (jxl().JxlDecoderGetBasicInfo(decoder.get(), &info) != JXL_DEC_SUCCESS) return {};
            if (!Bits::sizeAllowed(info.xsize, info.ysize)) return refused(kTooBig);
            picture.width = static_cast<int>(info.xsize);
            picture.height = static_cast<int>(info.ysize);
            format.num_channels = info.alpha_bits > 0 ? 4 : 3;
            if (info.bits_per_sample > 8) format.data_type = JXL_TYPE_UINT16;
            sizeFound(info.xsize, info.ysize,
                      static_cast<int>(format.num_channels) * (info.bits_per_sample > 8 ? 16 : 8));
        } else if (status == JXL_DEC_COLOR_ENCODING) {
            picture.carried.profile = chooseColours(decoder.get(), format, info);
        } else if (status == JXL_DEC_NEED_IMAGE_OUT_BUFFER) {
            if (jxl().JxlDecoderImageOutBufferSize(decoder.get(), &format, &size) != JXL_DEC_SUCCESS) return {};
            buffer = bufferOf(size);
            if (jxl().JxlDecoderSetImageOutBuffer(decoder.get(), &format, buffer.get(), size) != JXL_DEC_SUCCESS)
                return {};
        } else if (status == JXL_DEC_FULL_IMAGE) {
            break;
        } else {
            const bool isCutOff = status == JXL_DEC_NEED_MORE_INPUT && buffer;
            if (!isCutOff || jxl().JxlDecoderFlushImage(decoder.get()) != JXL_DEC_SUCCESS) return {};
            picture.reason = kCutOff; // the available part is shown, as far as its coarser passes go
            break;
        }
    }
    giveRows(picture, buffer, format);
    return picture;
}

} // namespace

Needs prepareJxl()
{
    jxl();
    return Needs::Helpers;
}

Decoded readJxl(FileBytes& file)
{
    if (!jxl().late.complete()) return refused("the library that reads JPEG XL pictures (libjxl) is missing");
    Carried carried;
    if (wantedPage > 0) carried = carriedBy(file);
    if (wantedPage >= carried.pages) return noSuchPage(carried.pages);
    Decoded picture = pixelsOf(file);
    if (!picture.ok()) return picture;
    std::vector<std::uint8_t> profile = std::move(picture.carried.profile);
    picture.carried = wantedPage > 0 ? std::move(carried) : carriedBy(file);
    picture.carried.profile = std::move(profile);
    return picture;
}

} // namespace velara::decode
