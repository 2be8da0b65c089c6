// The commands that rebuild the picture at another size, as jobs (document/road/Change.h) shared by the editor and the
// batch program. Each leaves the result in the engine and in the document, with the region reset to the whole picture.
// On RuntimeError nothing has changed.
#pragma once
#include "document/Document.h"
#include "engine/cBitFilter.h"

namespace velara {

/// Enlarges by factor or reduces to round(size / factor), by BitsResample if quality, else BitsResize. 1 leaves the
/// picture unchanged.
void zoomImage(Document& document, cBitFilter& filter, int factor, bool enlarge, bool quality);

/// Turns by degrees into a picture large enough to hold all of it.
void rotateImage(Document& document, cBitFilter& filter, int degrees, bool quality);

/// Sizes the picture to width by height, by BitsResample when smooth, else BitsResize.
void resizeImage(Document& document, cBitFilter& filter, int width, int height, bool smooth);

/// Puts the picture on a black one of width by height, its upper left pixel at (left, top), clipped.
void resizeCanvas(Document& document, cBitFilter& filter, int width, int height, int left, int top);

/// BitsRotate90 quarterTurns times (0 to 3), then Flip.
void orientImage(Document& document, cBitFilter& filter, int quarterTurns, bool flipVertical, bool flipHorizontal);

/// Turns by degrees about the centre of a square as wide as the picture's diagonal; unlike rotateImage the square is
/// kept.
void turnOnSquare(Document& document, cBitFilter& filter, int degrees, bool smooth);

enum class CropAnswer { Possible, NothingSelected, TooSmall };
/// Whether the selection has a bounding box of at least 2 by 2.
CropAnswer cropAnswer(const Document& document);
/// Crops the picture to the bounding box of the selection; does nothing where that isn't possible.
void cropImage(Document& document, cBitFilter& filter);

} // namespace velara
