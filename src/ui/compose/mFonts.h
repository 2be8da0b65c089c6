// mFonts: the lists of fonts and sizes of the windows that set text.
#pragma once
#include <QComboBox>

namespace velara {

class Platform;

/// The installed families, each with the writing systems that it serves as its tip. False after the message that they
/// can't be had.
bool fillFonts(QComboBox& list, Platform& platform);
/// Chooses the family, or the one that stands in for it.
void selectFont(QComboBox& list, Platform& platform, const QString& family);

} // namespace velara
