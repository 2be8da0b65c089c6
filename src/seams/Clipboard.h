// Clipboard: pictures on the clipboard of the desktop.
#pragma once
#include "seams/PictureReader.h"

namespace velara {

class Clipboard {
  public:
    virtual ~Clipboard() = default;

    /// What another program put there, decoded like a file. Its owner has a second to answer, and longer only while
    /// bytes arrive, with a box in which the user can give up. Neither picture nor reason: the clipboard has no
    /// picture.
    virtual LoadedPicture bitmap() = 0;
    /// How often other programs have put something there since the start.
    virtual int changesByOthers() const = 0;
    /// False when the desktop refuses it.
    virtual bool setBitmap(const Bits& bits) = 0;
    /// A part of a picture with a mask: pixels with a fourth byte of 255 are transparent, all others opaque.
    virtual bool setPart(const Bits& part) = 0;
    virtual void clear() = 0;
};

} // namespace velara
