// Noise that joins on to itself: every function has the period of the stock textures along both axes. Values are 0..1
// and depend on the place and the seed alone.
#pragma once
#include <cstdint>

namespace velara {

/// A number of its own for each pair of whole numbers.
double randomAt(int x, int y, std::uint32_t seed);

/// Smooth noise with so many knots along each side of the texture, a divisor of 256.
double valueNoise(double x, double y, int knots, std::uint32_t seed);
/// The same with another number of knots across and down: fibres.
double stretchedNoise(double x, double y, int across, int down, std::uint32_t seed);
/// Layers of noise, each with twice the knots and half the weight of the one before.
double layers(double x, double y, int knots, int count, std::uint32_t seed);
double layers2(double x, double y, int across, int down, int count, std::uint32_t seed);

/// One point in each of count by count fields: how far the nearest and the next one are, in fields, and a number of the
/// nearest one's own.
struct Cells {
    double first, second, own;
};
Cells cellDistances(double x, double y, int count, std::uint32_t seed);

} // namespace velara
