#include "document/Document.h"
#include "engine/cBitFilter.h"

namespace velara {

void Document::setBits(const Bits& bits)
{
    if (PictureExists() && !bits.isNull()) bits_ = bits;
}

void Document::takePicture(const Bits& bits)
{
    bits_ = bits;
    Region.Init(0, 0, bits.width(), bits.height());
}

void Document::Clear() { bits_ = Bits(); }

void Document::handTo(cBitFilter& filter) const
{
    filter.setBits(bits_);
    filter.setBitsRegion(Region.working());
}

void Document::takeFrom(const cBitFilter& filter)
{
    const Bits& bits = filter.bits();
    if (bits.width() == PictureWidth() && bits.height() == PictureHeight())
        setBits(bits);
    else
        takePicture(bits);
}

void Document::commit()
{
    Changed = true;
    Zoomed = false;
    SaveUndoBits();
}

bool Document::step(const std::optional<Bits>& picture, cBitFilter& filter)
{
    if (!picture) return false;
    ++commits_;
    if (picture->width() != PictureWidth() || picture->height() != PictureHeight())
        takePicture(*picture);
    else
        bits_ = *picture;
    handTo(filter);
    Zoomed = false;
    return true;
}

} // namespace velara
