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

void Document::SaveUndoBits(StepNote note)
{
    ++commits_;
    if (undo.hasFolder()) note.small = smallCopy(bits_);
    note.width = bits_.width();
    note.height = bits_.height();
    undo.willDescribe(facts());
    undo.save(bits_, std::move(note));
}

void Document::commit(StepNote note)
{
    Changed = true;
    Zoomed = false;
    SaveUndoBits(std::move(note));
}

void Document::moveTo(const UndoStore::Found& found)
{
    undo.moveTo(found);
    ++commits_;
    if (found.picture.width() != PictureWidth() || found.picture.height() != PictureHeight())
        takePicture(found.picture);
    else
        bits_ = found.picture;
    Zoomed = false;
    describe();
}

/// Unsaved is also what was undone to the first state: there are steps forward.
DocumentFacts Document::facts() const
{
    return {file, PictureExists() && (waitingWork || file.isBrought || Changed), waitingTexts};
}

bool Document::step(bool back, cBitFilter& filter)
{
    const auto found = undo.stepLater(back)();
    if (!found) return false;
    moveTo(*found);
    handTo(filter);
    return true;
}

} // namespace velara
