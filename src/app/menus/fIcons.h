// The icons of menus and buttons: the theme Breeze in its light or dark variant, and our own drawings where the theme
// has none.
#pragma once
#include <QIcon>
#include <string_view>

namespace velara {

/// Registers the program's own drawings; call it first.
void useResources();

/// Selects the theme variant that fits the palette: our menus stay legible with and without a desktop environment.
void useIconTheme();

/// An icon of the theme, in one drawing for menus and one for bars at any scale of the screen.
QIcon themeIcon(const QString& name);

/// The icon of a word, an "@" action or a tool key; null when it has none.
QIcon iconOf(std::string_view word);

} // namespace velara
