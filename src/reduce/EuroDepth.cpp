#include "reduce/EuroDepth.h"
#include "pixels/IndexedPicture.h"
#include "pixels/nearest/NearestColours.h"
#include "pixels/threads/Copies.h"
#include "pixels/threads/WrittenRows.h"
#include "pixels/threads/parallelFor.h"
#include "reduce/kernels_depth.h"
#include <algorithm>
#include <cstring>

namespace velara {

namespace {

constexpr int kRows = 64; // of a piece of work, and from one report to the next

/// Calls body(from, to, width) for each row, by all threads; margin and fourth bytes are kept.
template <class Body> Bits eachRow(const Bits& bits, const ReduceProgress& progress, Body body)
{
    if (bits.isNull()) return bits;
    Bits out = Bits::uninitialized(bits.width(), bits.height());
    const auto rowBytes = sizeof(Pixel) * static_cast<std::size_t>(bits.stride());
    for (const int y : {-2, -1, bits.height(), bits.height() + 1})
        std::memcpy(out.row(y) - Bits::kMargin, bits.row(y) - Bits::kMargin, rowBytes);
    const WrittenRows rows(out);
    const auto piece = [&](int i) {
        for (int y = i * kRows; y < std::min((i + 1) * kRows, bits.height()); ++y) {
            const Pixel* from = bits.row(y);
            Pixel* to = rows.row(y);
            for (const int x : {-2, -1, bits.width(), bits.width() + 1}) to[x] = from[x];
            body(from, to, bits.width());
        }
    };
    parallelFor((bits.height() + kRows - 1) / kRows, turnsTogether(kRows * bits.width()), piece, [&](int i) {
        const int last = (i + 1) * kRows - 1;
        if (progress && last < bits.height()) progress(100 * last / bits.height());
    });
    return out;
}

Bits nearestOf(const Palette& palette, const Bits& bits, const ReduceProgress& progress)
{
    std::vector<Pixel> colours;
    std::ranges::transform(palette, std::back_inserter(colours), pixelFor);
    Copies<NearestColours> nearest([&] { return NearestColours(colours, Distance::Squares); });
    return eachRow(bits, progress, [&](const Pixel* from, Pixel* to, int width) {
        nearest.lend([&](NearestColours& own) { own.colour(from, to, width); });
    });
}

} // namespace

bool isColourDepth(int depth)
{
    static constexpr int kDepths[] = {1, 4, 8, 15, 16, 24, 32};
    return std::ranges::find(kDepths, depth) != std::end(kDepths);
}

Palette tableOfDepth(int depth)
{
    return depth == 1 ? blackAndWhite() : depth == 4 ? vgaColours() : depth == 8 ? halftoneColours() : Palette();
}

Bits bitsAtDepth(const Bits& bits, int depth, const ReduceProgress& progress)
{
    if (depth == 1) return eachRow(bits, progress, blackOrWhite);
    if (depth == 15 || depth == 16) return eachRow(bits, progress, highBits);
    const Palette table = tableOfDepth(depth);
    return table.empty() ? bits : nearestOf(table, bits, progress);
}

} // namespace velara
