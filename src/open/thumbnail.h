// Small copies of pictures for file managers.
#pragma once
#include <QString>

namespace velara {

/// Writes a PNG of the picture file, at most side by side pixels, or returns why it can't. The file is read in the
/// sandbox of the readers; an existing target stays as it was when that fails.
QString writeThumbnail(const QString& file, int side, const QString& png);

} // namespace velara
