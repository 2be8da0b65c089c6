// What can be told apart: the contrast of two colours, and the colour in which the focus is shown.
#pragma once
#include <QColor>
#include <QPalette>

namespace velara {

constexpr double kReadableText = 4.5, kVisibleSign = 3; // the least contrasts of the web's rules

/// Of two opaque colours, 1 to 21, as the web's rules count it.
double contrast(const QColor& one, const QColor& other);

/// The channels of one and other, mixed; part is that of one, 0 to 1.
QColor mixed(const QColor& one, const QColor& other, double part);

/// A palette of nearly nothing but black and white, whose controls need edges to be seen.
bool isHighContrast(const QPalette& palette);

/// The selection's colour where that can be seen on a window, otherwise the text's.
QColor focusColour(const QPalette& palette);

} // namespace velara
