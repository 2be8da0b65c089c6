// The fonts of the system, handed over opened: the readers that draw text ask for them by their paths, inside of a cage
// that knows no paths.
#pragma once

namespace velara::decode {

/// Opens all files of the folders of fonts, before the cage closes. From then on a call by path that the filter turns
/// away as a signal (SIGSYS) is answered in this process: with the font of that path, and with "no permission" for all
/// else. x86-64.
void handOverFonts();

/// The highest descriptor of a font; -1 when there is none.
int highestFont();

} // namespace velara::decode
