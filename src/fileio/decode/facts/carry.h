// What a file carries beside its pixels, as the editor gets it: bytes for the files that it saves, and lines to read.
#pragma once
#include "fileio/decode/decode.h"

namespace velara::decode {

constexpr std::size_t kMostCarried = std::size_t{1} << 20; // bytes of each kind; longer ones are left out

/// Of an upright picture: orientation, sizes and small picture are mended.
CameraData cameraOf(const Decoded& picture);

/// Camera, lens, exposure, date, place, resolution, colours: lines of a name, a tab and a value, for the user; those
/// that the file doesn't tell are left out. Of a picture as its reader gives it.
QString propertiesOf(const Decoded& picture);

} // namespace velara::decode
