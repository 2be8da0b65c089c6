// The system's fonts, opened beforehand: readers that draw text ask for them by path, inside a cage that has no paths.
#pragma once

namespace velara::decode {

/// Opens all files of the font folders before the cage closes. From then on a call by path that the filter turns into a
/// signal (SIGSYS) is answered in this process: with the font of that path, and with "no permission" for anything else.
/// x86-64.
void handOverFonts();

/// The highest descriptor of a font; -1 when there is none.
int highestFont();

} // namespace velara::decode
