// HSB conversion as the colour picker shows it, and the state behind its number boxes: one colour that can be edited as
// RGB or as HSB without rounding drift.
#pragma once
#include "pixels/Bits.h"
#include "pixels/mHSLRGB.h"
#include <array>

namespace velara {

/// Hue in degrees 0..360 (360 equals 0), saturation and brightness 0..1.
struct Hsb {
    double h = 0, s = 0, b = 0;
    friend bool operator==(const Hsb&, const Hsb&) = default;
};

/// Bytes to HSB; greys have hue 0, black saturation 0 too.
Hsb toHsb(Rgb colour);
/// Exact inverse of toHsb for every byte colour.
Rgb toRgb(const Hsb& colour);

constexpr Rgb rgbOf(Colour colour) { return {redOf(colour), greenOf(colour), blueOf(colour)}; }
constexpr Colour colourOf(const Rgb& c) { return velara::colourOf(c.r, c.g, c.b); }

/// What a box of the picker edits. Hue, saturation and brightness index an Hsb, in this order.
enum class Part { Hue, Saturation, Brightness, Red, Green, Blue };
inline constexpr std::array kMostOfPart{360, 100, 100, 255, 255, 255}; // whole numbers from 0 on

class PickedColour {
  public:
    /// Red, as the picker starts.
    PickedColour() { setColour(0x0000FF); }

    Colour colour() const { return colour_; }
    const Hsb& hsb() const { return hsb_; }
    /// A grey keeps the previous hue, black also the previous saturation, so that strip and field don't jump.
    void setColour(Colour colour);
    /// Values are clamped to their range.
    void setHsb(const Hsb& hsb);
    /// The whole number shown in the component's box.
    int shown(Part part) const;
    /// Sets a component from its box, 0 to kMostOfPart. The number already shown changes nothing.
    void type(Part part, int number);

  private:
    Colour colour_ = 0;
    Hsb hsb_; // kept beside the colour: rounding to bytes would let it wander
};

} // namespace velara
