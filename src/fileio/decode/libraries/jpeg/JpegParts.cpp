#include "fileio/decode/libraries/jpeg/JpegParts.h"
#include <algorithm>
#include <cstring>

namespace velara::decode {

namespace {

constexpr std::uint32_t kLeastBytes = 1 << 20; // of a part's pixels
constexpr std::uint32_t kOwnForShared = 8;     // a part has so many times the rows that its neighbours decode, too

constexpr std::uint8_t kFill = 0xff, kFrame = 0xc0, kExtended = 0xc1, kStart = 0xd8, kScan = 0xda, kApp0 = 0xe0,
                       kApp14 = 0xee, kApp15 = 0xef, kComment = 0xfe;

bool isPlain(const jpeg_decompress_struct& info)
{
    const bool isOneScan = info.comps_in_scan == info.num_components;
    const bool isWhole = info.num_components > 1 || (info.max_h_samp_factor == 1 && info.max_v_samp_factor == 1);
    return info.restart_interval > 0 && !info.progressive_mode && !info.arith_code && info.data_precision == 8 &&
           isOneScan && isWhole;
}

bool isInterpolatedDown(const jpeg_decompress_struct& info)
{
    return std::any_of(info.comp_info, info.comp_info + info.num_components,
                       [&](const auto& part) { return part.v_samp_factor != info.max_v_samp_factor; });
}

std::uint32_t over(std::uint32_t size, std::uint32_t part) { return (size + part - 1) / part; }

} // namespace

JpegParts::JpegParts(Span file, const JpegRows& rows, std::uint64_t leastPixels)
    : file_(file), width_(rows.info().image_width), height_(rows.info().image_height)
{
    const jpeg_decompress_struct& info = rows.info();
    if (std::uint64_t{width_} * height_ < leastPixels || !isPlain(info) || !rows.isClean()) return;
    const std::size_t scan = file.size() - rows.scan().size();
    if (!takeHeader(scan) || !takeMarks(info, scan)) return;
    isInterpolated_ = isInterpolatedDown(info);
    const std::uint32_t shared = isInterpolated_ ? unitRows_ + blockRows_ : 0;
    const std::uint32_t enough = over(kLeastBytes, width_ * static_cast<std::uint32_t>(sizeof(Pixel)));
    units_ = over(std::max(enough, shared * kOwnForShared), unitRows_);
    const std::uint32_t parts = over(static_cast<std::uint32_t>(unitsFrom_.size()) - 1, units_);
    if (parts > 1) count_ = parts;
}

/// Copies the segments up to `end`, which is the scan's beginning, but for those that are no pixels. False: some of
/// them don't follow one another.
bool JpegParts::takeHeader(std::size_t end)
{
    header_ = {kFill, kStart};
    std::size_t at = 2;
    for (std::uint8_t mark = 0; mark != kScan;) {
        if (at + 4 > end || file_[at] != kFill) return false;
        mark = file_[at + 1];
        const std::size_t length = 2U + (file_[at + 2] << 8 | file_[at + 3]);
        if (at + length > end) return false;
        if (mark == kFrame || mark == kExtended) heightAt_ = header_.size() + 5;
        const bool isFact = mark == kComment || (mark > kApp0 && mark <= kApp15 && mark != kApp14);
        if (!isFact) header_.insert(header_.end(), &file_[at], &file_[at] + length);
        at += length;
    }
    return at == end && heightAt_ > 0;
}

/// Finds the units. False unless all restart marks are there, in their order, up to an end mark, and no other ones.
bool JpegParts::takeMarks(const jpeg_decompress_struct& info, std::size_t from)
{
    constexpr std::uint32_t kBlock = 8;
    blockRows_ = kBlock * static_cast<std::uint32_t>(info.max_v_samp_factor);
    const std::uint32_t inRow = over(width_, kBlock * static_cast<std::uint32_t>(info.max_h_samp_factor));
    const std::uint32_t interval = info.restart_interval, all = inRow * over(height_, blockRows_);
    if (interval % inRow != 0 && inRow % interval != 0) return false;
    marksInUnit_ = std::max(inRow / interval, 1U);
    unitRows_ = blockRows_ * std::max(interval / inRow, 1U);
    unitsFrom_ = {from};
    const std::uint32_t last = over(all, interval) - 1; // so many marks
    const std::uint8_t *at = &file_[0] + from, *const end = &file_[0] + file_.size();
    for (std::uint32_t marks = 0; end - at > 1;) {
        at = static_cast<const std::uint8_t*>(std::memchr(at, kFill, static_cast<std::size_t>(end - at) - 1));
        if (!at) return false;
        const std::uint8_t mark = *++at;
        if (mark == 0 || mark == kFill) continue;
        const auto place = static_cast<std::size_t>(at - &file_[0]);
        if (marks == last) {
            unitsFrom_.push_back(place - 1);
            return mark == JPEG_EOI;
        }
        if (mark != JPEG_RST0 + marks % 8) return false;
        if (++marks % marksInUnit_ == 0) unitsFrom_.push_back(place + 1);
    }
    return false;
}

JpegParts::Part JpegParts::part(std::uint32_t number) const
{
    const auto units = static_cast<std::uint32_t>(unitsFrom_.size()) - 1;
    const std::uint32_t first = number * units_, end = std::min(first + units_, units);
    const std::uint32_t from = first - (isInterpolated_ && first > 0 ? 1 : 0);
    const bool isBelow = isInterpolated_ && end < units;
    const std::uint32_t below = isBelow ? blockRows_ : 0;
    const std::uint32_t bottom = std::min(end * unitRows_, height_), top = from * unitRows_;
    const std::uint32_t rows = std::min(bottom + below, height_) - top;

    Part part{header_, {}, first * unitRows_ - top, bottom - first * unitRows_};
    part.header[heightAt_] = static_cast<std::uint8_t>(rows >> 8);
    part.header[heightAt_ + 1] = static_cast<std::uint8_t>(rows);
    const std::size_t bytes = unitsFrom_[end + (isBelow ? 1 : 0)] - unitsFrom_[from];
    part.bytes = {part.header, file_.subspan(unitsFrom_[from], bytes), static_cast<int>(from * marksInUnit_ % 8)};
    return part;
}

} // namespace velara::decode
