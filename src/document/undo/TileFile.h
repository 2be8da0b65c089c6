// TileFile: the file of a state that differs from the one beneath it in some tiles: their numbers and pixels. It has
// the name that a whole picture of its index would have; the first bytes tell which it is.
//
// Little-endian: "VeluTile", the version 1, the block's width and height and the side of a tile in pixels, the number
// of tiles (4 bytes each, as the version), and of 8 bytes each TileSums::whole of the picture beneath and of this one,
// and XXH3 of all that follows and these. Then the tiles' numbers, ascending, 4 bytes each, and their pixels, tile by
// tile in rows.
#pragma once
#include "document/undo/TileSums.h"
#include "document/undo/UndoFiles.h"
#include <optional>
#include <span>

namespace velara {

/// What is known of a state's file without reading its pixels.
struct StateFile {
    bool isTiles = false;
    std::uint64_t beneath = 0, sum = 0; // of tiles: TileSums::whole of the picture that they go over, and with them
    int side = 0;                       // of those sums
};

/// Nothing where the index has no file, or one with an invalid header, or too short for it.
std::optional<StateFile> stateFile(const UndoFiles& files, int index);

/// Bytes of the file with so many tiles, at most.
std::int64_t tileFileSize(const TileGrid& grid, std::size_t tiles);

/// Writes those tiles of the picture in place of what the index has. sums are of the picture, beneath is of the one
/// that it goes over. False, with errno: there is no file of the index.
bool writeTiles(const UndoFiles& files, int index, const Bits& bits, const TileSums& sums, std::uint64_t beneath,
                std::span<const std::uint32_t> tiles);

/// One of the files that a state is made of. sum is TileSums::whole of the picture with it, file what
/// UndoFiles::identity gave; each 0 where it isn't known.
struct LayerFile {
    int index = 0;
    std::uint64_t sum = 0, file = 0;
};

/// The picture that such files make: a whole one, and tiles over it, in this order. Nothing when one is missing or
/// damaged, or does not belong over the one before it.
std::optional<Bits> readLayers(const UndoFiles& files, std::span<const LayerFile> layers);

} // namespace velara
