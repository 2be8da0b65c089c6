#include "fileio/decode/libraries/jpeg/JpegTogether.h"
#include "fileio/decode/cage/Helpers.h"

namespace velara::decode {

std::shared_ptr<const JpegParts> jpegPartsOf(Span file, const JpegRows& rows)
{
    constexpr std::uint64_t kMostBytes = 128ULL << 20; // of the parts in memory
    // What becomes of the rows keeps a second processor busy: with two it takes longer, as parts overlap.
    constexpr unsigned kLeastThreads = 3;
    if (threadsTogether() < kLeastThreads) return {};
    auto parts = std::make_shared<const JpegParts>(file, rows);
    const std::uint64_t bytes = sizeof(Pixel) * parts->width() * parts->rows();
    return parts->count() > 0 && 2 * bytes * threadsTogether() <= kMostBytes ? parts : nullptr;
}

bool JpegTogether::Decoder::decode(std::uint32_t band, Band& to) const
{
    const JpegParts::Part part = parts->part(band);
    JpegRows rows(part.bytes, std::make_shared<bool>());
    rows.start();
    for (std::uint32_t y = 0; y < part.above; ++y) rows.skip();
    for (std::uint32_t y = 0; y < part.rows; ++y) rows.read(to.get() + std::size_t{y} * parts->width());
    return rows.isClean();
}

JpegTogether::JpegTogether(std::shared_ptr<const JpegParts> parts, std::unique_ptr<JpegRows> alone)
    : parts_(std::move(parts)), alone_(std::move(alone)),
      ahead_(bandsAhead<Decoder, Band>(
          parts_->count(), threadsTogether(), [this] { return std::make_unique<Decoder>(parts_); },
          [this] { return std::make_unique_for_overwrite<Pixel[]>(std::size_t{parts_->width()} * parts_->rows()); }))
{
}

/// Null where the row is `alone`'s.
const Pixel* JpegTogether::next()
{
    const std::uint32_t inBand = y_ % parts_->rows();
    if (ahead_ && inBand == 0) {
        now_ = ahead_->at(y_ / parts_->rows());
        if (!now_) ahead_.reset();
        for (std::uint32_t y = 0; !now_ && y < y_; ++y) alone_->skip();
    }
    ++y_;
    return ahead_ ? now_->get() + std::size_t{inBand} * parts_->width() : nullptr;
}

void JpegTogether::skip()
{
    if (!next()) alone_->skip();
}

void JpegTogether::read(Pixel* row)
{
    if (const Pixel* from = next())
        std::copy_n(from, parts_->width(), row);
    else
        alone_->read(row);
}

} // namespace velara::decode
