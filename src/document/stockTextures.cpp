#include "document/stockTextures.h"
#include "document/tileNoise.h"
#include "fileio/savePicture.h"
#include "seams/Platform.h"
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cmath>

namespace velara {

namespace {

constexpr double kTurn = 6.283185307179586;

struct Tint {
    double r, g, b; // 0 to 255, at full light
};

/// A texture from a function that gives each pixel's tint and light, 1 being full.
template <class PixelAt> Bits drawn(PixelAt pixelAt)
{
    Bits bits(kTextureSide, kTextureSide);
    for (int y = 0; y < kTextureSide; ++y)
        for (int x = 0; x < kTextureSide; ++x) {
            const auto [tint, light] = pixelAt(x, y);
            const auto byte = [light = light](double part) {
                return static_cast<std::uint8_t>(std::clamp(std::lround(part * light), 0L, 255L));
            };
            bits.at(x, y) = {{byte(tint.b), byte(tint.g), byte(tint.r), 0}};
        }
    return bits;
}

struct Lit {
    Tint tint;
    double light;
};

Tint mixed(const Tint& a, const Tint& b, double share)
{
    return {a.r + (b.r - a.r) * share, a.g + (b.g - a.g) * share, a.b + (b.b - a.b) * share};
}

double smooth(double from, double to, double v)
{
    const double t = std::clamp((v - from) / (to - from), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

/// The light across a thread of the given width in pixels, at a position across it.
double roundThread(double place, double width)
{
    const double t = std::fmod(place, width) / width * 2 - 1;
    return std::sqrt(std::max(0.0, 1 - t * t * 0.85));
}

Bits paper()
{
    return drawn([](int x, int y) -> Lit {
        const double fibres = layers(x, y, 16, 5, 11), grain = valueNoise(x, y, 128, 12);
        return {{250, 246, 236}, 0.86 + 0.13 * fibres + 0.05 * (grain - 0.5)};
    });
}

/// A plain weave: threads alternately over and under each other.
Bits woven(const Tint& tint, int thread, double unevenness, std::uint32_t seed)
{
    return drawn([=](int x, int y) -> Lit {
        const int column = x / thread, row = y / thread;
        const bool warp = (column + row) % 2 == 0;
        const double across = warp ? roundThread(x, thread) : roundThread(y, thread);
        const double along = warp ? roundThread(y, thread) : roundThread(x, thread);
        // A thread keeps its thickness along its whole length.
        const double own = randomAt(warp ? column : 0, warp ? 0 : row, seed);
        const double light = 0.45 + 0.55 * across * (0.55 + 0.45 * along);
        return {tint, light * (1 - unevenness * own) + 0.06 * (valueNoise(x, y, 128, seed + 1) - 0.5)};
    });
}

Bits canvas() { return woven({238, 226, 200}, 8, 0.08, 21); }

Bits linen()
{
    return drawn([](int x, int y) -> Lit {
        // Fine threads, each with thick and thin stretches.
        const double warp = stretchedNoise(x, y, 128, 8, 31), weft = stretchedNoise(x, y, 8, 128, 32);
        const bool over = (x / 2 + y / 2) % 2 == 0;
        return {{222, 210, 184}, 0.62 + 0.38 * (over ? 0.75 * warp + 0.25 * weft : 0.25 * warp + 0.75 * weft)};
    });
}

Bits brick()
{
    constexpr int kHigh = 32, kWide = 64, kJoint = 4;
    return drawn([](int x, int y) -> Lit {
        const int row = y / kHigh, shifted = (x + row % 2 * kWide / 2) % kTextureSide, column = shifted / kWide;
        // Slightly ragged edges.
        const double ragged = 2.5 * (layers(x, y, 32, 3, 41) - 0.5);
        const double edge =
            std::min({shifted % kWide, kWide - 1 - shifted % kWide, y % kHigh, kHigh - 1 - y % kHigh}) + ragged;
        const double grain = layers(x, y, 32, 4, 42);
        const double joint = 1 - smooth(kJoint / 2.0 - 1, kJoint / 2.0 + 1, edge);
        const Tint fired = mixed({176, 84, 62}, {142, 58, 44}, randomAt(column, row, 43));
        return {mixed(fired, {196, 190, 180}, joint), (0.75 + 0.4 * grain) * (1 - 0.3 * joint)};
    });
}

/// Stones of varied sizes with joints between them.
Bits stone()
{
    return drawn([](int x, int y) -> Lit {
        const double bent = 7 * (layers(x, y, 16, 3, 51) - 0.5);
        const Cells cells = cellDistances(x + bent, y + bent, 6, 52);
        const double joint = 1 - smooth(0.02, 0.16, cells.second - cells.first);
        const double grain = layers(x, y, 16, 5, 53);
        const Tint tint = mixed({150, 148, 142}, {120, 114, 106}, cells.own);
        return {mixed(tint, {84, 80, 74}, joint), 0.72 + 0.5 * grain - 0.12 * cells.first};
    });
}

Bits sand()
{
    return drawn([](int x, int y) -> Lit {
        const double grains = 0.6 * randomAt(x, y, 61) + 0.4 * valueNoise(x, y, 128, 62),
                     dunes = layers(x, y, 4, 3, 63);
        return {mixed({226, 198, 148}, {190, 156, 104}, grains), 0.78 + 0.2 * dunes + 0.14 * (grains - 0.5)};
    });
}

Bits wood()
{
    return drawn([](int x, int y) -> Lit {
        const double v = double(y) / kTextureSide;
        // Growth rings that run along the picture and waver; fibres along them.
        const double swerve = 1.4 * layers2(x, y, 2, 4, 4, 71) + 0.25 * layers2(x, y, 4, 16, 3, 72);
        const double ring = std::fmod(9 * v + swerve + 16, 1.0);
        const double late = smooth(0.35, 0.95, ring) * (1 - smooth(0.95, 1.0, ring));
        const double fibre = stretchedNoise(x, y, 8, 128, 73);
        return {mixed({206, 160, 104}, {138, 88, 48}, 0.85 * late), 0.88 + 0.2 * (fibre - 0.5)};
    });
}

Bits weave()
{
    constexpr int kBand = 32, kGap = 3; // broad bands in pairs
    return drawn([](int x, int y) -> Lit {
        const bool across = (x / kBand + y / kBand) % 2 == 0;
        const int along = across ? x % kBand : y % kBand, over = across ? y % (kBand / 2) : x % (kBand / 2);
        const double arch = std::sin(kTurn / 2 * (along + 0.5) / kBand);
        const double edge = smooth(0, kGap, std::min(over, kBand / 2 - 1 - over) + 0.5);
        const double straw = across ? stretchedNoise(x, y, 8, 128, 81) : stretchedNoise(x, y, 128, 8, 82);
        return {{206, 170, 112}, (0.35 + 0.65 * std::sqrt(arch)) * (0.45 + 0.55 * edge) * (0.85 + 0.3 * (straw - 0.5))};
    });
}

Bits ripple()
{
    struct Wave {
        int x, y; // whole periods across and down the picture
        double weight, phase;
    };
    static constexpr Wave kWaves[] = {
        {3, 5, 1, 0}, {-4, 6, 0.8, 1.3}, {7, 4, 0.5, 2.1}, {2, 9, 0.45, 4.4}, {-9, 3, 0.3, 0.7}};
    return drawn([](int x, int y) -> Lit {
        double sum = 0, bend = 0.35 * layers(x, y, 4, 3, 91);
        for (const Wave& w : kWaves)
            sum += w.weight * std::sin(kTurn * ((w.x * x + w.y * y) / double(kTextureSide) + bend) + w.phase);
        const double crest = smooth(-2.2, 2.6, sum);
        return {mixed({52, 106, 150}, {198, 226, 236}, crest * crest), 0.9 + 0.1 * crest};
    });
}

Bits leather()
{
    return drawn([](int x, int y) -> Lit {
        const double bent = 5 * (layers(x, y, 16, 3, 101) - 0.5);
        const Cells pebbles = cellDistances(x + bent, y - bent, 24, 102), large = cellDistances(x, y, 8, 103);
        const double fold = smooth(0.0, 0.35, pebbles.second - pebbles.first);
        return {{122, 74, 46}, 0.5 + 0.45 * fold + 0.22 * (1 - large.first) - 0.1 * pebbles.first};
    });
}

Bits frostedGlass()
{
    return drawn([](int x, int y) -> Lit {
        const double bumps = layers(x, y, 32, 3, 111), crystals = cellDistances(x, y, 40, 112).first;
        return {mixed({196, 214, 224}, {246, 250, 252}, bumps), 0.88 + 0.16 * (0.6 - crystals)};
    });
}

Bits grid()
{
    constexpr int kStep = 32;
    return drawn([](int x, int y) -> Lit {
        const int u = x % kStep, v = y % kStep;
        const int edge = std::min({u, v, kStep - 1 - u, kStep - 1 - v});
        if (edge < 2) return {{96, 100, 106}, 1};
        // Bevelled tiles: light from the upper left.
        const double slope = edge < 5 ? (std::min(u, v) == edge ? 1.12 : 0.8) : 1;
        return {{204, 208, 212}, slope};
    });
}

constexpr StockTexture kTextures[] = {
    {"Paper", paper},
    {"Canvas", canvas},
    {"Linen", linen},
    {"Brick", brick},
    {"Stone", stone},
    {"Sand", sand},
    {"Wood", wood},
    {"Weave", weave},
    {"Ripple", ripple},
    {"Leather", leather},
    {"Frosted glass", frostedGlass},
    {"Grid", grid},
};

} // namespace

std::span<const StockTexture> stockTextures() { return kTextures; }

bool writeStockTextures(Platform& platform)
{
    const QDir program(platform.programFolder());
    if (!program.mkpath(QStringLiteral("Textures"))) return false;
    bool written = true;
    int n = 0;
    for (const StockTexture& texture : kTextures) {
        const QString path = program.filePath(QStringLiteral("Textures/Velara%1.bmp").arg(++n));
        const QFileInfo there(path); // a dangling link occupies the name, too
        if (!there.exists() && !there.isSymLink())
            written &= savePicture(platform, texture.draw(), path, QStringLiteral("bmp")) == SaveResult::Written;
    }
    return written;
}

QString stockTextureName(const QString& fileName)
{
    for (std::size_t i = 0; i < std::size(kTextures); ++i)
        if (fileName == QStringLiteral("Velara%1.bmp").arg(i + 1)) return QString::fromLatin1(kTextures[i].name);
    return {};
}

} // namespace velara
