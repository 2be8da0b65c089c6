// Writes GIF files of one picture.
#pragma once
#include "fileio/IndexedPicture.h"
#include <QString>

namespace velara {

/// False when the file could not be written or the picture is empty or beyond the format (65535 a side); what stood
/// under the name is whole then.
bool writeGif(const IndexedPicture& picture, const QString& fileName, bool interlaced = false);

} // namespace velara
