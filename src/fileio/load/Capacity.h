// Capacity: an upper bound of the pixels in a file, from its bytes and the best packing of its format. A header costs
// nothing to write, so its claims are believed only up to this.
#pragma once
#include <QString>
#include <cstdint>

namespace velara {

class Capacity {
  public:
    /// extension in lower case; an unknown one has no bound.
    Capacity(const QString& extension, std::int64_t bytes);

    /// The most pixels of the given bits (1 to 128; others count as 1) that the file can hold.
    std::int64_t pixels(int bits) const;
    /// False when the file can hold less than a thousandth of the pixels. A truncated file with more than that is
    /// shown.
    bool mayClaim(std::int64_t pixels, int bits) const;

  private:
    std::int64_t bytes_; // available for pixels
};

} // namespace velara
