// Writes GIF files of a single picture.
#pragma once
#include "pixels/IndexedPicture.h"
#include <QString>

namespace velara {

class OutputFile;

/// bits: the bits per pixel stated in the file, if more than the palette needs; the palette is then padded with black.
/// False when it can't be written; the file's name is not taken before file.commit().
bool writeGif(const IndexedPicture& picture, OutputFile& file, bool interlaced, int bits);

/// False when the file could not be written or the picture is empty or too large for the format (65535 a side); an
/// existing file is intact then.
bool writeGif(const IndexedPicture& picture, const QString& fileName, bool interlaced = false);

} // namespace velara
