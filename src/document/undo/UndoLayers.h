// Of which files a state of an undo series is made.
#pragma once
#include "document/undo/TileFile.h"
#include "document/undo/UndoRecord.h"
#include <algorithm>
#include <utility>
#include <vector>

namespace velara {

/// The files of a state, lowest first: a whole picture's, and those of tiles over it. at(i) gives what is kept of state
/// i, and the index of its file, for i from state down; beneath the first, from -1 on, those of the ground, of which
/// there are so many.
template <class At> std::vector<LayerFile> layersOf(int state, std::size_t ground, At at)
{
    std::vector<LayerFile> layers;
    for (int i = state; i >= -static_cast<int>(ground); --i) {
        const auto& [kept, index] = at(i);
        layers.push_back({index, kept->side > 0 ? kept->sum : 0, kept->file});
        if (!kept->isTiles) break;
    }
    std::ranges::reverse(layers);
    return layers;
}

} // namespace velara
