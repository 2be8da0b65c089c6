// The string views of tables as QStrings, in English and in the user's language.
#pragma once
#include <QCoreApplication>
#include <QString>
#include <string>
#include <string_view>

namespace velara {

/// From UTF-8.
inline QString text(std::string_view utf8) { return QString::fromUtf8(utf8.data(), qsizetype(utf8.size())); }

/// An English text of a table in the user's language, by the name under which tools/translations lists the table's
/// texts. Programs without windows have no other language than English.
inline QString shown(const char* table, std::string_view english)
{
    return english.empty() ? QString() : QCoreApplication::translate(table, std::string(english).c_str());
}

} // namespace velara
