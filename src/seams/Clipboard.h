// Clipboard: pictures on the clipboard of the desktop.
#pragma once
#include "seams/PictureReader.h"

namespace velara {

class Clipboard {
  public:
    virtual ~Clipboard() = default;

    /// What another program put there is read as a file would be; its owner has a second for its answers, and longer
    /// only while bytes come, with a box that gives them up. Neither picture nor reason: there is none.
    virtual LoadedPicture bitmap() = 0;
    /// False where the desktop doesn't take it.
    virtual bool setBitmap(const Bits& bits) = 0;
    /// A part of a picture, by alpha: pixels with a fourth byte of 255 are transparent, all others opaque.
    virtual bool setPart(const Bits& part) = 0;
    virtual void clear() = 0;
};

} // namespace velara
