// PreviewBuffer: keeps the document's picture and the engine's committed picture in two blocks that are equal except
// for the tiles painted since the last commit. So a drag step restores, and a commit transfers, only what was touched;
// the result is the same as copying the whole picture. Only the first stroke after another command costs one full copy.
// What it knows of the two is kept in the document: each view has a buffer. To be used only while the engine holds the
// document.
#pragma once
#include "document/Document.h"

namespace velara {

class cBitFilter;

class PreviewBuffer {
  public:
    /// Both must outlive this object. Writes to the document must be marked in Document::touched; a picture replaced by
    /// another command is noticed.
    PreviewBuffer(Document& document, cBitFilter& filter) : document_(document), filter_(filter) {}

    /// Call before the first write of a drag: gives the document a block of its own. An engine whose picture has
    /// another size gets the document's.
    void begin();
    /// document := committed picture.
    void restore();
    /// True where a pixel of the two differs.
    bool hasChanges();
    /// committed picture := document.
    void commit();
    /// The bounding rectangle of everything restored since the last call.
    Rect takeRestored() { return std::exchange(restored_, {}); }

  private:
    bool inStep() const;
    void compare();
    void remember();
    void settle(Bits& target, const Bits& source);

    Document& document_;
    cBitFilter& filter_;
    Rect restored_;
};

} // namespace velara
