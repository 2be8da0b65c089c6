#include "fileio/decode/libraries/jpeg/JpegRows.h"
#include <cstring>
#include <jerror.h>

namespace velara::decode {

namespace {

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

} // namespace

std::string JpegRows::messageOf(j_common_ptr info)
{
    char text[JMSG_LENGTH_MAX];
    info->err->format_message(info, text);
    return text;
}

JpegRows::Errors::Errors(std::shared_ptr<bool> cutOff) : isCutOff(std::move(cutOff))
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

JpegRows::Source::Source(const JpegBytes& bytes) : second(bytes.second), firstMark(bytes.firstMark)
{
    next_input_byte = bytes.first.data();
    bytes_in_buffer = bytes.first.size();
    init_source = term_source = [](j_decompress_ptr) {};
    resync_to_restart = resync;
    fill_input_buffer = fill;
    skip_input_data = passOver;
}

boolean JpegRows::fill(j_decompress_ptr info)
{
    static constexpr JOCTET kEnd[] = {0xff, JPEG_EOI};
    auto* self = static_cast<Source*>(info->src);
    if (self->second.empty()) {
        if (self->isOver) WARNMS(info, JWRN_JPEG_EOF);
        self->isOver = true;
        self->second = kEnd;
    }
    self->next_input_byte = self->second.data();
    self->bytes_in_buffer = self->second.size();
    self->second = {};
    return TRUE;
}

/// The library counts a part's marks from 0.
boolean JpegRows::resync(j_decompress_ptr info, int wanted)
{
    const int mark = JPEG_RST0 + (wanted + static_cast<Source*>(info->src)->firstMark) % 8;
    if (info->unread_marker != mark) return jpeg_resync_to_restart(info, wanted);
    info->unread_marker = 0;
    return TRUE;
}

void JpegRows::passOver(j_decompress_ptr info, long count)
{
    jpeg_source_mgr& self = *info->src;
    for (; count > static_cast<long>(self.bytes_in_buffer); self.fill_input_buffer(info))
        count -= static_cast<long>(self.bytes_in_buffer);
    if (count < 1) return;
    self.next_input_byte += count;
    self.bytes_in_buffer -= static_cast<std::size_t>(count);
}

JpegRows::JpegRows(const JpegBytes& bytes, std::shared_ptr<bool> cutOff) : errors_(std::move(cutOff)), source_(bytes)
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

void JpegRows::start()
{
    jpeg_start_decompress(&info_);
    line_.resize(std::size_t{4} * info_.output_width);
}

void JpegRows::read(Pixel* row)
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

void JpegRows::readInks(void* row)
{
    skip();
    auto* to = static_cast<std::uint8_t*>(row);
    for (const std::uint8_t ink : line_) *to++ = static_cast<std::uint8_t>(255 - ink);
}

void JpegRows::nextLine(JSAMPROW line)
{
    if (jpeg_read_scanlines(&info_, &line, 1) != 1) throw Damage("no more lines");
}

} // namespace velara::decode
