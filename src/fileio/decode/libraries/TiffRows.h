// The rows of a TIFF as the file has them or as the library colours them, from the top downwards.
#pragma once
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

/// Lines of samples, side by side in each pixel, whole bytes or bits in a byte; 16 and more are in the machine's order.
/// Strips that are damaged give what could be read; a damaged tile throws Damage.
class TiffLines {
  public:
    explicit TiffLines(const TiffPage& page);
    const TiffKind& kind() const { return kind_; }
    const std::uint8_t* next();
    void skip() { next(); }

  private:
    void readStrip(std::uint32_t plane);
    void readTiles(std::uint32_t plane);
    void merge(std::size_t at);

    Tiff tiff_;
    const TiffKind kind_;
    const SmallSamples small_{kind_.bits < 8 ? kind_.bits : 8U};
    std::uint32_t y_ = 0, rowsInBand_ = 0;         // a band is a row of tiles, or a strip
    std::size_t stride_ = 0;                       // of a band's line, in bytes
    std::vector<std::vector<std::uint8_t>> bands_; // one, or one of each plane
    std::vector<std::uint8_t> tile_, line_;
};

/// Pixels that the library makes of colour spaces of its own, and of eight bits with alpha.
class TiffColours {
  public:
    explicit TiffColours(const TiffPage& page);
    ~TiffColours() { TIFFRGBAImageEnd(&image_); }
    TiffColours(const TiffColours&) = delete;
    TiffColours& operator=(const TiffColours&) = delete;
    void read(Pixel* row);
    void skip();

  private:
    Tiff tiff_;
    TIFFRGBAImage image_{};
    std::uint32_t y_ = 0, rowsInBand_ = 0;
    std::vector<std::uint32_t> band_;
};

} // namespace velara::decode
