// Which TIFFs several threads may decode together, with the same pixels as one.
#pragma once
#include "fileio/decode/libraries/TiffRows.h"

namespace velara::decode {

/// Bands: rows of tiles or strips, of so many bytes each when decoded.
struct TiffBands {
    std::uint32_t count = 0;
    std::uint64_t bytes = 0;
};

/// How many bands to have in memory at once; 0: one thread does it all, as the picture is small, isn't compressed, or
/// may depend on the order in which its strips or tiles are decoded.
std::uint32_t bandsTogether(const Tiff& tiff, const TiffKind& kind, TiffBands bands);

} // namespace velara::decode
