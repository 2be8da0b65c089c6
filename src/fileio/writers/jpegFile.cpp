// JPEG by libjpeg-turbo, which takes the rows of a picture as they stand.
#include "fileio/writers/iptcResource.h"
#include "fileio/writers/pictureFiles.h"
#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <csetjmp>
#include <cstdio> // which jpeglib.h needs before it
#include <jpeglib.h>
#include <memory>
#include <vector>

namespace velara {

namespace {

/// Higher bits of a quality, which a number that was typed may have.
constexpr int kQuarterWidth = 0x1000, kProgressive = 0x2000, kQuarter = 0x4000, kHalfWidth = 0x8000;
constexpr int kUsualQuality = 75, kLowBits = 0x7F;
constexpr int kRowsAtOnce = 16; // as high as the blocks of a picture with half of the chroma

/// A marker's number, and the bytes after its length.
struct Segment {
    int marker;
    QByteArray bytes;
};
constexpr int kMostInASegment = 65533;

/// A packet without the blanks that leave room for changes in place.
QByteArray withoutPadding(QByteArray packet)
{
    const qsizetype end = packet.lastIndexOf("<?xpacket end=");
    qsizetype last = end;
    while (last > 0 && std::isspace(static_cast<unsigned char>(packet[last - 1]))) --last;
    return end < 0 ? packet : packet.remove(last, end - last);
}

/// What the camera wrote, in the order in which other programs expect it.
std::vector<Segment> segmentsOf(const CameraData& camera)
{
    constexpr char kExif[] = "Exif\0", kXmp[] = "http://ns.adobe.com/xap/1.0/",
                   kPhotoshop[] = "Photoshop 3.0"; // and the zero after them
    std::vector<Segment> segments;
    const auto add = [&](int marker, const QByteArray& bytes) {
        if (bytes.size() <= kMostInASegment) segments.push_back({marker, bytes});
    };
    if (!camera.exif.isEmpty()) add(JPEG_APP0 + 1, QByteArray(kExif, sizeof kExif) + camera.exif);
    if (!camera.xmp.isEmpty()) {
        const QByteArray packet(QByteArray(kXmp, sizeof kXmp) + camera.xmp);
        add(JPEG_APP0 + 1, packet.size() <= kMostInASegment ? packet : withoutPadding(packet));
    }
    if (!camera.iptc.isEmpty())
        add(JPEG_APP0 + 13, QByteArray(kPhotoshop, sizeof kPhotoshop) + iptcResource(camera.iptc));
    if (!camera.comment.isEmpty()) add(JPEG_COM, camera.comment.toUtf8());
    return segments;
}

/// The library's objects, which outlive its jumps out of the middle of a call.
struct JpegEncoder {
    jpeg_compress_struct info{};
    jpeg_error_mgr errors{};
    jpeg_progress_mgr progress{};
    jpeg_destination_mgr destination{};
    std::array<JOCTET, 64 << 10> buffer;
    std::jmp_buf failed;
    ByteSink& to;

    explicit JpegEncoder(ByteSink& sink) : to(sink) {}
    ~JpegEncoder() { jpeg_destroy_compress(&info); }
    JpegEncoder(const JpegEncoder&) = delete;
    JpegEncoder& operator=(const JpegEncoder&) = delete;

    void begin();
    void setUp(const Bits& picture, int quality, const CameraData& camera);
    bool encode(const Bits& picture, int quality, const CameraData& camera, const std::vector<Segment>& segments);
    void refill()
    {
        destination.next_output_byte = buffer.data();
        destination.free_in_buffer = buffer.size();
    }
    void put(std::size_t bytes)
    {
        if (!to.write(buffer.data(), bytes)) std::longjmp(failed, 1);
    }
};

template <class Info> JpegEncoder& encoderOf(Info* info) { return *static_cast<JpegEncoder*>(info->client_data); }

/// Everything that the library calls.
void JpegEncoder::begin()
{
    info.err = jpeg_std_error(&errors);
    errors.error_exit = [](j_common_ptr common) { std::longjmp(encoderOf(common).failed, 1); };
    errors.output_message = [](j_common_ptr) {};
    jpeg_create_compress(&info);
    info.client_data = this;
    progress.progress_monitor = [](j_common_ptr common) {
        if (JpegEncoder& encoder = encoderOf(common); !encoder.to.goesOn()) std::longjmp(encoder.failed, 1);
    };
    info.progress = &progress;
    destination.init_destination = [](j_compress_ptr compress) { encoderOf(compress).refill(); };
    destination.empty_output_buffer = [](j_compress_ptr compress) -> boolean {
        JpegEncoder& encoder = encoderOf(compress);
        encoder.put(encoder.buffer.size());
        encoder.refill();
        return TRUE;
    };
    destination.term_destination = [](j_compress_ptr compress) {
        JpegEncoder& encoder = encoderOf(compress);
        encoder.put(encoder.buffer.size() - encoder.destination.free_in_buffer);
    };
    info.dest = &destination;
}

UINT16 dotsOf(double dots)
{
    return static_cast<UINT16>(std::lround(dots > 0 ? std::clamp(dots, 1.0, 65535.0) : kUsualDots));
}

void JpegEncoder::setUp(const Bits& picture, int quality, const CameraData& camera)
{
    info.image_width = static_cast<JDIMENSION>(picture.width());
    info.image_height = static_cast<JDIMENSION>(picture.height());
    info.in_color_space = JCS_EXT_BGRX;
    info.input_components = 4;
    jpeg_set_defaults(&info);
    info.density_unit = 1; // dots per inch
    info.X_density = dotsOf(camera.dotsAcross);
    info.Y_density = dotsOf(camera.dotsDown);
    if (quality & kProgressive) jpeg_simple_progression(&info);
    if (quality & (kQuarterWidth | kQuarter | kHalfWidth)) {
        info.comp_info[0].h_samp_factor = quality & kQuarterWidth ? 4 : 2;
        info.comp_info[0].v_samp_factor = quality & kQuarterWidth ? 1 : quality & kQuarter ? 2 : 1;
    }
    jpeg_set_quality(&info, percentOf(quality), TRUE);
}

bool JpegEncoder::encode(const Bits& picture, int quality, const CameraData& camera,
                         const std::vector<Segment>& segments)
{
    if (setjmp(failed) != 0) return false; // nothing below has a destructor
    begin();
    setUp(picture, quality, camera);
    jpeg_start_compress(&info, TRUE);
    for (std::size_t i = 0; i < segments.size(); ++i)
        jpeg_write_marker(&info, segments[i].marker, reinterpret_cast<const JOCTET*>(segments[i].bytes.constData()),
                          static_cast<unsigned>(segments[i].bytes.size()));
    if (!camera.profile.isEmpty())
        jpeg_write_icc_profile(&info, reinterpret_cast<const JOCTET*>(camera.profile.constData()),
                               static_cast<unsigned>(camera.profile.size()));
    while (info.next_scanline < info.image_height) {
        JSAMPROW rows[kRowsAtOnce];
        if (!to.awaitRow(static_cast<int>(std::min(info.next_scanline + kRowsAtOnce, info.image_height)) - 1))
            return false;
        JDIMENSION count = 0;
        for (; count < kRowsAtOnce && info.next_scanline + count < info.image_height; ++count)
            rows[count] = const_cast<JSAMPLE*>(picture.row(static_cast<int>(info.next_scanline + count))->c);
        jpeg_write_scanlines(&info, rows, count);
    }
    jpeg_finish_compress(&info);
    return true;
}

} // namespace

int percentOf(int quality)
{
    struct Class {
        int bit, percent;
    };
    static constexpr Class kClasses[] = {
        {kBadJpeg, 10}, {kAverageJpeg, 25}, {kNormalJpeg, 50}, {kGoodJpeg, kUsualQuality}, {kSuperbJpeg, 100}};
    for (const Class& each : kClasses)
        if (quality & each.bit) return each.percent;
    return (quality & kLowBits) == 0 ? kUsualQuality : quality & kLowBits;
}

bool writeJpeg(const Bits& picture, int quality, ByteSink& to, const CameraData& camera)
{
    const std::vector<Segment> segments = segmentsOf(camera);
    const auto encoder = std::make_unique<JpegEncoder>(to);
    return encoder->encode(picture, quality, camera, segments);
}

} // namespace velara
