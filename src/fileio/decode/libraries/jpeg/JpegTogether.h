// The rows of a JPEG, by all threads where it can be cut into parts.
#pragma once
#include "fileio/decode/libraries/BandsAhead.h"
#include "fileio/decode/libraries/jpeg/JpegParts.h"

namespace velara::decode {

class JpegTogether {
  public:
    /// Alone: of the same bytes, started, at the top row; it goes on where a part is damaged.
    JpegTogether(std::shared_ptr<const JpegParts> parts, std::unique_ptr<JpegRows> alone);
    void read(Pixel* row);
    void skip();

  private:
    using Band = std::unique_ptr<Pixel[]>;
    /// Of a thread.
    struct Decoder {
        std::shared_ptr<const JpegParts> parts;
        bool decode(std::uint32_t band, Band& to) const;
    };
    const Pixel* next();

    const std::shared_ptr<const JpegParts> parts_;
    const std::unique_ptr<JpegRows> alone_;
    std::unique_ptr<BandsAhead<Decoder, Band>> ahead_; // null: alone from here on
    const Band* now_ = nullptr;
    std::uint32_t y_ = 0;
};

/// Null where one thread does it all.
std::shared_ptr<const JpegParts> jpegPartsOf(Span file, const JpegRows& rows);

} // namespace velara::decode
