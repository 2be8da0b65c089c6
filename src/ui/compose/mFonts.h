// mFonts: fills the lists of fonts and sizes in windows that set text.
#pragma once
#include <QComboBox>

namespace velara {

class Platform;

/// The installed families, each with its writing systems as tool tip. False after the message that they aren't
/// available.
bool fillFonts(QComboBox& list, Platform& platform);
/// Selects the family, or its substitute.
void selectFont(QComboBox& list, Platform& platform, const QString& family);

} // namespace velara
