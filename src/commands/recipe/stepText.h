// Steps as text, so that parsing it gives the same step again.
#pragma once
#include "engine/operations.h"
#include "region/Region.h"
#include <QString>
#include <QStringList>

namespace velara {

/// "0.5", "slanting" and so on; a single has as many digits as it needs. A picture has no text.
QString argumentText(const Argument& argument);
/// "EMBOSS(10)". A picture is named by its path, as a text; a path that no line can hold (a line break, bytes that are
/// no characters) gives an empty text.
QString callText(std::string_view operation, const Arguments& arguments);
/// BitsResample or BitsResize.
QString resizeText(int width, int height, bool smooth);
/// The shape after "--select" that gives this region; "none" for an empty one.
QString selectionText(const Region& selection);
/// Quoted for a POSIX shell where that is needed.
QString shellQuoted(const QString& argument);

} // namespace velara
