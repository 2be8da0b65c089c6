// The commands that rebuild the picture at another size, shared by the editor and the batch program. Each ends with the
// result in the engine and in the document and a fresh whole-picture limit; repaint and undo snapshot are the caller's.
#pragma once
#include "document/Document.h"
#include "filters/cBitFilter.h"

namespace velara {

/// Enlarges by factor or reduces to round(size / factor), by BitsResample with quality, else BitsResize. A run of these
/// steps starts from the picture before the first of them (Document::Zoomed).
void zoomImage(Document& document, cBitFilter& filter, int factor, bool enlarge, bool quality);

/// Turns by degrees into a picture large enough to hold all of it.
void rotateImage(Document& document, cBitFilter& filter, int degrees, bool quality);

enum class CropAnswer { Done, NothingSelected, TooSmall };
/// Cuts the picture to the box of the selection, at least 2 by 2.
CropAnswer cropImage(Document& document, cBitFilter& filter);

} // namespace velara
