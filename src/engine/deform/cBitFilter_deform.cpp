// The deformations that move rows and columns along straight lines.
#include "engine/deform/passes_warp.h"
#include "pixels/numbers.h"

namespace velara {

Bits cBitFilter::ROTATE(int Degrees, bool Clean)
{
    const Turn turn(bits_.maxX(), bits_.maxY(), Degrees);
    return eachSource(
        Clean, [&](int y, int x0, int n, std::int32_t* sx, std::int32_t* sy) { turn.nearest(x0, y, n, sx, sy); });
}

Bits cBitFilter::RotateSmooth(int Degrees)
{
    const Bits in = bits_;
    const Turn turn(in.maxX(), in.maxY(), Degrees);
    return eachTile(kPlaces, [&](Pixel* row, int x0, int n, int y) {
        std::int32_t ix[kPlaces], iy[kPlaces];
        float fx[kPlaces], fy[kPlaces];
        Pixel* to = row + x0;
        turn.split(x0, y, n, ix, iy, fx, fy);
        eachPlace(blendPixels(in, ix, iy, fx, fy, n, in.row(y) + x0, to), n,
                  [&](int i) { blendPixel(in.row(iy[i]) + ix[i], in.row(iy[i] + 1) + ix[i], fx[i], fy[i], to[i]); });
    });
}

Bits cBitFilter::Flip(bool Horizontal, bool Vertical)
{
    const Bits in = bits_;
    if (in.isNull()) {
        report(100);
        return in;
    }
    Bits out = Bits::uninitialized(in.width(), in.height());
    copyRows(in, out, -Bits::kMargin, 0);
    const WrittenRows rows(out);
    const auto take = [&](int y, int source) {
        const Pixel *kept = in.row(y), *from = in.row(source);
        Pixel* to = rows.row(y);
        copyPixels(kept, to, -Bits::kMargin, 0);
        copyPixels(kept, to, in.width(), in.width() + Bits::kMargin);
        const SpanOf row{kept, in.stride(), to, 0, in.width()};
        if (Horizontal)
            takeRowMirrored(row, from, in.maxX());
        else
            takeRow(row, from);
    };
    eachPiece(0, in.height(), {}, in, [&](int y, int) {
        const int other = Vertical ? in.maxY() - y : y;
        if (other < y) return;
        take(y, other);
        if (other > y) take(other, y); // both rows are in the cache now
    });
    copyRows(in, out, in.height(), in.height() + Bits::kMargin);
    report(100);
    return out;
}

Bits cBitFilter::STRETCH(int Horizontal, int Vertical, bool Clean)
{
    const auto table = [](int maximum, int percent) {
        const float factor = static_cast<float>(percent / 100.0 + 1);
        const int centre = maximum / 2;
        std::vector<std::int32_t> sources(static_cast<std::size_t>(maximum + 1));
        for (int i = 0; i <= maximum; ++i) sources[i] = roundEven(static_cast<double>(i - centre) * factor + centre);
        return sources;
    };
    const auto columns = table(bits_.maxX(), Horizontal), rows = table(bits_.maxY(), Vertical);
    return eachCrossing(Clean, columns, rows);
}

Bits cBitFilter::FOLD(int Horizontal, int Vertical, bool Clean)
{
    const int maxX = bits_.maxX(), maxY = bits_.maxY(), cx = maxX / 2, cy = maxY / 2;
    // The scale of an axis at a position on the other one.
    const auto scale = [](int d, int percent, int maximum) { return quotient(d / 100.0 * percent, maximum) + 1; };
    std::vector<double> columns;
    const Box box = insidePicture(GetBounds(0), bits_);
    for (int x = 0; !box.isEmpty() && x < maxX + kPlaces; ++x) columns.push_back(scale(x - cx, Horizontal, maxX));
    const bool isSafe = std::max(std::abs(double(Horizontal)), std::abs(double(Vertical))) < 1e4;
    const double across = maxX == 0 ? 0 : Horizontal / 100.0 / maxX; // how much the scale of a column grows
    return eachSource(Clean, [&](int y, int x0, int n, std::int32_t* sx, std::int32_t* sy) {
        const double row = scale(y - cy, Vertical, maxY), dx = x0 - cx, dy = y - cy;
        if (isSafe && straightPlaces({row * dx + cx, columns[static_cast<std::size_t>(x0)] * dy + cy, row, across * dy},
                                     n, sx, sy))
            return;
        if (isSafe) { // neither scale can exceed 32 bits
            lineOfPlaces(x0 - cx, row, 0, cx, n, sx);
            productsToPlaces(columns.data() + x0, y - cy, cy, n, sy);
            return;
        }
        for (int i = 0; i < n; ++i) {
            sx[i] = roundEven(row * (x0 + i - cx) + cx);
            sy[i] = roundEven(columns[static_cast<std::size_t>(x0 + i)] * (y - cy) + cy);
        }
    });
}

Bits cBitFilter::WAVES(int Frequency, int Amplitude, int StartDegree)
{
    const Bits in = bits_;
    const float amplitude = static_cast<float>(Amplitude * 0.25);
    return eachSpan(0, [&](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        const double angle = (static_cast<double>(y) * Frequency + StartDegree) * kDegreesToRadians;
        const Pixel* source = in.row(std::clamp(roundEven(amplitude * std::sin(angle) + y), 0, in.maxY()));
        takeRow({from, in.stride(), to, x0, x1}, source);
    });
}

Bits cBitFilter::TILE(int Factor)
{
    const Bits in = bits_;
    // Tiles overlap, later ones on top: each pixel belongs to the last tile that begins at or before it.
    struct Axis {
        int step;
        float ratio;
        Axis(int maximum, int factor)
            : step(std::max(roundEven(quotient(maximum, factor)), 1)),
              ratio(static_cast<float>(static_cast<double>(maximum) / step))
        {
        }
        int source(int within) const { return roundEven(static_cast<double>(within) * ratio); }
    };
    const Axis horizontal(in.maxX(), Factor), vertical(in.maxY(), Factor);
    const Box box = GetBounds(0);
    std::vector<std::int32_t> columns(static_cast<std::size_t>(in.width()));
    for (int x = std::max(box.xmin, 0); x <= std::min(box.xmax, in.maxX()); ++x)
        columns[x] = horizontal.source((x - box.xmin) % horizontal.step);
    const std::vector<std::int32_t> inside(columns.size(), -1);
    return eachSpan(0, [&](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        const Pixel* source = in.row(vertical.source((y - box.ymin) % vertical.step));
        takeColumns({from, in.stride(), to, x0, x1}, source, columns.data(), inside.data(), false);
    });
}

} // namespace velara
