// Capacity: how much of a picture a file can hold, by its bytes and the best packing of its format. A header costs
// nothing to write, so what it claims is believed no further than this.
#pragma once
#include <QString>
#include <cstdint>

namespace velara {

class Capacity {
  public:
    /// extension in lower case; one that no format has holds anything.
    Capacity(const QString& extension, std::int64_t bytes);

    /// Pixels of so many bits (1 to 128; others count as 1) that the file can hold at most.
    std::int64_t pixels(int bits) const;
    /// False when less than a thousandth of so many pixels can be there. Of a file that is cut off, more than that is
    /// shown.
    bool mayClaim(std::int64_t pixels, int bits) const;

  private:
    std::int64_t bytes_; // of pixels
};

} // namespace velara
