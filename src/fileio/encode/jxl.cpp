// JPEG XL by libjxl.
#include "fileio/encode/encoders.h"
#include <array>
#include <cmath>
#include <jxl/encode.h>
#include <jxl/thread_parallel_runner.h>
#include <memory>
#include <vector>

namespace velara::encode {

namespace {

constexpr std::int64_t kEffort = 5; // of 1 to 9
constexpr std::uint32_t kLossless = 100;

/// The distance in units that an eye just notices, as a percentage is understood by the library's own program.
float distanceOf(std::uint32_t quality)
{
    const auto q = static_cast<float>(quality);
    return quality >= 30 ? 0.1F + (100 - q) * 0.09F : 6.4F + std::pow(2.5F, (30 - q) / 5) / 6.25F;
}

bool did(JxlEncoderStatus status) { return status == JXL_ENC_SUCCESS; }

bool setUp(JxlEncoder* encoder, const Picture& picture)
{
    const Request& request = picture.request;
    JxlBasicInfo info;
    JxlEncoderInitBasicInfo(&info);
    info.xsize = request.width;
    info.ysize = request.height;
    info.bits_per_sample = 8;
    info.num_color_channels = 3;
    info.uses_original_profile = request.quality == kLossless;
    if (!did(JxlEncoderSetBasicInfo(encoder, &info))) return false;
    if (!picture.profile.empty())
        return did(JxlEncoderSetICCProfile(encoder, picture.profile.data(), picture.profile.size()));
    JxlColorEncoding colours;
    JxlColorEncodingSetToSRGB(&colours, JXL_FALSE);
    return did(JxlEncoderSetColorEncoding(encoder, &colours));
}

/// The camera's boxes, before the picture.
bool addBoxes(JxlEncoder* encoder, const Picture& picture)
{
    if (picture.exif.empty() && picture.xmp.empty()) return true;
    if (!did(JxlEncoderUseContainer(encoder, JXL_TRUE)) || !did(JxlEncoderUseBoxes(encoder))) return false;
    std::vector<std::uint8_t> exif(4); // the offset of its byte order mark
    exif.insert(exif.end(), picture.exif.begin(), picture.exif.end());
    return (picture.exif.empty() || did(JxlEncoderAddBox(encoder, "Exif", exif.data(), exif.size(), JXL_FALSE))) &&
           (picture.xmp.empty() ||
            did(JxlEncoderAddBox(encoder, "xml ", picture.xmp.data(), picture.xmp.size(), JXL_FALSE)));
}

bool addFrame(JxlEncoder* encoder, const Picture& picture)
{
    const Request& request = picture.request;
    JxlEncoderFrameSettings* frame = JxlEncoderFrameSettingsCreate(encoder, nullptr);
    const JxlPixelFormat format{3, JXL_TYPE_UINT8, JXL_NATIVE_ENDIAN, 0};
    return did(JxlEncoderFrameSettingsSetOption(frame, JXL_ENC_FRAME_SETTING_EFFORT, kEffort)) &&
           did(request.quality == kLossless ? JxlEncoderSetFrameLossless(frame, JXL_TRUE)
                                            : JxlEncoderSetFrameDistance(frame, distanceOf(request.quality))) &&
           did(JxlEncoderAddImageFrame(frame, &format, picture.pixels, request.pixelBytes()));
}

} // namespace

bool encodeJxl(const Picture& picture)
{
    const std::unique_ptr<void, void (*)(void*)> threads(
        JxlThreadParallelRunnerCreate(nullptr, picture.request.threads), JxlThreadParallelRunnerDestroy);
    const std::unique_ptr<JxlEncoder, void (*)(JxlEncoder*)> encoder(JxlEncoderCreate(nullptr), JxlEncoderDestroy);
    if (!threads || !encoder ||
        !did(JxlEncoderSetParallelRunner(encoder.get(), JxlThreadParallelRunner, threads.get())) ||
        !setUp(encoder.get(), picture) || !addBoxes(encoder.get(), picture) || !addFrame(encoder.get(), picture))
        return false;
    JxlEncoderCloseInput(encoder.get());
    std::array<std::uint8_t, 64 << 10> buffer;
    for (JxlEncoderStatus status = JXL_ENC_NEED_MORE_OUTPUT; status != JXL_ENC_SUCCESS;) {
        std::uint8_t* next = buffer.data();
        std::size_t room = buffer.size();
        status = JxlEncoderProcessOutput(encoder.get(), &next, &room);
        if (status == JXL_ENC_ERROR || !put(buffer.data(), buffer.size() - room)) return false;
    }
    return true;
}

} // namespace velara::encode
