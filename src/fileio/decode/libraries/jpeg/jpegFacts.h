// The segments of a JPEG file that aren't pixels.
#pragma once
#include "fileio/decode/decode.h"
#include "fileio/decode/libraries/metadata.h"

namespace velara::decode {

/// EXIF, XMP, IPTC, profile, comment and resolution; never fails.
Carried carriedByJpeg(Span file);

} // namespace velara::decode
