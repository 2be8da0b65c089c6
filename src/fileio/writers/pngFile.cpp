// PNG by libpng.
#include "fileio/writers/iptcResource.h"
#include "fileio/writers/pictureFiles.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <csetjmp>
#include <png.h>
#include <zlib.h>

namespace velara {

namespace {

/// Bytes as the text that other programs write: a line end, the name, their number, and two digits each, in lines.
QByteArray rawProfile(const char* name, const QByteArray& bytes)
{
    constexpr qsizetype kLine = 36;
    if (bytes.isEmpty()) return {};
    QByteArray text = QByteArray("\n") + name + '\n' + QByteArray::number(bytes.size()).rightJustified(8) + '\n';
    for (qsizetype at = 0; at < bytes.size(); at += kLine) text += bytes.mid(at, kLine).toHex() + '\n';
    return text;
}

/// The library's objects, which outlive its jumps out of the middle of a call.
class PngEncoder {
  public:
    PngEncoder(ByteSink& to, const CameraData& camera = {})
        : png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, [](png_structp, png_const_charp) {})),
          info_(png_ ? png_create_info_struct(png_) : nullptr), to_(to), camera_(camera),
          comment_(camera.comment.toUtf8()), iptc_(rawProfile("iptc", iptcResource(camera.iptc)))
    {
    }
    ~PngEncoder() { png_destroy_write_struct(&png_, &info_); }
    PngEncoder(const PngEncoder&) = delete;
    PngEncoder& operator=(const PngEncoder&) = delete;

    template <class Row> bool encode(int width, int height, const IndexedPicture* indexed, int effort, const Row& row)
    {
        if (!info_ || setjmp(png_jmpbuf(png_)) != 0) return false; // nothing below has a destructor
        begin(effort);
        indexed ? headOf(*indexed) : headInFull(width, height);
        carry();
        png_write_info(png_, info_);
        if (!camera_.exif.isEmpty()) // the library would put it behind the pixels, where not all look for it
            png_write_chunk(png_, reinterpret_cast<png_const_bytep>("eXIf"),
                            reinterpret_cast<png_const_bytep>(camera_.exif.constData()),
                            static_cast<std::size_t>(camera_.exif.size()));
        if (!indexed) {
            png_set_bgr(png_);
            png_set_filler(png_, 0, PNG_FILLER_AFTER);
        }
        for (int y = 0; y < height; ++y) {
            if (!to_.goesOn() || !to_.awaitRow(y)) return false;
            png_write_row(png_, row(y));
        }
        png_write_end(png_, info_);
        return true;
    }

  private:
    [[noreturn]] static void fail(png_structp png, png_const_charp) { png_longjmp(png, 1); }
    static void put(png_structp png, png_bytep bytes, std::size_t size)
    {
        if (!static_cast<PngEncoder*>(png_get_io_ptr(png))->to_.write(bytes, size)) fail(png, "");
    }
    void begin(int effort)
    {
        png_set_write_fn(png_, this, put, [](png_structp) {});
        png_set_compression_level(png_, effort);
        png_set_compression_buffer_size(png_, 64 << 10);
        png_set_user_limits(png_, Bits::kMostASide, Bits::kMostASide);
    }
    static png_uint_32 dotsAMetre(double dots)
    {
        return static_cast<png_uint_32>(
            std::lround(dots > 0 ? std::clamp(dots, 1.0, 1e6) / 0.0254 : kUsualDots / 0.0254));
    }
    /// What the camera wrote, before the pixels.
    void carry()
    {
        png_set_pHYs(png_, info_, dotsAMetre(camera_.dotsAcross), dotsAMetre(camera_.dotsDown), PNG_RESOLUTION_METER);
        if (!camera_.profile.isEmpty())
            png_set_iCCP(png_, info_, "icc", PNG_COMPRESSION_TYPE_BASE,
                         reinterpret_cast<png_const_bytep>(camera_.profile.constData()),
                         static_cast<png_uint_32>(camera_.profile.size()));
        text("XML:com.adobe.xmp", camera_.xmp);
        text("Comment", comment_);
        text("Raw profile type iptc", iptc_, PNG_TEXT_COMPRESSION_zTXt);
    }
    void text(const char* key, const QByteArray& of, int compression = PNG_ITXT_COMPRESSION_NONE) // UTF-8
    {
        if (of.isEmpty()) return;
        png_text text{};
        text.compression = compression;
        text.key = const_cast<char*>(key);
        text.text = const_cast<char*>(of.constData());
        text.text_length = text.itxt_length = static_cast<std::size_t>(of.size());
        text.lang = text.lang_key = const_cast<char*>("");
        png_set_text(png_, info_, &text, 1);
    }
    void headInFull(int width, int height)
    {
        png_set_compression_strategy(png_, Z_FILTERED);
        png_set_filter(png_, 0, PNG_FILTER_NONE | PNG_FILTER_SUB | PNG_FILTER_PAETH);
        head(width, height, PNG_COLOR_TYPE_RGB);
    }
    void headOf(const IndexedPicture& picture)
    {
        png_set_compression_strategy(png_, Z_DEFAULT_STRATEGY);
        const std::size_t colours = std::min<std::size_t>(picture.palette.size(), PNG_MAX_PALETTE_LENGTH);
        std::array<png_color, PNG_MAX_PALETTE_LENGTH> palette{};
        bool isGrey = colours == palette.size();
        for (std::size_t i = 0; i < colours; ++i) {
            const Colour c = picture.palette[i];
            palette[i] = {png_byte(redOf(c)), png_byte(greenOf(c)), png_byte(blueOf(c))};
            isGrey = isGrey && c == colourOf(int(i), int(i), int(i));
        }
        head(picture.width, picture.height, isGrey ? PNG_COLOR_TYPE_GRAY : PNG_COLOR_TYPE_PALETTE);
        if (!isGrey) png_set_PLTE(png_, info_, palette.data(), static_cast<int>(colours));
    }
    void head(int width, int height, int type)
    {
        png_set_IHDR(png_, info_, png_uint_32(width), png_uint_32(height), 8, type, PNG_INTERLACE_NONE,
                     PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    }

    png_structp png_;
    png_infop info_;
    ByteSink& to_;
    const CameraData camera_;
    const QByteArray comment_, iptc_;
};

} // namespace

bool writePng(const Bits& picture, int effort, ByteSink& to, const CameraData& camera)
{
    return PngEncoder(to, camera).encode(picture.width(), picture.height(), nullptr, effort, [&](int y) {
        return picture.row(y)->c;
    });
}

bool writePng(const IndexedPicture& picture, int effort, ByteSink& to, const CameraData& camera)
{
    return PngEncoder(to, camera).encode(picture.width, picture.height, &picture, effort, [&](int y) {
        return picture.indices.data() + std::ptrdiff_t{y} * picture.width;
    });
}

} // namespace velara
