// Twips: the unit of positions in the configuration file, 1/15 of a pixel.
#pragma once

namespace velara {

inline constexpr int kTwips = 15; // to a pixel

} // namespace velara
