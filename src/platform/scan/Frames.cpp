#include "platform/scan/Frames.h"
#include "pixels/Bits.h"
#include <algorithm>
#include <cstring>

namespace velara {

namespace {

/// Sample i of a line, converted to eight bits.
int sampleAt(const std::uint8_t* line, const FrameFormat& format, int i)
{
    if (format.depth == 8) return line[i];
    if (format.depth == 1) return line[i / 8] >> (7 - i % 8) & 1 ? 0 : 255;
    std::uint16_t wide = 0;
    std::memcpy(&wide, line + 2 * std::size_t(i), sizeof wide);
    return wide >> 8;
}

} // namespace

bool Frames::begin(const FrameFormat& format)
{
    const bool known = format.depth == 1 || format.depth == 8 || format.depth == 16;
    const std::int64_t needed = (std::int64_t(format.width) * format.samples * format.depth + 7) / 8;
    if (!known || format.width < 1 || format.width > Bits::kMostASide || format.bytesPerLine < needed) return false;
    if (!picture_.isNull() && picture_.width() != format.width) return false;
    format_ = format;
    line_.clear();
    row_ = 0;
    if (picture_.isNull()) picture_ = QImage(format.width, 64, QImage::Format_RGB32);
    return !picture_.isNull();
}

bool Frames::add(std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        const std::size_t taken = std::min(bytes.size(), std::size_t(format_.bytesPerLine - line_.size()));
        line_.append(reinterpret_cast<const char*>(bytes.data()), qsizetype(taken));
        bytes = bytes.subspan(taken);
        if (line_.size() < format_.bytesPerLine) break;
        if (row_ >= picture_.height() && !grow()) return false;
        putLine(reinterpret_cast<const std::uint8_t*>(line_.constData()));
        line_.clear();
        lines_ = std::max(lines_, ++row_);
    }
    return true;
}

bool Frames::grow()
{
    const int height = std::min(2 * picture_.height(), Bits::kMostASide);
    if (height == picture_.height() || !Bits::sizeAllowed(picture_.width(), row_ + 1)) return false;
    QImage larger(picture_.width(), height, QImage::Format_RGB32);
    if (larger.isNull()) return false;
    std::memcpy(larger.bits(), picture_.constBits(), std::size_t(picture_.sizeInBytes()));
    picture_ = larger;
    return true;
}

void Frames::putLine(const std::uint8_t* line)
{
    auto* to = reinterpret_cast<QRgb*>(picture_.scanLine(row_));
    const int shift = 16 - 8 * format_.channel; // position of the channel in a pixel
    for (int x = 0; x < format_.width; ++x) {
        if (format_.channel >= 0) {
            to[x] = (to[x] & ~(0xFFu << shift)) | unsigned(sampleAt(line, format_, x)) << shift | 0xFF000000u;
        } else if (format_.samples == 3) {
            to[x] = qRgb(sampleAt(line, format_, 3 * x), sampleAt(line, format_, 3 * x + 1),
                         sampleAt(line, format_, 3 * x + 2));
        } else {
            const int grey = sampleAt(line, format_, x);
            to[x] = qRgb(grey, grey, grey);
        }
    }
}

} // namespace velara
