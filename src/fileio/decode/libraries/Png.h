// libpng over bytes in memory: throws Damage where the library would jump.
#pragma once
#include "fileio/decode/decode.h"
#include "fileio/decode/libraries/metadata.h"
#include <png.h>

namespace velara::decode {

class Png {
  public:
    /// Reads the pieces one after another.
    explicit Png(std::vector<Span> pieces);
    ~Png() { png_destroy_read_struct(&png_, &info_, nullptr); }
    Png(const Png&) = delete;
    Png& operator=(const Png&) = delete;

    bool has(png_uint_32 chunk) const { return png_get_valid(png_, info_, chunk) != 0; }
    png_structp png() const { return png_; }
    png_infop info() const { return info_; }

  private:
    void read(png_bytep to, std::size_t count);

    std::vector<Span> pieces_;
    std::size_t piece_ = 0; // the current one, of which what is left stands in pieces_
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
};

/// Walks all chunks and checks the critical ones; throws Damage. Gives what the library needs to read all but the
/// pixels: the chunks before them, texts from behind them, and the head of a chunk of pixels.
std::vector<Span> withoutPixels(Span file);

/// What the picture carries, and the origin of a thumbnail. To be called when the library has read the pieces.
void takeFacts(const Png& file, Decoded& picture);

} // namespace velara::decode
