// The scale of the masks that the stamp and the text tool paint by.
#pragma once

namespace velara {

/// Channel 0 of a mask: 0 is full ink, and from this value on it is paper, where nothing is painted.
constexpr int kMaskPaper = 190;

} // namespace velara
