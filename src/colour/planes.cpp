#include "colour/planes.h"
#include "pixels/numbers.h"
#include <algorithm>
#include <cmath>

namespace velara {

namespace {

QRgb word(const Rgb& c) { return qRgb(c.r, c.g, c.b); }

/// A picture whose pixels are made by pixelAt(x, y).
template <class PixelAt> QImage painted(int width, int height, PixelAt pixelAt)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) row[x] = word(pixelAt(x, y));
    }
    return image;
}

constexpr double kLast = kField - 1;

/// A component along an axis: its member, its largest value, and whether it decreases along the axis.
struct Axis {
    double Hsb::*part;
    double most;
    bool falls;

    double at(int place) const
    {
        const double share = std::clamp(place, 0, kField - 1) / kLast;
        return most * (falls ? 1 - share : share);
    }
    int placeOf(const Hsb& hsb) const
    {
        const double share = hsb.*part / most;
        return static_cast<int>(std::lround(kLast * (falls ? 1 - share : share)));
    }
};

struct Axes {
    Axis strip, x, y;
};
constexpr Axes kAxes[] = {
    {{&Hsb::h, 360, false}, {&Hsb::s, 1, false}, {&Hsb::b, 1, true}},
    {{&Hsb::s, 1, true}, {&Hsb::h, 360, false}, {&Hsb::b, 1, true}},
    {{&Hsb::b, 1, true}, {&Hsb::h, 360, false}, {&Hsb::s, 1, true}},
};
const Axes& axes(Strip strip) { return kAxes[static_cast<int>(strip)]; }

} // namespace

float stripHue(int row) { return static_cast<float>(HueFromScale(roundEven(row * 2.4)) / 40.0); }

QImage hueStrip()
{
    return painted(1, kPlane, [](int, int y) { return HSLToRGB(stripHue(y), 1, 0.5f); });
}

QImage colourPlane(float hue)
{
    const auto share = [](int place) { return static_cast<float>((100 - place) / 100.0); };
    return painted(kPlane, kPlane, [&](int x, int y) { return HSLToRGB(hue, share(x), share(y)); });
}

QImage pickerStrip(Strip strip, const Hsb& at)
{
    const Hsb from = strip == Strip::Hue ? Hsb{0, 1, 1} : at;
    return painted(1, kField, [&](int, int y) { return toRgb(atStripRow(strip, from, y)); });
}

QImage pickerField(Strip strip, const Hsb& at)
{
    return painted(kField, kField, [&](int x, int y) { return toRgb(atFieldPlace(strip, at, {x, y})); });
}

int rowOnStrip(Strip strip, const Hsb& at) { return axes(strip).strip.placeOf(at); }

QPoint placeOnField(Strip strip, const Hsb& at) { return {axes(strip).x.placeOf(at), axes(strip).y.placeOf(at)}; }

Hsb atStripRow(Strip strip, const Hsb& at, int row)
{
    Hsb hsb = at;
    hsb.*axes(strip).strip.part = axes(strip).strip.at(row);
    return hsb;
}

Hsb atFieldPlace(Strip strip, const Hsb& at, QPoint place)
{
    Hsb hsb = at;
    hsb.*axes(strip).x.part = axes(strip).x.at(place.x());
    hsb.*axes(strip).y.part = axes(strip).y.at(place.y());
    return hsb;
}

} // namespace velara
