// Writes GIF files of one picture.
#pragma once
#include "pixels/IndexedPicture.h"
#include <QString>

namespace velara {

class OutputFile;

/// bits: how many bits a pixel the file tells, if more than the palette needs; the palette is then filled up with
/// black. False when it can't be written; nothing takes the file's name before file.commit().
bool writeGif(const IndexedPicture& picture, OutputFile& file, bool interlaced, int bits);

/// False when the file could not be written or the picture is empty or beyond the format (65535 a side); what stood
/// under the name is whole then.
bool writeGif(const IndexedPicture& picture, const QString& fileName, bool interlaced = false);

} // namespace velara
