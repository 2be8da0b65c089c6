// The string views of tables as QStrings.
#pragma once
#include <QString>
#include <string_view>

namespace velara {

/// From UTF-8.
inline QString text(std::string_view utf8) { return QString::fromUtf8(utf8.data(), qsizetype(utf8.size())); }

} // namespace velara
