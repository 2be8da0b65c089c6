// The pictures of menus and buttons: the icon theme Breeze in its light or dark cut, and our own drawings where the
// theme has none.
#pragma once
#include <QIcon>
#include <string_view>

namespace velara {

/// Makes the program's own drawings known; first of all.
void useResources();

/// Takes the theme that fits the palette: our own menus stay legible with and without a desktop around us.
void useIconTheme();

/// The icon of a word, an "@" action or a tool key; null when it has none.
QIcon iconOf(std::string_view word);

} // namespace velara
