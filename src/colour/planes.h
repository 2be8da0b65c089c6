// The planes and strips on which colours are picked: those of the colour box in hue, saturation and lightness, those of
// the picker in hue, saturation and brightness. Pictures of 32 bits, and what lies where on them.
#pragma once
#include "colour/hsb.h"
#include <QImage>
#include <QPoint>

namespace velara {

constexpr int kPlane = 101; // side of the colour box's plane, rows of its strip

/// The hue that a row of the colour box's strip stands for, 0 to 100, on the scale of mHSLRGB. The last rows fold below
/// zero, toward red from the other side.
float stripHue(int row);
/// One pixel wide, kPlane rows.
QImage hueStrip();
/// Saturation falls from 1 to 0 along x, lightness along y.
QImage colourPlane(float hue);

constexpr int kField = 256; // side of the picker's field, rows of its strip

/// Which part runs along the strip; the other two span the field.
enum class Strip { Hue, Saturation, Brightness };

/// Hue runs down the strip from 0 to 360; saturation and brightness fall. Colours beside hue are those of at.
QImage pickerStrip(Strip strip, const Hsb& at);
/// The field at the strip's place in at: hue along x where it is in the field, brightness up along y, saturation what
/// is left.
QImage pickerField(Strip strip, const Hsb& at);

/// Row of the strip, and column and row of the field, where a colour is marked; and the colours there. Places outside
/// are brought inside.
int rowOnStrip(Strip strip, const Hsb& at);
QPoint placeOnField(Strip strip, const Hsb& at);
Hsb atStripRow(Strip strip, const Hsb& at, int row);
Hsb atFieldPlace(Strip strip, const Hsb& at, QPoint place);

} // namespace velara
