// The planes and strips on which colours are picked, as 32-bit images, and the conversions between colours and
// positions on them. The colour box uses hue, saturation and lightness (HSL), the picker hue, saturation and brightness
// (HSB).
#pragma once
#include "colour/hsb.h"
#include <QImage>
#include <QPoint>

namespace velara {

constexpr int kPlane = 101; // side of the colour box's plane and height of its strip, in pixels

/// Hue of a row (0 to 100) of the colour box's strip, on the scale of mHSLRGB. The last rows wrap to negative hues,
/// which approach red from the other side.
float stripHue(int row);
/// One pixel wide, kPlane rows.
QImage hueStrip();
/// Saturation falls from 1 to 0 along x, lightness along y.
QImage colourPlane(float hue);

constexpr int kField = 256; // side of the picker's field and height of its strip, in pixels

/// The component that varies along the strip; the other two span the field.
enum class Strip { Hue, Saturation, Brightness };

/// Hue runs down the strip from 0 to 360, saturation and brightness from full to none. The other components are those
/// of at.
QImage pickerStrip(Strip strip, const Hsb& at);
/// The field for the strip's component of at: hue along x where the field has it, brightness upwards along y,
/// saturation along the axis that is left.
QImage pickerField(Strip strip, const Hsb& at);

/// Position of a colour on strip and field, and the colour at a position. Positions outside are clamped.
int rowOnStrip(Strip strip, const Hsb& at);
QPoint placeOnField(Strip strip, const Hsb& at);
Hsb atStripRow(Strip strip, const Hsb& at, int row);
Hsb atFieldPlace(Strip strip, const Hsb& at, QPoint place);

} // namespace velara
