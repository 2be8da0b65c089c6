// Colours as people write them.
#pragma once
#include "pixels/Bits.h"
#include <QString>
#include <optional>

namespace velara {

/// "#rrggbb", lower case.
QString colourCode(Colour colour);
/// "#rgb" or "#rrggbb", with or without the sign, or the English name of a colour of the web ("teal"); case and blanks
/// at the ends don't matter. Nothing for any other text.
std::optional<Colour> colourOfCode(const QString& text);

} // namespace velara
