// The commands that rebuild the picture at another size, as jobs (document/road/Change.h) shared by the editor and the
// batch program. Each leaves the result in the engine and in the document, with a fresh whole-picture limit.
// RuntimeError: nothing has changed.
#pragma once
#include "document/Document.h"
#include "engine/cBitFilter.h"

namespace velara {

/// Enlarges by factor or reduces to round(size / factor), by BitsResample with quality, else BitsResize. 1 leaves the
/// picture alone.
void zoomImage(Document& document, cBitFilter& filter, int factor, bool enlarge, bool quality);

/// Turns by degrees into a picture large enough to hold all of it.
void rotateImage(Document& document, cBitFilter& filter, int degrees, bool quality);

/// Sizes the picture to width by height, by BitsResample when smooth, else BitsResize.
void resizeImage(Document& document, cBitFilter& filter, int width, int height, bool smooth);

/// A black picture of width by height with the old one on it, its upper left pixel at (left, top), cut where it sticks
/// out.
void resizeCanvas(Document& document, cBitFilter& filter, int width, int height, int left, int top);

/// quarterTurns times BitsRotate90 (0 to 3), then Flip.
void orientImage(Document& document, cBitFilter& filter, int quarterTurns, bool flipVertical, bool flipHorizontal);

/// Turns by degrees in the middle of a square as wide as the picture's diagonal; unlike rotateImage the square stays.
void turnOnSquare(Document& document, cBitFilter& filter, int degrees, bool smooth);

enum class CropAnswer { Possible, NothingSelected, TooSmall };
/// Whether the box of the selection is there, and at least 2 by 2.
CropAnswer cropAnswer(const Document& document);
/// Cuts the picture to the box of the selection; nothing happens where that isn't possible.
void cropImage(Document& document, cBitFilter& filter);

} // namespace velara
