// Painting: each channel takes the mean of the least varying of the 3 by 3 windows that have the pixel at a corner.
#include "engine/passes.h"
#include "engine/stylise/kernels_quadrants.h"

namespace velara {

namespace {

/// The windows of three rows of centres, computed as rows of pixels arrive.
class SlidingWindows {
  public:
    SlidingWindows(const Bits& in, const Region& region)
        : in_(in), region_(region), rows_{WindowRow(in.width()), WindowRow(in.width()), WindowRow(in.width())}
    {
    }

    /// Prepares the rows above and below y, which is best the one after the last.
    void moveTo(int y)
    {
        if (y + 2 < next_) next_ = y - 1;
        for (int centre = std::max(y - 1, next_); centre <= y + 1; ++centre) compute(centre);
        next_ = std::max(next_, y + 2);
    }
    const WindowRow& at(int centre) const { return rows_[slot(centre)]; }

  private:
    static std::size_t slot(int centre) { return static_cast<std::size_t>(centre + 3) % 3; }

    /// Only where a pixel of the row above or below needs it.
    void compute(int centre)
    {
        wanted_.clear();
        for (const int y : {centre - 1, centre + 1})
            for (const Span s : region_.spans(y)) {
                const Span inside{std::max(s.x0, 0) - 1, std::min(s.x1, in_.width()) + 1};
                if (inside.x1 - inside.x0 > 2) wanted_.push_back(inside);
            }
        std::ranges::sort(wanted_, {}, &Span::x0);
        for (std::size_t i = 0; i < wanted_.size();) { // adjacent spans are merged
            Span run = wanted_[i];
            while (++i < wanted_.size() && wanted_[i].x0 <= run.x1) run.x1 = std::max(run.x1, wanted_[i].x1);
            quadrantKernels().windows(in_.row(centre), in_.stride(), run.x0, run.x1, rows_[slot(centre)]);
        }
    }

    const Bits in_;
    const Region region_;
    WindowRow rows_[3];
    std::vector<Span> wanted_;
    int next_ = -1;
};

auto painted(const Bits& bits, const Region& region, bool four)
{
    return [=, windows = SlidingWindows(bits, region), stride = bits.stride()](const Pixel* from, Pixel* to, int x0,
                                                                               int x1, int y) mutable {
        windows.moveTo(y);
        quadrantKernels().choose({from, stride, to, x0, x1}, windows.at(y - 1), windows.at(y + 1), four);
    };
}

constexpr int kRows = 64; // of a piece, which begins with two rows of windows that the one before had, too

} // namespace

Bits cBitFilter::Dissolve()
{
    return eachSpanOf(0, {kRows}, [in = bits_, region = region_] { return painted(in, region, true); });
}

Bits cBitFilter::PAINTING()
{
    return eachSpanOf(0, {kRows}, [in = bits_, region = region_] { return painted(in, region, false); });
}

} // namespace velara
