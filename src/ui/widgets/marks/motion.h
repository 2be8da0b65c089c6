// Whether the person has asked the desktop for less motion: outlines then rest, and nothing is animated.
#pragma once

namespace velara {

/// Window's thread only, as all that moves.
bool lessMotion();
void setLessMotion(bool less);

} // namespace velara
