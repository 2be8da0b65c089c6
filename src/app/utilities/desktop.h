// The words that speak with the desktop, the printer and the scanner.
#pragma once
#include "seams/Wallpaper.h"

namespace velara {

class fMain;

/// The active picture becomes the wallpaper.
void setAsWallpaper(fMain& frame, WallpaperMode mode);
/// The choice of the scanner for the scans to come.
void selectSource(fMain& frame);
/// The dialog that prints the active picture.
void print(fMain& frame);
/// The choice of printer and paper for the pages to come.
void setUpPrinter(fMain& frame);
/// One picture from the scanner as a new document.
void acquire(fMain& frame);

} // namespace velara
