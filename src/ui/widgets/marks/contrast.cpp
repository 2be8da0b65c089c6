#include "ui/widgets/marks/contrast.h"
#include <algorithm>
#include <cmath>

namespace velara {

/// The relative luminance by which the web's rules of contrast go: 0 black, 1 white.
static double luminance(const QColor& colour)
{
    const auto linear = [](float v) { return v <= 0.04045F ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor mixed(const QColor& one, const QColor& other, double part)
{
    const auto channel = [part](int a, int b) { return qRound(a * part + b * (1 - part)); };
    return QColor(channel(one.red(), other.red()), channel(one.green(), other.green()),
                  channel(one.blue(), other.blue()));
}

bool isHighContrast(const QPalette& palette)
{
    constexpr double kNearlyAll = 19;
    return contrast(palette.color(QPalette::Active, QPalette::WindowText), palette.color(QPalette::Window)) >=
           kNearlyAll;
}

QColor focusColour(const QPalette& palette)
{
    const QColor chosen = palette.color(QPalette::Active, QPalette::Highlight);
    return contrast(chosen, palette.color(QPalette::Window)) >= kVisibleSign
               ? chosen
               : palette.color(QPalette::Active, QPalette::WindowText);
}

} // namespace velara
