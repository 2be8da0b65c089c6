// TileSums: a checksum for each tile of a picture's block. Two tables tell which tiles of two pictures differ without
// having both pictures, at the speed of reading one.
#pragma once
#include "pixels/Bits.h"
#include "region/Region.h"
#include <cstdint>
#include <vector>

namespace velara {

/// The tiles of a block: squares of side pixels from its first pixel on, margin included, in rows from the top; those
/// at the right and the bottom are cut off.
struct TileGrid {
    int width = 0, height = 0, side = 0; // pixels, of the block

    TileGrid() = default;
    TileGrid(const Bits& bits, int side);
    int across() const { return (width + side - 1) / side; }
    int down() const { return (height + side - 1) / side; }
    std::size_t count() const { return static_cast<std::size_t>(across()) * static_cast<std::size_t>(down()); }
    /// In the block: 0, 0 is its first pixel.
    Rect tile(std::uint32_t number) const;
    friend bool operator==(const TileGrid&, const TileGrid&) = default;
};

class TileSums {
  public:
    /// None: nothing is known.
    TileSums() = default;
    TileSums(const Bits& bits, int side);
    /// To be made by the calls below, always with the same block of that grid.
    explicit TileSums(const TileGrid& grid) : grid_(grid), sums_(grid.count()) {}
    /// Goes on by a few rows of tiles, on all cores. False when there are none left.
    bool addSome(const Bits& bits);
    /// Goes on to the row of pixels that has the byte before end, on this thread, or stays where it is.
    void addUpTo(const Bits& bits, std::size_t end);

    const TileGrid& grid() const { return grid_; }
    /// One for the whole picture; never 0, except without a picture.
    std::uint64_t whole() const;
    /// The numbers of the tiles that differ, ascending, among those that are complete; all of the other, which has the
    /// same grid, are.
    std::vector<std::uint32_t> differing(const TileSums& other) const;

  private:
    struct Sum { // 128 bits: a change that goes unseen can be left out of account
        std::uint64_t low = 0, high = 0;
        friend bool operator==(const Sum&, const Sum&) = default;
    };
    void addRows(const Bits& bits, int y0, int y1);

    TileGrid grid_;
    std::vector<Sum> sums_;
    int done_ = 0; // rows of pixels
};

} // namespace velara
