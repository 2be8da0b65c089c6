#include "commands/FilterPreview.h"
#include "pixels/fitSize.h"
#include <algorithm>

namespace velara {

namespace {

/// An engine without progress reports: with a stopped clock none falls due.
cBitFilter silentFilter(const Bits& bits)
{
    cBitFilter filter;
    filter.clock = [] { return 0u; };
    filter.setBits(bits);
    return filter;
}

Region inScale(const Region& region, const Bits& picture, const Bits& copy)
{
    const auto whole = [](const Bits& bits) { return Region::rectangle(0, 0, bits.width(), bits.height()); };
    if (region.isEmpty() || region == whole(picture)) return whole(copy);
    return region.scaled(static_cast<float>(copy.width()) / static_cast<float>(picture.width()));
}

} // namespace

Bits fittedCopy(const Bits& picture, QSize box)
{
    const QSize size = fitSize({picture.width(), picture.height()}, box).expandedTo({1, 1});
    if (picture.isNull() || size == QSize(picture.width(), picture.height())) return picture;
    cBitFilter filter = silentFilter(picture);
    filter.BitsResample(picture, size.width(), size.height());
    return filter.bits();
}

FilterPreview::FilterPreview(const Bits& picture, const Region& selection, QSize box)
    : source_(fittedCopy(picture, box)), region_(inScale(selection, picture, source_))
{
}

int FilterPreview::longerSide() const { return std::max(source_.width(), source_.height()); }

Bits FilterPreview::run(const FilterRow& row, FilterArgs args) const
{
    cBitFilter filter = silentFilter(source_);
    filter.setBitsRegion(region_);
    args.longerSide = longerSide();
    return row.call(filter, args);
}

std::optional<std::uint32_t> RunPacer::change(std::uint32_t now)
{
    if (waiting_) return {};
    waiting_ = true;
    const std::uint32_t since = last_ ? now - *last_ : kFrame;
    return since >= kFrame ? 0 : kFrame - since;
}

void RunPacer::runStarts(std::uint32_t now)
{
    waiting_ = false;
    last_ = now;
}

} // namespace velara
