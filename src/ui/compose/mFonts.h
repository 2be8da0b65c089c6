// mFonts: fills the lists of fonts in windows that set text. The fonts used last are on top, above a separator, and
// again among all families below; each is written in its own face.
#pragma once
#include <QComboBox>

namespace velara {

class Platform;

/// The installed families, each with its writing systems as tool tip; those of symbols come last. False after the
/// message that they aren't available.
bool fillFonts(QComboBox& list, Platform& platform);
/// The index of the first of all families, below those used last.
int firstFont(const QComboBox& list);
/// Selects the family, or its substitute.
void selectFont(QComboBox& list, Platform& platform, const QString& family);
/// To be called when a text in this family has been put down: the next lists have it on top.
void keepFont(Platform& platform, const QString& family);
/// Brings the fonts used last to the top of a list that is filled; the selection stays.
void showRecentFonts(QComboBox& list, Platform& platform);

} // namespace velara
