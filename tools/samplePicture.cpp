#include "tools/samplePicture.h"
#include "pixels/numbers.h"
#include <cstdlib>

namespace velara {

namespace {

constexpr int kWidth = 480, kHeight = 320, kHorizon = 190, kShore = 250;

struct Rgb8 {
    int r, g, b;
};

/// 0..255, a function of the position.
int noise(int x, int y)
{
    std::uint32_t h = static_cast<std::uint32_t>(x) * 374761393u + static_cast<std::uint32_t>(y) * 668265263u;
    h = (h ^ (h >> 13)) * 1274126177u;
    return static_cast<int>((h ^ (h >> 16)) & 255);
}

/// noise on a grid of size cells, interpolated between its corners.
int softNoise(int x, int y, int size)
{
    const int gx = x / size, gy = y / size, fx = x % size, fy = y % size;
    const int top = noise(gx, gy) * (size - fx) + noise(gx + 1, gy) * fx;
    const int bottom = noise(gx, gy + 1) * (size - fx) + noise(gx + 1, gy + 1) * fx;
    return (top * (size - fy) + bottom * fy) / (size * size);
}

Rgb8 mix(Rgb8 a, Rgb8 b, int part, int whole)
{
    const auto one = [&](int u, int v) { return (u * (whole - part) + v * part) / whole; };
    return {one(a.r, b.r), one(a.g, b.g), one(a.b, b.b)};
}

Rgb8 shaded(Rgb8 colour, int by) { return {colour.r + by, colour.g + by, colour.b + by}; }

Rgb8 sky(int x, int y)
{
    const Rgb8 blue = mix({40, 96, 190}, {226, 214, 190}, y, kHorizon);
    const int cloud = softNoise(x + 40, y * 3, 64) + softNoise(x, y * 3, 24) / 2 - 190;
    const Rgb8 air = cloud > 0 ? mix(blue, {250, 248, 244}, std::min(cloud * 3, 200), 255) : blue;
    const int d2 = (x - 360) * (x - 360) + (y - 70) * (y - 70);
    if (d2 < 26 * 26) return {255, 236, 160};
    return d2 < 90 * 90 ? mix({255, 222, 150}, air, d2, 90 * 90) : air;
}

int ridge(int x, int size, int height, int base) { return base - softNoise(x + 1000, size, size) * height / 255; }

Rgb8 land(int x, int y)
{
    if (y < ridge(x, 50, 70, kHorizon)) return sky(x, y);
    const Rgb8 far = mix({92, 118, 128}, {70, 112, 78}, y - 100, kHorizon);
    if (y < ridge(x, 90, 60, kHorizon + 40)) return shaded(far, softNoise(x, y, 9) / 12 - 10);
    return shaded({66, 122, 46}, noise(x, y / 2) / 6 + softNoise(x, y, 17) / 6 - 46);
}

Rgb8 house(int x, int y)
{
    const int u = x - 110, v = y - 160;
    if (v < 30) return std::abs(u - 45) <= 15 + v ? shaded({150, 48, 38}, (v % 6) * 5) : land(x, y);
    if (u < 6 || u > 84) return land(x, y);
    if (u > 38 && u < 54 && v > 56) return {84, 52, 30};
    const bool window = v > 42 && v < 58 && ((u > 14 && u < 30) || (u > 60 && u < 76));
    if (window) return u % 8 == 6 || v == 50 ? Rgb8{240, 240, 236} : Rgb8{56, 84, 120};
    return shaded({222, 202, 164}, noise(x, y) / 24);
}

Rgb8 lake(int x, int y)
{
    const int depth = y - kShore, ripple = softNoise(x * 2, depth * 9, 12) - 128;
    const Rgb8 mirrored = sky(x + ripple / 24, std::max(kHorizon - depth * 2, 0));
    return shaded(mix(mirrored, {20, 52, 84}, 110 + depth, 255), ripple / 8);
}

Rgb8 swatch(int x)
{
    constexpr Rgb8 kSwatches[] = {{220, 30, 30},  {240, 140, 20}, {240, 226, 30}, {40, 170, 50},
                                  {30, 190, 190}, {40, 60, 210},  {140, 40, 180}, {220, 60, 150}};
    return kSwatches[x * 8 / (kWidth / 2)];
}

Rgb8 colourAt(int x, int y)
{
    if (y >= kHeight - 18)
        return x < kWidth / 2 ? swatch(x) : Rgb8{(x - 240) * 255 / 239, (x - 240) * 255 / 239, (x - 240) * 255 / 239};
    if (y >= kShore) return lake(x, y);
    if (x >= 104 && x < 206 && y >= 160 && y < 240) return house(x, y);
    const bool fence = y > 226 && y < 246 && x > 220 && (x % 12 < 3 || y == 232 || y == 233);
    return fence ? Rgb8{206, 188, 150} : land(x, y);
}

} // namespace

Bits samplePicture()
{
    Bits bits(kWidth, kHeight);
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) {
            const Rgb8 p = colourAt(x, y);
            bits.row(y)[x] = {{clamp(p.b), clamp(p.g), clamp(p.r), 0}};
        }
    return bits;
}

} // namespace velara
