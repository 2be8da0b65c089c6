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

int ClipHistory::numberAt(int slot) const
{
    const Clip* clip = at(slot);
    return clip ? clip->number : count_ + 1 + slot - static_cast<int>(clips_.size());
}

static Rect boxOfSelection(const Document& document)
{
    return document.Region.Region().bounds().intersected(document.Region.RegionMain().bounds());
}

bool hasSelectedPart(const Document& document)
{
    const Rect box = boxOfSelection(document);
    return document.PictureExists() && box.width() >= 2 && box.height() >= 2;
}

Bits selectedPart(const Document& document)
{
    if (!hasSelectedPart(document)) return {};
    const Rect box = boxOfSelection(document);
    cBitFilter cutter; // a separate engine: the frame's keeps the picture
    cutter.setBitsRegion(document.Region.Region());
    cutter.BitsCropMasked(document.bits(), box.left, box.top, box.right, box.bottom);
    return cutter.bits();
}

} // namespace velara
