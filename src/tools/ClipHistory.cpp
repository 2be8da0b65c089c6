#include "tools/ClipHistory.h"
#include "document/Document.h"
#include "engine/cBitFilter.h"

namespace velara {

void ClipHistory::add(const Bits& bits)
{
    if (clips_.size() >= std::size_t(kLimit)) clips_.erase(clips_.begin());
    clips_.push_back({++count_, bits});
}

const Clip* ClipHistory::at(int slot) const
{
    return slot >= 0 && std::size_t(slot) < clips_.size() ? &clips_[std::size_t(slot)] : nullptr;
}

Bits selectedPart(const Document& document)
{
    const Rect box = document.Region.Region().bounds().intersected(document.Region.RegionMain().bounds());
    if (!document.PictureExists() || box.width() < 2 || box.height() < 2) return {};
    cBitFilter cutter; // of its own: the frame's keeps the picture
    cutter.setBitsRegion(document.Region.Region());
    cutter.BitsCropMasked(document.bits(), box.left, box.top, box.right, box.bottom);
    return cutter.bits();
}

} // namespace velara
