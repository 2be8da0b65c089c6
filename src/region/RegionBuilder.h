// RegionBuilder: builds a region row by row from the top, in canonical form: touching spans are joined, and so are
// touching bands with equal spans.
#pragma once
#include "region/Region.h"
#include <algorithm>

namespace velara {

/// A region in canonical form: bands from top to bottom, each with its spans from left to right.
struct Region::Data {
    struct Band {
        int top, bottom;
        std::size_t first, count;
        friend bool operator==(const Band&, const Band&) = default;
    };
    std::vector<Band> bands;
    std::vector<Span> spans;
    Rect box;
    /// By row, from the top of the box: the band that has it, or kNoBand. Empty where a search among the bands takes no
    /// longer: one for each row of a picture would be waited for.
    std::vector<std::uint32_t> bandOf;
    static constexpr std::uint32_t kNoBand = ~std::uint32_t(0);

    void indexRows();
    std::span<const Span> of(const Band& band) const { return {spans.data() + band.first, band.count}; }
    std::span<const Span> row(int y) const;
};

class RegionBuilder {
  public:
    /// Upper limit of spans: a hostile file or a polygon of millions of rows must not exhaust the memory.
    static constexpr std::size_t kMostSpans = std::size_t(1) << 24;

    /// Adds a span to the band being built. Spans come from left to right; touching ones are joined, empty ones
    /// ignored.
    void add(int x0, int x1)
    {
        if (x0 >= x1) return;
        auto& spans = data_->spans;
        if (spans.size() > first_ && spans.back().x1 >= x0)
            spans.back().x1 = std::max(spans.back().x1, x1);
        else
            spans.push_back({x0, x1});
    }
    /// Ends the band: its rows are top up to but not including bottom, at or below those of the band before.
    void endBand(int top, int bottom);
    /// True when kMostSpans is exceeded; the result is then a null region.
    bool overflows() const { return data_->spans.size() > kMostSpans; }
    Region take();

  private:
    std::shared_ptr<Region::Data> data_ = std::make_shared<Region::Data>();
    std::size_t first_ = 0; // of the band being built
};

} // namespace velara
