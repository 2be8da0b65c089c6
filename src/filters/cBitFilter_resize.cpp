// The two resizes.
#include "filters/numbers.h"
#include "filters/passes.h"
#include <cmath>

namespace velara {

namespace {

/// The ratio of a source extent to a target extent, kept in single.
float ratio(int from, int to) { return static_cast<float>(static_cast<double>(from) / to); }

/// Where the targets of one axis take their source: the pixel and the fraction beyond it.
struct Axis {
    std::vector<int> at;
    std::vector<double> beyond;

    Axis(int count, float step) : at(static_cast<std::size_t>(count)), beyond(at.size())
    {
        for (int i = 0; i < count; ++i) {
            const double s = static_cast<double>(i) * step;
            at[i] = static_cast<int>(std::floor(s));
            beyond[i] = s - at[i];
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
    for (int y = 0; y < NewHeight; ++y) {
        const double fy = rows.beyond[y];
        const Pixel *upper = in.row(rows.at[y]), *lower = in.row(rows.at[y] + 1);
        Pixel* to = out.row(y);
        for (int x = 0; x < NewWidth; ++x) {
            const int ix = columns.at[x];
            const double fx = columns.beyond[x];
            for (int c = 0; c < 3; ++c) {
                const int a = roundEven((1 - fy) * upper[ix].c[c] + fy * lower[ix].c[c]);
                const int b = roundEven((1 - fy) * upper[ix + 1].c[c] + fy * lower[ix + 1].c[c]);
                to[x].c[c] = clamp(roundEven((1 - fx) * a + fx * b));
            }
            to[x].c[3] = 0;
        }
        progressDue(y, NewHeight - 1);
    }
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
    for (int y = 0; y < NewHeight; ++y) {
        const Pixel* from = in.row(rows.at[y]);
        Pixel* to = out.row(y);
        for (int x = 0; x < NewWidth; ++x) {
            to[x] = from[columns.at[x]];
            to[x].c[3] = 0;
        }
        progressDue(y, NewHeight - 1);
    }
    bits_ = out;
    report(100);
}

} // namespace velara
