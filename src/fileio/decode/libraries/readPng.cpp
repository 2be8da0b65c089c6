#include "fileio/decode/libraries/InOrder.h"
#include "fileio/decode/libraries/Png.h"
#include "fileio/decode/readers.h"
#include <cmath>
#include <cstring>

namespace velara::decode {

namespace {

constexpr double kScreenGamma = 2.2, kLeastCorrection = 0.05; // the library makes none that is smaller
constexpr png_uint_32 kMostTexts = 128;                       // each may unpack to eight megabytes

enum class Light {
    Shown, // corrected for the screen, where the file names a gamma
    Stored
};

class PngRows {
  public:
    /// Reads all up to the pixels, of an interlaced file these too; throws Damage.
    PngRows(const FileBytes& file, Light light) : bytes_(file), file_({file.bytes()})
    {
        static constexpr png_byte kTexts[] = "tEXt\0zTXt\0iTXt\0eXIf";
        png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, kTexts, 4);
        png_set_crc_action(png_, PNG_CRC_QUIET_USE, PNG_CRC_NO_CHANGE); // those of critical chunks have been checked
        png_read_info(png_, info_);
        width_ = png_get_image_width(png_, info_);
        bits_ = png_get_bit_depth(png_, info_);
        colours_ = png_get_color_type(png_, info_);
        convert();
        double gamma = 0;
        if (light == Light::Shown && file_.has(PNG_INFO_gAMA) && png_get_gAMA(png_, info_, &gamma))
            png_set_gamma(png_, kScreenGamma, gamma);
        png_read_update_info(png_, info_);
        makePalette();
        line_.resize(png_get_rowbytes(png_, info_));
        if (png_get_interlace_type(png_, info_) != PNG_INTERLACE_NONE) readAll();
    }

    void skip() { nextLine(line_.data()); }
    /// Transparent pixels show their colour; of 16 bits the upper eight.
    void read(Pixel* row)
    {
        if (isPixels_) return nextLine(reinterpret_cast<png_bytep>(row));
        skip();
        const std::uint8_t* from = line_.data();
        if (bits_ < 16) {
            const auto bits = static_cast<unsigned>(bits_), perByte = 8 / bits, most = (1U << bits) - 1;
            for (unsigned x = 0; x < width_; ++x) // the leftmost is in the high bits
                row[x] = palette_[from[x / perByte] >> (8 - bits * (x % perByte + 1)) & most];
            return;
        }
        const std::size_t channels = png_get_channels(png_, info_), step = 2 * channels;
        const std::size_t green = channels > 2 ? 2 : 0, blue = 2 * green; // the high byte is the first one
        for (std::size_t x = 0; x < width_; ++x, from += step) row[x] = {{from[blue], from[green], from[0], 0}};
    }
    /// As Samples has them: red, green, blue, of two bytes where the file has 16 bits.
    void readSamples(void* row)
    {
        if (bits_ == 16) {
            skip();
            const std::uint8_t* from = line_.data();
            auto* to = static_cast<std::uint16_t*>(row);
            const std::size_t channels = png_get_channels(png_, info_), next = channels > 2 ? 2 : 0;
            for (std::size_t x = 0; x < width_; ++x, from += 2 * channels)
                for (std::size_t i = 0; i < 3; ++i)
                    *to++ = static_cast<std::uint16_t>(from[i * next] << 8 | from[i * next + 1]);
            return;
        }
        std::vector<Pixel> pixels(width_);
        read(pixels.data());
        auto* to = static_cast<std::uint8_t*>(row);
        for (const Pixel& pixel : pixels)
            for (const int channel : {2, 1, 0}) *to++ = pixel.c[channel];
    }

  private:
    bool isGrey() const { return (colours_ & PNG_COLOR_MASK_COLOR) == 0; }

    /// To indices of 1, 4 or 8 bits, to pixels, or to 16 bits a sample.
    void convert()
    {
        if (bits_ == 16) return;
        const bool isOneSample = colours_ == PNG_COLOR_TYPE_PALETTE || colours_ == PNG_COLOR_TYPE_GRAY;
        if (isOneSample) {
            if (bits_ == 8 || (bits_ != 2 && !file_.has(PNG_INFO_tRNS))) return;
            isGrey() ? png_set_expand_gray_1_2_4_to_8(png_) : png_set_packing(png_);
            bits_ = 8;
            return;
        }
        isPixels_ = true;
        png_set_strip_alpha(png_);
        if (isGrey()) png_set_gray_to_rgb(png_);
        png_set_bgr(png_);
        png_set_filler(png_, 0, PNG_FILLER_AFTER);
    }

    /// Indices of eight bits that lie beyond the palette are grey, others black.
    void makePalette()
    {
        if (isPixels_ || bits_ == 16) return;
        const int most = (1 << bits_) - 1;
        for (int i = 0; i <= most && (isGrey() || bits_ == 8); ++i) {
            const auto grey = static_cast<std::uint8_t>(i * 255 / most);
            palette_[static_cast<std::size_t>(i)] = {{grey, grey, grey, 0}};
        }
        png_colorp colours = nullptr;
        int count = 0;
        if (isGrey() || !png_get_PLTE(png_, info_, &colours, &count)) return;
        for (std::size_t i = 0; i < static_cast<std::size_t>(std::min(count, 256)); ++i)
            palette_[i] = {{colours[i].blue, colours[i].green, colours[i].red, 0}};
    }

    void readAll()
    {
        all_.resize(line_.size() * png_get_image_height(png_, info_));
        std::vector<png_bytep> rows;
        for (std::size_t at = 0; at < all_.size(); at += line_.size()) rows.push_back(all_.data() + at);
        png_read_image(png_, rows.data());
    }

    void nextLine(png_bytep to)
    {
        if (all_.empty()) return png_read_row(png_, to, nullptr);
        if (at_ == all_.size()) throw Damage("no more lines");
        std::memcpy(to, all_.data() + at_, line_.size());
        at_ += line_.size();
    }

    const FileBytes bytes_;
    Png file_;
    const png_structp png_ = file_.png();
    const png_infop info_ = file_.info();
    std::size_t width_ = 0;
    int bits_ = 0, colours_ = 0;
    bool isPixels_ = false; // the library gives rows of Pixel
    std::array<Pixel, 256> palette_{};
    std::vector<std::uint8_t> line_, all_; // all_: of an interlaced file
    std::size_t at_ = 0;
};

} // namespace

Decoded readPng(FileBytes& file)
try {
    Png header(withoutPixels(file.bytes()));
    png_set_chunk_cache_max(header.png(), kMostTexts);
    png_read_info(header.png(), header.info());
    const std::int64_t width = png_get_image_width(header.png(), header.info());
    const std::int64_t height = png_get_image_height(header.png(), header.info());
    if (!Bits::sizeAllowed(width, height)) return refused(kTooBig);
    const int bits = png_get_bit_depth(header.png(), header.info());
    sizeFound(width, height, bits * png_get_channels(header.png(), header.info()));

    Decoded picture{static_cast<int>(width), static_cast<int>(height), {}, {}};
    takeFacts(header, picture);
    double gamma = 0; // where the library corrects by it, the stored samples are given too
    if (header.has(PNG_INFO_gAMA)) png_get_gAMA(header.png(), header.info(), &gamma);
    const auto stored = [file] { return std::make_unique<PngRows>(file, Light::Stored); };
    if (bits == 16 || (gamma > 0 && std::abs(gamma * kScreenGamma - 1) > kLeastCorrection))
        picture.samples = {3, bits == 16 ? 2 : 1, rowsInOrder(&PngRows::readSamples, stored)};
    const auto shown = [file] { return std::make_unique<PngRows>(file, Light::Shown); };
    picture.row = rowsInOrder(&PngRows::read, shown, shown());
    return picture;
} catch (const Damage&) {
    return {};
}

} // namespace velara::decode
