// DoneBits: one bit a pixel, so that a stroke changes each pixel only once. Resetting is O(1); a row is cleared when it
// is first used.
#pragma once
#include "paint/bitRow.h"
#include <vector>

namespace velara {

class DoneBits {
  public:
    /// All false, for a picture of this size.
    void reset(int width, int height)
    {
        if (!isFor(width, height) || ++epoch_ == 0) {
            width_ = width;
            bits_.resize(wordsPerRow() * static_cast<std::size_t>(height));
            rows_.assign(static_cast<std::size_t>(height), 0);
            epoch_ = 1;
        }
    }
    bool isFor(int width, int height) const
    {
        return width_ == width && rows_.size() == static_cast<std::size_t>(height);
    }

    std::uint64_t* row(int y)
    {
        std::uint64_t* words = bits_.data() + static_cast<std::size_t>(y) * wordsPerRow();
        if (rows_[static_cast<std::size_t>(y)] != epoch_) {
            std::fill_n(words, wordsPerRow(), 0);
            rows_[static_cast<std::size_t>(y)] = epoch_;
        }
        return words;
    }
    std::size_t wordsPerRow() const { return (static_cast<std::size_t>(width_) + 63) / 64; }
    bool test(int x, int y) { return row(y)[x / 64] >> (x % 64) & 1; }

    /// Marks the columns x0 up to but not including x1 of row y, and calls run(from, to) for each run of them that was
    /// not marked before, from left to right.
    template <class Run> void claim(int y, int x0, int x1, Run run)
    {
        std::uint64_t* words = row(y);
        for (int x = nextBit(words, x0, x1, false); x < x1; x = nextBit(words, x, x1, false)) {
            const int end = nextBit(words, x, x1, true);
            setRun(words, x, end, true);
            run(x, end);
            x = end;
        }
    }

  private:
    int width_ = 0;
    std::uint32_t epoch_ = 0;
    std::vector<std::uint64_t> bits_;
    std::vector<std::uint32_t> rows_; // the reset in which the row was last cleared
};

} // namespace velara
