// Files as desktops name them: "file:///home/me/a%20b.png". Any byte of a name survives.
#pragma once
#include <QString>
#include <optional>

namespace velara {

/// \param path absolute
QString uriOf(const QString& path);

/// The path that a URI names, or a path itself; none when it isn't a file of this computer.
std::optional<QString> pathOf(const QString& uri);

} // namespace velara
