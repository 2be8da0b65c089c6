// ClassyColors: fixed recipes that mix the channels of a pixel.
#include "engine/colour/kernels_colour.h"
#include "engine/colour/lookUps.h"
#include "engine/passes.h"
#include "pixels/numbers.h"
#include <algorithm>

namespace velara {

namespace {

/// In this mode the target channel becomes the rounded f(channel a, channel b) of the source pixel.
struct Recipe {
    int mode, target, a, b;
    double (*f)(int a, int b);
};

double mean(int a, int b) { return (a * 0.99 + b * 0.99) / 2; }
double same(int a, int) { return a; }
double half(int a, int) { return a / 2.0; }
double halfAndQuarter(int a, int b) { return a / 2.0 + b / 4.0; }
double brown(int, int) { return 170; }

// clang-format off
constexpr Recipe kRecipes[] = {
    { 0, 1, 2, 1, mean}, { 0, 2, 1, 1, same}, { 0, 0, 1, 0, [](int g, int b) { return std::atan(double(g)) * (b / 1.9); }},
    { 1, 1, 2, 1, mean}, { 1, 2, 1, 1, same},
    { 2, 2, 2, 0, mean}, { 2, 0, 2, 2, same},
    { 3, 1, 1, 0, mean}, { 3, 0, 1, 1, same},
    { 6, 0, 2, 0, halfAndQuarter}, {6, 1, 1, 2, halfAndQuarter}, {6, 2, 0, 1, halfAndQuarter},
    { 8, 0, 1, 1, same}, { 8, 1, 2, 2, same},
    {10, 0, 1, 1, half}, {10, 1, 2, 2, half},
    {11, 2, 0, 0, brown}, {11, 1, 0, 0, same}, {11, 0, 1, 1, same},
};
// clang-format on

/// A recipe with its results for all pairs.
struct Mixture {
    int target, a, b;
    std::vector<std::uint8_t> table;
};

/// Mode 7: the low byte of each channel's neighbour minus t, complemented.
auto wrapped()
{
    return [shares = pairTable<std::int16_t>([](int c0, int c2) {
                return roundEven((c0 * 0.99 * 2 + c2 * 0.99) / 12);
            })](const Pixel* from, Pixel* to, int x0, int x1) {
        inBlocks(from, to, x0, x1, [&](const Pixel* p, Pixel* q, int n) {
            for (int i = 0; i < n; ++i) {
                const int t = shares[std::size_t(p[i].c[0] | p[i].c[2] << 8)];
                const auto wrap = [t](int c) { return static_cast<std::uint32_t>(std::abs(~(c - t)) & 255); };
                q[i] = pixelFrom(wrap(p[i].c[1]) | wrap(p[i].c[2]) << 8 | wrap(p[i].c[0]) << 16 |
                                 (wordOf(p[i]) & kFourthByte));
            }
        });
    };
}

} // namespace

Bits cBitFilter::ClassyColors(int Mode)
{
    if (Mode == 7) return eachSpan(0, wrapped());
    std::vector<Mixture> mixtures;
    for (const Recipe& r : kRecipes)
        if (r.mode == Mode)
            mixtures.push_back({r.target, r.a, r.b,
                                pairTable<std::uint8_t>([&](int low, int high) { return toByte(r.f(low, high)); })});
    return eachSpan(0, [&](const Pixel* from, Pixel* to, int x0, int x1) {
        inBlocks(from, to, x0, x1, [&](const Pixel* p, Pixel* q, int n) {
            std::copy_n(p, n, q);
            for (const Mixture& m : mixtures)
                for (int i = 0; i < n; ++i) q[i].c[m.target] = m.table[std::size_t(p[i].c[m.a] | p[i].c[m.b] << 8)];
        });
    });
}

} // namespace velara
