// Bits: the pixel buffer that documents, filters, tools and dialogs share. An implicitly shared value: copying is O(1),
// the first write to a shared buffer detaches it.
//
// Between threads a picture goes as a copy of its value. A value belongs to one thread at a time, as does all that
// holds one: a Document, a cBitFilter. The block behind it may belong to several:
// - It may be read by every thread whose value shares it.
// - It is written by who holds it alone. Each write asks the counter first; the acquire after that is the partner of
//   the release with which other values let go of the block, so that their threads have read it to the end.
// - Who doesn't hold it alone writes into a copy. So a draft shares the document's block until its first write.
// - BlockPool, which blocks come from and go back to, is locked.
#pragma once
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace velara {

/// Four bytes: 0 blue, 1 green, 2 red, 3 a fourth byte that pictures ignore.
struct Pixel {
    std::uint8_t c[4];
    friend bool operator==(const Pixel&, const Pixel&) = default;
};
static_assert(sizeof(Pixel) == 4);

/// A colour value 0x00BBGGRR, red in the low byte; the highest byte is ignored.
using Colour = std::int32_t;
constexpr int redOf(Colour colour) { return colour & 255; }
constexpr int greenOf(Colour colour) { return colour >> 8 & 255; }
constexpr int blueOf(Colour colour) { return colour >> 16 & 255; }
constexpr Colour colourOf(int red, int green, int blue) { return red | green << 8 | blue << 16; }

/// Width by height pixels with a margin of two on every side, in one block of (W+4)*(H+4)*4 bytes, rows top down,
/// row -2 first: exactly a top-down 32-bit bitmap of W+4 by H+4.
class Bits {
  public:
    static constexpr int kMargin = 2;
    /// Whether the program accepts a picture of this size: 1 to 32767 pixels a side, at most 256 Mi pixels.
    static constexpr int kMostASide = 32767;
    static constexpr std::int64_t kMostPixels = 256 << 20;
    static constexpr bool sizeAllowed(std::int64_t width, std::int64_t height)
    {
        return width > 0 && height > 0 && width <= kMostASide && height <= kMostASide && width * height <= kMostPixels;
    }

    Bits() = default;
    /// All bytes zero. A size below 1 by 1 gives an empty buffer; std::bad_alloc when memory is short.
    Bits(int width, int height);
    /// Contents are undefined (a recycled block), for callers that write every byte.
    static Bits uninitialized(int width, int height);

    bool isNull() const { return !block_; }
    int width() const { return width_; }
    int height() const { return height_; }
    int maxX() const { return width_ - 1; }
    int maxY() const { return height_ - 1; }
    /// Pixels from one row to the next: W+4.
    std::ptrdiff_t stride() const { return width_ + 2 * kMargin; }
    std::size_t sizeInBytes() const;

    /// Pointer to x = 0 of row y, -2 <= y < H+2; x from -2 to W+1 is valid. The non-const one detaches.
    const Pixel* row(int y) const { return first() + (y + kMargin) * stride() + kMargin; }
    Pixel* row(int y)
    {
        detach();
        return first() + (y + kMargin) * stride() + kMargin;
    }
    const Pixel& at(int x, int y) const { return row(y)[x]; }
    Pixel& at(int x, int y) { return row(y)[x]; }

    /// The whole block, margin included.
    const std::uint8_t* data() const { return reinterpret_cast<const std::uint8_t*>(first()); }
    std::uint8_t* data()
    {
        detach();
        return reinterpret_cast<std::uint8_t*>(first());
    }

    /// True when another value shares the block, so that the next write copies it. Another thread may let go of it at
    /// any time: an answer to save time by, nothing to write on.
    bool isShared() const { return block_.use_count() > 1; }
    /// Identifies the block without keeping it alive. To compare with, never to lock: a write asks who holds it.
    std::weak_ptr<const std::uint8_t[]> block() const { return block_; }
    /// True when both share one block, hence are equal without comparing pixels.
    bool sharesWith(const Bits& other) const { return block_ == other.block_; }
    /// Equal sizes and equal bytes, margin included.
    friend bool operator==(const Bits& a, const Bits& b);

  private:
    Pixel* first() const { return reinterpret_cast<Pixel*>(block_.get()); }
    void detach()
    {
        if (block_.use_count() > 1) return copyBlock();
#ifdef __SANITIZE_THREAD__ // it knows no fences, but what a counter does
        const std::shared_ptr<std::uint8_t[]> acquired(block_);
#else
        std::atomic_thread_fence(std::memory_order_acquire); // use_count() alone is relaxed
#endif
    }
    void copyBlock();

    std::shared_ptr<std::uint8_t[]> block_;
    int width_ = 0, height_ = 0;
};

} // namespace velara
