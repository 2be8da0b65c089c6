#include "fileio/decode/libraries/InOrder.h"
#include "fileio/decode/libraries/jpegFacts.h"
#include "fileio/decode/readers.h"
#include <cstdio> // before jpeglib.h, which needs it
#include <cstring>
#include <jerror.h>
#include <jpeglib.h>

namespace velara::decode {

namespace {

/// The library's error manager: throws Damage where the library would end the program.
struct Errors : jpeg_error_mgr {
    std::shared_ptr<bool> isCutOff; // the first warning was of data that ended too early

    explicit Errors(std::shared_ptr<bool> cutOff) : isCutOff(std::move(cutOff))
    {
        jpeg_std_error(this);
        error_exit = [](j_common_ptr info) { // a mark that nobody knows is passed over
            if (info->err->msg_code != JERR_UNKNOWN_MARKER) throw Damage(messageOf(info));
        };
        emit_message = [](j_common_ptr info, int level) {
            if (level >= 0) return; // not a warning
            auto* self = static_cast<Errors*>(info->err);
            if (self->num_warnings++ == 0) *self->isCutOff = self->msg_code == JWRN_HIT_MARKER;
        };
    }
    static std::string messageOf(j_common_ptr info)
    {
        char text[JMSG_LENGTH_MAX];
        info->err->format_message(info, text);
        return text;
    }
};

/// The file's bytes, and after them end marks without end: some cameras omit theirs.
struct Source : jpeg_source_mgr {
    explicit Source(Span bytes)
    {
        next_input_byte = bytes.data();
        bytes_in_buffer = bytes.size();
        init_source = term_source = [](j_decompress_ptr) {};
        resync_to_restart = jpeg_resync_to_restart;
        fill_input_buffer = [](j_decompress_ptr info) -> boolean {
            static constexpr JOCTET kEnd[] = {0xff, JPEG_EOI};
            auto* self = static_cast<Source*>(info->src);
            if (self->isOver_) WARNMS(info, JWRN_JPEG_EOF);
            self->isOver_ = true;
            self->next_input_byte = kEnd;
            self->bytes_in_buffer = sizeof kEnd;
            return TRUE;
        };
        skip_input_data = [](j_decompress_ptr info, long count) {
            jpeg_source_mgr& self = *info->src;
            for (; count > static_cast<long>(self.bytes_in_buffer); self.fill_input_buffer(info))
                count -= static_cast<long>(self.bytes_in_buffer);
            if (count < 1) return;
            self.next_input_byte += count;
            self.bytes_in_buffer -= static_cast<std::size_t>(count);
        };
    }

  private:
    bool isOver_ = false;
};

/// Several pixels at a time: one by one it would take a tenth of the decoding.
void clearFourth(Pixel* row, int width)
{
    using Four = std::uint8_t __attribute__((vector_size(16)));
    constexpr Four kColours{255, 255, 255, 0, 255, 255, 255, 0, 255, 255, 255, 0, 255, 255, 255, 0};
    int x = 0;
    for (; x <= width - 4; x += 4) {
        Four pixels;
        std::memcpy(&pixels, row + x, sizeof pixels);
        pixels &= kColours;
        std::memcpy(row + x, &pixels, sizeof pixels);
    }
    for (; x < width; ++x) row[x].c[3] = 0;
}

class JpegRows {
  public:
    /// Reads the header; throws Damage. cutOff becomes true when the data end too early.
    JpegRows(const FileBytes& file, std::shared_ptr<bool> cutOff)
        : file_(file), errors_(std::move(cutOff)), source_(file.bytes())
    {
        info_.err = &errors_;
        jpeg_create_decompress(&info_);
        info_.src = &source_;
        try {
            jpeg_read_header(&info_, TRUE);
        } catch (...) {
            jpeg_destroy_decompress(&info_);
            throw;
        }
        isInked_ = info_.out_color_space == JCS_CMYK;
        if (!isInked_) info_.out_color_space = JCS_EXT_BGRX;
    }
    ~JpegRows() { jpeg_destroy_decompress(&info_); }
    JpegRows(const JpegRows&) = delete;
    JpegRows& operator=(const JpegRows&) = delete;

    const jpeg_decompress_struct& info() const { return info_; }
    bool hasScans() { return jpeg_has_multiple_scans(&info_); }
    /// Cyan, magenta, yellow and black, each 255 for no ink.
    bool isInked() const { return isInked_; }
    /// Before start: the end mark follows the data of the first scan.
    bool endsPlainly() const
    {
        const std::uint8_t *at = source_.next_input_byte, *const end = at + source_.bytes_in_buffer;
        const auto left = [&] { return static_cast<std::size_t>(end - at); };
        while (at < end && (at = static_cast<const std::uint8_t*>(std::memchr(at, 0xff, left()))) && left() > 1) {
            const std::uint8_t mark = *++at;
            if (mark == JPEG_EOI) return true;
            if (mark != 0 && mark != 0xff && (mark < JPEG_RST0 || mark > JPEG_RST0 + 7)) return false;
        }
        return false;
    }
    /// To be called once before the rows. Of a file with several scans it decodes all of them.
    void start()
    {
        jpeg_start_decompress(&info_);
        line_.resize(std::size_t{4} * info_.output_width);
    }
    void skip() { nextLine(line_.data()); }
    void read(Pixel* row)
    {
        const auto width = static_cast<int>(info_.output_width);
        if (!isInked_) {
            nextLine(reinterpret_cast<JSAMPROW>(row));
            return clearFourth(row, width);
        }
        skip();
        const std::uint8_t* inks = line_.data();
        for (int x = 0; x < width; ++x, inks += 4) {
            const auto light = [&](int ink) { return static_cast<std::uint8_t>(inks[3] * inks[ink] / 255); };
            row[x] = {{light(2), light(1), light(0), 0}};
        }
    }
    /// As Samples has them.
    void readInks(void* row)
    {
        skip();
        auto* to = static_cast<std::uint8_t*>(row);
        for (const std::uint8_t ink : line_) *to++ = static_cast<std::uint8_t>(255 - ink);
    }

  private:
    void nextLine(JSAMPROW line)
    {
        if (jpeg_read_scanlines(&info_, &line, 1) != 1) throw Damage("no more lines");
    }

    const FileBytes file_; // holds the bytes
    Errors errors_;
    Source source_;
    jpeg_decompress_struct info_{};
    bool isInked_ = false;
    std::vector<std::uint8_t> line_;
};

/// All rows, kept: for files that tell only with the last row whether they are whole.
std::function<void(int, Pixel*)> keptRows(JpegRows& rows, std::size_t width, std::size_t height)
{
    const auto pixels = std::make_shared<std::vector<Pixel>>(width * height);
    for (std::size_t y = 0; y < height; ++y) rows.read(pixels->data() + y * width);
    return [pixels, width](int y, Pixel* row) {
        std::copy_n(pixels->data() + static_cast<std::size_t>(y) * width, width, row);
    };
}

} // namespace

Decoded readJpeg(FileBytes& file)
try {
    const auto cutOff = std::make_shared<bool>(false);
    const auto begin = [file, cutOff] {
        auto rows = std::make_unique<JpegRows>(file, cutOff);
        rows->start();
        return rows;
    };
    auto rows = std::make_unique<JpegRows>(file, cutOff);
    const std::int64_t width = rows->info().image_width, height = rows->info().image_height;
    if (!Bits::sizeAllowed(width, height)) return width > 0 && height > 0 ? refused(kTooBig) : Decoded{};
    if (rows->info().jpeg_color_space == JCS_UNKNOWN) return {};
    sizeFound(width, height, rows->info().num_components == 1 ? 8 : 24);

    const bool isToldAtStart = rows->hasScans() || rows->endsPlainly();
    Decoded picture{static_cast<int>(width), static_cast<int>(height), {}, {}};
    picture.carried = carriedByJpeg(file.bytes());
    if (rows->isInked()) picture.samples = {4, 1, rowsInOrder(&JpegRows::readInks, begin)};
    rows->start();
    if (!isToldAtStart)
        picture.row = keptRows(*rows, static_cast<std::size_t>(width), static_cast<std::size_t>(height));
    if (*cutOff) picture.reason = kCutOff; // the available part is shown
    if (!picture.row) {
        picture.row = rowsInOrder(&JpegRows::read, begin, std::move(rows));
        picture.lastWord = [cutOff] { return *cutOff ? QString(kCutOff) : QString(); };
    }
    return picture;
} catch (const Damage&) {
    return {};
}

} // namespace velara::decode
