// Twips, in which the configuration file and some measures of old count.
#pragma once

namespace velara {

inline constexpr int kTwips = 15; // to a pixel

} // namespace velara
