// Clipboard: pictures on the clipboard of the desktop.
#pragma once
#include "seams/PictureReader.h"

namespace velara {

class Clipboard {
  public:
    virtual ~Clipboard() = default;

    /// Whether a picture is offered; asks its owner, for a second at most.
    virtual bool hasBitmap() = 0;
    /// What another program put there is read as a file would be. Neither picture nor reason: there is none.
    virtual LoadedPicture bitmap() = 0;
    /// False where the desktop doesn't take it.
    virtual bool setBitmap(const Bits& bits) = 0;
    /// A part of a picture, by alpha: pixels with a fourth byte of 255 are transparent, all others opaque.
    virtual bool setPart(const Bits& part) = 0;
    virtual void clear() = 0;
};

} // namespace velara
