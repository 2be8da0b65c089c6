#include "tools/PreviewBuffer.h"
#include "engine/cBitFilter.h"
#include <cstring>

namespace velara {

namespace {

bool isSame(const std::weak_ptr<const std::uint8_t[]>& a, const std::weak_ptr<const std::uint8_t[]>& b)
{
    return !a.owner_before(b) && !b.owner_before(a);
}

} // namespace

/// True while both pictures are the blocks that this object left, so that they differ at most in the touched tiles.
bool PreviewBuffer::inStep() const
{
    return isSame(document_.bits().block(), document_.preview.shown) &&
           isSame(filter_.bits().block(), document_.preview.committed);
}

void PreviewBuffer::remember()
{
    document_.preview.shown = document_.bits().block();
    document_.preview.committed = filter_.bits().block();
}

/// Determines how the two differ, whatever may have replaced either.
void PreviewBuffer::compare()
{
    if (inStep()) return;
    const Bits& shown = document_.bits();
    if (shown.width() != filter_.bits().width() || shown.height() != filter_.bits().height()) document_.handTo(filter_);
    document_.touched.reset(shown.width(), shown.height());
    document_.preview.whole = !shown.sharesWith(filter_.bits());
    remember();
}

void PreviewBuffer::begin()
{
    if (!document_.PictureExists()) return;
    compare();
    if (!document_.bits().isShared()) return;
    document_.edit().row(0); // copies the whole picture
    remember();
}

/// target := source, where they differ at most in the touched tiles.
void PreviewBuffer::settle(Bits& target, const Bits& source)
{
    document_.touched.forEach([&](const Rect& tile) {
        for (int y = tile.top; y < tile.bottom; ++y)
            std::memcpy(target.row(y) + tile.left, source.row(y) + tile.left,
                        sizeof(Pixel) * static_cast<std::size_t>(tile.width()));
    });
    document_.touched.reset(target.width(), target.height());
}

void PreviewBuffer::restore()
{
    if (!document_.PictureExists()) return;
    compare();
    if (document_.preview.whole) {
        restored_ = {0, 0, document_.PictureWidth(), document_.PictureHeight()};
        document_.setBits(filter_.bits());
        document_.touched.reset(document_.PictureWidth(), document_.PictureHeight());
        document_.preview.whole = false;
        return remember();
    }
    restored_ = restored_.united(document_.touched.bounds());
    if (!document_.touched.isEmpty()) settle(document_.edit(), filter_.bits());
    remember();
}

bool PreviewBuffer::hasChanges()
{
    if (!document_.PictureExists()) return false;
    compare();
    const Bits &shown = document_.bits(), &committed = filter_.bits();
    if (document_.preview.whole) return !(shown == committed);
    bool differs = false;
    document_.touched.forEach([&](const Rect& tile) {
        for (int y = tile.top; y < tile.bottom && !differs; ++y)
            differs = std::memcmp(shown.row(y) + tile.left, committed.row(y) + tile.left,
                                  sizeof(Pixel) * static_cast<std::size_t>(tile.width())) != 0;
    });
    return differs;
}

void PreviewBuffer::commit()
{
    if (!document_.PictureExists()) return;
    compare();
    if (document_.preview.whole || document_.touched.isMost() || filter_.bits().isShared()) {
        filter_.setBits(document_.bits()); // shared; the next begin() makes the second block
        document_.touched.reset(document_.PictureWidth(), document_.PictureHeight());
        document_.preview.whole = false;
        return remember();
    }
    Bits committed = filter_.bits();
    filter_.setBits(Bits()); // so that the write is in place
    settle(committed, document_.bits());
    filter_.setBits(std::move(committed));
    remember();
}

} // namespace velara
