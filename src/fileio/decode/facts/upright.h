// A picture as it is meant to be seen: files of cameras say by an orientation how their rows and columns lie.
#pragma once
#include "fileio/decode/decode.h"

namespace velara::decode {

/// 1 to 8, as EXIF counts: the container's, else the one in its EXIF, else 1.
int orientationOf(const Carried& carried);

/// The picture upright; carried is unchanged. Where rows become columns or change their order, the pixels are read into
/// memory here: 4 bytes each, of bad_alloc there may be one.
Decoded upright(Decoded picture);

} // namespace velara::decode
