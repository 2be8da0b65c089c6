// The rows of a TIFF as the file has them or as the library colours them, from the top downwards.
#pragma once
#include "fileio/decode/libraries/BandsAhead.h"
#include "fileio/decode/libraries/Tiff.h"

namespace velara::decode {

/// What a TIFF says of its pixels.
struct TiffKind {
    explicit TiffKind(const Tiff& tiff);

    std::uint32_t width = 0, height = 0;
    std::uint16_t bits, samples, photometric, planes, format;
    bool isTiled;
};

/// Samples of 1, 2 or 4 bits in a line; the first one is in the high bits of its byte.
class SmallSamples {
  public:
    explicit SmallSamples(unsigned bits) : bits_(bits), inByte_(8 / bits) {}
    unsigned operator()(const std::uint8_t* line, std::size_t i) const
    {
        return line[i / inByte_] >> shift(i) & ((1U << bits_) - 1);
    }
    /// Where the bits are zero.
    void put(std::uint8_t* line, std::size_t i, unsigned value) const
    {
        line[i / inByte_] = static_cast<std::uint8_t>(line[i / inByte_] | value << shift(i));
    }

  private:
    unsigned shift(std::size_t i) const { return 8 - bits_ * (static_cast<unsigned>(i % inByte_) + 1); }
    unsigned bits_, inByte_;
};

/// Bands as the file has them: rows of tiles, or strips.
class TiffStrips {
  public:
    using Band = std::vector<std::vector<std::uint8_t>>; // one buffer, or one of each plane

    /// Shared: with decoders of other bands, so that parts left as they were would show what another band had.
    explicit TiffStrips(const TiffPage& page, bool isShared = false);
    const Tiff& tiff() const { return tiff_; }
    const TiffKind& kind() const { return kind_; }
    std::uint32_t rows() const { return rows_; }   // in a band; the last one may have fewer
    std::size_t stride() const { return stride_; } // of a line, in bytes
    /// With room for any.
    Band emptyBand() const;
    /// False where some of it can't be read: of strips the rest is there, and leaves `to` as it was in between. A
    /// shared one may say so of a whole band, too.
    bool decode(std::uint32_t band, Band& to);

  private:
    bool readStrip(std::uint32_t y, std::uint16_t plane, std::uint8_t* to);
    bool readTiles(std::uint32_t y, std::uint16_t plane, std::uint8_t* to);
    bool isWritten(const std::uint8_t* end, std::size_t line) const;

    Tiff tiff_;
    const TiffKind kind_;
    const bool isShared_, isDifferences_;
    const std::uint32_t rows_;
    std::size_t stride_ = 0, bandBytes_ = 0;
    std::vector<std::uint8_t> tile_;
};

/// Lines of samples, side by side in each pixel, whole bytes or bits in a byte; 16 and more are in the machine's order.
/// Strips that are damaged give what could be read; a damaged tile throws Damage.
class TiffLines {
  public:
    explicit TiffLines(const TiffPage& page);
    const TiffKind& kind() const { return strips_.kind(); }
    const std::uint8_t* next();
    void skip() { next(); }

  private:
    void take(std::uint32_t band);
    void merge(std::size_t at);

    TiffStrips strips_;
    const SmallSamples small_{kind().bits < 8 ? kind().bits : 8U};
    std::uint32_t y_ = 0;
    TiffStrips::Band band_;
    const TiffStrips::Band* now_ = nullptr; // band_, or one of those ahead
    std::unique_ptr<BandsAhead<TiffStrips, TiffStrips::Band>> ahead_;
    std::vector<std::uint8_t> line_;
};

/// Bands that the library colours.
class TiffRaster {
  public:
    using Band = std::vector<std::uint32_t>;

    explicit TiffRaster(const TiffPage& page);
    ~TiffRaster() { TIFFRGBAImageEnd(&image_); }
    TiffRaster(const TiffRaster&) = delete;
    TiffRaster& operator=(const TiffRaster&) = delete;
    const Tiff& tiff() const { return tiff_; }
    std::uint32_t width() const { return image_.width; }
    std::uint32_t height() const { return image_.height; }
    std::uint32_t rows() const { return rows_; } // in a band; the last one may have fewer
    Band emptyBand() const { return Band(std::size_t{image_.width} * rows_); }
    bool decode(std::uint32_t band, Band& to);

  private:
    Tiff tiff_;
    TIFFRGBAImage image_{};
    std::uint32_t rows_ = 0;
};

/// Pixels that the library makes of colour spaces of its own, and of eight bits with alpha.
class TiffColours {
  public:
    explicit TiffColours(const TiffPage& page);
    void read(Pixel* row);
    void skip();

  private:
    TiffRaster raster_;
    std::uint32_t y_ = 0;
    TiffRaster::Band band_;
    const TiffRaster::Band* now_ = nullptr; // band_, or one of those ahead
    std::unique_ptr<BandsAhead<TiffRaster, TiffRaster::Band>> ahead_;
};

} // namespace velara::decode
