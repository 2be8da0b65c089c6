#include "colour/hsb.h"
#include <algorithm>
#include <cmath>

namespace velara {

namespace {

double& partOf(Hsb& hsb, Part part)
{
    double* const parts[] = {&hsb.h, &hsb.s, &hsb.b};
    return *parts[static_cast<int>(part)];
}

double scaleOf(Part part) { return part == Part::Hue ? 1 : 100; }

} // namespace

Hsb toHsb(Rgb colour)
{
    const int most = std::max({colour.r, colour.g, colour.b}), least = std::min({colour.r, colour.g, colour.b});
    if (most == 0) return {};
    const double turn = RGBToHSL(colour.r, colour.g, colour.b).h * 60.0;
    return {turn < 0 ? turn + 360 : turn, double(most - least) / most, most / 255.0};
}

Rgb toRgb(const Hsb& colour)
{
    const double sixth = colour.h / 60;
    const int sector = static_cast<int>(sixth) % 6;
    const double part = sixth - std::floor(sixth), top = colour.b;
    const double low = top * (1 - colour.s), falling = top * (1 - colour.s * part),
                 rising = top * (1 - colour.s * (1 - part));
    const double sectors[][3] = {{top, rising, low},  {falling, top, low}, {low, top, rising},
                                 {low, falling, top}, {rising, low, top},  {top, low, falling}};
    const auto byte = [](double v) { return roundEven(v * 255); };
    return {byte(sectors[sector][0]), byte(sectors[sector][1]), byte(sectors[sector][2])};
}

void PickedColour::setColour(Colour colour)
{
    colour &= 0xFFFFFF;
    if (colour == colour_) return;
    const Hsb before = hsb_;
    colour_ = colour;
    hsb_ = toHsb(rgbOf(colour));
    if (hsb_.s == 0) hsb_.h = before.h;
    if (hsb_.b == 0) hsb_.s = before.s;
}

void PickedColour::setHsb(const Hsb& hsb)
{
    hsb_ = {std::clamp(hsb.h, 0.0, 360.0), std::clamp(hsb.s, 0.0, 1.0), std::clamp(hsb.b, 0.0, 1.0)};
    colour_ = colourOf(toRgb(hsb_));
}

int PickedColour::shown(Part part) const
{
    switch (part) {
    case Part::Red:
        return redOf(colour_);
    case Part::Green:
        return greenOf(colour_);
    case Part::Blue:
        return blueOf(colour_);
    default:
        Hsb copy = hsb_;
        return static_cast<int>(std::lround(partOf(copy, part) * scaleOf(part)));
    }
}

void PickedColour::type(Part part, int number)
{
    if (number == shown(part)) return;
    if (part < Part::Red) {
        Hsb hsb = hsb_;
        partOf(hsb, part) = number / scaleOf(part);
        return setHsb(hsb);
    }
    const int shift = 8 * (static_cast<int>(part) - static_cast<int>(Part::Red));
    setColour((colour_ & ~(255 << shift)) | number << shift);
}

} // namespace velara
