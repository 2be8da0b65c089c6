// ColourTable: pictures in the colours of a screen, from sRGB, by a table that velara-decode has made of its profile.
#pragma once
#include "pixels/Bits.h"
#include <QImage>
#include <array>
#include <memory>
#include <vector>

namespace velara {

class ColourTable {
  public:
    /// Of the picture described in fileio/load/ColourTablePicture.h; null when it isn't one.
    static std::shared_ptr<const ColourTable> of(const Bits& picture);

    /// In place; a 32-bit image, whose fourth byte becomes 255. Colours between those of the table lie on the straight
    /// lines between the four around them.
    void convert(QImage& image) const;

  private:
    using Colour = float __attribute__((vector_size(16))); // blue, green, red and nothing, 0 to 255

    /// Where a level lies between two steps of the table.
    struct Place {
        int step;     // the lower one
        int fraction; // of kWhole
    };
    static constexpr int kWhole = 1 << 16;

    std::uint32_t converted(std::uint32_t pixel) const;

    std::vector<Colour> colours_;
    std::array<Place, 256> places_{};
};

} // namespace velara
