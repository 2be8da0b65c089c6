// The two resizes.
#include "engine/deform/passes_warp.h"
#include "pixels/numbers.h"
#include <cmath>

namespace velara {

namespace {

/// The ratio of a source extent to a target extent, rounded to single.
float ratio(int from, int to) { return static_cast<float>(static_cast<double>(from) / to); }

/// The source positions of the targets along one axis: the pixel and the fraction beyond it.
struct Axis {
    std::vector<std::int32_t> at; // padded to whole vectors
    std::vector<double> beyond;
    std::vector<float> single; // beyond

    Axis(int count, float step) : at(static_cast<std::size_t>(count + kPlaces)), beyond(at.size()), single(at.size())
    {
        for (int i = 0; i < count; ++i) {
            const double s = static_cast<double>(i) * step;
            at[i] = static_cast<int>(std::floor(s));
            beyond[i] = s - at[i];
            single[i] = static_cast<float>(beyond[i]);
        }
    }
};

} // namespace

void cBitFilter::BitsResample(const Bits& Source, int NewWidth, int NewHeight)
{
    checkSize(NewWidth, NewHeight);
    const Bits in = Source;
    if (in.isNull()) throw RuntimeError(Fault::OutOfRange);
    const Axis columns(NewWidth, ratio(in.maxX(), NewWidth)), rows(NewHeight, ratio(in.maxY(), NewHeight));
    Bits out = Bits::uninitialized(NewWidth, NewHeight);
    clearMargin(out);
    const WrittenRows targets(out);
    eachPiece(0, NewHeight, {}, out, [&](int y, int) {
        std::int32_t iy[kPlaces];
        float fy[kPlaces];
        std::fill_n(iy, kPlaces, rows.at[y]);
        std::fill_n(fy, kPlaces, static_cast<float>(rows.beyond[y]));
        const Pixel *upper = in.row(rows.at[y]), *lower = in.row(rows.at[y] + 1);
        for (int x0 = 0; x0 < NewWidth; x0 += kPlaces) {
            Pixel* to = targets.row(y) + x0;
            const int n = std::min(kPlaces, NewWidth - x0);
            const std::int32_t* ix = columns.at.data() + x0;
            eachPlace(blendPixels(in, ix, iy, columns.single.data() + x0, fy, n, nullptr, to), n, [&](int i) {
                blendPixel(upper + ix[i], lower + ix[i], columns.beyond[x0 + i], rows.beyond[y], to[i]);
            });
        }
    });
    bits_ = out;
    report(100);
}

void cBitFilter::BitsResize(const Bits& Source, int NewWidth, int NewHeight)
{
    checkSize(NewWidth, NewHeight);
    const Bits in = Source;
    if (in.isNull()) throw RuntimeError(Fault::OutOfRange);
    const Axis columns(NewWidth, ratio(in.width(), NewWidth)), rows(NewHeight, ratio(in.height(), NewHeight));
    Bits out = Bits::uninitialized(NewWidth, NewHeight);
    clearMargin(out);
    const WrittenRows targets(out);
    eachPiece(0, NewHeight, {}, out, [&](int y, int) {
        const Pixel* from = in.row(rows.at[y]);
        Pixel* to = targets.row(y);
        for (int x = 0; x < NewWidth; ++x) {
            to[x] = from[columns.at[x]];
            to[x].c[3] = 0;
        }
    });
    bits_ = out;
    report(100);
}

} // namespace velara
