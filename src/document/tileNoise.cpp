#include "document/tileNoise.h"
#include "document/stockTextures.h"
#include <algorithm>
#include <cmath>

namespace velara {

namespace {

int wrapped(int i, int count) { return (i % count + count) % count; }

double eased(double t) { return t * t * (3 - 2 * t); }

} // namespace

double randomAt(int x, int y, std::uint32_t seed)
{
    std::uint32_t h =
        static_cast<std::uint32_t>(x) * 0x9E3779B1u ^ static_cast<std::uint32_t>(y) * 0x85EBCA77u ^ seed * 0xC2B2AE3Du;
    h = (h ^ h >> 15) * 0x2C1B3C6Du;
    h = (h ^ h >> 12) * 0x297A2D39u;
    return (h ^ h >> 15) / 4294967296.0;
}

double stretchedNoise(double x, double y, int across, int down, std::uint32_t seed)
{
    const double u = x * across / kTextureSide, v = y * down / kTextureSide;
    const int i = static_cast<int>(std::floor(u)), j = static_cast<int>(std::floor(v));
    const double s = eased(u - i), t = eased(v - j);
    const auto knot = [&](int a, int b) { return randomAt(wrapped(i + a, across), wrapped(j + b, down), seed); };
    const double top = knot(0, 0) + (knot(1, 0) - knot(0, 0)) * s, bottom = knot(0, 1) + (knot(1, 1) - knot(0, 1)) * s;
    return top + (bottom - top) * t;
}

double valueNoise(double x, double y, int knots, std::uint32_t seed)
{
    return stretchedNoise(x, y, knots, knots, seed);
}

double layers2(double x, double y, int across, int down, int count, std::uint32_t seed)
{
    double sum = 0, weight = 1, all = 0;
    for (int i = 0; i < count; ++i, weight /= 2) {
        sum += weight * stretchedNoise(x, y, std::min(across << i, kTextureSide), std::min(down << i, kTextureSide),
                                       seed + 1000u * static_cast<std::uint32_t>(i));
        all += weight;
    }
    return sum / all;
}

double layers(double x, double y, int knots, int count, std::uint32_t seed)
{
    return layers2(x, y, knots, knots, count, seed);
}

Cells cellDistances(double x, double y, int count, std::uint32_t seed)
{
    const double u = x * count / kTextureSide, v = y * count / kTextureSide;
    const int i = static_cast<int>(std::floor(u)), j = static_cast<int>(std::floor(v));
    Cells found{9, 9, 0};
    for (int b = j - 1; b <= j + 1; ++b)
        for (int a = i - 1; a <= i + 1; ++a) {
            const int wa = wrapped(a, count), wb = wrapped(b, count);
            const double d = std::hypot(a + randomAt(wa, wb, seed) - u, b + randomAt(wa, wb, seed + 1) - v);
            if (d < found.first)
                found = {d, found.first, randomAt(wa, wb, seed + 2)};
            else
                found.second = std::min(found.second, d);
        }
    return found;
}

} // namespace velara
