// Noise that tiles seamlessly: every function has the period of the stock textures along both axes. Values are 0..1 and
// depend on position and seed only.
#pragma once
#include <cstdint>

namespace velara {

/// A hash of a pair of integers.
double randomAt(int x, int y, std::uint32_t seed);

/// Smooth noise with the given number of knots along each side of the texture, a divisor of 256.
double valueNoise(double x, double y, int knots, std::uint32_t seed);
/// The same with different numbers of knots across and down: fibres.
double stretchedNoise(double x, double y, int across, int down, std::uint32_t seed);
/// A sum of octaves, each with twice the knots and half the weight of the one before.
double layers(double x, double y, int knots, int count, std::uint32_t seed);
double layers2(double x, double y, int across, int down, int count, std::uint32_t seed);

/// One random point in each of count by count cells: the distances to the nearest and the second nearest, in cells, and
/// a random number that belongs to the nearest.
struct Cells {
    double first, second, own;
};
Cells cellDistances(double x, double y, int count, std::uint32_t seed);

} // namespace velara
