// Trials of the paint primitives: the same random strokes by a Painter and by its definition.
#include "paint/Painter.h"
#include "tools/reference/paintTwins.h"
#include "tools/reference/trials.h"

namespace velara {
namespace {

struct Point {
    int x, y;
};

/// A picture under a Painter or a PaintTwin, and the random numbers of its strokes.
template <class P> struct Stage {
    P& painter;
    Dice& dice;
    int width, height;

    Point somewhere()
    {
        const int x = dice.within(-12, width + 12);
        return {x, dice.within(-12, height + 12)};
    }
    Point inside()
    {
        const int x = dice.within(0, width - 1);
        return {x, dice.within(0, height - 1)};
    }
    Colour colour() { return dice.within(0, 0xFFFFFF); }
    int percent() { return dice.oneIn(4) ? 100 : dice.within(0, 100); }
};

/// A primitive; draw is a lambda for either kind of stage.
struct PaintRow {
    template <class Draw> constexpr PaintRow(const char* n, Draw draw) : name(n), fast(draw), literal(draw) {}
    const char* name;
    void (*fast)(Stage<Painter>&);
    void (*literal)(Stage<PaintTwin>&);
};

const PaintRow kRows[] = {
    {"Brush",
     [](auto& s) {
         const auto [x, y] = s.somewhere();
         const int size = s.dice.within(0, 40), opacity = s.percent();
         const Colour colour = s.colour();
         s.painter.BitsBrush(x, y, size, opacity, colour);
         s.painter.BitsBrush(x + 5, y - 3, size, opacity, colour); // overlapping: each pixel once
     }},
    {"Brightness",
     [](auto& s) {
         const auto [x, y] = s.somewhere();
         const int size = s.dice.within(0, 40), amount = s.percent();
         const bool lighten = s.dice.oneIn(2);
         s.painter.BitsBrightness(x, y, size, amount, lighten);
         s.painter.BitsBrightness(x + 5, y, size, amount, !lighten);
     }},
    {"Masked",
     [](auto& s) {
         const auto [x, y] = s.somewhere();
         const Bits source = s.dice.smallBits(12);
         const int size = s.dice.within(0, 40), opacity = s.percent();
         s.painter.BitsMasked(x, y, source, size, opacity);
         s.painter.BitsMaskedLine(x, y, x + 9, y - 4, size + 1, opacity, source);
     }},
    {"Soften",
     [](auto& s) {
         const auto [x, y] = s.somewhere();
         const int size = s.dice.within(0, 40), strength = s.percent();
         const bool repeat = s.dice.oneIn(2);
         s.painter.BitsSoften(x, y, size, strength, repeat);
         s.painter.BitsSoften(x + 2, y + 2, size, strength, !repeat); // after a repeating one none are marked as done
         s.painter.BitsBrush(x, y, size, strength, 0);
     }},
    {"Sharpen",
     [](auto& s) {
         const auto [x, y] = s.somewhere();
         const int size = s.dice.within(0, 40), strength = s.percent();
         s.painter.BitsSharpen(x, y, size, strength);
         s.painter.BitsSharpen(x + 2, y + 2, size, strength);
     }},
    {"BrushLine",
     [](auto& s) {
         const auto [x, y] = s.somewhere();
         const auto [x2, y2] = s.somewhere();
         const int size = s.dice.within(1, 20), strength = s.percent(), mode = s.dice.within(-1, 6);
         s.painter.BitsBrushLine(x, y, x2, y2, size, strength, s.colour(), mode);
     }},
    {"Airbrush",
     [](auto& s) {
         for (int i = 0; i < 3; ++i) {
             const auto [x, y] = s.somewhere();
             const int size = s.dice.within(2, 40), opacity = s.percent(), density = s.percent();
             const int softness = s.percent();
             s.painter.BitsAirbrush(x, y, size, opacity, density, softness, s.colour());
         }
     }},
    {"Line",
     [](auto& s) {
         const auto [x, y] = s.somewhere();
         const auto [x2, y2] = s.dice.oneIn(5) ? Point{x, y} : s.somewhere();
         const Colour colour = s.colour();
         const int opacity = s.percent();
         s.painter.BitsLine(x, y, x2, y2, colour, opacity);
         s.painter.BitsLine(x2, y2, x2, y, colour, opacity);
     }},
    {"Rectangle",
     [](auto& s) {
         const auto [x, y] = s.somewhere();
         const auto [x2, y2] = s.somewhere();
         const Colour colour = s.colour();
         s.painter.BitsRectangle(x, y, x2, y2, colour, s.percent());
     }},
    {"Ellipse",
     [](auto& s) {
         const auto [x, y] = s.somewhere();
         const int rx = s.dice.within(0, 140), ry = s.dice.within(0, 40), opacity = s.percent();
         s.painter.BitsEllipse(x, y, rx, ry, s.colour(), opacity);
     }},
    {"Polygon",
     [](auto& s) {
         const auto [x, y] = s.somewhere();
         const auto [x2, y2] = s.somewhere();
         const int sides = s.dice.within(0, 12), opacity = s.percent();
         s.painter.BitsPolygon(x, y, x2, y2, sides, s.colour(), opacity);
     }},
    {"Paint",
     [](auto& s) {
         const auto [x, y] = s.somewhere();
         const int width = s.dice.within(1, 70), height = s.dice.within(1, 70);
         const Bits source = s.dice.patches(width, height, 0);
         const Pixel corner = source.at(0, 0);
         const Colour key = s.dice.oneIn(2) ? -1 : colourOf(corner.c[2], corner.c[1], corner.c[0]);
         const int opacity = s.percent();
         const bool useRegion = s.dice.oneIn(2);
         s.painter.BitsPaint(x, y, source, key, opacity, useRegion);
         s.painter.BitsPaint(-x, y - 20, source, key, opacity, !useRegion);
     }},
    {"PaintPreMasked",
     [](auto& s) {
         const auto [x, y] = s.somewhere();
         Bits source = s.dice.smallBits(70);
         for (int i = 0; i < source.width(); ++i)
             for (int j = 0; j < source.height(); ++j)
                 if (s.dice.oneIn(2)) source.at(i, j).c[3] = 255;
         const int opacity = s.percent();
         const bool useRegion = s.dice.oneIn(2);
         s.painter.BitsPaintPreMasked(x, y, source, opacity, useRegion);
         s.painter.BitsPaintPreMasked(-x, y - 20, source, opacity, !useRegion);
     }},
    {"BWMask",
     [](auto& s) {
         const auto [x, y] = s.somewhere();
         const Bits source = s.dice.smallBits(70);
         const int opacity = s.percent();
         s.painter.BitsBWMask(x, y, source, s.colour(), opacity);
     }},
    {"Fill",
     [](auto& s) {
         for (int i = 0; i < 2; ++i) {
             const auto [x, y] = s.inside();
             s.painter.BitsBrush(x + 3, y, s.dice.within(0, 5), 50, 0); // already done: a wall
             const int tolerance = s.dice.oneIn(4) ? 765 : s.dice.within(0, 60), opacity = s.percent();
             s.painter.BitsFill(x, y, s.colour(), tolerance, opacity);
             if (s.dice.oneIn(2)) s.painter.CreateDoneBitsTable(); // else painted pixels are a wall for the next
         }
     }},
    {"FillTexture",
     [](auto& s) {
         const auto [x, y] = s.inside();
         const Bits source = s.dice.smallBits(30);
         const int tolerance = s.dice.oneIn(4) ? 765 : s.dice.within(0, 60);
         s.painter.BitsFillTexture(x, y, source, tolerance, s.percent());
         s.painter.BitsBrush(x, y, 40, 50, 0); // skips pixels already painted
     }},
};

/// What a window shows that repaints only what the painter reports as touched, by rectangle and by tiles.
Bits repainted(const Bits& before, const Bits& painted, const Rect& touched, const TouchedTiles& tiles)
{
    Bits shown = before;
    tiles.forEach([&](const Rect& tile) {
        const Rect r = tile.intersected(touched);
        for (int y = r.top; y < r.bottom; ++y) std::copy_n(painted.row(y) + r.left, r.width(), shown.row(y) + r.left);
    });
    return shown;
}

void eachTrial(const std::string& name, const std::function<void(const Trial&)>& visit)
{
    constexpr int kTrials = 400;
    constexpr std::size_t kColumns = 8;
    const PaintRow& row = *std::find_if(std::begin(kRows), std::end(kRows), [&](auto& r) { return r.name == name; });
    for (int i = 0; i < kTrials; ++i) {
        Dice dice(name + std::to_string(i));
        const int width = i % 10 == 0 ? 1 + i % 3 : dice.within(20, 160);
        const int height = i % 15 == 0 ? 1 : dice.within(10, 90);
        const Bits bits = dice.patches(width, height, i % 3 ? 12 : 255);
        cBitRegion selection;
        selection.Init(0, 0, width, height);
        if (!dice.oneIn(3)) selection.setRegion(dice.region(width, height));
        const auto fast = [&, strokes = dice]() mutable {
            Bits painted = bits;
            TouchedTiles tiles;
            Painter painter(painted, selection, tiles);
            painter.setRandomSeed(5);
            painter.CreateDoneBitsTable();
            Stage<Painter> stage{painter, strokes, width, height};
            row.fast(stage);
            return repainted(bits, painted, painter.takeTouched(), tiles);
        };
        const auto literal = [&, strokes = dice]() mutable {
            PaintTwin painter{bits, selection.RegionMain(), selection.working(), {}, Random(5)};
            painter.CreateDoneBitsTable();
            Stage<PaintTwin> stage{painter, strokes, width, height};
            row.literal(stage);
            return painter.bits;
        };
        visit({std::to_string(width) + "x" + std::to_string(height) + ", trial " + std::to_string(i), i % kColumns,
               fast, literal});
    }
}

} // namespace

TrialFamily paintTrials()
{
    std::vector<std::string> names;
    for (const PaintRow& row : kRows) names.emplace_back(row.name);
    return {"paint/painting.sums", names, eachTrial};
}

} // namespace velara
